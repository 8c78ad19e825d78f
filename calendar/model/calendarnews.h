// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/liveline.h"
#include "storage/datafolder.h"

#include <QDate>

#include <optional>

/// What the calendar maker has to say on the main menu. Of each calendar only the head lines are read.
namespace CalendarNews {

/// The calendar that holds `today`, else the next one: "Family Calendar 2027, 12 pages". From November on
/// that there is none for the next year, where that is so. Nothing where all are over.
std::optional<LiveLine> liveLine(const DataFolder &folder, QDate today);

} // namespace CalendarNews
