// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/liveline.h"
#include "storage/datafolder.h"

#include <QDateTime>

#include <optional>

/// What the planner has to say on the main menu.
namespace PlannerNews {

/// The next appointment of today ("11:30 AM  Dentist") or, when none is left, the first of tomorrow; with a
/// sentence about today: "Three appointments today, the next one at 11:30 AM." Nothing when both days are
/// free.
std::optional<LiveLine> liveLine(const DataFolder &folder, const QDateTime &now);

/// The time of day that a row's time text names; invalid when it names none. "9:30 AM", "9.30pm", "14:05",
/// "8".
QTime timeOfDay(QStringView text);

} // namespace PlannerNews
