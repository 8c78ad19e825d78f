// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "cars/model/vehiclesheet.h"

#include <QString>

#include <array>

/// The captions of sheet and grids, in the order of the file, and what they call a distance and an amount of
/// fuel. The wording is fixed.
namespace CarWords {

using namespace Qt::Literals::StringLiterals;

inline QString mileage(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"Mileage"_s : u"Kilometers"_s;
}

/// The same in the heading of a column.
inline QString miles(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"Miles"_s : u"Kms."_s;
}

inline QString fuelAmount(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"Gallons"_s : u"Liters"_s;
}

inline QString fuelTitle(DistanceUnit unit)
{
    return unit == DistanceUnit::Miles ? u"Fuel Mileage Tracker"_s : u"Fuel Kilometer Tracker"_s;
}

inline constexpr std::array<QStringView, VehicleSheet::fieldCount> captions{u"VIN:",
                                                                            u"License No.:",
                                                                            u"Registration Month:",
                                                                            u"Purchase Date:",
                                                                            u"Price:",
                                                                            u"From:",
                                                                            u"Picture:",
                                                                            u"Insurance Company:",
                                                                            u"Telephone No.:",
                                                                            u"Policy Number:",
                                                                            u"Expiration Date:",
                                                                            u"Oil Filter:",
                                                                            u"Air Filter:",
                                                                            u"PVC Valve:",
                                                                            u"Plug Type:",
                                                                            u"Oil Weight:",
                                                                            u"Oil Change (Qts):",
                                                                            u"Coolant Change Qts:",
                                                                            u"Other:",
                                                                            u"Make:",
                                                                            u"Model:",
                                                                            u"Current Odometer Reading:"};

/// The notice that stands beside the registration's month when that has come; no field.
inline constexpr QStringView registrationIsDue = u"Registration Is Due";

/// The groups of the sheet; make, model and reading stand by themselves.
inline constexpr QStringView generalInformation = u"General Information";
inline constexpr QStringView insuranceInformation = u"Insurance Information";
inline constexpr QStringView maintenanceInformation = u"Maintenance Information";

/// The columns of a history, as `historyColumns`.
inline std::array<QString, historyColumns.size()> historyHeadings(DistanceUnit unit)
{
    return {mileage(unit), u"Date"_s, u"Description"_s, u"Cost"_s};
}

/// The columns of the fuel tracker, as `fuelColumns`.
inline std::array<QString, fuelColumns.size()> fuelHeadings(DistanceUnit unit)
{
    const bool isMiles = unit == DistanceUnit::Miles;
    return {u"Date"_s,
            u"Previous Reading"_s,
            u"Current Reading"_s,
            miles(unit) + u" Driven"_s,
            fuelAmount(unit) + u" Used"_s,
            isMiles ? u"Miles Per Gallon"_s : u"Kms. Per Liter"_s,
            u"Cost"_s};
}

} // namespace CarWords
