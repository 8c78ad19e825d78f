// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/datepicker.h"

#include "shell/controls/datebox.h"
#include "shell/controls/monthview.h"
#include "shell/core/clock.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int gap = 8;
/// At the window's foot, where it would cover the status bar.
constexpr int foot = 32;
} // namespace

DatePicker::DatePicker(const Clock &clock, QWidget *window)
    : QFrame(window)
    , m_clock(clock)
    , m_month(named(new MonthView(this), u"MonthView1"_s))
{
    setObjectName(u"datePicker"_s);
    setAttribute(Qt::WA_StyledBackground);
    m_month->setAccessibleName(u"Calendar"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->addWidget(m_month);
    // Tab walks the boxes; Down alone leads into the calendar.
    for (QWidget *part : m_month->findChildren<QWidget *>()) {
        part->setFocusPolicy(Qt::ClickFocus);
        part->installEventFilter(this);
    }
    m_month->setFocusPolicy(Qt::ClickFocus);
    m_month->installEventFilter(this);
    connect(m_month, &QCalendarWidget::clicked, this, &DatePicker::choose);
    connect(m_month, &QCalendarWidget::activated, this, &DatePicker::choose);
    window->installEventFilter(this);
    hide();
}

void DatePicker::addBox(DateBox *box)
{
    m_boxes.append(box);
    box->installEventFilter(this);
}

/// The date of the box, or today where it has none.
void DatePicker::showDate()
{
    const QDate today = m_clock.today();
    m_month->setToday(today);
    m_month->setSelectedDate(m_box->date().value_or(today));
}

void DatePicker::open(DateBox *box)
{
    m_box = box;
    showDate();
    if (box->isLocked())
        emit box->lockedDateShown();
    const Theme &theme = Theme::of(box);
    setStyleSheet(u"#datePicker { background: %1; border: 1px solid %2; border-radius: 10px; }"_s.arg(
        theme.panel.name(), theme.edge.name()));
    m_month->setSelectionMode(box->isLocked() ? QCalendarWidget::NoSelection
                                              : QCalendarWidget::SingleSelection);
    adjustSize();
    reposition();
    show();
    raise();
    qApp->installEventFilter(this);
}

void DatePicker::dismiss()
{
    if (!isVisible())
        return;
    qApp->removeEventFilter(this);
    const bool hadFocus = holdsFocus();
    hide();
    if (hadFocus)
        m_box->setFocus(Qt::OtherFocusReason);
}

void DatePicker::reposition()
{
    if (!m_box)
        return;
    const QRect boxPlace(m_box->mapTo(parentWidget(), QPoint(0, 0)), m_box->size());
    const QRect room = parentWidget()->rect().adjusted(gap, gap, -gap, -gap - foot);
    QPoint place(boxPlace.right() + 1 + gap, boxPlace.top());
    if (place.x() + width() > room.right())
        place.setX(boxPlace.left() - gap - width());
    if (place.x() < room.left())
        place = {boxPlace.left(), boxPlace.bottom() + 1 + gap / 2};
    if (place.y() + height() > room.bottom()) {
        const bool below = place.y() > boxPlace.bottom();
        place.setY(below ? boxPlace.top() - gap / 2 - height() : room.bottom() - height());
    }
    move(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())),
         std::max(room.top(), place.y()));
}

void DatePicker::choose(QDate day)
{
    DateBox *box = m_box;
    dismiss();
    if (!box->isLocked())
        box->setDate(day);
}

bool DatePicker::holdsFocus() const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && isAncestorOf(focus);
}

bool DatePicker::eventFilter(QObject *watched, QEvent *event)
{
    if (isVisible() && event->type() == QEvent::MouseButtonPress) {
        const auto *clicked = qobject_cast<QWidget *>(watched);
        if (clicked && clicked != this && clicked != m_box && !isAncestorOf(clicked))
            dismiss();
    }
    if (isVisible() && watched == parentWidget() && event->type() == QEvent::Resize)
        reposition();
    if (const auto found = std::find(m_boxes.cbegin(), m_boxes.cend(), watched); found != m_boxes.cend())
        return boxEvent(*found, event);
    if (watched->isWidgetType() && isAncestorOf(static_cast<QWidget *>(watched))) {
        if (event->type() == QEvent::FocusOut)
            QMetaObject::invokeMethod(
                this, [this] { return !holdsFocus() && !m_box->hasFocus() ? dismiss() : void(); },
                Qt::QueuedConnection);
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            dismiss();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

bool DatePicker::boxEvent(DateBox *box, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn: {
        // Coming back from another window or from a menu opens nothing by itself.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
            reason == Qt::MouseFocusReason || reason == Qt::ShortcutFocusReason)
            open(box);
        return false;
    }
    case QEvent::FocusOut:
        if (m_box == box)
            QMetaObject::invokeMethod(
                this, [this, box] { return !holdsFocus() && !box->hasFocus() ? dismiss() : void(); },
                Qt::QueuedConnection);
        return false;
    case QEvent::MouseButtonPress:
        if (!isVisible() && box->hasFocus())
            open(box);
        return false;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape ? !isVisible() : key != Qt::Key_Down)
            return false;
        event->accept();
        return event->type() == QEvent::KeyPress && keyPressed(box, key);
    }
    default:
        return false;
    }
}

bool DatePicker::keyPressed(DateBox *box, int key)
{
    if (key == Qt::Key_Escape) {
        dismiss();
        return true;
    }
    if (!isVisible())
        open(box);
    if (!box->isLocked()) {
        showDate();
        m_month->setFocus(Qt::OtherFocusReason);
    }
    return true;
}
