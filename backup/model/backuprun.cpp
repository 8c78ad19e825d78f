// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backuprun.h"

#include "backup/model/backupwork.h"

#include <utility>

BackupRun::BackupRun(BackupJob job, DiskAsker &asker, Progress progress)
    : m_job(std::move(job))
    , m_asker(asker)
    , m_progress(std::move(progress))
{}

BackupReport BackupRun::run()
{
    BackupWork work(m_job, m_asker, m_progress, m_isStopped);
    return work.run();
}
