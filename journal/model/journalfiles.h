// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalform.h"
#include "storage/datafolder.h"
#include "storage/filestamp.h"

#include <QList>

#include <optional>

/// The files of the journal in a folder, one a year, as bytes.
namespace JournalFiles {

/// "DJour2026.Fil"
QString name(int year);

/// The years that have a file, in ascending order; nothing of them is read.
QList<int> years(const DataFolder &folder);

/// The names of the files of the years and of those that were set aside, in order.
QStringList names(const DataFolder &folder);
/// Whether it is the name of a year's file, and of none that was set aside.
bool isOfYear(const QString &name);

/// What the file of `year` holds, nothing where it is missing; no value, and a line in the log, where it
/// cannot be read.
std::optional<QByteArray> read(const DataFolder &folder, int year);
/// The same for one of `names`.
std::optional<QByteArray> read(const DataFolder &folder, const QString &name);

/// Whether the file of `year` is sealed, by any version.
bool isSealed(const DataFolder &folder, int year);

/// What the file of `year` is like now.
FileStamp stamp(const DataFolder &folder, int year);

/// Gives the file of `year` a name beside it, "DJour2026 set aside.Fil", which it returns; empty, with
/// everything as it was, when that fails.
QString setAside(const DataFolder &folder, int year);

} // namespace JournalFiles
