// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setlist.h"

#include <QSet>
#include <QString>

#include <atomic>

/// The record files of a snapshot or a set, put into a folder to be looked at. What is damaged is left out.
struct OpenedCopy {
    QSet<QString> functions; ///< that have something in it: "AddressBook"
    QString refusal;         ///< a sentence for the user where not all of it is there; empty otherwise

    static OpenedCopy ofSnapshot(const QString &path, const QString &into, const std::atomic_bool &isStopped);

    /// Whether a set can be looked into: it is complete, open to all, and lies on one disk.
    static bool isPossible(const BackupSet &set);
    static OpenedCopy ofSet(const BackupSet &set, const QString &into, const std::atomic_bool &isStopped);
};
