// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QHash>

class ToDoSheet;

/// How many things are still to be done: what stands beside the lists. Steps count where they are due
/// themselves.
struct ToDoCounts {
    struct OfList {
        int open = 0;
        bool isOverdue = false; ///< some of them should have been done before
    };

    QHash<int, OfList> lists; ///< by id; a list without open items may be missing
    int today = 0;            ///< due or overdue, in all lists but templates
    int overdue = 0;

    static ToDoCounts of(const ToDoSheet &sheet, QDate today);
};
