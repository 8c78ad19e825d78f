// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/trash.h"
#include "todo/model/todoactions.h"

/// Deleted lists in the household's trash, each with its items as the lines of the file.
namespace ListTrash {

/// Puts a list of the sheet into the trash, on the disk at once. No deletion waits for it.
Trash::State put(const DataFolder &folder, const ToDoSheet &sheet, int list, const QDateTime &now);

/// What was deleted in the last 30 days, the newest first, but for what undo has brought back since.
std::vector<Trash::Item> items(const DataFolder &folder, const ToDoSheet &sheet, const QDateTime &now);

/// The sheet with the list again, under another name where its own is taken; its id.
ToDoActions::Result bringBack(const ToDoSheet &sheet, const Trash::Item &item);

} // namespace ListTrash
