// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "todo/model/shown.h"
#include "todo/model/todosheet.h"

#include <QDate>
#include <QSet>

#include <vector>

/// A row of a view: something to do, a heading of its list, or words over what follows.
struct ToDoRow {
    enum Kind {
        Item,    ///< or a step
        Heading, ///< of the list
        Group,   ///< "Overdue", a day, a person, a list
        Later,   ///< stands for what comes back later, and unfolds it
        Note     ///< of the item above it, opened
    };

    Kind kind = Item;
    int id = 0;      ///< of an item or heading, and of whose note it is
    QString words{}; ///< of a group, and of what comes later
    int list = 0;    ///< of a group, the list that it stands for; else 0

    bool operator==(const ToDoRow &) const = default;
};

/// Which rows a view has, and in which order.
namespace ToDoViews {

enum class Order { Own, ByDue, ByActual };

struct Wanted {
    Shown shown;
    QDate today;
    const DateStyle &style;
    Order order = Order::Own; ///< of a list
    bool isBackwards = false; ///< the latest first
    bool isLaterShown = false;
    QSet<int> ticked{}; ///< done since the view was opened: they stay in it
    int openNote = 0;   ///< whose note stands under its row; 0: nobody's
};

std::vector<ToDoRow> rows(const ToDoSheet &sheet, const Wanted &wanted);

/// How many days, from today on, are coming.
inline constexpr int daysComing = 14;

} // namespace ToDoViews
