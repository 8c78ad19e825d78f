// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QStringList>

/// What the calendar maker has in the household, for other functions.
namespace CalendarHoldings {

/// Its files that are there: the calendars, and the household's own holidays.
QStringList files(const DataFolder &folder);

/// The photos of the calendars as full paths, each once; those that are not to be found are left out.
QStringList pictures(const DataFolder &folder);

} // namespace CalendarHoldings
