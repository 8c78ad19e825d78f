// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskplan.h"
#include "backup/model/diskprogress.h"
#include "backup/model/diskquestions.h"
#include "backup/model/holdings.h"
#include "backup/model/setrecords.h"

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

class SealedKey;

/// What is to be backed up, and where to. Values and paths only: nothing of the program is touched.
struct BackupJob {
    QList<BackupItem> items;
    DataFolder household{QString()}; ///< where the record of the last backup stands
    QString folder;                  ///< the drive or folder of the first disk
    QString drive;                   ///< its own name: "SILVER"
    QDateTime begun;                 ///< UTC
    /// Of a set that is to be gone on with: its record in the household's folder.
    std::optional<SetRecord> unfinished{};
    /// Counts the records in a copy of the household; called on the thread of the run. Empty: no counts.
    std::function<QList<BackupCount>(const QString &folder)> count{};
    /// The time now, UTC.
    std::function<QDateTime()> now{};
    /// Seals the set: each disk is one file that only its password opens. Null: files as they are.
    std::shared_ptr<const SealedKey> seal{};
    /// In place of what the folder of a disk has room for: a limit that the user sets.
    std::optional<DiskRoom> room{};
};

/// What came of a backup.
struct BackupReport {
    enum class End {
        Complete,
        Stopped ///< by the user; it can be gone on with
    };

    End end = End::Stopped;
    SetRecord set;    ///< as far as it got
    qint64 bytes = 0; ///< that were written
    int newPictures = 0;
    int knownPictures = 0; ///< that the drive had already
    QStringList changing;  ///< names of files that changed each time they were read: as they were last
    QStringList unread;    ///< names of files that are gone or cannot be read: not in the set
    bool isNoted = false;  ///< its record stands in the household's folder, too

    bool operator==(const BackupReport &) const = default;
};

/// A backup as it runs, on a thread of its own: copies, and hashes while it reads; flushes; reads back past
/// the cache and compares; only then the set's record is written. The household's files are only read.
class BackupRun
{
public:
    using Progress = std::function<void(const DiskProgress &)>;

    /// `asker` and `progress` are called on the thread of the run, progress ten times a second at most.
    BackupRun(BackupJob job, DiskAsker &asker, Progress progress);

    /// Does it, and returns when it has ended.
    BackupReport run();

    /// From any thread: ends at the next piece of a file, after a fifth of a second at most. A question that
    /// is being asked then has to be answered by the asker.
    void stop() { m_isStopped = true; }

private:
    BackupJob m_job;
    DiskAsker &m_asker;
    Progress m_progress;
    std::atomic_bool m_isStopped = false;
};
