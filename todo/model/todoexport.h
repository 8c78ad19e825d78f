// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "todo/model/todosheet.h"

/// Lists as text for spreadsheets and for the clipboard.
namespace ToDoExport {

/// A list with all its rows, done ones too, under a heading: tabs between the cells, in the code page of the
/// files. Dates are written as 2026-11-22, which cannot be misread.
QByteArray file(const ToDoSheet &sheet, int list);
/// What that file is called: the list's name with "-" for what no path can hold, and behind the name of a
/// device.
QString fileName(const QString &list);

/// The rows with these ids as text, a row a line.
QString text(const ToDoSheet &sheet, const std::vector<int> &ids);

} // namespace ToDoExport
