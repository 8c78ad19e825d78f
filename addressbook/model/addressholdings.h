// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/knownperson.h"
#include "shell/core/programstate.h"
#include "shell/core/undostep.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QStringList>

#include <optional>

class DataFolder;

/// What the address book holds, for the rest of the household. Nothing is made by asking.
namespace AddressHoldings {

/// The persons of the book in record order: "Anne Lind".
QStringList names(const DataFolder &folder);

/// The same persons with their records and dates of birth; none is born after `today`.
QList<KnownPerson> persons(const DataFolder &folder, DateStyle style, QDate today);

/// Those of the book's files that are there.
QStringList files(const DataFolder &folder);

/// The entries' pictures as full paths, each once; those that are not to be found are left out.
QStringList pictures(const DataFolder &folder);

/// The pictures that entries name and that are not there, as the entries have them, each once.
QStringList missingPictures(const DataFolder &folder);

/// Has the entries name other files: from what an entry has to where the file is now. A path that an entry
/// has no room for is left out. Nothing where the disk refuses.
std::optional<UndoStep> relinkPictures(const DataFolder &folder, const QHash<QString, QString> &files);

} // namespace AddressHoldings
