// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"
#include "cars/model/historylines.h"

/// The quiet words about a car's fuel.
namespace FuelLines {

using namespace Qt::Literals::StringLiterals;

/// "miles per gallon"
inline QString perAmount(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"miles per gallon"_s : u"km per liter"_s;
}

inline QString distance(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"mile"_s : u"km"_s;
}

inline QString readingFollowed(const QString &odometer)
{
    return u"The current odometer reading is now "_s + odometer;
}

/// "29.4 miles per gallon on average"
inline QString answer(const FuelSums &sums, DistanceUnit unit)
{
    if (!sums.economy)
        return CarWords::fuelTitle(unit);
    return CarNumbers::text(*sums.economy, 1) + u' ' + perAmount(unit) + u" on average"_s;
}

/// "Last, Aug 31, 2026"
inline QString lastFillUp(const FillUp &last, DateStyle style)
{
    return u"Last, "_s + (last.date.isValid() ? Dates::shortWithYear(last.date, style) : u"undated"_s);
}

inline QString perDistance(DistanceUnit unit)
{
    return u"Fuel for a "_s + distance(unit);
}

inline QString perFuel(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"A gallon costs"_s : u"A liter costs"_s;
}

inline QString inAll(int fillUps)
{
    return HistoryLines::countOf(CarPart::Fuel, fillUps) + u" in all"_s;
}

} // namespace FuelLines
