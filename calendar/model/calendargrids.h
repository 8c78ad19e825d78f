// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/core/pagegrid.h"
#include "shell/core/programstate.h"

/// The months of a calendar as grids. Each is given by the first of its month.
namespace CalendarGrids {

/// A row a week, each day with its lines.
GridBlock month(const WallCalendar &calendar, QDate first);

/// A row a day, everyone and the persons across.
GridBlock persons(const WallCalendar &calendar, QDate first);

/// A row a day, under the month's name.
GridBlock days(const WallCalendar &calendar, QDate first, bool hasYear, DateStyle style);

/// Numbers under the month's name, with a list below.
enum class Notes {
    None,
    Holidays, ///< and spans
    All
};
GridBlock numbers(const WallCalendar &calendar, QDate first, bool hasYear, Notes notes, DateStyle style);

} // namespace CalendarGrids
