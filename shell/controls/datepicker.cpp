// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/datepicker.h"

#include "shell/controls/datebox.h"
#include "shell/controls/monthview.h"
#include "shell/core/clock.h"
#include "shell/core/dates.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int gap = 8;
/// At the window's foot, where it would cover the status bar.
constexpr int foot = 32;

/// What stands beside a box: little, or the cells of its row, which are typed next.
enum class Neighbours { Boxes, Cells };

/// Where a calendar of `size` stands within `room` without covering `box`: at its right, its left, below or
/// above, of a cell first below or above, whichever first has room for it; else where most of it is seen, in
/// the room that there is.
QRect placeBeside(QRect box, QRect room, QSize size, QSize least, Neighbours neighbours)
{
    const QRect right(QPoint(box.right() + 1 + gap, room.top()), room.bottomRight());
    const QRect left(room.topLeft(), QPoint(box.left() - 1 - gap, room.bottom()));
    const QRect below(QPoint(room.left(), box.bottom() + 1 + gap / 2), room.bottomRight());
    const QRect above(room.topLeft(), QPoint(room.right(), box.top() - 1 - gap / 2));
    const std::array sides = neighbours == Neighbours::Cells ? std::array{below, above, right, left}
                                                             : std::array{right, left, below, above};
    const auto seenIn = [](const QRect &side, QSize wanted) {
        const QSize seen = wanted.boundedTo(side.size()).expandedTo({0, 0});
        return seen.width() * seen.height();
    };
    const auto bestFor = [&](QSize wanted) {
        return *std::ranges::max_element(sides, {}, [&](const QRect &side) { return seenIn(side, wanted); });
    };
    QRect side = bestFor(size);
    if (seenIn(side, size) < size.width() * size.height())
        side = bestFor(least);
    const QSize shown = size.boundedTo(side.size()).expandedTo({0, 0});
    // As near to the box as the side allows.
    const auto near = [](int wanted, int first, int last) {
        return std::clamp(wanted, first, std::max(first, last));
    };
    return {QPoint(near(box.left(), side.left(), side.right() + 1 - shown.width()),
                   near(box.top(), side.top(), side.bottom() + 1 - shown.height())),
            shown};
}

} // namespace

DatePicker::DatePicker(const Clock &clock, const Settings &settings, QWidget *window, const QString &name)
    : QFrame(window)
    , m_clock(clock)
    , m_settings(settings)
    , m_month(named(new MonthView(this), name))
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
    connect(box, &QLineEdit::textChanged, this, [this, box] {
        if (this->box() == box)
            follow();
    });
    connect(box, &QObject::destroyed, this, &DatePicker::forget);
}

/// The box of a grid's cell lives as long as somebody types into it.
void DatePicker::forget(QObject *box)
{
    m_boxes.removeIf([box](const DateBox *one) { return one == box; });
    if (m_box != box)
        return;
    m_box = nullptr;
    qApp->removeEventFilter(this);
    hide();
}

void DatePicker::showDate(QDate date)
{
    m_month->setSelectedDate(date);
    // The chosen day may be this one already, on a page that was turned.
    m_month->setCurrentPage(date.year(), date.month());
}

/// A text that is no date yet leaves the calendar as it is.
void DatePicker::follow()
{
    if (const auto date = m_box->date())
        showDate(*date);
    else if (m_box->text().isEmpty())
        showDate(m_clock.today());
}

void DatePicker::open(DateBox *box)
{
    m_box = box;
    m_month->setToday(m_clock.today());
    m_month->setVerticalHeaderFormat(m_settings.number(SettingsKeys::calendarWeekNumbers) ==
                                             SettingsKeys::calendarWeekNumbersHidden
                                         ? QCalendarWidget::NoVerticalHeader
                                         : QCalendarWidget::ISOWeekNumbers);
    m_month->setFirstDayOfWeek(Dates::weekStart(m_settings.number(SettingsKeys::calendarWeekStart)));
    showDate(box->date().value_or(m_clock.today()));
    if (box->isLocked())
        emit box->lockedDateShown();
    const Theme &theme = Theme::of(box);
    setStyleSheet(u"#datePicker { background: %1; border: 1px solid %2; border-radius: 10px; }"_s.arg(
        theme.panel.name(), theme.edge.name()));
    m_month->setSelectionMode(box->isLocked() ? QCalendarWidget::NoSelection
                                              : QCalendarWidget::SingleSelection);
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
    const QWidget *around = m_box->parentWidget() ? m_box->parentWidget()->parentWidget() : nullptr;
    const bool isCell = qobject_cast<const QAbstractItemView *>(around);
    setGeometry(placeBeside(boxPlace, room, sizeHint(), minimumSizeHint(),
                            isCell ? Neighbours::Cells : Neighbours::Boxes));
}

void DatePicker::choose(QDate day)
{
    DateBox *box = m_box;
    dismiss();
    if (box->isLocked())
        return;
    box->setDate(day);
    emit picked(box);
}

/// Asked for once the focus has arrived, which may be in the next date box.
void DatePicker::dismissUnlessUsed()
{
    if (m_box && !holdsFocus() && !m_box->hasFocus())
        dismiss();
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
    // What the box stands on is scrolled.
    if (isVisible() && event->type() == QEvent::Move && watched->isWidgetType() &&
        static_cast<QWidget *>(watched)->isAncestorOf(m_box))
        reposition();
    if (const auto found = std::find(m_boxes.cbegin(), m_boxes.cend(), watched); found != m_boxes.cend())
        return boxEvent(*found, event);
    if (watched->isWidgetType() && isAncestorOf(static_cast<QWidget *>(watched))) {
        if (event->type() == QEvent::FocusOut)
            QMetaObject::invokeMethod(this, &DatePicker::dismissUnlessUsed, Qt::QueuedConnection);
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
            QMetaObject::invokeMethod(this, &DatePicker::dismissUnlessUsed, Qt::QueuedConnection);
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
        follow();
        m_month->setFocus(Qt::OtherFocusReason);
    }
    return true;
}
