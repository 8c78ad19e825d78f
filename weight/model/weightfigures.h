// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/goalforecast.h"
#include "weight/model/weightsheet.h"
#include "weight/model/weighttrend.h"

#include <optional>

/// What a person's weigh-ins come to by the day on which they were made. What cannot be told is empty. The
/// current weight is that of the last row that has one, as in the table, whatever else its day has.
struct WeightFigures {
    std::optional<DayWeight> now;        ///< the current weight; its day may be invalid
    std::optional<double> trend;         ///< the smoothed line at its end
    std::optional<double> total;         ///< the change since the beginning weight, else since the first day
    std::optional<double> toGoal;        ///< what is missing: below 0 where the person wants to lose
    std::optional<double> weekAverage;   ///< of the seven days up to the last one
    std::optional<double> weekBefore;    ///< of the seven days before those
    std::optional<double> perWeek;       ///< the change a week on average, from the first day to the last
    std::optional<double> perWeekLately; ///< the same of the last four weeks
    GoalForecast forecast;

    static WeightFigures of(const WeightSheet &sheet, QDate today);
    /// Without a current weight it is that of the last day.
    static WeightFigures of(const WeightSeries &byDay, std::optional<double> beginning,
                            std::optional<double> goal, QDate today, std::optional<DayWeight> current = {});

    /// The mean of the days from `from` to `to`; nothing where none has a weight.
    static std::optional<double> average(const WeightSeries &byDay, QDate from, QDate to);

    bool operator==(const WeightFigures &) const = default;
};
