// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

#include <optional>

/// The calendar that follows another one.
namespace NextYear {

/// The years between them: one, or two for a calendar of more than twelve months.
int yearsOn(const WallCalendar &calendar);

/// With the look, rules, holidays, persons and photos of `calendar` and its typed lines of every year, and
/// the years of its title raised; filled with nothing yet. Nothing where it would end behind the last year.
std::optional<WallCalendar> of(const WallCalendar &calendar);

} // namespace NextYear
