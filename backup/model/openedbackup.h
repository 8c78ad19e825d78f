// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/restoresource.h"
#include "backup/model/setlist.h"
#include "backup/model/snapshots.h"

#include <QString>

#include <atomic>
#include <functional>
#include <memory>

/// A set or snapshot that was looked into: what it has, and where that can be read from.
struct OpenedBackup {
    BackupSet place; ///< of a snapshot: where it lies unpacked
    SetRecord set;
    bool isSnapshot = false;
    std::shared_ptr<RestoreSource> source;
    QString refusal; ///< why there is nothing of it: a sentence for the user

    /// Asked while a sealed set is looked through, with the bytes that were read: false stops that, and ends
    /// in a refusal that means nothing.
    using GoOn = std::function<bool(qint64 bytes)>;

    /// Whether the password opens the sealed set in `folder`. True also where its key is damaged, so that no
    /// other one does: `ofSet` says so then.
    static bool isPassword(const QString &folder, const QString &password);
    /// A set whose last disk is there; a password is that of a sealed one. `goOn` is kept for when the other
    /// disks are read.
    static OpenedBackup ofSet(const BackupSet &place, const QString &password, const GoOn &goOn);
    /// `isStopped` must stay as long as its source.
    static OpenedBackup ofSnapshot(const Snapshot &snapshot, const std::atomic_bool &isStopped);

    /// How much there is to be looked through before anything of a set is known.
    static qint64 sealedBytes(const BackupSet &place);
};
