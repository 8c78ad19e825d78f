// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"
#include "storage/datafolder.h"

#include <QHash>
#include <QStringList>

#include <optional>

/// What the journal has in the household, for other functions.
namespace JournalHoldings {

/// Its files that are there: the years, those that were set aside, and the key of the seal.
QStringList files(const DataFolder &folder);

/// The pictures of the entries as full paths, each once; those that are not to be found are left out, and so
/// are those of sealed years, which only the password tells.
QStringList pictures(const DataFolder &folder);

/// The pictures of the entries that are not to be found, as the entries name them, each once; not those of
/// years that are sealed or may not be written to.
QStringList missingPictures(const DataFolder &folder);

/// Has the entries, and what they were before, name other files in the place of these. Nothing where the disk
/// refuses; a step without `undo` where no entry names one.
std::optional<UndoStep> relinkPictures(const DataFolder &folder, const QHash<QString, QString> &files);

} // namespace JournalHoldings
