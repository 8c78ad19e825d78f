// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/linechart.h"
#include "weight/model/weightsheet.h"
#include "weight/model/weighttrend.h"

#include <optional>

/// The graph of a person's weigh-ins: their weights, the goal and the beginning over the same points, and the
/// smoothed trend.
struct WeightGraph {
    enum class Extent { Last50, Everything };
    struct Point {
        QDate date;
        double weight = 0;
        bool operator==(const Point &) const = default;
    };
    static constexpr qsizetype mostPoints = 50;

    QString header;
    QString axis; ///< the title of the horizontal one
    Extent extent = Extent::Last50;
    QList<Point> points;        ///< in the order of the table; a row needs a date and a weight
    std::optional<double> goal; ///< this and the beginning are there only with points
    std::optional<double> beginning;
    WeightSeries trend; ///< of all weigh-ins, from the first day that is shown on

    static WeightGraph of(const WeightSheet &sheet, Extent extent = Extent::Last50);

    /// "Jan-05-26".
    static QString label(QDate date);

    LineChart chart() const;

    bool operator==(const WeightGraph &) const = default;
};
