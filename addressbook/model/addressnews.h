// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/daynote.h"
#include "shell/core/liveline.h"
#include "shell/core/programstate.h"

#include <QDate>
#include <QList>

#include <optional>

class DataFolder;

/// What the address book has to say on the main menu.
namespace AddressNews {

/// The birthdays and anniversaries of the next seven days ("Tuesday: Anne Lind's birthday", "2 birthdays
/// this week"), else the next one within thirty days; nothing when none is near. `today` counts as near.
std::optional<LiveLine> liveLine(const DataFolder &folder, DateStyle style, QDate today);

/// The birthdays and anniversaries of the days `from` to `to`, in date order: "Anne Lind turns 48".
QList<DayNote> dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to, QDate today);

} // namespace AddressNews
