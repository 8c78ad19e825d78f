// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QString>
#include <QStringList>

/// Those whose card on the main menu may tell their weight, since they said so themselves: the file
/// `Quillery.weights`, a name in quotes on each line.
namespace ToldFigures {

QString fileName();

QStringList names(const DataFolder &folder);
bool isTold(const DataFolder &folder, const QString &name);

/// Nothing is made where nobody is told of. False, with a line in the log, where the disk refuses.
[[nodiscard]] bool setTold(const DataFolder &folder, const QString &name, bool isTold);

} // namespace ToldFigures
