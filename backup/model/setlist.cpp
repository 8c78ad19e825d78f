// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/setlist.h"

#include "backup/model/diskrecords.h"
#include "backup/model/picturepool.h"
#include "backup/model/setfolder.h"
#include "storage/disk.h"
#include "storage/log.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

qint64 bytesIn(const QString &folder)
{
    qint64 sum = 0;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        sum += files.fileInfo().size();
    }
    return sum;
}

QStringList foldersOn(const QString &drive)
{
    const QDir top(QDir::cleanPath(drive + u'/' + SetFolder::top));
    QStringList folders;
    for (const QString &name : top.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot)) {
        if (name != SetFolder::pictures)
            folders.append(top.filePath(name));
    }
    return folders;
}

/// Removes the folder; its records go first, so that what a crash leaves is no set.
bool removeFolder(const QString &folder)
{
    const QDir dir(folder);
    return Disk::remove(dir.filePath(SetRecord::fileName)) &&
           Disk::remove(dir.filePath(DiskRecord::fileName)) && QDir(folder).removeRecursively();
}

bool hasUnreadFolder(const QString &drive)
{
    return std::ranges::any_of(foldersOn(drive), [](const QString &folder) {
        return QFileInfo::exists(folder + u'/' + DiskRecord::fileName) && !DiskRecords::readDisk(folder);
    });
}

bool removeLonelyPictures(const QString &drive)
{
    // A record that cannot be read now may name any of them.
    if (hasUnreadFolder(drive))
        return true;
    QSet<QByteArray> wanted;
    for (const QString &folder : foldersOn(drive)) {
        if (const auto record = DiskRecords::readDisk(folder)) {
            for (const BackupPart &part : record->parts)
                wanted.insert(part.hash);
        }
    }
    const PicturePool pool(SetFolder::picturesPath(drive));
    const QStringList lonely = pool.without(wanted);
    return std::ranges::all_of(lonely, [](const QString &path) { return Disk::remove(path); });
}

} // namespace

QList<BackupSet> SetList::on(const QString &drive, const std::optional<SetRecord> &lastBackup)
{
    QList<BackupSet> sets;
    for (const QString &folder : foldersOn(drive)) {
        std::optional<DiskRecord> disk = DiskRecords::readDisk(folder);
        if (!disk)
            continue;
        disk->parts = {};
        BackupSet set{drive, folder, *disk, DiskRecords::readSet(folder), bytesIn(folder)};
        // A record of another set says nothing of this one.
        if (set.record && set.record->set != disk->set)
            set.record.reset();
        const std::optional<SetRecord> &known = set.record ? set.record : lastBackup;
        if (known && known->set == disk->set && known->ended.isValid())
            set.disks = known->disks;
        if (set.record)
            set.record->files = {};
        sets.append(set);
    }
    std::ranges::stable_sort(sets, std::ranges::greater(), &BackupSet::begun);
    return sets;
}

std::optional<BackupSet> SetList::last(const QString &drive)
{
    const QList<BackupSet> sets = on(drive);
    const auto found = std::ranges::find_if(sets, &BackupSet::isComplete);
    if (found == sets.end())
        return std::nullopt;
    return *found;
}

std::optional<QString> SetList::lastFolder(const QString &drive)
{
    QStringList folders = foldersOn(drive);
    std::ranges::sort(folders, std::ranges::greater());
    for (const QString &folder : folders) {
        if (QFileInfo::exists(folder + u'/' + SetRecord::fileName))
            return folder;
    }
    return std::nullopt;
}

QList<BackupSet> SetList::deletable(const QList<BackupSet> &sets, const std::optional<SetRecord> &lastBackup)
{
    const bool isBackupComplete = lastBackup && lastBackup->ended.isValid();
    QList<BackupSet> old;
    auto complete = std::ranges::count_if(sets, &BackupSet::isComplete);
    for (auto set = sets.crbegin(); set != sets.crend(); ++set) {
        const bool isOnlyOne = set->isComplete() && --complete == 0;
        const bool isOfLast = lastBackup && lastBackup->set == set->disk.set;
        const bool isPast = isBackupComplete && set->begun() < lastBackup->begun;
        if (!isOnlyOne && !isOfLast && (set->isComplete() || isPast))
            old.append(*set);
    }
    return old;
}

bool SetList::remove(const BackupSet &set, const std::optional<SetRecord> &lastBackup)
{
    const QList<BackupSet> there = deletable(on(set.drive), lastBackup);
    const auto isIt = [&set](const BackupSet &one) { return one.folder == set.folder; };
    if (std::ranges::none_of(there, isIt)) {
        qCWarning(storageLog).noquote() << "Not deleted:" << set.folder;
        return false;
    }
    return removeFolder(set.folder) && removeLonelyPictures(set.drive);
}
