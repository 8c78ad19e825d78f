// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "cars/model/vehicle.h"
#include "cars/model/vehiclesheet.h"

/// All that is known of one car.
struct CarRecord {
    Vehicle vehicle;
    VehicleSheet sheet;
    History maintenance; ///< in the order of the file, as it was entered
    History repairs;     ///< and other expenditures, likewise
    FuelLog fuel;        ///< likewise
    /// Its files have day and month of dates the other way round.
    bool areDatesTurned = false;

    bool operator==(const CarRecord &) const = default;
};
