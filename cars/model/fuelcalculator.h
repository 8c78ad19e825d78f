// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// The fuel calculators, from texts as they are typed; amounts of fuel and money may be sums: "8.1+3.2".
namespace FuelCalculator {

/// What was driven on some fuel.
struct Drive {
    double driven = 0;
    double economy = 0; ///< distance for each gallon or litre
    std::optional<double> centsPerDistance;

    bool operator==(const Drive &) const = default;
};

/// What some distance will take.
struct Trip {
    double fuel = 0;
    std::optional<double> cents;

    bool operator==(const Trip &) const = default;
};

/// Whether all is given that must be: both readings and the fuel.
bool isComplete(const QString &previous, const QString &current, const QString &used);

/// Nothing where that is not so, and where nothing was driven between the readings.
std::optional<Drive> drive(const QString &previous, const QString &current, const QString &used,
                           const QString &cost);

/// Nothing without a distance and a consumption.
std::optional<Trip> trip(const QString &distance, const QString &economy, const QString &price);

} // namespace FuelCalculator
