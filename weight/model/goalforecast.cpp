// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/goalforecast.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype fewestDays = 3;
constexpr int shortestTime = 7;
constexpr double farthest = 3652; ///< ten years
constexpr double tiny = 1e-6;     ///< less than what a day or a weight is rounded by

/// Where a person wants to get.
struct Aim {
    double goal;
    bool isUpwards;
    QDate first; ///< that it can be reached

    bool isAhead(double perDay) const { return std::abs(perDay) > tiny && (perDay > 0) == isUpwards; }
};

/// The first day on which a line of this slope around the middle of the four weeks is at the goal; invalid
/// where it leads away or takes too long.
QDate crossing(const FourWeeks &weeks, double perDay, const Aim &aim)
{
    if (!aim.isAhead(perDay))
        return {};
    const double day = std::ceil(weeks.middleDay + (aim.goal - weeks.middle) / perDay - tiny);
    const auto first = double(aim.first.toJulianDay());
    return day - first < farthest ? QDate::fromJulianDay(qint64(std::max(first, day))) : QDate();
}

} // namespace

std::optional<FourWeeks> FourWeeks::of(const WeightSeries &byDay)
{
    if (byDay.isEmpty())
        return {};
    const QDate first = byDay.last().date.addDays(1 - days);
    const auto begin = std::ranges::lower_bound(byDay, first, {}, &DayWeight::date);
    const auto count = byDay.end() - begin;
    if (count < fewestDays || begin->date.daysTo(byDay.last().date) < shortestTime)
        return {};
    FourWeeks weeks;
    for (auto day = begin; day != byDay.end(); ++day) {
        weeks.middleDay += double(day->date.toJulianDay()) / double(count);
        weeks.middle += day->weight / double(count);
    }
    double spread = 0;
    double together = 0;
    for (auto day = begin; day != byDay.end(); ++day) {
        const double away = double(day->date.toJulianDay()) - weeks.middleDay;
        spread += away * away;
        together += away * (day->weight - weeks.middle);
    }
    weeks.perDay = together / spread;
    double off = 0;
    for (auto day = begin; day != byDay.end(); ++day)
        off += std::pow(day->weight - weeks.at(day->date), 2);
    weeks.scatter = std::sqrt(off / double(count - 2) / spread);
    return weeks;
}

GoalForecast GoalForecast::of(const WeightSeries &byDay, std::optional<double> beginning,
                              std::optional<double> goal, QDate today, std::optional<double> current)
{
    if (!goal)
        return {Kind::NoGoal, {}, {}, {}};
    if (byDay.isEmpty())
        return {Kind::TooFew, {}, {}, {}};
    const DayWeight &last = byDay.last();
    const double weight = current.value_or(last.weight);
    const double from = beginning.value_or(byDay.first().weight);
    if (isReached(weight, *goal, from))
        return {Kind::Reached, {}, {}, {}};
    if (last.date.daysTo(today) > FourWeeks::days)
        return {Kind::TooOld, {}, {}, {}};
    const auto weeks = FourWeeks::of(byDay);
    if (!weeks)
        return {Kind::TooFew, {}, {}, {}};
    const Aim aim{*goal, weight < *goal, std::max(today, last.date.addDays(1))};
    if (!aim.isAhead(weeks->perDay))
        return {Kind::LeadsAway, {}, {}, {}};
    const QDate date = crossing(*weeks, weeks->perDay, aim);
    if (!date.isValid())
        return {Kind::TooFar, {}, {}, {}};
    const double faster = aim.isUpwards ? weeks->scatter : -weeks->scatter;
    return {Kind::Expected, date, crossing(*weeks, weeks->perDay + faster, aim),
            crossing(*weeks, weeks->perDay - faster, aim)};
}

bool GoalForecast::isReached(double weight, double goal, double beginning)
{
    if (goal == beginning)
        return weight == goal;
    return goal < beginning ? weight <= goal : weight >= goal;
}
