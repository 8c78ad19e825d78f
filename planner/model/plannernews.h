// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/daynote.h"
#include "shell/core/liveline.h"
#include "storage/datafolder.h"

#include <QDateTime>
#include <QList>

#include <optional>

/// What the planner has to say on the main menu and to other functions. No year file is made by asking.
namespace PlannerNews {

/// The next appointment of today ("11:30 AM  Dentist") or, when none is left, the first of tomorrow; with a
/// sentence about today: "Three appointments today, the next one at 11:30 AM." Nothing when both days are
/// free.
std::optional<LiveLine> liveLine(const DataFolder &folder, const QDateTime &now);

/// The appointments of the days `from` to `to`, in date order and, in a day, in the order of its rows. A time
/// that cannot be read stands before the text; one without AM and PM is noted as it was typed, too.
QList<DayNote> dayNotes(const DataFolder &folder, QDate from, QDate to);

/// Those of the year files that are there.
QStringList files(const DataFolder &folder);

} // namespace PlannerNews
