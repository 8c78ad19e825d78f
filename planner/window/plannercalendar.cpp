// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/plannercalendar.h"

#include "planner/model/lines.h"
#include "shell/controls/controls.h"
#include "shell/controls/monthview.h"
#include "shell/core/calendardates.h"
#include "shell/core/clock.h"
#include "shell/look/theme.h"

#include <QBoxLayout>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int gap = 16;
/// The least that a month keeps, with its dots below the numbers; the pane scrolls instead.
constexpr int leastHeight = 248;
/// The least that each of two months side by side keeps; a scroll bar must not drive them apart.
constexpr int leastWidth = 264;
/// What the name of a day needs beside its letters.
constexpr int nameMargins = 6;

} // namespace

void applyOptions(MonthView &month, const CalendarOptions &options, QDate today)
{
    month.setDateRange(CalendarDates::first(), CalendarDates::last());
    month.setFirstDayOfWeek(options.firstDay());
    month.setVerticalHeaderFormat(options.showsWeekNumbers() ? QCalendarWidget::ISOWeekNumbers
                                                             : QCalendarWidget::NoVerticalHeader);
    month.setToday(today);
    month.setTodayMarked(options.marksToday());
}

PlannerCalendar::PlannerCalendar(const Clock &clock, MarkedDays markedDays, QWidget *parent)
    : QWidget(parent)
    , m_clock(clock)
    , m_markedDays(std::move(markedDays))
    , m_first(named(new MonthView(this), u"MonthView1"_s))
    , m_second(named(new MonthView(this), u"monthViewAfter"_s))
{
    m_first->setAccessibleName(u"Calendar"_s);
    m_second->setAccessibleName(u"Calendar, the month after"_s);
    m_second->hide();
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(4);
    m_months = new QBoxLayout(QBoxLayout::TopToBottom);
    m_months->setSpacing(4);
    m_months->addWidget(m_first);
    m_months->addWidget(m_second);
    rows->addLayout(m_months, 1);
    QLabel *hint = makeQuietLabel(PlannerLines::dotsExplained(), this);
    hint->setAlignment(Qt::AlignHCenter);
    rows->addWidget(hint);
    for (MonthView *month : {m_first, m_second}) {
        month->setMinimumHeight(leastHeight);
        connect(month, &QCalendarWidget::selectionChanged, this, [this, month] { announce(month); });
        connect(month, &QCalendarWidget::clicked, this, [this, month] { announce(month); });
        connect(month, &QCalendarWidget::activated, this, &PlannerCalendar::dayEntered, Qt::QueuedConnection);
        connect(month, &MonthView::edgeReached, this, &PlannerCalendar::edgeReached);
    }
    connect(m_first, &QCalendarWidget::currentPageChanged, this, [this] { showPages(); });
    connect(m_second, &QCalendarWidget::currentPageChanged, this, [this](int year, int month) {
        if (m_isSetting)
            return;
        const QDate before = CalendarDates::within(QDate(year, month, 1).addMonths(-1));
        m_first->setCurrentPage(before.year(), before.month());
    });
}

void PlannerCalendar::setOptions(const CalendarOptions &options)
{
    for (MonthView *month : {m_first, m_second})
        applyOptions(*month, options, m_clock.today());
    m_second->setVisible(options.shownMonths() == 2);
    arrange();
    showPages();
}

QDate PlannerCalendar::date() const
{
    return m_first->selectedDate();
}

void PlannerCalendar::setDate(QDate date)
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    m_announced = {};
    showToday();
    const QDate first = firstShown();
    const bool isInSecond =
        m_second->isVisibleTo(this) && date >= first.addMonths(1) && date < first.addMonths(2);
    for (MonthView *month : {m_first, m_second})
        month->setSelectedDate(date);
    // A day of the second month is shown where it stands.
    const QDate shown = isInSecond ? first : date;
    m_first->setCurrentPage(shown.year(), shown.month());
    showPages();
}

void PlannerCalendar::showToday()
{
    for (MonthView *month : {m_first, m_second})
        month->setToday(m_clock.today());
}

void PlannerCalendar::refreshMarks()
{
    m_marks.clear();
    showMarks();
}

void PlannerCalendar::announce(MonthView *from)
{
    if (m_isSetting)
        return;
    // A click tells twice, and a question that it leads to must wait until the calendar has done with it.
    const bool isNew = !m_announced.isValid();
    m_announced = from->selectedDate();
    if (!isNew)
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (const QDate date = std::exchange(m_announced, {}); date.isValid()) {
                setDate(date);
                emit dateChosen(date);
            }
        },
        Qt::QueuedConnection);
}

QDate PlannerCalendar::firstShown() const
{
    return {m_first->yearShown(), m_first->monthShown(), 1};
}

void PlannerCalendar::showPages()
{
    const QScopedValueRollback<bool> setting(m_isSetting, true);
    QDate second = firstShown().addMonths(1);
    if (m_second->isVisibleTo(this) && !CalendarDates::has(second)) {
        // The last month of all stands below the one before it.
        second = firstShown();
        m_first->setCurrentPage(second.addMonths(-1).year(), second.addMonths(-1).month());
    }
    m_second->setCurrentPage(second.year(), second.month());
    m_first->setOwnDays({}, m_second->isVisibleTo(this) ? second.addDays(-1) : QDate());
    m_second->setOwnDays(second, {});
    showMarks();
}

void PlannerCalendar::showMarks()
{
    // A page shows some days of the months around it.
    QSet<QDate> marked;
    const QDate from = firstShown().addDays(-7);
    const QDate to = firstShown().addMonths(m_second->isVisibleTo(this) ? 2 : 1).addDays(14);
    for (int year = from.year(); year <= to.year(); ++year) {
        const auto known = m_marks.find(year);
        marked +=
            known != m_marks.end() ? known->second : m_marks.emplace(year, m_markedDays(year)).first->second;
    }
    m_first->setMarkedDays(marked);
    m_second->setMarkedDays(marked);
}

void PlannerCalendar::arrange()
{
    const bool hasTwo = m_second->isVisibleTo(this);
    const bool sideBySide = hasTwo && width() >= 2 * TypeScale::wide(leastWidth) + gap;
    m_months->setDirection(sideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_months->setSpacing(sideBySide ? gap : 4);
    QFont head = TypeScale::label();
    head.setWeight(QFont::DemiBold);
    const int columns = m_first->verticalHeaderFormat() == QCalendarWidget::NoVerticalHeader ? 7 : 8;
    const int column = (sideBySide ? (width() - gap) / 2 : width()) / columns;
    const bool namesFit = column >= QFontMetrics(head).horizontalAdvance(u"Wed"_s) + nameMargins;
    for (MonthView *month : {m_first, m_second})
        month->setHorizontalHeaderFormat(namesFit ? QCalendarWidget::ShortDayNames
                                                  : QCalendarWidget::SingleLetterDayNames);
}

void PlannerCalendar::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}
