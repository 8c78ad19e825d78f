// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightperiods.h"

#include "shell/core/dates.h"
#include "weight/model/weightnumbers.h"
#include "weight/model/weightwords.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fourWeeks = 28;

using Length = WeightPeriod::Length;

/// The first day of the period that has `day`.
QDate beginOf(QDate day, Length length, QDate today)
{
    switch (length) {
    case Length::FourWeeks: {
        const qint64 ago = day.daysTo(today); // below 0 for a day that is still to come
        const qint64 back = ago >= 0 ? ago / fourWeeks : (ago - fourWeeks + 1) / fourWeeks;
        return today.addDays(1 - fourWeeks * (back + 1));
    }
    case Length::Month:
        return {day.year(), day.month(), 1};
    case Length::Year:
        break;
    }
    return {day.year(), 1, 1};
}

QDate endOf(QDate begin, Length length)
{
    return length == Length::FourWeeks ? begin.addDays(fourWeeks - 1)
           : length == Length::Month   ? begin.addMonths(1).addDays(-1)
                                       : begin.addYears(1).addDays(-1);
}

QString differenceOr(std::optional<double> difference)
{
    return difference ? WeightNumbers::difference(*difference) : u"-"_s;
}

} // namespace

QList<WeightPeriod> WeightPeriod::all(const WeightSeries &byDay, Length length, QDate today)
{
    QList<WeightPeriod> periods;
    auto day = byDay.begin();
    while (day != byDay.end()) {
        WeightPeriod period;
        period.length = length;
        period.from = beginOf(day->date, length, today);
        period.to = endOf(period.from, length);
        const auto end = std::ranges::upper_bound(day, byDay.end(), period.to, {}, &DayWeight::date);
        const auto [lowest, highest] = std::ranges::minmax_element(day, end, {}, &DayWeight::weight);
        period.days = int(end - day);
        period.lowest = lowest->weight;
        period.highest = highest->weight;
        double sum = 0;
        std::for_each(day, end, [&sum](const DayWeight &one) { sum += one.weight; });
        period.average = sum / period.days;
        if (day != byDay.begin() || period.days > 1)
            period.change = (end - 1)->weight - (day == byDay.begin() ? day : day - 1)->weight;
        if (!periods.isEmpty() && periods.last().to.addDays(1) == period.from)
            period.against = period.average - periods.last().average;
        periods.append(period);
        day = end;
    }
    std::ranges::reverse(periods);
    return periods;
}

QString WeightPeriod::name(DateStyle style, QDate today) const
{
    if (length == Length::FourWeeks) {
        const bool isOneYear = from.year() == to.year();
        return (isOneYear ? Dates::shortText(from, style) : Dates::shortWithYear(from, style)) + u" to "_s +
               Dates::shortWithYear(to, style);
    }
    const QString name = length == Length::Month ? Dates::monthYear(from) : QString::number(from.year());
    return from <= today && today < to ? QString(name + u" so far"_s) : name;
}

QStringList WeightPeriod::headings()
{
    return {u"Period"_s,  u"Average"_s, u"Against Before"_s, u"Change"_s, u"Lowest"_s,
            u"Highest"_s, u"Days"_s};
}

QStringList WeightPeriod::row(DateStyle style, QDate today) const
{
    return {name(style, today),   WeightWords::weight(average), differenceOr(against),
            differenceOr(change), WeightWords::weight(lowest),  WeightWords::weight(highest),
            QString::number(days)};
}
