// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightgraph.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView dayForm = u"MMM-dd-yy";

std::optional<double> asDouble(std::optional<float> weight)
{
    return weight ? std::optional(double(*weight)) : std::nullopt;
}

LineChart::Series lineOf(const QString &name, const auto &points)
{
    LineChart::Series line{name, {}, false};
    line.points.reserve(points.size());
    for (const auto &point : points)
        line.points.append({.x = LineChart::dayAt(point.date), .y = point.weight});
    return line;
}

} // namespace

WeightGraph WeightGraph::of(const WeightSheet &sheet, Extent extent)
{
    const WeightTable &weighIns = sheet.weighIns;
    const qsizetype count = weighIns.rowCount();
    // A table of exactly 50 bears the title of a limited one already, though nothing is left out.
    const bool isLimited = extent == Extent::Last50 && count >= mostPoints;
    WeightGraph graph;
    graph.header = sheet.field(WeightSheet::Name).trimmed() + u" Weight Tracker Graph"_s;
    graph.axis = isLimited ? u"Weigh In Dates (Graph Limited to Last 50 Entries)"_s : u"Weigh In Dates"_s;
    graph.extent = extent;
    for (qsizetype row = isLimited ? count - mostPoints : 0; row < count; ++row) {
        const QDate day = weighIns.day(row);
        const auto weight = weighIns.number(row);
        if (day.isValid() && weight)
            graph.points.append({day, double(*weight)});
    }
    if (graph.points.isEmpty())
        return graph;
    graph.goal = asDouble(sheet.goalWeight());
    graph.beginning = asDouble(sheet.beginningWeight());
    graph.trend = WeightTrend::smoothed(WeightTrend::byDay(weighIns));
    const QDate first = std::ranges::min(graph.points, {}, &Point::date).date;
    const auto from = std::ranges::lower_bound(graph.trend, first, {}, &DayWeight::date);
    graph.trend.erase(graph.trend.cbegin(), from);
    return graph;
}

QString WeightGraph::label(QDate date)
{
    return QLocale::c().toString(date, dayForm);
}

LineChart WeightGraph::chart() const
{
    LineChart chart;
    chart.title = header;
    chart.nothing = u"No weigh-ins yet"_s;
    chart.across.name = axis;
    chart.up.name = u"Weight"_s;
    chart.up.decimals = 1;
    chart.dayForm = dayForm.toString();
    chart.ticksAtPoints = extent == Extent::Last50;
    if (points.isEmpty())
        return chart;
    LineChart::Series weights = lineOf(u"Weight"_s, points);
    std::ranges::stable_sort(weights.points, {}, &LineChart::Point::x);
    chart.series.append(weights);
    if (trend.size() > 1) {
        chart.series.append(lineOf(u"Trend"_s, trend));
        chart.series.last().isTrend = true;
    }
    if (goal)
        chart.levels.append({u"Goal weight"_s, *goal, LineChart::Level::Goal, true});
    if (beginning)
        chart.levels.append({u"Beginning weight"_s, *beginning, LineChart::Level::Beginning, true});
    return chart;
}
