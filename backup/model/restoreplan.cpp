// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restoreplan.h"

#include "backup/model/holdings.h"
#include "backup/model/restoreplaces.h"

#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <map>
#include <set>

namespace {

/// What each file takes beyond its bytes, at most.
constexpr qint64 roundingBytes = 4096;

/// The nearest folder above `path` that is there.
QString folderOf(const QString &path)
{
    QFileInfo folder(QFileInfo(path).path());
    while (!folder.exists() && !folder.isRoot() && folder.filePath() != folder.path())
        folder.setFile(folder.path());
    return folder.filePath();
}

RestoreItem onlyHere(const DataFolder &folder, const QString &name, const QString &function)
{
    const QFileInfo here(folder.path() + u'/' + name);
    RestoreItem item;
    item.file.name = name;
    item.file.size = here.size();
    item.file.changed = here.lastModified().toUTC();
    item.effect = RestoreEffect::OnlyHere;
    item.function = function;
    item.path = here.filePath();
    item.sizeHere = item.file.size;
    item.changedHere = item.file.changed;
    return item;
}

} // namespace

QList<RestoreItem> RestorePlan::made(const Aim &aim, const QList<BackupFile> &files, const QStringList &here,
                                     const QHash<QString, QString> &owners,
                                     const std::atomic<bool> &isStopped)
{
    QList<RestoreItem> items;
    items.reserve(files.size());
    std::set<QString> met;
    RestorePlaces places(aim, files, isStopped);
    for (const BackupFile &file : files) {
        if (isStopped)
            return items;
        items.append(places.placed(file));
        items.last().function = owners.value(file.name, Holdings::others);
        met.insert(items.last().path);
    }
    for (const QString &name : here) {
        const QString path = aim.folder.path() + u'/' + name;
        if (!met.contains(path) && QFileInfo(path).isFile())
            items.append(onlyHere(aim.folder, name, owners.value(name, Holdings::others)));
    }
    return items;
}

QList<int> RestorePlan::disks(const QList<RestoreItem> &items)
{
    std::set<int> disks;
    for (const RestoreItem &item : items) {
        for (int disk = item.file.firstDisk; item.isWritten() && disk <= item.file.lastDisk; ++disk)
            disks.insert(disk);
    }
    return {disks.begin(), disks.end()};
}

qint64 RestorePlan::freeBytes(const QString &path)
{
    return QStorageInfo(path).bytesAvailable();
}

std::optional<RestoreRoom> RestorePlan::missingRoom(const Aim &aim, const QList<RestoreItem> &items,
                                                    const FreeBytes &freeBytes)
{
    const QString home = folderOf(aim.folder.path() + u'/');
    std::map<QString, qint64> needed; // by a folder that is there: everything waits in that of the data first
    for (const RestoreItem &item : items) {
        if (!item.isWritten())
            continue;
        const qint64 bytes = item.file.size + roundingBytes;
        needed[home] += bytes;
        if (const QString folder = folderOf(item.path); !folder.startsWith(home))
            needed[folder] += bytes;
    }
    std::map<QString, RestoreRoom> disks;
    for (const auto &[folder, bytes] : needed) {
        const QString disk = QStorageInfo(folder).rootPath();
        RestoreRoom &room = disks[disk];
        room.disk = disk;
        room.free = freeBytes(folder);
        // What waits on the disk that it goes to only takes its name there.
        room.needed =
            folder == home
                ? std::max(room.needed, bytes)
                : std::max(room.needed, QStorageInfo(home).rootPath() == disk ? 0 : room.needed + bytes);
    }
    const auto full =
        std::ranges::find_if(disks, [](const auto &disk) { return disk.second.needed > disk.second.free; });
    return full == disks.end() ? std::nullopt : std::optional(full->second);
}
