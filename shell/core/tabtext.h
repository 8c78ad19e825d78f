// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Rows of cells as plain text that spreadsheets read: tabs between the cells, a row a line.
namespace TabText {

/// `text` with blanks in place of tabs and line ends, which would begin the next cell or row.
QString cell(QString text);

/// The cells as one line, without its end.
QString row(const QStringList &cells);

} // namespace TabText
