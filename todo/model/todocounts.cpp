// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todocounts.h"

#include "todo/model/todosheet.h"

ToDoCounts ToDoCounts::of(const ToDoSheet &sheet, QDate today)
{
    ToDoCounts counts;
    QHash<int, bool> isTemplate;
    for (const ToDoList &list : sheet.lists())
        isTemplate[list.id] = list.kind == ListKind::Template;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (!sheet.isOpen(row))
            continue;
        const int id = sheet.listOf(row);
        OfList &list = counts.lists[id];
        if (sheet.levelOf(row) == ItemLevel::Item)
            ++list.open;
        const QDate due = sheet.dueOf(row);
        if (!due.isValid() || due > today || isTemplate.value(id))
            continue;
        ++counts.today;
        if (due < today) {
            ++counts.overdue;
            list.isOverdue = true;
        }
    }
    return counts;
}
