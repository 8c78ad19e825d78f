// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/settings.h"

#include <Qt>

/// How the planner shows its calendar: four whole numbers in `SWR2.fil`, records 14 to 17.
struct CalendarOptions {
    int months = 0;      ///< 0: one month, 1: two months
    int weekNumbers = 0; ///< 0: shown, 1: not shown
    int weekStart = 1;   ///< 1: Sunday ... 7: Saturday
    int today = 0;       ///< 0: today is marked, 1: it is not

    /// The options of the file; a missing record or a number that is no choice gives the default.
    static CalendarOptions read(const Settings &settings);
    /// Writes all four; false when the disk refuses one.
    [[nodiscard]] bool write(Settings &settings) const;

    int shownMonths() const { return months == 1 ? 2 : 1; }
    bool showsWeekNumbers() const { return weekNumbers == 0; }
    Qt::DayOfWeek firstDay() const;
    bool marksToday() const { return today == 0; }

    bool operator==(const CalendarOptions &) const = default;
};
