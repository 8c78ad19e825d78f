// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/appointment.h"
#include "planner/model/plannerfiles.h"
#include "shell/core/programstate.h"

#include <optional>
#include <vector>

/// What was deleted from days in the last 30 days: days that were saved without their entries, and
/// appointments that were removed from many dates. Each record in the trash is a day that holds the lost rows
/// alone.
namespace PlannerTrash {

/// The entries that `date`'s file has, when it has any.
std::optional<Trash::Item> ofDay(const DataFolder &folder, QDate date, DateStyle style, const QDateTime &now);

/// The appointment on the dates from which it was removed.
Trash::Item ofRemoval(const Appointment &appointment, const std::vector<QDate> &dates, const QDateTime &now);

/// What can be brought back, the newest first.
std::vector<Trash::Item> items(const DataFolder &folder, const QDateTime &now);

/// How bringing something back went.
struct [[nodiscard]] Result {
    bool isDone = false;
    int full = 0;      ///< days without room, which stay in the trash
    QDate firstDate{}; ///< the first day that was written; invalid for none
    RecordChange change;
};

/// Puts what was lost into empty rows of its days, unless it stands there again, all days in one.
Result bringBack(const DataFolder &folder, const Trash::Item &item, UntimedPlacement placement);

} // namespace PlannerTrash
