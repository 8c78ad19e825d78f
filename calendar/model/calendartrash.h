// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/trash.h"

#include <QDateTime>

#include <vector>

/// Deleted calendars in the household's trash, each with the bytes of its file.
namespace CalendarTrash {

/// Takes the file of calendar `number` out of the folder and puts it into the trash, both or neither. False
/// where it cannot be read or the disk refuses.
[[nodiscard]] bool throwAway(const DataFolder &folder, int number, const QDateTime &now);

/// What was deleted in the 30 days before `now`, the newest first.
std::vector<Trash::Item> items(const DataFolder &folder, const QDateTime &now);

/// Brings a calendar back, byte for byte, under its number or, where that is taken, the lowest free one. Its
/// number; 0 where none is free or the disk refuses.
[[nodiscard]] int bringBack(const DataFolder &folder, const Trash::Item &item);

} // namespace CalendarTrash
