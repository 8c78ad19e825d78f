// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todosheet.h"

#include <QDate>
#include <QStringList>

#include <vector>

/// Everything that a person does to items: each makes a new sheet of one. Ids that are not there are passed
/// over.
namespace ToDoActions {

struct Result {
    ToDoSheet sheet;
    QString title; ///< for the undo and the status bar: "Done: Water the ferns"; empty where nothing changed
    std::vector<int> ids; ///< what was made, moved or changed, to be chosen

    bool isChange() const { return !title.isEmpty(); }
};

/// Adds an item for each of `lines` that is not blank, like `pattern` (its list, dates, person, repeat),
/// before the item `beforeId`, at the end of the list where that is 0. In a shopping list a thing that was
/// bought comes back, and one that stands there is not added again.
Result newItems(const ToDoSheet &sheet, const ToDoItem &pattern, const QStringList &lines, int beforeId,
                QDate today);
Result newHeading(const ToDoSheet &sheet, int list, const QString &text, int beforeId);

/// Ticks open items as done on `actual`, with their open steps. A repeating one leaves its next one behind
/// it.
Result tick(const ToDoSheet &sheet, const std::vector<int> &ids, QDate actual, QDate today);
/// Opens done items again; of a repeating one, the next one goes.
Result untick(const ToDoSheet &sheet, const std::vector<int> &ids);
/// Changes the day on which items were done: ticks the open ones, and opens the done ones where it is
/// invalid.
Result setActual(const ToDoSheet &sheet, const std::vector<int> &ids, QDate actual, QDate today);

/// An empty text removes the item.
Result setText(const ToDoSheet &sheet, int id, const QString &text);
Result setNote(const ToDoSheet &sheet, int id, const QString &note);
/// An invalid date is none. Headings have none.
Result setDue(const ToDoSheet &sheet, const std::vector<int> &ids, QDate due);
/// The days of items in a template.
Result setOffset(const ToDoSheet &sheet, const std::vector<int> &ids, std::optional<int> offset);
Result setWho(const ToDoSheet &sheet, const std::vector<int> &ids, const QString &who);
/// `repeat` as a file has it; empty for none.
Result setRepeat(const ToDoSheet &sheet, const std::vector<int> &ids, const QString &repeat);
/// Puts what is overdue on `today`: of the list, of all lists where that is 0.
Result moveOverdue(const ToDoSheet &sheet, int list, QDate today);

/// Removes items with their steps.
Result remove(const ToDoSheet &sheet, const std::vector<int> &ids);
/// Moves items with their steps into `list`, before the item `beforeId`, to its end where that is 0.
Result move(const ToDoSheet &sheet, const std::vector<int> &ids, int list, int beforeId);
/// Makes steps of items, and items of steps. The first item of a list cannot be a step.
Result indent(const ToDoSheet &sheet, const std::vector<int> &ids);
Result outdent(const ToDoSheet &sheet, const std::vector<int> &ids);

/// The ids of an item and of the steps below it.
std::vector<int> withSteps(const ToDoSheet &sheet, int id);

/// Things of a shopping list that were bought and are not on it, whose text begins with or holds `typed`, the
/// best first.
QStringList offered(const ToDoSheet &sheet, int list, QStringView typed, int most = 8);

} // namespace ToDoActions
