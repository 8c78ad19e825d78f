// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/weighttrend.h"

#include <optional>

/// The straight line through the weights of the last four weeks.
struct FourWeeks {
    static constexpr int days = 28;

    double middleDay = 0; ///< a Julian day: around it the line turns
    double middle = 0;    ///< the weight there
    double perDay = 0;
    double scatter = 0; ///< how far `perDay` may be off: its standard error

    double at(QDate day) const { return middle + perDay * (double(day.toJulianDay()) - middleDay); }

    /// The weeks that end with the last weigh-in. Nothing where they have fewer than three days with a
    /// weight, or all of them within a week.
    static std::optional<FourWeeks> of(const WeightSeries &byDay);
};

/// The day on which a person reaches the goal if the last four weeks go on like this.
struct GoalForecast {
    enum class Kind {
        Expected,
        Reached,
        NoGoal,
        TooFew,    ///< weigh-ins in the four weeks
        TooOld,    ///< the last weigh-in is more than four weeks ago
        LeadsAway, ///< from the goal, or stays where it is
        TooFar     ///< more than ten years
    };

    Kind kind = Kind::NoGoal;
    QDate date; ///< this and the others only where it is expected
    QDate earliest;
    QDate latest; ///< invalid: the weights scatter so much that there is none

    /// `beginning` tells on which side of the goal the person began; without it the first weigh-in does.
    static GoalForecast of(const WeightSeries &byDay, std::optional<double> beginning,
                           std::optional<double> goal, QDate today, std::optional<double> current = {});

    /// Whether a weight is at the goal, or beyond it seen from the beginning.
    static bool isReached(double weight, double goal, double beginning);

    bool operator==(const GoalForecast &) const = default;
};
