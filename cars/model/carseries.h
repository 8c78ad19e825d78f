// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carcosts.h"
#include "cars/model/fuelfigures.h"

/// A value of a day, for a line in a chart.
struct DayValue {
    QDate date;
    double value = 0;
    QString text; ///< "28.8 miles per gallon"

    bool operator==(const DayValue &) const = default;
};

/// What the charts of a car show, oldest first.
namespace CarSeries {

/// The consumption of each fill-up that counts.
QList<DayValue> consumption(const FuelFigures &figures, DistanceUnit unit);

/// What was paid in each month from the first cost to the last, on its first day.
QList<DayValue> costs(const CarCosts &costs);
/// The same of one kind.
QList<DayValue> costs(const CarCosts &costs, CostKind kind);

/// The odometer: of one that was replaced, too.
QList<DayValue> odometer(const DrivingLog &log, DistanceUnit unit);

/// The questions that the charts answer.
QString consumptionTitle(DistanceUnit unit);
QString costsTitle();
QString odometerTitle();

} // namespace CarSeries
