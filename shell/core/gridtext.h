// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

/// Blocks of cells as spreadsheets put them on the clipboard: tabs between the cells of a row, a line end
/// behind each row. A cell with one of these in it stands in quotes.
namespace GridText {

using Rows = QList<QStringList>;

QString encode(const Rows &rows);
/// The rows of `text`; they may differ in length. None for an empty text.
Rows decode(QStringView text);

} // namespace GridText
