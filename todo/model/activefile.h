// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "todo/model/todosheet.h"

#include <QByteArray>
#include <QDate>

/// `TODOActv.FIL`, in which other programs find the open items, and `TODONAME.FIL` with the names of the
/// lists: value files. Templates and headings are in neither.
namespace ActiveFile {

/// The open items as triples: text, date ("2026-11-24" or nothing), name of the list.
QByteArray make(const ToDoSheet &sheet);
/// The names of the lists in their order.
QByteArray makeNames(const ToDoSheet &sheet);

/// How a file is known again: SHA-256 in hexadecimal digits.
QByteArray digest(QByteArrayView file);

/// Makes the lists of a household that has only these two files. Without names there is one list, "To Do".
ToDoSheet firstSheet(QByteArrayView names, QByteArrayView active, DateStyle style, QDate today);

/// Adds the triples of `active` of which `sheet` has no open item with the same text and date; how many those
/// were.
int takeIn(ToDoSheet &sheet, QByteArrayView active, DateStyle style, QDate today);

} // namespace ActiveFile
