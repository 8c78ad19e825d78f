// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightfigures.h"

#include "weight/model/weightcolumns.h"

#include <algorithm>

namespace {

constexpr int week = 7;

std::optional<double> asDouble(std::optional<float> weight)
{
    return weight ? std::optional(double(*weight)) : std::nullopt;
}

} // namespace

WeightFigures WeightFigures::of(const WeightSheet &sheet, QDate today)
{
    const WeightTable &rows = sheet.weighIns;
    std::optional<DayWeight> current;
    if (const qsizetype row = WeightColumns::currentRow(rows); row >= 0)
        current = DayWeight{rows.day(row), double(*rows.number(row))};
    return of(WeightTrend::byDay(rows), asDouble(sheet.beginningWeight()), asDouble(sheet.goalWeight()),
              today, current);
}

WeightFigures WeightFigures::of(const WeightSeries &byDay, std::optional<double> beginning,
                                std::optional<double> goal, QDate today, std::optional<DayWeight> current)
{
    WeightFigures figures;
    if (byDay.isEmpty()) {
        figures.forecast = GoalForecast::of(byDay, beginning, goal, today);
        return figures;
    }
    const DayWeight first = byDay.first();
    const DayWeight last = byDay.last();
    const DayWeight now = current.value_or(last);
    figures.forecast = GoalForecast::of(byDay, beginning, goal, today, now.weight);
    figures.now = now;
    figures.trend = WeightTrend::smoothed(byDay).last().weight;
    if (beginning || byDay.size() > 1)
        figures.total = now.weight - beginning.value_or(first.weight);
    if (goal)
        figures.toGoal = *goal - now.weight;
    figures.weekAverage = average(byDay, last.date.addDays(1 - week), last.date);
    figures.weekBefore = average(byDay, last.date.addDays(1 - 2 * week), last.date.addDays(-week));
    if (const qint64 days = first.date.daysTo(last.date); days >= week)
        figures.perWeek = (last.weight - first.weight) * week / double(days);
    if (const auto weeks = FourWeeks::of(byDay))
        figures.perWeekLately = weeks->perDay * week;
    return figures;
}

std::optional<double> WeightFigures::average(const WeightSeries &byDay, QDate from, QDate to)
{
    const auto begin = std::ranges::lower_bound(byDay, from, {}, &DayWeight::date);
    const auto end = std::ranges::upper_bound(byDay, to, {}, &DayWeight::date);
    if (begin >= end)
        return {};
    double sum = 0;
    std::for_each(begin, end, [&sum](const DayWeight &day) { sum += day.weight; });
    return sum / double(end - begin);
}
