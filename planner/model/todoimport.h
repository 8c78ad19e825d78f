// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerfiles.h"
#include "shell/core/programstate.h"

#include <QDate>
#include <QString>

#include <vector>

/// A dated item of the To Do list, as the planner takes it in.
struct DatedToDo {
    QDate date;
    QString text;

    bool operator==(const DatedToDo &) const = default;
};

/// Taking the To Do list's active items (`TODOActv.FIL`) into the planner.
namespace ToDoImport {

/// The items that have a text and a date, in file order. The date is the last ten characters of the date
/// text, read by `style` and the other way round when that is impossible; a date that cannot be read leaves
/// the item out.
std::vector<DatedToDo> items(const DataFolder &folder, DateStyle style);

} // namespace ToDoImport
