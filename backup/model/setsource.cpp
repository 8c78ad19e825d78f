// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/setsource.h"

#include "backup/model/diskrecords.h"
#include "backup/model/setfolder.h"
#include "backup/model/setlist.h"
#include "backup/model/storednames.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

SetSource::SetSource(QByteArray set, const QDateTime &begun)
    : m_set(std::move(set))
    , m_begun(begun)
{}

QString SetSource::folderAt(const QString &root) const
{
    const auto isOurs = [this](const QString &path) {
        const auto disk = DiskRecords::readDisk(path);
        return disk && disk->set == m_set;
    };
    if (QString path = SetFolder::path(root, m_begun); isOurs(path))
        return path;
    const QDir top(root + u'/' + SetFolder::top);
    for (const QString &name : top.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (isOurs(top.filePath(name)))
            return top.filePath(name);
    }
    return {};
}

std::optional<DiskRecord> SetSource::diskAt(const QString &root) const
{
    if (const QString path = folderAt(root); !path.isEmpty())
        return DiskRecords::readDisk(path);
    const QList<BackupSet> sets = SetList::on(root);
    return sets.isEmpty() ? std::nullopt : std::optional(sets.first().disk);
}

RestoreSource::Reading SetSource::find(const QString &root, int number, QString &folder) const
{
    folder = folderAt(root);
    if (folder.isEmpty()) {
        const QString expected = SetFolder::path(root, m_begun) + u'/' + DiskRecord::fileName;
        if (QFileInfo::exists(expected))
            return Reading::Damaged;
        return diskAt(root) ? Reading::WrongDisk : Reading::Missing;
    }
    const std::optional<DiskRecord> disk = DiskRecords::readDisk(folder);
    if (!disk)
        return Reading::Missing;
    return disk->number == number ? Reading::Done : Reading::WrongDisk;
}

RestoreSource::Reading SetSource::read(const QString &root, int number, Visitor &visitor)
{
    QString folder;
    if (const Reading found = find(root, number, folder); found != Reading::Done)
        return found;
    const std::optional<DiskRecord> disk = DiskRecords::readDisk(folder);
    return disk ? readParts(folder, *disk, visitor) : Reading::Missing;
}

RestoreSource::Reading SetSource::readParts(const QString &folder, const DiskRecord &disk, Visitor &visitor)
{
    const PartPaths places(folder, disk);
    for (qsizetype i = 0; i < disk.parts.size(); ++i) {
        if (!visitor.wants(disk.parts[i]))
            continue;
        const Reading reading = readPart(places.paths()[i], disk.parts[i], visitor);
        // What ends too early is damaged, or the whole disk was taken away.
        if (reading == Reading::Damaged && !DiskRecords::readDisk(folder))
            return Reading::Missing;
        if (reading == Reading::Damaged ? !visitor.end(false) : reading != Reading::Done)
            return Reading::Stopped;
    }
    return Reading::Done;
}

RestoreSource::Reading SetSource::readPart(const QString &path, const BackupPart &part, Visitor &visitor)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() != part.bytes)
        return Reading::Damaged;
    const FileCopier::Result result = m_copier.read(
        {path, {}, 0, part.bytes}, [&visitor](QByteArrayView bytes) { return visitor.take(bytes); });
    if (result == FileCopier::Result::NotWritten)
        return Reading::Stopped;
    if (result != FileCopier::Result::Done || m_copier.bytesRead() != part.bytes)
        return Reading::Damaged;
    return visitor.end(true) ? Reading::Done : Reading::Stopped;
}
