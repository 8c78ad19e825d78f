// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backupcourse.h"
#include "backup/model/copycount.h"
#include "backup/model/diskfilling.h"
#include "backup/model/filecopier.h"
#include "backup/model/setdisk.h"

#include <QElapsedTimer>
#include <QSet>

#include <atomic>
#include <memory>
#include <optional>

/// What a `BackupRun` does: disk after disk, until all is there.
class BackupWork
{
public:
    BackupWork(const BackupJob &job, DiskAsker &asker, const BackupRun::Progress &progress,
               const std::atomic_bool &isStopped);

    BackupReport run();

private:
    enum class Went { On, NextDisk, Finished, Anew, Stopped };

    void begin();
    void noteDrive();
    bool isThere() const;
    bool isReady();
    bool isComplete() const { return m_course.report.set.ended.isValid(); }
    Went workOnDisk();
    void beginNextDisk();
    DiskResult closeDisk();
    void gather();
    bool countSame(int item);
    void countRecords();

    bool askAbout(DiskResult result);
    bool ask(DiskQuestion question);
    bool isOtherDisk(DiskQuestion &question) const;

    [[nodiscard]] bool noteInHousehold();
    bool goOn(qint64 bytes);
    void tell(DiskProgress::Step step, bool isAtOnce = false);

    BackupCourse m_course;
    DiskAsker &m_asker;
    const BackupRun::Progress &m_progress;

    bool m_wasIn = true;    ///< the disk that is worked on; the first one was chosen
    QString m_folder;       ///< the drive or folder of the disk that is worked on
    QSet<QString> m_drives; ///< the folders that a drive was mounted at
    FileCopier m_copier;
    std::unique_ptr<SetDisk> m_disk;
    std::unique_ptr<DiskFilling> m_filling; ///< of it
    CopyCount m_count;
    bool m_isBegun = false; ///< something is on a disk, and the household's record tells of it
    QElapsedTimer m_clock;
    QByteArray m_former;   ///< the household's record of the last backup, where this one holds less
    QByteArray m_setBytes; ///< of the set's record, once it is complete
    qint64 m_lastTold = -1;
    qint64 m_lessRoom = 0; ///< than the disk says that it has
};
