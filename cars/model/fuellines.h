// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"
#include "cars/model/fuelcalculator.h"
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

/// Once the fill-up that had raised it is gone.
inline QString readingWentBack(const QString &odometer)
{
    return u"The current odometer reading went back to "_s + odometer;
}

/// "29.4 miles per gallon on average"
inline QString answer(const FuelSums &sums, DistanceUnit unit)
{
    if (!sums.economy)
        return CarWords::fuelTitle(unit);
    return CarNumbers::text(*sums.economy, 1) + u' ' + perAmount(unit) + u" on average"_s;
}

/// "Last, Aug 31", with the year of another year
inline QString lastFillUp(const FillUp &last, DateStyle style, QDate today)
{
    if (!last.date.isValid())
        return u"Last fill-up"_s;
    return u"Last, "_s + (last.date.year() == today.year() ? Dates::shortText(last.date, style)
                                                           : Dates::shortWithYear(last.date, style));
}

/// Of the chart beside the rows, which names no axes.
inline QString chartTitle(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"Miles per gallon of each fill-up"_s
                                       : u"Km per liter of each fill-up"_s;
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

/// "31.3 miles per gallon: 285 miles, 0.11 a mile"
inline QString drive(const FuelCalculator::Drive &drive, DistanceUnit unit)
{
    const QString length =
        CarNumbers::text(drive.driven) + u' ' + (unit == DistanceUnit::Miles ? u"miles"_s : u"km"_s);
    const QString cost = drive.centsPerDistance ? u", "_s + HistoryLines::money(*drive.centsPerDistance) +
                                                      u" a "_s + distance(unit)
                                                : QString();
    return CarNumbers::text(drive.economy, 1) + u' ' + perAmount(unit) + u": "_s + length + cost;
}

/// In the place of the answer, until there is one.
inline QString whatADriveGives(DistanceUnit unit)
{
    return u"Gives the "_s + perAmount(unit) + u", the distance and what a "_s + distance(unit) + u" cost"_s;
}

inline QString whatATripGives(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"Gives the gallons that it takes, and what they cost"_s
                                       : u"Gives the liters that it takes, and what they cost"_s;
}

inline QString nothingDriven()
{
    return u"The current reading must be above the previous one"_s;
}

/// "8.4 gallons, 28.56"
inline QString trip(const FuelCalculator::Trip &trip, DistanceUnit unit)
{
    const QString fuel =
        CarNumbers::text(trip.fuel, 1) + u' ' + (unit == DistanceUnit::Miles ? u"gallons"_s : u"liters"_s);
    return trip.cents ? fuel + u", "_s + HistoryLines::money(*trip.cents) : fuel;
}

} // namespace FuelLines
