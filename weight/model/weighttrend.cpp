// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weighttrend.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double daysToHalf = 7;

/// The mean of what is of one day from `at` on; `at` comes behind it.
DayWeight meanOfDay(const WeightSeries &sorted, qsizetype &at)
{
    DayWeight mean{sorted[at].date, 0};
    const qsizetype first = at;
    for (; at < sorted.size() && sorted[at].date == mean.date; ++at)
        mean.weight += sorted[at].weight;
    mean.weight /= double(at - first);
    return mean;
}

} // namespace

WeightSeries WeightTrend::byDay(const WeightTable &weighIns)
{
    WeightSeries points;
    points.reserve(weighIns.rowCount());
    for (qsizetype row = 0; row < weighIns.rowCount(); ++row) {
        const QDate day = weighIns.day(row);
        const std::optional<float> weight = weighIns.number(row);
        if (day.isValid() && weight)
            points.append({day, double(*weight)});
    }
    return byDay(std::move(points));
}

WeightSeries WeightTrend::byDay(WeightSeries weighIns)
{
    std::ranges::stable_sort(weighIns, {}, &DayWeight::date);
    WeightSeries days;
    days.reserve(weighIns.size());
    for (qsizetype at = 0; at < weighIns.size();)
        days.append(meanOfDay(weighIns, at));
    return days;
}

WeightSeries WeightTrend::smoothed(const WeightSeries &byDay)
{
    WeightSeries line = byDay;
    for (qsizetype i = 1; i < line.size(); ++i) {
        const DayWeight &before = line[i - 1];
        const auto elapsed = double(before.date.daysTo(line[i].date));
        const double kept = std::exp2(-elapsed / daysToHalf);
        line[i].weight = kept * before.weight + (1 - kept) * line[i].weight;
    }
    return line;
}
