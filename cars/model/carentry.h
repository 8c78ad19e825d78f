// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "cars/model/vehiclesheet.h"
#include "shell/core/message.h"
#include "shell/core/programstate.h"

#include <QDate>

#include <optional>

/// What becomes of a text that is typed into a grid of a car, and what is said about it.
struct CarEntry {
    QString text; ///< as it is shown and stored; what stood there before where it is refused
    std::optional<Message> refusal; ///< the box under "Entry Error"
    QString reason = {};            ///< a quiet line why it is refused, where that needs no box

    bool isRefused() const { return refusal || !reason.isEmpty(); }

    // Numbers are stored plain, sums that were typed added up. Empty is taken.

    /// A distance, an amount of fuel, a number of months.
    static CarEntry number(const QString &typed, const QString &before);
    /// The same with two decimals.
    static CarEntry money(const QString &typed, const QString &before);
    /// A reading of the odometer: none above `sheet`'s current one, where there is one.
    static CarEntry odometer(const QString &typed, const QString &before, const VehicleSheet &sheet);
    /// One that may be above `sheet`'s current one, but not so far that nobody drives there.
    static CarEntry reading(const QString &typed, const QString &before, const VehicleSheet &sheet);
    /// What `sheet`'s odometer reads now: no odometer has more digits.
    static CarEntry currentReading(const QString &typed, const QString &before);
    /// A date that is there, today at the latest, in the short form. Empty is taken.
    static CarEntry date(const QString &typed, const QString &before, DateStyle style, QDate today);

    bool operator==(const CarEntry &) const = default;
};
