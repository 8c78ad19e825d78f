// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/linechart.h"

#include "shell/charts/chartticks.h"
#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

QString shown(const LineChart &chart, const LineChart::Point &point)
{
    const QString value = point.text.isEmpty() ? chart.up.text(point.y) : point.text;
    return point.note.isEmpty() ? value : QString(value + u", "_s + point.note);
}

/// "Volvo, 12 points from Jan 3, 2026 to Nov 3, 2026, 28.0 mpg to 33.1 mpg"
QString described(const LineChart &chart, const LineChart::Series &series)
{
    const QString name = series.name.isEmpty() ? chart.up.name : series.name;
    if (series.points.isEmpty())
        return name + u", no points"_s;
    const auto [least, most] = std::ranges::minmax_element(series.points, {}, &LineChart::Point::y);
    const qsizetype count = series.points.size();
    const QString points = count == 1 ? u"1 point"_s : u"%1 points"_s.arg(count);
    return name + u", "_s + points + u" from "_s + chart.acrossText(series.points.first().x) + u" to "_s +
           chart.acrossText(series.points.last().x) + u", "_s + chart.up.text(least->y) + u" to "_s +
           chart.up.text(most->y);
}

/// "-$1,234.50"
QString number(double value, int decimals, const QString &before)
{
    const double factor = std::pow(10.0, decimals);
    const double rounded = std::round(value * factor) / factor; // there is no "-0"
    const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return (rounded < 0 ? u"-"_s : QString()) + before + locale.toString(std::abs(rounded), 'f', decimals);
}

} // namespace

QString LineChart::Axis::text(double value) const
{
    return number(value, decimals, before) + behind;
}

QString LineChart::Axis::tickText(double value, double step) const
{
    return number(value, ChartTicks::decimals(step), before);
}

bool LineChart::isEmpty() const
{
    return std::ranges::all_of(series, [](const Series &one) { return one.points.isEmpty(); });
}

std::optional<LineChart::Spot> LineChart::forecastStart() const
{
    if (!forecast || isEmpty())
        return {};
    auto found = std::ranges::find_if(series, &Series::isTrend);
    if (found == series.end() || found->points.isEmpty())
        found = std::ranges::find_if(series, [](const Series &one) { return !one.points.isEmpty(); });
    return Spot{found - series.begin(), found->points.size() - 1};
}

QString LineChart::acrossName() const
{
    return across.name.isEmpty() && kind == Across::Days ? u"Date"_s : across.name;
}

QString LineChart::acrossText(double x) const
{
    if (kind == Across::Numbers)
        return across.text(x);
    return dayForm.isEmpty() ? Dates::shortWithYear(dateAt(x), style)
                             : QLocale::c().toString(dateAt(x), dayForm);
}

QString LineChart::textOf(const Spot &spot) const
{
    const Series &of = series[spot.series];
    const QString name = series.size() > 1 && !of.name.isEmpty() ? QString(of.name + u", "_s) : QString();
    return name + acrossText(at(spot).x) + u": "_s + shown(*this, at(spot));
}

QString LineChart::description() const
{
    if (isEmpty())
        return title + u". "_s + (nothing.isEmpty() ? u"No points"_s : nothing) + u'.';
    QString text = title + u". Line chart. Across: "_s + acrossName() + u". Up: "_s + up.name + u'.';
    for (const Series &one : series)
        text += u' ' + described(*this, one) + u'.';
    for (const Level &level : levels)
        text += u' ' + level.name + u": "_s + up.text(level.y) + u'.';
    if (forecast)
        text += u' ' + forecast->name +
                u", between %1 and %2."_s.arg(acrossText(forecast->from), acrossText(forecast->to));
    return caption.isEmpty() ? text : QString(text + u' ' + caption + u'.');
}

QStringList LineChart::headings() const
{
    QStringList headings{acrossName()};
    for (const Series &one : series)
        headings << (one.name.isEmpty() ? up.name : one.name);
    for (const Level &level : levels) {
        if (level.isInTable)
            headings << level.name;
    }
    return headings;
}

QList<QStringList> LineChart::rows() const
{
    // Series may have several points of one x, a day with two fill-ups.
    std::map<double, std::vector<QStringList>> cells;
    for (qsizetype index = 0; index < series.size(); ++index) {
        for (const Point &point : series[index].points) {
            auto &at = cells[point.x];
            at.resize(std::size_t(series.size()));
            at[std::size_t(index)] << shown(*this, point);
        }
    }
    QList<QStringList> rows;
    for (const auto &[x, values] : cells) {
        const auto deepest = std::ranges::max_element(values, {}, &QStringList::size)->size();
        for (qsizetype i = 0; i < deepest; ++i) {
            QStringList row{acrossText(x)};
            for (const QStringList &value : values)
                row << value.value(i);
            for (const Level &level : levels) {
                if (level.isInTable)
                    row << up.text(level.y);
            }
            rows << row;
        }
    }
    return rows;
}
