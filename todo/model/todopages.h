// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"
#include "shell/core/pagecontext.h"
#include "todo/model/todosheet.h"

/// What is printed of the lists: to hang up, to tick, to write on.
namespace ToDoPages {

struct Options {
    enum What { List, AllLists, Today, Persons, Done };

    What what = List;
    int list = 0;     ///< of `List`
    QString person{}; ///< of `Persons`: empty for everybody's, each on a sheet of their own
    QDate from{};     ///< of `Done`
    QDate to{};
    bool hasBoxes = true;
    bool hasDates = true;
    bool hasNotes = true;
    bool hasEmptyLines = false; ///< to write on

    bool operator==(const Options &) const = default;
};

Page printout(const ToDoSheet &sheet, const Options &options, const PageContext &context);

/// Who has something to do: whose turn it is, each once, in their order.
QStringList persons(const ToDoSheet &sheet);

} // namespace ToDoPages
