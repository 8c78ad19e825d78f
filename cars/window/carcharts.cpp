// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carcharts.h"

#include "cars/model/costwords.h"
#include "cars/model/historylines.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double wholePercent = 100;

LineChart lineOf(const QString &title, const QList<DayValue> &values, DateStyle style)
{
    LineChart chart;
    chart.title = title;
    chart.across.name = u"Date"_s;
    chart.style = style;
    LineChart::Series series;
    for (const DayValue &value : values)
        series.points.append({.x = LineChart::dayAt(value.date), .y = value.value, .text = value.text});
    chart.series.append(series);
    return chart;
}

BarChart barsOf(const QString &title, const QString &names)
{
    BarChart chart;
    chart.title = title;
    chart.names = names;
    chart.values = u"Cost"_s;
    return chart;
}

BarChart::Bar bar(const QString &name, qint64 cents, qint64 whole)
{
    const QString share =
        whole > 0 ? QString::number(wholePercent * double(cents) / double(whole), 'f', 1) + u'%' : QString();
    return {name, double(cents) / 100, HistoryLines::money(double(cents)), share};
}

} // namespace

LineChart CarCharts::consumption(const FuelFigures &figures, DistanceUnit unit, DateStyle style)
{
    LineChart chart = lineOf(CarSeries::consumptionTitle(unit), CarSeries::consumption(figures, unit), style);
    chart.up.name = unit == DistanceUnit::Miles ? u"Miles per gallon"_s : u"Km per liter"_s;
    chart.up.decimals = 1;
    chart.nothing = u"No fill-up counts yet"_s;
    if (const auto average = figures.sums().economy)
        chart.levels.append({u"average"_s, *average, LineChart::Level::Goal});
    return chart;
}

LineChart CarCharts::odometer(const DrivingLog &log, DistanceUnit unit, DateStyle style)
{
    LineChart chart = lineOf(CarSeries::odometerTitle(), CarSeries::odometer(log, unit), style);
    chart.up.name = unit == DistanceUnit::Miles ? u"Miles"_s : u"Kilometers"_s;
    chart.nothing = u"No reading has a date yet"_s;
    // The readings of a new odometer begin anew.
    QList<LineChart::Point> &points = chart.series.front().points;
    for (qsizetype i = 1; i < points.size(); ++i)
        points[i].startsAnew = points[i].y < points[i - 1].y;
    return chart;
}

LineChart CarCharts::costs(const CarCosts &costs, DateStyle style)
{
    LineChart chart = lineOf(CarSeries::costsTitle(), CarSeries::costs(costs), style);
    chart.up.name = u"Cost"_s;
    chart.up.decimals = 2;
    chart.isFromZero = true;
    chart.nothing = u"Nothing was paid yet"_s;
    return chart;
}

BarChart CarCharts::kinds(const CarCosts &costs)
{
    BarChart chart = barsOf(u"What it was paid for"_s, u"Kind"_s);
    const CostSums all = costs.all();
    for (const CostKind kind : costKinds)
        chart.bars.append(bar(CostWords::kind(kind), all.of(kind), all.total()));
    return chart;
}

BarChart CarCharts::years(const CarCosts &costs)
{
    BarChart chart = barsOf(u"What each year cost"_s, u"Year"_s);
    const qint64 whole = costs.all().total();
    for (const int year : costs.years())
        chart.bars.append(
            bar(QString::number(year), costs.sums(QDate(year, 1, 1), QDate(year, 12, 31)).total(), whole));
    return chart;
}
