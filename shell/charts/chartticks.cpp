// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/chartticks.h"

#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double daysOfMonth = 28;
constexpr double daysOfYear = 365;

using ChartTicks::Days;

constexpr std::array<Days, 15> steps{{{Days::Day, 1},
                                      {Days::Day, 2},
                                      {Days::Day, 7}, // weeks, from Monday on
                                      {Days::Day, 14},
                                      {Days::Month, 1},
                                      {Days::Month, 2},
                                      {Days::Month, 3},
                                      {Days::Month, 6},
                                      {Days::Year, 1},
                                      {Days::Year, 2},
                                      {Days::Year, 5},
                                      {Days::Year, 10},
                                      {Days::Year, 50},
                                      {Days::Year, 100},
                                      {Days::Year, 1000}}};

double length(const Days &days)
{
    return days.every * (days.unit == Days::Day ? 1 : days.unit == Days::Month ? daysOfMonth : daysOfYear);
}

/// The first tick on or after `day`.
QDate firstTick(const Days &days, QDate day)
{
    if (days.unit == Days::Day) {
        const qint64 number = day.toJulianDay();
        const qint64 over = number % days.every;
        return QDate::fromJulianDay(over > 0 ? number + days.every - over : number);
    }
    const int month = days.unit == Days::Month ? (day.month() - 1) / days.every * days.every + 1 : 1;
    const int year = days.unit == Days::Year ? day.year() / days.every * days.every : day.year();
    const QDate before(std::max(1, year), month, 1);
    if (before >= day)
        return before;
    return days.unit == Days::Month ? before.addMonths(days.every) : QDate(year + days.every, 1, 1);
}

} // namespace

double ChartTicks::step(double span, int most)
{
    if (!(span > 0) || !std::isfinite(span))
        return 1;
    const double least = span / std::max(1, most);
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double times : {1.0, 2.0, 5.0}) {
        if (times * power >= least * (1 - 1e-9))
            return times * power;
    }
    return 10 * power;
}

int ChartTicks::decimals(double step)
{
    return step < 1 && step > 0 ? int(std::ceil(-std::log10(step) - 1e-9)) : 0;
}

QList<double> ChartTicks::atPoints(const QList<LineChart::Point> &points, double from, double to,
                                   double apart)
{
    const auto first = std::ranges::lower_bound(points, from, {}, &LineChart::Point::x);
    auto point = std::ranges::upper_bound(points, to, {}, &LineChart::Point::x);
    QList<double> ticks;
    while (point != first) {
        --point;
        if (ticks.isEmpty() || ticks.last() - point->x >= apart)
            ticks << point->x;
    }
    std::ranges::reverse(ticks);
    return ticks;
}

Days Days::fitting(double perDay, double width, double dayWidth)
{
    for (const Days &days : steps) {
        if (length(days) * perDay >= (days.unit == Day ? dayWidth : width))
            return days;
    }
    return steps.back();
}

QList<double> Days::between(double from, double to) const
{
    QList<double> ticks;
    QDate day = firstTick(*this, LineChart::dateAt(std::ceil(from)));
    while (day.isValid() && LineChart::dayAt(day) <= to) {
        ticks << LineChart::dayAt(day);
        day = unit == Day     ? day.addDays(every)
              : unit == Month ? day.addMonths(every)
                              : QDate(day.year() / every * every + every, 1, 1);
    }
    return ticks;
}

QStringList Days::labels(const QList<double> &ticks, DateStyle style) const
{
    QStringList labels;
    int year = 0;
    for (const double tick : ticks) {
        const QDate day = LineChart::dateAt(tick);
        const QString number = QString::number(day.year());
        QString label = unit == Day ? Dates::shortText(day, style)
                                    : QLocale::c().standaloneMonthName(day.month(), QLocale::ShortFormat);
        if (unit == Year)
            label = number;
        else if (std::exchange(year, day.year()) != day.year())
            label += u'\n' + number;
        labels << label;
    }
    return labels;
}
