// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"
#include "storage/datafolder.h"

#include <QHash>
#include <QStringList>

#include <optional>

/// The photos of then and now that the files of persons name.
namespace WeightPictures {

/// Those that are named and not there, as the files have them, each once.
QStringList missing(const DataFolder &folder);

/// Names other files: from what stands there to where the file is now. Nothing where the disk refuses.
std::optional<UndoStep> relink(const DataFolder &folder, const QHash<QString, QString> &files);

} // namespace WeightPictures
