// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// Staged saving of files that are rewritten whole: the new content is complete on disk before the old one
/// goes.
namespace Saving {

/// The neighbours of a file that is being replaced: `part` while it is written, `staged` once all of it is on
/// disk.
inline constexpr QLatin1StringView partSuffix(".quillery-part");
inline constexpr QLatin1StringView stagedSuffix(".quillery-staged");

/// Replaces `name` in `folder` by `content`: writes it to a neighbouring staged file, flushes it to disk,
/// then gives it the name. False, with the old file untouched and a line in the log, when any step fails,
/// when a folder is in the file's place, or when the file is write-protected.
[[nodiscard]] bool replaceFile(const DataFolder &folder, const QString &name, QByteArrayView content);
/// The same, but what was written is read back, and gets the name only where `isRight` says so of it.
[[nodiscard]] bool replaceFile(const DataFolder &folder, const QString &name, QByteArrayView content,
                               const std::function<bool(const QByteArray &written)> &isRight);

/// Finishes what a crash interrupted: a complete staged file beside a missing or emptied original takes its
/// place; other leftovers are removed. Called once at start, before anything is read.
void recover(const DataFolder &folder);

} // namespace Saving
