// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carcosts.h"
#include "cars/model/carseries.h"
#include "shell/charts/barchart.h"
#include "shell/charts/linechart.h"

/// What the charts of a car show.
namespace CarCharts {

LineChart consumption(const FuelFigures &figures, DistanceUnit unit, DateStyle style);
LineChart odometer(const DrivingLog &log, DistanceUnit unit, DateStyle style);
/// What was paid in each month.
LineChart costs(const CarCosts &costs, DateStyle style);

/// What was paid for each kind since the first cost.
BarChart kinds(const CarCosts &costs);
/// What was paid in each year, the newest first.
BarChart years(const CarCosts &costs);

} // namespace CarCharts
