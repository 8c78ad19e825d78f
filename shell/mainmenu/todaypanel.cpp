// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/todaypanel.h"

#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/cardground.h"
#include "shell/mainmenu/todaylist.h"
#include "shell/mainmenu/todaymodel.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int side = CardGround::margin + 16;
constexpr int top = CardGround::margin + 8;
constexpr int slack = 6;
constexpr int leastLines = 3;
/// Where it is scrolled to, below the cards.
constexpr int linesBelow = 8;

/// Half a small screen's window, and more of it when the letters are large.
int leastColumn()
{
    return 26 * QFontMetrics(TypeScale::body()).height();
}

} // namespace

TodayPanel::TodayPanel(QWidget *parent)
    : QWidget(parent)
    , m_model(new TodayModel(this))
    , m_list(new TodayList(m_model, this))
    , m_nothing(makeQuietLabel(u"Nothing today or in the next seven days"_s, this))
{
    named(this, u"todayPanel"_s);
    setPalette(Theme::of(this).panelPalette());
    setFocusProxy(m_list);
    m_list->installEventFilter(this);
    connect(m_list, &TodayList::opened, this, &TodayPanel::openLine);
    connect(m_list, &TodayList::dayOpened, this,
            [this](QDate day) { emit opened(Function::Planner, {.date = day}); });
    connect(m_list, &TodayList::leftUpward, this, &TodayPanel::leftUpward);
    hide();
}

void TodayPanel::show(const TodayNotes &notes, DateStyle style)
{
    keepLine([&] { m_model->show(notes, style); });
    const bool isEmpty = m_model->wanted() == 0;
    m_hasSomething = !isEmpty || notes.isWhole();
    m_list->setVisible(!isEmpty);
    m_nothing->setVisible(isEmpty);
    setVisible(m_hasSomething);
    place();
    emit sizeChanged();
}

/// The current line stays where it was while the lines are made anew.
void TodayPanel::keepLine(const std::function<void()> &change)
{
    const int row = m_list->currentIndex().row();
    change();
    if (row >= 0)
        m_list->setCurrentIndex(m_model->index(std::min(row, m_model->rowCount() - 1), 0));
}

int TodayPanel::columnsFor(int width) const
{
    return width >= 2 * leastColumn() && m_model->wanted() > leastLines ? 2 : 1;
}

int TodayPanel::heightFor(int width, int room) const
{
    const int row = TodayList::rowHeight();
    if (m_model->wanted() == 0)
        return row + 2 * top;
    const int columns = columnsFor(width);
    // Few lines stand under one another.
    const int wanted =
        std::max((m_model->wanted() + columns - 1) / columns, std::min(m_model->wanted(), leastLines));
    const int possible = (room - 2 * top) / row;
    return std::min(wanted, possible >= std::min(leastLines, wanted) ? possible : linesBelow) * row + 2 * top;
}

void TodayPanel::openLine(int row)
{
    const TodayModel::Line &line = m_model->line(row);
    if (line.more > 0)
        emit opened(Function::Planner, {.date = line.day});
    else
        emit opened(line.note.function, line.note.note.place);
}

void TodayPanel::place()
{
    const int columns = columnsFor(width());
    const QRect inner = rect().adjusted(side, top, -side, -top);
    keepLine([&] { m_model->setRoom(columns * std::max(1, inner.height() / TodayList::rowHeight())); });
    // A list as high as its lines would already wrap the last of them.
    m_list->setGeometry(inner.adjusted(0, 0, 0, slack));
    m_list->setColumns(columns);
    m_nothing->setGeometry(inner);
}

void TodayPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

bool TodayPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        emit focused();
    return QWidget::eventFilter(watched, event);
}

void TodayPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor fill = palette().color(QPalette::Window);
    if (fill == Theme::of(this).panel)
        fill.setAlphaF(CardGround::opacity);
    painter.drawPixmap(0, 0, CardGround::of(*this, fill));
}
