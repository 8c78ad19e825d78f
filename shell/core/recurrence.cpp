// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/recurrence.h"

#include "shell/core/calendardates.h"

#include <algorithm>

namespace {

QDate onDay(int year, int month, int day)
{
    return QDate(year, month, std::min(day, QDate(year, month, 1).daysInMonth()));
}

QDate onYearDay(int year, QDate yearDay)
{
    return onDay(year, yearDay.month(), yearDay.day());
}

} // namespace

RecurrenceDates::RecurrenceDates(const Recurrence &recurrence)
    : m_recurrence(recurrence)
    , m_first(recurrence.interval >= 1 && recurrence.beginning.isValid() ? first() : QDate())
{}

QDate RecurrenceDates::first() const
{
    const QDate beginning = m_recurrence.beginning;
    switch (m_recurrence.kind) {
    case Recurrence::Weekly:
        return beginning.addDays((m_recurrence.weekday - beginning.dayOfWeek() + 7) % 7);
    case Recurrence::Monthly: {
        const QDate date = onDay(beginning.year(), beginning.month(), m_recurrence.dayOfMonth);
        const QDate following = beginning.addMonths(1);
        return date >= beginning ? date : onDay(following.year(), following.month(), m_recurrence.dayOfMonth);
    }
    case Recurrence::YearlyOnDate: {
        if (!m_recurrence.yearDay.isValid())
            return {};
        const QDate date = onYearDay(beginning.year(), m_recurrence.yearDay);
        return date >= beginning ? date : onYearDay(beginning.year() + 1, m_recurrence.yearDay);
    }
    case Recurrence::Daily:
    case Recurrence::Weekdays:
    case Recurrence::Yearly:
        break;
    }
    return beginning;
}

QDate RecurrenceDates::dateAt(int step) const
{
    const qint64 units = qint64(step) * m_recurrence.interval;
    // Nothing lasts longer than ten years; this only keeps absurd intervals from overflowing.
    if (units > qint64(10) * longestRecurrenceDays)
        return {};
    switch (m_recurrence.kind) {
    case Recurrence::Weekly:
        return m_first.addDays(7 * units);
    case Recurrence::Monthly: {
        const QDate month = QDate(m_first.year(), m_first.month(), 1).addMonths(int(units));
        return onDay(month.year(), month.month(), m_recurrence.dayOfMonth);
    }
    case Recurrence::Yearly:
        return onYearDay(m_first.year() + int(units), m_recurrence.beginning);
    case Recurrence::YearlyOnDate:
        return onYearDay(m_first.year() + int(units), m_recurrence.yearDay);
    case Recurrence::Daily:
    case Recurrence::Weekdays:
        break;
    }
    return m_first.addDays(units);
}

bool RecurrenceDates::isOver(QDate date) const
{
    if (!CalendarDates::has(date))
        return true;
    return m_recurrence.end ? date > *m_recurrence.end : m_given >= m_recurrence.occurrences;
}

std::optional<QDate> RecurrenceDates::nextWeekday()
{
    // With a number of occurrences, a walk that begins on a weekend may end before it has given them all.
    const int mostDays = m_recurrence.end ? longestRecurrenceDays + 1 : 2 * m_recurrence.occurrences;
    while (m_step < mostDays) {
        const QDate date = m_first.addDays(m_step);
        if (isOver(date))
            return {};
        ++m_step;
        if (date.dayOfWeek() < Qt::Saturday) {
            ++m_given;
            return date;
        }
    }
    return {};
}

std::optional<QDate> RecurrenceDates::next()
{
    if (!m_first.isValid())
        return {};
    if (m_recurrence.kind == Recurrence::Weekdays)
        return nextWeekday();
    const QDate date = dateAt(m_step);
    if (isOver(date))
        return {};
    ++m_step;
    ++m_given;
    return date;
}

bool RecurrenceDates::isCutShort() const
{
    return !m_recurrence.end && m_given < m_recurrence.occurrences && m_first.isValid() &&
           dateAt(m_step) > CalendarDates::last();
}

int RecurrenceDates::estimate() const
{
    if (!m_recurrence.end)
        return std::max(0, m_recurrence.occurrences);
    const qint64 days = std::max<qint64>(0, m_recurrence.beginning.daysTo(*m_recurrence.end) + 1);
    const qint64 interval = std::max(1, m_recurrence.interval);
    switch (m_recurrence.kind) {
    case Recurrence::Daily:
        return int(days / interval + 1);
    case Recurrence::Weekdays:
        return int(days * 5 / 7 + 1);
    case Recurrence::Weekly:
        return int(days / (7 * interval) + 1);
    case Recurrence::Monthly:
        return int(days / (30 * interval) + 1);
    case Recurrence::Yearly:
    case Recurrence::YearlyOnDate:
        break;
    }
    return int(days / (365 * interval) + 1);
}

bool exceedsTenYears(const Recurrence &recurrence)
{
    return recurrence.kind == Recurrence::Daily && !recurrence.end &&
           qint64(recurrence.interval) * recurrence.occurrences > longestRecurrenceDays;
}

Recurrence withinTenYears(const Recurrence &recurrence)
{
    Recurrence within = recurrence;
    if (recurrence.end) {
        within.end = std::min(*recurrence.end, recurrence.beginning.addDays(longestRecurrenceDays));
        return within;
    }
    const auto mostOccurrences = [&recurrence] {
        const int interval = std::max(1, recurrence.interval);
        switch (recurrence.kind) {
        case Recurrence::Weekdays:
            return longestRecurrenceDays * 5 / 7;
        case Recurrence::Weekly:
            return longestRecurrenceDays / 7 / interval;
        case Recurrence::Monthly:
            return 120 / interval;
        case Recurrence::Yearly:
        case Recurrence::YearlyOnDate:
            return 10 / interval;
        case Recurrence::Daily:
            break;
        }
        return longestRecurrenceDays / interval;
    };
    // One occurrence is always within ten years, whatever the interval.
    within.occurrences = std::min(recurrence.occurrences, std::max(1, mostOccurrences()));
    return within;
}
