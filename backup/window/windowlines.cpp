// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/windowlines.h"

#include "backup/model/backuplines.h"
#include "shell/core/dates.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

QString time(const QDateTime &utc, DateStyle style)
{
    const QDateTime here = utc.toLocalTime();
    return Dates::monthDayYear(here.date(), style) + u", "_s + here.toString(u"hh:mm"_s);
}

QString of(const DiskQuestion &question)
{
    return question.disks > 1 ? u"disk %1 of %2"_s.arg(question.disk).arg(question.disks)
                              : u"disk %1"_s.arg(question.disk);
}

} // namespace

QString BackupWindowLines::plan(const BackupOutlook &outlook, const QString &drive)
{
    if (!outlook.plan.isPossible)
        return u"%1 has no room for any of it. Choose another drive, or delete an old set on it."_s.arg(
            drive);
    qint64 files = -outlook.newPictures - outlook.knownPictures;
    for (const PlannedDisk &disk : outlook.plan.disks)
        files += disk.parts.size();
    QStringList parts{BackupLines::files(files)};
    const bool isSure = outlook.perhapsPictures == 0;
    if (outlook.newPictures > 0)
        parts.append((isSure ? QString() : u"up to "_s) +
                     BackupLines::counted(outlook.newPictures, u"new picture"_s, u"new pictures"_s));
    parts.append((isSure ? QString() : u"at most "_s) + BackupLines::size(outlook.plan.bytes()));
    QString words = u"To %1: %2."_s.arg(drive, parts.join(u", "_s));
    if (outlook.knownPictures > 0)
        words += u" %1 there already."_s.arg(
            BackupLines::counted(outlook.knownPictures, u"picture is"_s, u"pictures are"_s));
    const qsizetype disks = outlook.plan.disks.size();
    if (disks > 1)
        words += u" It takes %1 disks, which are asked for one after the other."_s.arg(disks);
    return words;
}

QString BackupWindowLines::question(const DiskQuestion &question, DateStyle style)
{
    using Kind = DiskQuestion::Kind;
    switch (question.kind) {
    case Kind::NextDisk:
        return u"Put in %1."_s.arg(of(question));
    case Kind::DiskFull:
        return u"This disk is full."_s;
    case Kind::DiskGone:
        return u"Disk %1 is no longer there."_s.arg(question.disk);
    case Kind::WrongDisk:
        return question.foundNumber > 0 && question.foundSet.isValid()
                   ? u"This is disk %1 of the backup of %2."_s.arg(question.foundNumber)
                         .arg(time(question.foundSet, style))
                   : u"This is no disk of the backup."_s;
    case Kind::WriteProtected:
        return u"Nothing can be written to this disk."_s;
    case Kind::NoRoom:
        return u"This disk has no room."_s;
    case Kind::NotWritten:
        return u"This disk does not take what is written to it."_s;
    case Kind::NotRead:
        return question.file.isEmpty() ? u"This disk cannot be read."_s
                                       : u"%1 cannot be read back from this disk."_s.arg(question.file);
    }
    Q_UNREACHABLE();
}

QString BackupWindowLines::advice(const DiskQuestion &question)
{
    using Kind = DiskQuestion::Kind;
    const QString place = QDir::toNativeSeparators(question.folder);
    switch (question.kind) {
    case Kind::NextDisk:
        return u"Take out the one before, put the next one in and go on; or choose another drive. The last "
               u"one "
               u"was at %1."_s.arg(place);
    case Kind::DiskFull:
        return u"Put in %1 and go on, or choose another drive."_s.arg(of(question));
    case Kind::DiskGone:
        return u"Put it in again and go on. On another disk, this one is begun anew."_s;
    case Kind::WrongDisk:
        return u"Nothing was written to it. Put in %1 and go on."_s.arg(of(question));
    case Kind::WriteProtected:
        return u"Move the little switch on it, or choose another drive."_s;
    case Kind::NoRoom:
        return u"Put in an emptier one and go on, or choose another drive."_s;
    case Kind::NotWritten:
    case Kind::NotRead:
        return u"Try once more, or go on with another disk: this one may be worn out."_s;
    }
    Q_UNREACHABLE();
}
