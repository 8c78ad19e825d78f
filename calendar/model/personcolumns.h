// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Which person of a calendar a line is for.
namespace PersonColumns {

/// A line goes to the person whose name it begins with and a colon ("Anne: dentist"), or whose name alone it
/// holds as whole words ("Anne's concert"); else to everyone. Counted from 1; 0 for everyone.
int columnOf(const QString &text, const QStringList &persons);

/// The text as it stands in the column: without the name and the colon in front.
QString inColumn(const QString &text, const QStringList &persons, int column);

} // namespace PersonColumns
