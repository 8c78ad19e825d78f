// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/fuelcalculator.h"

#include "cars/model/carnumbers.h"
#include "cars/model/fuelfigures.h"

namespace {

bool isAbove(const std::optional<double> &number, double least)
{
    return number && *number > least;
}

} // namespace

bool FuelCalculator::isComplete(const QString &previous, const QString &current, const QString &used)
{
    return CarNumbers::number(previous) && CarNumbers::number(current) &&
           isAbove(FuelFigures::sumOf(used), 0);
}

std::optional<FuelCalculator::Drive> FuelCalculator::drive(const QString &previous, const QString &current,
                                                           const QString &used, const QString &cost)
{
    if (!isComplete(previous, current, used))
        return {};
    Drive drive;
    drive.driven = *CarNumbers::number(current) - *CarNumbers::number(previous);
    if (drive.driven <= 0)
        return {};
    drive.economy = drive.driven / *FuelFigures::sumOf(used);
    if (const auto paid = FuelFigures::sumOf(cost))
        drive.centsPerDistance = *paid * 100 / drive.driven;
    return drive;
}

std::optional<FuelCalculator::Trip> FuelCalculator::trip(const QString &distance, const QString &economy,
                                                         const QString &price)
{
    const auto length = FuelFigures::sumOf(distance);
    const auto perFuel = CarNumbers::number(economy);
    if (!isAbove(length, 0) || !isAbove(perFuel, 0))
        return {};
    Trip trip{*length / *perFuel, {}};
    if (const auto each = CarNumbers::number(price))
        trip.cents = trip.fuel * *each * 100;
    return trip;
}
