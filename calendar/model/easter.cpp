// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/easter.h"

#include "calendar/model/wallcalendar.h"

#include <QCalendar>

namespace {

constexpr int moonYears = 19; ///< after so many years the moon is full on the same dates
constexpr int daysPerWeek = 7;

bool isTold(int year)
{
    return year >= WallCalendar::firstYear && year <= WallCalendar::lastYear;
}

/// The Sunday after `fullMoon`: the week after it where it is a Sunday itself.
QDate sundayAfter(QDate fullMoon)
{
    return fullMoon.addDays(daysPerWeek - fullMoon.dayOfWeek() % daysPerWeek);
}

} // namespace

QDate Easter::western(int year)
{
    if (!isTold(year))
        return {};
    const int golden = year % moonYears;
    const int century = year / 100;
    // The leap days that three in four centuries lack, and the days by which the moon gets ahead of its
    // cycle.
    const int shift = century - century / 4 - (8 * century + 13) / 25 + 15;
    int days = (19 * golden + shift) % 30;
    // The moon of April 19 counts as that of the 18th; that of the 18th as the 17th, where both would be in a
    // cycle.
    if (days == 29 || (days == 28 && golden > 10))
        --days;
    return sundayAfter(QDate(year, 3, 21).addDays(days));
}

QDate Easter::orthodox(int year)
{
    if (!isTold(year))
        return {};
    const int days = (19 * (year % moonYears) + 15) % 30;
    return sundayAfter(QDate(year, 3, 21, QCalendar(QCalendar::System::Julian)).addDays(days));
}
