// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/dayfacts.h"

#include "journal/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/enterkey.h"
#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QAbstractButton>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QResizeEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int signSize = 16;
constexpr int signGap = 5;
constexpr int gap = 18;
constexpr int rowGap = 4;
constexpr int mostRows = 2;
constexpr int spare = 4; ///< behind the words, so that rounding cuts none
constexpr int widest = 360;

QLatin1StringView signOf(const HouseholdNote &note)
{
    return note.note.kind == NoteKind::Done ? "goal-reached"_L1 : DayNotes::signOf(note.note, note.function);
}

/// A few quiet words with a sign.
class FactButton final : public QAbstractButton
{
public:
    FactButton(const QString &words, QLatin1StringView sign, QWidget *parent)
        : QAbstractButton(parent)
        , m_sign(sign)
    {
        setText(words);
        setToolTip(words);
        setFont(TypeScale::label());
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_Hover);
        letEnterPress(this);
        show();
    }

    QSize sizeHint() const override
    {
        const int words = fontMetrics().horizontalAdvance(text()) + spare;
        return {std::min(signWidth() + words, TypeScale::wide(widest)),
                std::max(signSize, fontMetrics().height()) + 2};
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const bool isMarked = underMouse() || hasFocus();
        QFont shown = font();
        shown.setUnderline(isMarked);
        painter.setFont(shown);
        // The panel's ink, which a button does not take by itself.
        painter.setPen(parentWidget()->palette().color(isMarked ? ThemeRole::strong : ThemeRole::quiet));
        if (!m_sign.isEmpty())
            Icons::tinted(m_sign, Theme::of(this).scheme, painter.pen().color())
                .paint(&painter, QRect(0, (height() - signSize) / 2, signSize, signSize));
        const QRect words = rect().adjusted(signWidth(), 0, 0, 0);
        painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), Qt::ElideRight, words.width()));
    }

private:
    int signWidth() const { return m_sign.isEmpty() ? 0 : signSize + signGap; }

    QLatin1StringView m_sign;
};

} // namespace

DayFacts::DayFacts(const Program &program, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
{
    setObjectName(u"dayFacts"_s);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    hide();
}

QString DayFacts::wordsOf(const DayNote &note)
{
    if (note.kind == NoteKind::Done)
        return JournalWindowLines::done(note.text);
    if (!note.timeText.isEmpty())
        return note.timeText + u' ' + note.text;
    return note.text;
}

void DayFacts::setDate(QDate date)
{
    m_date = date;
    if (!date.isValid()) {
        clear();
        hide();
        return;
    }
    if (!std::exchange(m_isLoading, true))
        QTimer::singleShot(0, this, &DayFacts::load);
}

void DayFacts::clear()
{
    m_notes.clear();
    qDeleteAll(std::exchange(m_buttons, {}));
}

void DayFacts::load()
{
    m_isLoading = false;
    if (!m_date.isValid())
        return;
    QList<HouseholdNote> notes = DayNotes::all(m_program, Function::Journal, m_date, m_date);
    if (notes == m_notes)
        return;
    clear();
    m_notes = std::move(notes);
    for (const HouseholdNote &note : std::as_const(m_notes)) {
        const QString words = wordsOf(note.note);
        auto *button =
            named(new FactButton(words, signOf(note), this), u"dayFact_%1"_s.arg(m_buttons.size()));
        button->setAccessibleName(JournalWindowLines::putIntoText(words));
        connect(button, &QAbstractButton::clicked, this, [this, words] { emit chosen(words); });
        m_buttons.append(button);
    }
    auto *more =
        named(new FactButton(JournalWindowLines::more(int(m_notes.size())), {}, this), u"dayFactsMore"_s);
    connect(more, &QAbstractButton::clicked, this, &DayFacts::openMore);
    m_buttons.append(more);
    QWidget *before = m_before;
    for (QAbstractButton *button : std::as_const(m_buttons)) {
        if (QWidget *last = std::exchange(before, button))
            setTabOrder(last, button);
    }
    setVisible(!m_notes.isEmpty());
    updateGeometry();
    place(width(), true);
}

bool DayFacts::event(QEvent *event)
{
    // They may have been changed in another window meanwhile.
    if (event->type() == QEvent::WindowActivate && m_date.isValid())
        setDate(m_date);
    return QWidget::event(event);
}

int DayFacts::heightForWidth(int width) const
{
    return place(width, false);
}

QSize DayFacts::sizeHint() const
{
    return {widest, heightForWidth(width() > 0 ? width() : widest)};
}

QSize DayFacts::minimumSizeHint() const
{
    return {1, 1};
}

void DayFacts::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place(width(), true);
    // The room above the text is asked for by rows.
    if (heightForWidth(width()) != heightForWidth(event->oldSize().width()))
        updateGeometry();
}

/// Rows of what has room; gives their height.
int DayFacts::place(int width, bool isMoved) const
{
    if (m_buttons.isEmpty())
        return 0;
    QAbstractButton *more = m_buttons.last();
    const QSize moreSize = more->sizeHint();
    const int height = moreSize.height();
    QPoint at;
    int row = 0;
    qsizetype shown = 0;
    for (; shown < m_notes.size(); ++shown) {
        const int needed = std::min(m_buttons[shown]->sizeHint().width(), width);
        if (at.x() > 0 && at.x() + needed > width) {
            if (++row == mostRows)
                break;
            at = {0, at.y() + height + rowGap};
        }
        const bool isLast = shown + 1 == m_notes.size();
        const bool leavesRoom =
            isLast || row + 1 < mostRows || at.x() + needed + gap + moreSize.width() <= width;
        if (!leavesRoom)
            break;
        if (isMoved) {
            m_buttons[shown]->setGeometry(QRect(at, QSize(needed, height)));
            m_buttons[shown]->show();
        }
        at.rx() += needed + gap;
    }
    if (isMoved) {
        for (qsizetype i = shown; i < m_notes.size(); ++i)
            m_buttons[i]->hide();
        more->setText(JournalWindowLines::more(int(m_notes.size() - shown)));
        more->setGeometry(QRect(at, QSize(more->sizeHint().width(), height)));
        more->setVisible(shown < m_notes.size());
    }
    return std::min(row + 1, mostRows) * (height + rowGap) - rowGap;
}

void DayFacts::openMore()
{
    auto *menu = named(new QMenu(this), u"dayFactsMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (qsizetype i = 0; i < m_notes.size(); ++i) {
        if (m_buttons[i]->isVisible())
            continue;
        const QString words = m_buttons[i]->text();
        connect(menu->addAction(QString(words).replace(u'&', u"&&"_s)), &QAction::triggered, this,
                [this, words] { emit chosen(words); });
    }
    menu->popup(m_buttons.last()->mapToGlobal(QPoint(0, m_buttons.last()->height())));
}
