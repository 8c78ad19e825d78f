// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backupscope.h"

#include "backup/model/setfolder.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

int BackupScope::missing(const SetRecord &backup, const DataFolder &household)
{
    if (backup.files.isEmpty()) // it does not tell
        return 0;
    QSet<QString> names; // a file that was restored bears the name that it has here, however it is spelled
    for (const BackupFile &file : backup.files)
        names.insert(file.name.toLower());
    // The settings go along with everything: without them, it was a part of the household from the start.
    // Else a file that is newer has come since.
    const bool isPart = std::ranges::none_of(
        backup.files, [](const BackupFile &file) { return Holdings::isSetting(file.name); });
    const QStringList here = Holdings::filesAtTop(household);
    return int(std::ranges::count_if(here, [&](const QString &name) {
        if (names.contains(name.toLower()))
            return false;
        return isPart || QFileInfo(household.path() + u'/' + name).lastModified() <= backup.begun;
    }));
}

bool BackupScope::isLess(const QList<BackupItem> &items, const SetRecord &before, const DataFolder &household)
{
    QSet<QString> names;
    for (const BackupItem &item : items)
        names.insert(item.name);
    return std::ranges::any_of(before.files, [&](const BackupFile &file) {
        if (names.contains(file.name) || file.name.startsWith(SetFolder::elsewhere))
            return false;
        return file.name == Holdings::deskName || QFileInfo::exists(household.path() + u'/' + file.name);
    });
}
