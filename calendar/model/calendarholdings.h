// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"
#include "storage/datafolder.h"

#include <QHash>
#include <QStringList>

#include <optional>

/// What the calendar maker has in the household, for other functions.
namespace CalendarHoldings {

/// Its files that are there: the calendars, and the household's own holidays.
QStringList files(const DataFolder &folder);

/// The photos of the calendars as full paths, each once; those that are not to be found are left out.
QStringList pictures(const DataFolder &folder);

/// Those that are named and not there, as the files have them, each once.
QStringList missingPictures(const DataFolder &folder);

/// Names other files: from what stands there to where the file is now. Nothing where the disk refuses; a step
/// without `undo` where no calendar names one. Calendars of a later version stay as they are.
std::optional<UndoStep> relinkPictures(const DataFolder &folder, const QHash<QString, QString> &files);

} // namespace CalendarHoldings
