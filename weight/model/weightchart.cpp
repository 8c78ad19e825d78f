// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightchart.h"

#include "weight/model/weightfigures.h"
#include "weight/model/weightwords.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 shortestReach = 60; ///< days ahead, however few there are

/// Short enough to stand in a line.
QString captionOf(const GoalForecast &goal, DateStyle style)
{
    if (goal.date.isValid())
        return u"The last four weeks lead to the goal: "_s + WeightWords::goalRange(goal, style);
    QString sentence = WeightWords::goalSentence(goal, style);
    sentence.chop(1); // of the full stop
    return sentence;
}

} // namespace

LineChart WeightChart::of(const WeightSheet &sheet, WeightGraph::Extent extent, QDate today, DateStyle style)
{
    const WeightGraph graph = WeightGraph::of(sheet, extent);
    LineChart chart = graph.chart();
    if (graph.points.isEmpty() || !graph.goal)
        return chart;
    const GoalForecast goal = WeightFigures::of(sheet, today).forecast;
    chart.caption = captionOf(goal, style);
    chart.forecast = forecast(graph, goal, style);
    return chart;
}

std::optional<LineChart::Forecast> WeightChart::forecast(const WeightGraph &graph, const GoalForecast &goal,
                                                         DateStyle style)
{
    if (!goal.date.isValid() || !graph.goal || graph.points.isEmpty())
        return {};
    const auto [first, last] = std::ranges::minmax(graph.points, {}, &WeightGraph::Point::date);
    const QDate reach = last.date.addDays(std::max(shortestReach, first.date.daysTo(last.date)));
    if (goal.date > reach)
        return {};
    // A stretch without an end, or a long one, leaves the graph its room.
    const QDate end = std::min(reach, goal.date.addDays(last.date.daysTo(goal.date)));
    const QDate latest = goal.latest.isValid() ? std::min(goal.latest, end) : end;
    return LineChart::Forecast{u"Goal about "_s + WeightWords::goalDay(goal, style), *graph.goal,
                               LineChart::dayAt(std::max(goal.earliest, last.date)),
                               LineChart::dayAt(goal.date), LineChart::dayAt(latest)};
}
