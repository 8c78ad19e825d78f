// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/daterule.h"

#include "calendar/model/easter.h"

#include <algorithm>

namespace {

constexpr int daysPerWeek = 7;

/// The date in `year`; 29 February is the 28th where there is none.
QDate dayIn(int year, int month, int day)
{
    return {year, month, std::min(day, QDate(year, month, 1).daysInMonth())};
}

/// The first `weekday` on or after `date`.
QDate firstFrom(QDate date, Qt::DayOfWeek weekday)
{
    return date.addDays((weekday - date.dayOfWeek() + daysPerWeek) % daysPerWeek);
}

} // namespace

/// The `number`th or last weekday of a month; no date where it has no fifth one.
QDate DateRule::inMonth(int year, int month) const
{
    const QDate first(year, month, 1);
    if (kind == Last)
        return firstFrom(first.addMonths(1).addDays(-daysPerWeek), weekday);
    const QDate date = firstFrom(first, weekday).addDays(qint64(number - 1) * daysPerWeek);
    return date.month() == month ? date : QDate();
}

QDate DateRule::inYear(int year) const
{
    switch (kind) {
    case OnDate:
        return dayIn(year, month, day);
    case Nth:
    case Last:
        return inMonth(year, month);
    case Before:
        return firstFrom(dayIn(year, month, day).addDays(-daysPerWeek), weekday);
    case From:
        return firstFrom(dayIn(year, month, day), weekday);
    case Easter:
        return Easter::western(year).addDays(number);
    case Orthodox:
        return Easter::orthodox(year).addDays(number);
    case EveryWeeks:
    case EveryDays:
        break;
    }
    return {};
}

/// The dates of the rule alone, whatever becomes of them: at least those from `from` to `to`.
QList<QDate> DateRule::plainDates(QDate from, QDate to) const
{
    QList<QDate> dates;
    const auto take = [&](QDate date, int year) {
        if (date.isValid() && year >= firstYear && (lastYear == 0 || year <= lastYear))
            dates.append(date);
    };
    if (kind == EveryDays || kind == EveryWeeks) {
        const int step = kind == EveryDays ? number : number * daysPerWeek;
        const qint64 skipped = std::max<qint64>(0, start.daysTo(from) / step);
        for (QDate date = start.addDays(skipped * step); date.isValid() && date <= to;
             date = date.addDays(step))
            take(date, date.year());
        return dates;
    }
    const bool isMonthly = month == 0 && (kind == Nth || kind == Last);
    for (int year = from.year() - 1; year <= to.year() + 1; ++year) {
        if (!isMonthly)
            take(inYear(year), year);
        for (int each = 1; isMonthly && each <= 12; ++each)
            take(inMonth(year, each), year);
    }
    return dates;
}

QDate DateRule::shifted(QDate date) const
{
    const auto shift = std::ranges::find(shifts, date.dayOfWeek(), &Shift::weekday);
    return shift == shifts.end() ? date : date.addDays(shift->days);
}

QDate DateRule::nextWeekday(QDate date, const std::function<bool(QDate)> &isHoliday)
{
    for (int days = 1; days <= mostShift; ++days) {
        const QDate next = date.addDays(days);
        if (!isWeekend(next) && !(isHoliday && isHoliday(next)))
            return next;
    }
    return {};
}

QList<DateRule::Day> DateRule::ownDays(QDate from, QDate to) const
{
    QList<Day> days;
    if (!from.isValid() || !to.isValid())
        return days;
    const auto take = [&](QDate date, bool isDayOff) {
        if (date.isValid() && date >= from && date <= to)
            days.append({date, isDayOff});
    };
    for (const QDate date : plainDates(from.addDays(-mostShift), to.addDays(mostShift))) {
        take(moving == Moving::Moved ? shifted(date) : date, false);
        if (moving == Moving::Observed && shifted(date) != date)
            take(shifted(date), true);
    }
    std::ranges::stable_sort(days, {}, &Day::date);
    return days;
}

QList<DateRule::Day> DateRule::days(QDate from, QDate to, const std::function<bool(QDate)> &isHoliday) const
{
    QList<Day> days = ownDays(from, to);
    if (moving != Moving::Next || !from.isValid() || !to.isValid())
        return days;
    for (const QDate date : plainDates(from.addDays(-mostShift), to)) {
        const QDate next = isWeekend(date) ? nextWeekday(date, isHoliday) : QDate();
        if (next.isValid() && next >= from && next <= to)
            days.append({next, true});
    }
    std::ranges::stable_sort(days, {}, &Day::date);
    return days;
}

QList<QDate> DateRule::dates(QDate from, QDate to, const std::function<bool(QDate)> &isHoliday) const
{
    QList<QDate> dates;
    for (const Day &day : days(from, to, isHoliday)) {
        if (dates.isEmpty() || dates.last() != day.date)
            dates.append(day.date);
    }
    return dates;
}
