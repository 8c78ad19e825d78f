// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backuppages.h"

#include "backup/model/backuplines.h"
#include "shell/core/dates.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString timeText(const QDateTime &utc, const PageContext &context)
{
    const QDateTime time = utc.toLocalTime();
    return Dates::monthDayYear(time.date(), context.style) + u", "_s + time.toString(u"hh:mm"_s);
}

QString diskText(const BackupFile &file)
{
    return file.firstDisk == file.lastDisk ? QString::number(file.firstDisk)
                                           : u"%1 to %2"_s.arg(file.firstDisk).arg(file.lastDisk);
}

void addSeal(Page &page, const SetRecord &set)
{
    if (set.isSealed)
        page.line(u"Sealed with a password: nobody can read anything of it without that."_s);
}

void addNames(Page &page, const QString &heading, const QStringList &names)
{
    if (names.isEmpty())
        return;
    page.blankLine().line(heading, TextRole::Heading);
    for (const QString &name : names)
        page.line(name);
}

} // namespace

Page BackupPages::report(const BackupReport &report, const QList<ReportedCount> &counts,
                         const PageContext &context)
{
    const SetRecord &set = report.set;
    Page page(u"Backup of "_s + timeText(set.begun, context));
    page.line(u"On %1, %2, %3 written, all of it read back and compared."_s.arg(
        set.drive.isEmpty() ? u"a folder"_s : set.drive,
        BackupLines::counted(set.disks, u"disk"_s, u"disks"_s), BackupLines::size(report.bytes)));
    page.line(u"%1 in the set; %2 new on the drive, %3 there already."_s.arg(
        BackupLines::files(set.files.size()), BackupLines::pictures(report.newPictures),
        BackupLines::number(report.knownPictures)));
    addSeal(page, set);
    page.blankLine();
    page.columns({4, 3, 3}, {u"Function"_s, u"In the copy"_s, u"In the household"_s});
    for (const ReportedCount &count : counts)
        page.row({count.title, count.inCopy, count.here});
    addNames(page, u"Changed while they were being copied; in the set as they were last"_s, report.changing);
    addNames(page, u"Could not be read, and are not in the set"_s, report.unread);
    return page.close(context.today, context.style);
}

Page BackupPages::files(const SetRecord &set, const PageContext &context)
{
    Page page(u"Files of the Backup of "_s + timeText(set.begun, context));
    addSeal(page, set);
    page.columns({4.6, 2, 3.4, 1}, {u"File"_s, u"Bytes"_s, u"Changed"_s, u"Disk"_s},
                 {Qt::AlignLeft, Qt::AlignRight, Qt::AlignLeft, Qt::AlignRight});
    for (const BackupFile &file : set.files)
        page.row(
            {file.name, BackupLines::number(file.size), timeText(file.changed, context), diskText(file)});
    return page.close(context.today, context.style);
}
