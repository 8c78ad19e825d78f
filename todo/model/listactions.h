// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todoactions.h"

/// Everything that a person does to whole lists.
namespace ListActions {

using ToDoActions::Result; ///< its ids are those of lists

/// Why no list can have that name, in quiet words; empty where it can. `id`: the list that is to have it.
QString whyNotNamed(const ToDoSheet &sheet, const QString &name, int id = 0);

/// A name that no list has: `name` with `ending`, cut and with a number behind it where it must be.
QString freeName(const ToDoSheet &sheet, const QString &name, const QString &ending = {});

Result add(const ToDoSheet &sheet, ListKind kind, const QString &name);
Result rename(const ToDoSheet &sheet, int id, const QString &name);
Result setKind(const ToDoSheet &sheet, int id, ListKind kind);
Result move(const ToDoSheet &sheet, int id, int place);
/// Removes a list with its items.
Result remove(const ToDoSheet &sheet, int id);

/// The texts of the open items of a list, for the question before it is deleted.
QStringList openTexts(const ToDoSheet &sheet, int id);

/// A list with the items of a template, whose days count from `day`.
Result fromTemplate(const ToDoSheet &sheet, int templateId, const QString &name, QDate day, QDate today);
/// The same of a template that comes with the program, by its place in `Templates::all()`.
Result fromBuiltIn(const ToDoSheet &sheet, int builtIn, const QString &name, QDate day, QDate today);
/// A template with the items of a list, open and done, whose days count from `day`.
Result saveAsTemplate(const ToDoSheet &sheet, int id, const QString &name, QDate day);

} // namespace ListActions
