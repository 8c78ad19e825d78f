// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>

/// The papers that a calendar can be printed on, by the names that its file has for them.
namespace CalendarPapers {

/// "A3", "A4", "A5", "Letter", "Legal", "Tabloid".
QStringList names();

/// Upright, in inches. A name that is none of them counts as A4.
QSizeF sizeOf(const QString &name);

/// The paper of about this size; empty where there is none.
QString nameOf(QSizeF inches);

} // namespace CalendarPapers
