// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskprogress.h"
#include "backup/model/diskquestions.h"
#include "backup/model/openedbackup.h"
#include "backup/model/openedcopy.h"
#include "backup/model/privatefolder.h"

#include <QElapsedTimer>
#include <QList>

#include <atomic>
#include <functional>

class RecordFiles;

/// Opens a set to be looked at, on a thread of its own: its record files come into a folder, disk by disk.
class CopyOpening
{
public:
    using Progress = std::function<void(const DiskProgress &)>;

    /// The set's last disk is in; `password` is that of a sealed one. `asker` and `progress` are called on
    /// the thread, progress ten times a second at most.
    CopyOpening(BackupSet set, QString password, DiskAsker &asker, Progress progress = {});

    /// Done once. What is damaged is left out; it is not open where the user stopped, or with a refusal.
    OpenedCopy run(PrivateFolder &into);

    /// From any thread: it ends within two tenths of a second.
    void stop() { m_isStopped = true; }
    bool isStopped() const { return m_isStopped; }

private:
    bool look(qint64 bytes);
    void plan(const SetRecord &set, const RecordFiles &files);
    bool readDisks(const OpenedBackup &backup, RecordFiles &files);
    void tell(qint64 bytes);

    BackupSet m_set;
    QString m_password;
    DiskAsker &m_asker;
    Progress m_tell;
    std::atomic_bool m_isStopped = false;
    DiskProgress m_progress;
    QElapsedTimer m_clock;
    qint64 m_told = -1;
    qint64 m_diskBegin = 0; ///< of the progress, where the disk that is read now begins in it
};
