// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/model/weighttable.h"

#include <QDate>
#include <QList>

/// What a person weighed on a day.
struct DayWeight {
    QDate date;
    double weight = 0;

    bool operator==(const DayWeight &) const = default;
};

/// Weights by day, oldest first.
using WeightSeries = QList<DayWeight>;

/// The course of the weigh-ins, without their ups and downs.
namespace WeightTrend {

/// The weigh-ins that have a day and a weight; several of one day count as their mean.
WeightSeries byDay(const WeightTable &weighIns);
WeightSeries byDay(WeightSeries weighIns);

/// The smoothed line through the weights of `byDay`, a point for each: what was there before counts half
/// after a week, a quarter after two.
WeightSeries smoothed(const WeightSeries &byDay);

} // namespace WeightTrend
