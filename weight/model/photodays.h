// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "weight/model/weightsheet.h"
#include "weight/model/weighttrend.h"

#include <optional>

/// When the photos of then and now were taken, and what the person weighed in those days.
struct PhotoDays {
    struct Day {
        QDate date;                   ///< invalid where the sheet has none
        std::optional<double> weight; ///< of the nearest weigh-in within a week
        bool operator==(const Day &) const = default;
    };

    Day then;
    Day now;

    static PhotoDays of(const WeightSheet &sheet);

    /// "Jan 5, 2026: 214.5"; what is missing is left out.
    static QString text(const Day &day, DateStyle style);
    /// "219 days, -22.4"; empty where the days are not known.
    QString between() const;

    bool operator==(const PhotoDays &) const = default;
};
