// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setrecords.h"
#include "storage/datafolder.h"

#include <QHash>
#include <QList>
#include <QString>

#include <atomic>
#include <functional>
#include <optional>

/// What restoring a file would do.
enum class RestoreEffect {
    New,      ///< it is not here
    ByOlder,  ///< the one here is replaced by an older one
    ByNewer,  ///< the one here is replaced by a newer one
    Beside,   ///< a picture: another one of that name is here, and stays
    Same,     ///< nothing: it is the same here
    OnlyHere, ///< nothing: it is not in the backup, and stays
    Refused   ///< a file that no program of ours puts back there
};

/// A file of the backup, of the household, or of both.
struct RestoreItem {
    BackupFile file; ///< as the backup has it; of one that is only here name, size and time
    RestoreEffect effect = RestoreEffect::New;
    QString function{};     ///< whose it is, or one of the groups of `Holdings`
    QString path;           ///< where it goes, or is
    bool isPicture = false; ///< it never replaces another
    qint64 sizeHere = -1;   ///< of the file that is there now; -1 where there is none
    QDateTime changedHere;  ///< UTC

    /// Whether restoring it writes anything.
    bool isWritten() const { return effect < RestoreEffect::Same; }

    bool operator==(const RestoreItem &) const = default;
};

/// The room that a restore takes beside what is there, on the disk where there is too little of it.
struct RestoreRoom {
    QString disk; ///< its root
    qint64 needed = 0;
    qint64 free = 0;

    bool operator==(const RestoreRoom &) const = default;
};

/// What restoring a backup would do, file by file, before anything is done. Paths and values only: it can be
/// made on any thread.
namespace RestorePlan {

/// Where the files go.
struct Aim {
    DataFolder folder;       ///< the household's, or another one
    bool isHousehold = true; ///< another folder gets all pictures inside it
    QByteArray desk{};       ///< what a backup would keep of the program's settings now
};

/// The files of a set beside what is in the folder now: in the order of the set, then those of `here`, names
/// in the folder as a backup would have them, that the set has not. `owners` says whose the files are, by
/// their names; `Holdings::others` has the rest. Files of one size are read and compared, but for pictures of
/// one time. `isStopped` is asked between any two files: what has come so far is given then.
QList<RestoreItem> made(const Aim &aim, const QList<BackupFile> &files, const QStringList &here,
                        const QHash<QString, QString> &owners, const std::atomic<bool> &isStopped);

/// The disks of the set that are needed for these, in their order.
QList<int> disks(const QList<RestoreItem> &items);

/// How many bytes are free on the disk of a path; the real answer outside of tests.
using FreeBytes = std::function<qint64(const QString &path)>;
qint64 freeBytes(const QString &path);

/// Nothing where there is room for all of `items`.
std::optional<RestoreRoom> missingRoom(const Aim &aim, const QList<RestoreItem> &items,
                                       const FreeBytes &freeBytes = &RestorePlan::freeBytes);

} // namespace RestorePlan
