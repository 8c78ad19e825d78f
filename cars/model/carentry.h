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

    /// A reading of the odometer: none above `sheet`'s current one, where there is one. Empty is taken.
    static CarEntry odometer(const QString &typed, const QString &before, const VehicleSheet &sheet);
    /// A date that is there, today at the latest, in the short form. Empty is taken.
    static CarEntry date(const QString &typed, const QString &before, DateStyle style, QDate today);

    bool operator==(const CarEntry &) const = default;
};
