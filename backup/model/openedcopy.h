// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setlist.h"

#include <QSet>
#include <QString>

#include <atomic>

class RecordFiles;

/// The record files of a snapshot or a set, put into a folder to be looked at. What is damaged is left out.
struct OpenedCopy {
    QSet<QString> functions; ///< that have something in it: "AddressBook"
    bool isOpen = false;     ///< its files lie there, but for those that `refusal` names
    QString refusal;         ///< a sentence for the user where not all of it is there; empty otherwise

    static OpenedCopy ofSnapshot(const QString &path, const QString &into, const std::atomic_bool &isStopped);

    /// Whether a set can be looked into without a question: it is open to all, and lies on one disk.
    static bool isAtOnce(const BackupSet &set);
    static OpenedCopy ofSet(const BackupSet &set, const QString &into, const std::atomic_bool &isStopped);
    /// Of files that were laid into the folder.
    static OpenedCopy ofFiles(const SetRecord &set, RecordFiles &files, const QString &into);
};
