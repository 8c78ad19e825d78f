// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/linechart.h"
#include "weight/model/goalforecast.h"
#include "weight/model/weightgraph.h"

/// The chart that a person sees of the weigh-ins: the graph, and what is to be expected of it.
namespace WeightChart {

LineChart of(const WeightSheet &sheet, WeightGraph::Extent extent, QDate today, DateStyle style);

/// Where the chart shows that the goal is reached. Nothing where that is farther ahead than the points go
/// back: they would have no room beside it.
std::optional<LineChart::Forecast> forecast(const WeightGraph &graph, const GoalForecast &goal,
                                            DateStyle style);

} // namespace WeightChart
