// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "cars/model/vehiclesheet.h"
#include "shell/core/programstate.h"

#include <optional>

/// A maintenance that was entered is the last time of an action of the schedule, which may be told so.
struct ScheduleUpdate {
    int row = 0; ///< of the schedule
    ScheduledAction before;
    ScheduledAction after; ///< with the reading, date and cost of the maintenance

    /// What `entry` means for the schedule. Nothing where no action is called like it, or the schedule has
    /// that or a later one already.
    static std::optional<ScheduleUpdate> of(const HistoryRow &entry, const VehicleSheet &sheet,
                                            DateStyle style);

    /// The action that a description means: one with the same words, whatever their case and order; -1: none.
    static int actionOf(const QString &description, const VehicleSheet &sheet);

    /// Asks whether the schedule shall be told.
    QString question() const;
};
