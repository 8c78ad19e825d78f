// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/dayform.h"

#include "planner/window/timesuggestion.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/look/theme.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QTime>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int rowHeight = 32; ///< where there is room; else a row shrinks
constexpr int rowGap = 2;
constexpr int lastRow = int(PlannerDay::rowCount) - 1;

} // namespace

int DayForm::numberWidth()
{
    return TypeScale::wide(20);
}

int DayForm::timeBoxWidth()
{
    return TypeScale::wide(112);
}

TimeList::TimeList(QWidget *parent)
    : QComboBox(parent)
{
    addItems(times());
    // The focus stays in the box whose time is picked.
    setFocusPolicy(Qt::NoFocus);
    setCurrentIndex(-1);
    setItemDelegate(new ListRowDelegate(this));
    setMaxVisibleItems(10);
    view()->setMinimumWidth(DayForm::timeBoxWidth());
    setToolTip(u"List of times (Alt+Down)"_s);
    setAccessibleName(u"List of times"_s);
}

QStringList TimeList::times()
{
    QStringList times;
    for (QTime time(6, 0); time <= QTime(22, 0); time = time.addSecs(30 * 60))
        times << QLocale::c().toString(time, u"h:mm AP"_s);
    return times;
}

void TimeList::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Theme &theme = Theme::of(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.soft);
        painter.drawRoundedRect(rect(), 4, 4);
    }
    const QPointF middle = QRectF(rect()).center();
    painter.setPen(QPen(theme.text, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF{middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)});
}

void TimeList::wheelEvent(QWheelEvent *event)
{
    // Scrolling over the arrow must not change an appointment.
    event->ignore();
}

DayForm::DayForm(QWidget *parent)
    : QWidget(parent)
    , m_times(controlArray<FieldBox, PlannerDay::rowCount>(u"Text1"_s, this))
    , m_texts(controlArray<FieldBox, PlannerDay::rowCount>(u"Text2"_s, this))
    , m_timeList(named(new TimeList(this), u"Combo1"_s))
    , m_suggestion(new TimeSuggestion(this))
{
    setMaximumWidth(greatestWidth);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(gap);
    grid->setVerticalSpacing(rowGap);
    grid->setColumnStretch(2, 1);
    for (int row = 0; row <= lastRow; ++row) {
        const QString number = QString::number(row + 1);
        QLabel *label = makeQuietLabel(number, this);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setFixedWidth(numberWidth());
        setUpBox(timeBox(row), PlannerDay::timeWidth, u"Time of row "_s + number);
        setUpBox(textBox(row), PlannerDay::textWidth, u"Appointment or activity of row "_s + number);
        timeBox(row)->setAlignment(Qt::AlignRight);
        timeBox(row)->setFixedWidth(timeBoxWidth());
        m_suggestion->watch(timeBox(row));
        grid->addWidget(label, row, 0);
        grid->addItem(new QSpacerItem(0, rowHeight, QSizePolicy::Minimum, QSizePolicy::Preferred), row, 0);
        grid->addWidget(timeBox(row), row, 1);
        grid->addWidget(textBox(row), row, 2);
        setTabOrder(timeBox(row), textBox(row));
        if (row < lastRow)
            setTabOrder(textBox(row), timeBox(row + 1));
    }
    grid->setRowStretch(lastRow + 1, 1);
    connect(m_timeList, &QComboBox::activated, this, &DayForm::pickTime);
    connect(m_suggestion, &TimeSuggestion::taken, this, [this] {
        textBox(m_row)->setFocus(Qt::TabFocusReason);
        emit edited();
    });
}

void DayForm::setUpBox(FieldBox *box, int limit, const QString &accessibleName)
{
    box->setProperty("tight", true); // fourteen rows have to fit on the smallest screen
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    box->setByteLimit(limit);
    box->setAccessibleName(accessibleName);
    box->installEventFilter(this);
    connect(box, &QLineEdit::textEdited, this, &DayForm::edited);
    connect(box, &FieldBox::refused, this, &DayForm::said);
}

void DayForm::setDay(const PlannerDay &day)
{
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        m_times[row]->setText(day.times[row]);
        m_texts[row]->setText(day.texts[row]);
    }
}

void DayForm::setReadOnly(bool readOnly)
{
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        m_times[row]->setReadOnly(readOnly);
        m_texts[row]->setReadOnly(readOnly);
    }
    m_timeList->setVisible(!readOnly);
}

PlannerDay DayForm::day() const
{
    PlannerDay day;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        day.times[row] = m_times[row]->text();
        day.texts[row] = m_texts[row]->text();
    }
    return day;
}

void DayForm::focusRow(int row)
{
    row = std::clamp(row, 0, lastRow);
    QWidget *box = timeBox(row)->text().isEmpty() ? timeBox(row) : textBox(row);
    box->setFocus();
    // Behind a question the focus comes only with the window, too late to take the place of what is said
    // next.
    if (row != m_row && !box->hasFocus())
        enterRow(row);
}

int DayForm::firstEmptyRow() const
{
    const PlannerDay shown = day();
    for (int row = 0; row < lastRow; ++row) {
        if (shown.isRowEmpty(std::size_t(row)))
            return row;
    }
    return lastRow;
}

void DayForm::enterRow(int row)
{
    textBox(m_row)->setPlaceholderText({});
    m_row = row;
    m_isEntered = true;
    if (!textBox(m_row)->isReadOnly())
        textBox(m_row)->setPlaceholderText(u"What is planned?"_s);
    m_timeList->setCurrentIndex(m_timeList->findText(timeBox(row)->text()));
    placeTimeList();
    emit rowEntered(row);
}

void DayForm::placeTimeList()
{
    const QRect box = timeBox(m_row)->geometry();
    m_timeList->resize(m_timeList->sizeHint());
    m_timeList->move(box.left() + 5, box.center().y() - m_timeList->height() / 2 + 1);
    m_timeList->raise();
}

void DayForm::pickTime(int index)
{
    timeBox(m_row)->setText(m_timeList->itemText(index));
    textBox(m_row)->setFocus();
    emit edited();
}

bool DayForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::FocusIn && event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    for (int row = 0; row <= lastRow; ++row) {
        if (watched != timeBox(row) && watched != textBox(row))
            continue;
        if (event->type() == QEvent::FocusIn) {
            // A window that comes back from a question is no new row: what was said stays.
            const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
            if (row != m_row || !m_isEntered ||
                (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason))
                enterRow(row);
            return false;
        }
        const auto *key = static_cast<QKeyEvent *>(event);
        return keyPressed(row, watched == timeBox(row), key->key(), key->modifiers());
    }
    return QWidget::eventFilter(watched, event);
}

bool DayForm::keyPressed(int row, bool inTime, int key, Qt::KeyboardModifiers modifiers)
{
    const auto go = [&](int to) {
        if (to >= 0 && to <= lastRow)
            (inTime ? timeBox(to) : textBox(to))->setFocus(Qt::TabFocusReason);
        return true;
    };
    const bool opensList = (key == Qt::Key_Down && modifiers & Qt::AltModifier) || key == Qt::Key_F4;
    if (opensList && inTime && !m_timeList->isHidden()) {
        m_timeList->showPopup();
        return true;
    }
    if (modifiers & ~Qt::KeypadModifier)
        return false;
    switch (key) {
    case Qt::Key_Up:
        return go(row - 1);
    case Qt::Key_Down:
        return go(row + 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A list of timed entries goes on with the next time, one without times with the next text.
        if (!inTime && !timeBox(row)->text().isEmpty() && row < lastRow) {
            timeBox(row + 1)->setFocus(Qt::TabFocusReason);
            return true;
        }
        return go(row + 1);
    default:
        return false;
    }
}

void DayForm::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeTimeList();
}
