// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backupcourse.h"
#include "backup/model/setdisk.h"

#include <functional>

/// One disk of a set as it is filled: what is still to come goes on it, while there is room.
class DiskFilling
{
public:
    /// `folder` is the drive's. `lessRoom` is how much less there is than it says. `begun` is told each time
    /// that something is put on the disk.
    DiskFilling(BackupCourse &course, SetDisk &disk, FileCopier &copier, const QString &folder,
                qint64 lessRoom, std::function<void()> begun);

    /// Until nothing is left that has room.
    DiskResult run();
    /// Takes a proven part off the disk again, to make room for its records; false where there is none.
    [[nodiscard]] bool giveBack();

    /// Whether nothing on the disk is proven.
    bool isEmpty() const { return m_proven.isEmpty(); }
    /// That were put on the disk.
    qint64 bytes() const { return m_bytes; }
    /// Items that could not be read to their end, for which the disk has to be begun anew.
    const QList<int> &spoilt() const { return m_spoilt; }

private:
    DiskResult putAll(const PlannedDisk &plan, const QList<int> &places);
    DiskResult putPart(int item, const PlannedPart &planned);
    DiskResult copyPart(int item, const PlannedPart &planned, const BackupPart &part);
    DiskResult readPart(int item, BackupPart part, FileHash *whole, bool &isSame);
    void notePut(int item, int piece);
    DiskResult prove();
    PlannedDisk planOfDisk(QList<int> &places);
    DiskRoom roomKind() const;
    DiskRoom roomNow() const;

    BackupCourse &m_course;
    SetDisk &m_disk;
    FileCopier &m_copier;
    QString m_folder;
    qint64 m_lessRoom;
    std::function<void()> m_begun;
    DiskRoom m_emptyRoom; ///< of a disk like this one, when it is empty
    QList<int> m_waiting; ///< the items of what is not proven yet
    QList<int> m_proven;  ///< the items of the disk's parts
    QList<int> m_spoilt;
    qint64 m_lastBytes = 0; ///< that were put last
    qint64 m_bytes = 0;
    qint64 m_roomUsed = 0; ///< by these, of a limit
};
