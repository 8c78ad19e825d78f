// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/presentreading.h"

#include "cars/model/carnumbers.h"

#include <algorithm>

bool PresentReading::follow(CarRecord &car, const QString &reading)
{
    QString &present = car.sheet.field(VehicleSheet::Odometer);
    const std::optional<double> number = CarNumbers::number(reading);
    const std::optional<double> before = CarNumbers::number(present);
    if (!number || (before && *number <= *before))
        return false;
    present = CarNumbers::text(*number);
    return true;
}

QString PresentReading::withoutFillUps(const CarRecord &car, const QString &before)
{
    const QString &present = car.sheet.field(VehicleSheet::Odometer);
    const std::optional<double> number = CarNumbers::number(present);
    const bool isRaised = number && *number > CarNumbers::number(before).value_or(0);
    const bool isOfFillUp = std::ranges::any_of(
        car.fuel, [&number](const FuelRow &row) { return CarNumbers::number(row.current) == number; });
    return isRaised && isOfFillUp ? before : present;
}

bool PresentReading::goBack(CarRecord &car, const CarRecord &before, const QString &own)
{
    QString &present = car.sheet.field(VehicleSheet::Odometer);
    const std::optional<double> mistaken = CarNumbers::number(present);
    const auto isOfFillUp = [&mistaken](const FuelRow &row) {
        return CarNumbers::number(row.current) == mistaken;
    };
    if (!mistaken || present != before.sheet.field(VehicleSheet::Odometer) ||
        std::ranges::none_of(before.fuel, isOfFillUp))
        return false;
    double highest = 0;
    const auto see = [&highest](const QString &text) {
        highest = std::max(highest, CarNumbers::number(text).value_or(0));
    };
    for (const FuelRow &row : std::as_const(car.fuel)) {
        see(row.previous);
        see(row.current);
    }
    for (const History *history : {&car.maintenance, &car.repairs}) {
        for (const HistoryRow &row : *history)
            see(row.odometer);
    }
    for (const ScheduledAction &action : car.sheet.actions)
        see(action.odometer);
    const double ownNumber = CarNumbers::number(own).value_or(0);
    if (ownNumber >= highest && ownNumber < *mistaken)
        present = own;
    else if (highest > 0 && highest != *mistaken)
        present = CarNumbers::text(highest);
    else
        return false;
    return true;
}
