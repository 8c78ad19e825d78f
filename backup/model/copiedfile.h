// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskquestions.h"
#include "backup/model/restoresource.h"

#include <atomic>

/// One small file of a backup, read before anything else is done with it.
namespace CopiedFile {

/// No longer one is read.
inline constexpr qint64 mostBytes = 65'536;

/// The bytes of `file`, of the disk that it begins on; `drive` is where that disk is looked for first, and
/// then where it was. Nothing where the user stops; empty where it is damaged.
std::optional<QByteArray> read(RestoreSource &source, const SetRecord &set, const BackupFile &file,
                               QString &drive, DiskAsker &asker);

} // namespace CopiedFile
