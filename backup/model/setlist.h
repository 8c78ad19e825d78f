// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setrecords.h"

#include <QList>
#include <QString>

#include <optional>

/// A set, or the part of it that lies on one drive.
struct BackupSet {
    QString drive;                     ///< the drive or folder that holds "Quillery Backup"
    QString folder;                    ///< of the set on it
    DiskRecord disk{};                 ///< without its parts
    std::optional<SetRecord> record{}; ///< on the last disk of a complete set, without its files
    qint64 bytes = 0;                  ///< of its folder, without pictures
    int disks = 0;                     ///< of the whole set, where that is known to be complete

    bool isComplete() const { return record.has_value(); }
    bool isSealed() const { return record && record->isSealed; }
    QDateTime begun() const { return disk.begun; }

    bool operator==(const BackupSet &) const = default;
};

/// The sets on a drive or in a folder.
namespace SetList {

/// Those that can be read, the newest first. `lastBackup` is the household's record, which knows of its disks
/// also where the last one is on another drive.
QList<BackupSet> on(const QString &drive, const std::optional<SetRecord> &lastBackup = {});

/// The newest complete one; nothing without one.
std::optional<BackupSet> last(const QString &drive);

/// Where the newest folder of a complete set is, by the names of folders alone: cheaper than to read them
/// all.
std::optional<QString> lastFolder(const QString &drive);

/// Those that may be deleted, the oldest first: never the only complete set, and nothing of the last backup,
/// whose record is `lastBackup`. A part of a set, or one that is not finished, may go once a later backup is
/// complete.
QList<BackupSet> deletable(const QList<BackupSet> &sets, const std::optional<SetRecord> &lastBackup);

/// Deletes the set, and the pictures of the drive that no other set on it has. False, with a line in the log,
/// where it is none of `deletable` or the disk refuses.
[[nodiscard]] bool remove(const BackupSet &set, const std::optional<SetRecord> &lastBackup);

} // namespace SetList
