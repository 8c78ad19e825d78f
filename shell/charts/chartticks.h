// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/linechart.h"

#include <QList>
#include <QStringList>

/// Where the numbers and days of a chart's axes stand.
namespace ChartTicks {

/// The smallest of the steps 1, 2, 5, 10, 20 ... (.5, .2, .1 ...) of which `span` has no more than `most`.
double step(double span, int most);

/// How many decimals the multiples of a step have.
int decimals(double step);

/// The points between two values of x that are at least `apart` from one another, the last one first of all.
QList<double> atPoints(const QList<LineChart::Point> &points, double from, double to, double apart);

/// Days, months or years, and every how many of them there is a tick.
struct Days {
    enum Unit { Day, Month, Year };
    Unit unit = Day;
    int every = 1;

    /// The closest ticks that leave `width` to each where a day takes `perDay`, in pixels; single days take
    /// `dayWidth`.
    static Days fitting(double perDay, double width, double dayWidth);

    /// The ticks between two days, as `LineChart::dayAt` numbers them.
    QList<double> between(double from, double to) const;
    /// "Nov 3", "Nov" or "2026"; under the first and where it changes, the year.
    QStringList labels(const QList<double> &ticks, DateStyle style) const;

    bool operator==(const Days &) const = default;
};

} // namespace ChartTicks
