// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

#include <algorithm>

/// The dates that everything dated may have: those of a year of four digits, as the names of the planner's
/// files have them.
namespace CalendarDates {

inline constexpr int firstYear = 1000;
inline constexpr int lastYear = 9999;

inline QDate first()
{
    return {firstYear, 1, 1};
}

inline QDate last()
{
    return {lastYear, 12, 31};
}

/// False for an invalid date too.
inline bool has(QDate date)
{
    return date.isValid() && date >= first() && date <= last();
}

/// `date`, or the first or last one when it lies beyond.
inline QDate within(QDate date)
{
    return std::clamp(date, first(), last());
}

} // namespace CalendarDates
