// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backuprun.h"
#include "backup/model/backuptally.h"
#include "backup/model/knownfiles.h"

#include <atomic>

/// What is known of a backup while it runs.
struct BackupCourse {
    const BackupJob &job;
    const std::atomic_bool &isStopped;
    BackupTally tally;
    KnownFiles known{};
    BackupReport report{};
    DiskProgress shown{};
    int number = 1; ///< of the disk that is worked on

    /// The item cannot be had, and does not come any more.
    void leaveOut(int item)
    {
        tally.leaveOut(item);
        report.unread.append(job.items[item].name);
    }
};
