// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backupoutlook.h"
#include "backup/model/diskquestions.h"
#include "backup/model/setlist.h"
#include "shell/core/programstate.h"

#include <QString>

/// The quiet words of the window.
namespace BackupWindowLines {

using namespace Qt::Literals::StringLiterals;

inline QString noPlace()
{
    return u"Plug in a drive, or choose a folder at the left"_s;
}

inline QString looking(const QString &drive)
{
    return u"Looking at what %1 has already..."_s.arg(drive);
}

inline QString writeProtected(const QString &drive)
{
    return u"%1 is write-protected"_s.arg(drive);
}

inline QString nothingChosen()
{
    return u"Nothing is ticked"_s;
}

inline QString noSetThere()
{
    return u"There is no backup of Quillery's there"_s;
}

inline QString testDue()
{
    return u"Not read back for 90 days"_s;
}

inline QString notComplete(const BackupSet &set)
{
    return set.disks > 0 ? u"Put in disk %1, the last one of this backup"_s.arg(set.disks)
                         : u"It is not complete: disks are missing, or it was stopped"_s;
}

/// What copying would do: how much goes where, and on how many disks.
QString plan(const BackupOutlook &outlook, const QString &drive);

/// "Disk 2 is no longer there.", and below it what can be done.
QString question(const DiskQuestion &question, DateStyle style);
QString advice(const DiskQuestion &question);

} // namespace BackupWindowLines
