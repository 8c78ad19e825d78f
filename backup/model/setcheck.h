// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskprogress.h"
#include "backup/model/diskquestions.h"
#include "backup/model/setrecords.h"
#include "storage/datafolder.h"

#include <QDateTime>
#include <QStringList>

#include <atomic>
#include <functional>

/// What a test of a set has found.
struct CheckReport {
    enum class End { Complete, Stopped };

    End end = End::Stopped;
    SetRecord set;       ///< with the time of this test, where it is written
    int files = 0;       ///< that are as they were written; of a sealed set, disks
    QStringList damaged; ///< names of those that are not, or are missing
    QList<BackupCount> counts;
    bool isNoted = false; ///< the time of the test is in the set's record

    bool isWhole() const { return end == End::Complete && damaged.isEmpty(); }
    bool operator==(const CheckReport &) const = default;
};

/// "Test This Backup": reads all of a set back, past the cache, and compares it with its hashes; several
/// disks in turn.
class SetCheck
{
public:
    using Progress = std::function<void(const DiskProgress &)>;

    struct Job {
        QString drive;                   ///< of the last disk, that with the set's record
        QString folder;                  ///< of the set there
        DataFolder household{QString()}; ///< its record of the last backup takes the time of the test, too
        std::function<QDateTime()> now{};
        /// As in `BackupJob`.
        std::function<QList<BackupCount>(const QString &folder)> count{};
    };

    SetCheck(Job job, DiskAsker &asker, Progress progress);

    /// On a thread of its own, as `BackupRun::run`.
    CheckReport run();
    void stop() { m_isStopped = true; }

private:
    class Work;

    Job m_job;
    DiskAsker &m_asker;
    Progress m_progress;
    std::atomic_bool m_isStopped = false;
};

/// Whether a test is offered: the last one, or the backup itself, is 90 days old.
bool isTestDue(const SetRecord &record, const QDateTime &now);
