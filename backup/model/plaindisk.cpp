// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/plaindisk.h"

#include "backup/model/diskplan.h"
#include "backup/model/diskrecords.h"
#include "backup/model/setfolder.h"
#include "backup/model/sumsfile.h"
#include "storage/disk.h"
#include "storage/saving.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStorageInfo>

#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isPooled(const BackupPart &part)
{
    return part.piece == 0 && SetFolder::isPicture(part.name);
}

} // namespace

PlainDisk::PlainDisk(const QString &drive, const DiskRecord &record, FileCopier &copier)
    : SetDisk(drive, record, copier)
    , m_pool({})
{}

DiskResult PlainDisk::open()
{
    const DiskResult result = SetDisk::open();
    const QString pictures = SetFolder::picturesPath(drive());
    if (result != DiskResult::Done || !QDir().mkpath(pictures))
        return result != DiskResult::Done ? result : whyNotWritten();
    QDir pool(pictures);
    for (const QString &part : pool.entryList({u'*' + Saving::partSuffix}, QDir::Files))
        pool.remove(part);
    m_pool = PicturePool(pictures);
    return DiskResult::Done;
}

bool PlainDisk::hasPicture(const QByteArray &hash, qint64 size) const
{
    return !hash.isEmpty() && !m_pool.find(hash, size).isEmpty();
}

void PlainDisk::putKnown(const BackupPart &part)
{
    wait({part, {}, {}, {}});
}

void PlainDisk::wait(const Waiting &waiting)
{
    m_waiting.append(waiting);
    m_waitingBytes += waiting.path.isEmpty() ? 0 : waiting.part.bytes;
}

bool PlainDisk::makeFolderOf(const QString &path)
{
    const QString place = QFileInfo(path).path();
    if (place == folder() || m_folders.contains(place))
        return true;
    if (!isThere() || !QDir().mkpath(place))
        return false;
    m_folders.insert(place);
    return true;
}

DiskResult PlainDisk::put(const FileCopier::Source &source, BackupPart part, FileHash *whole)
{
    setFailedFile(part.name);
    if (isPooled(part))
        return putPicture(source, {std::move(part), {}, {}, {}});
    const QString stored = m_names.add(part.name, part.piece);
    Waiting waiting{std::move(part), pathOf(stored), {}, stored};
    DiskResult result = DiskResult::Done;
    if (const std::optional<DiskResult> kept = keep(source, waiting, whole)) {
        result = *kept;
    } else if (!makeFolderOf(waiting.path)) {
        result = whyNotWritten();
    } else {
        FileHash hash;
        result = resultOf(copier().copy(source, waiting.path, hash, whole));
        waiting.part.hash = hash.result();
        waiting.part.bytes = copier().bytesRead();
        if (waiting.part.piece == 0)
            waiting.part.size = waiting.part.bytes;
        if (result == DiskResult::Done)
            wait(waiting);
    }
    if (result != DiskResult::Done)
        m_names.drop(stored);
    return result;
}

/// What a run that ended before has written stays where it is the same; nothing where it has to be written.
std::optional<DiskResult> PlainDisk::keep(const FileCopier::Source &source, const Waiting &waiting,
                                          FileHash *whole)
{
    const QFileInfo there(waiting.path);
    if (!isFound() || !there.isFile() || there.size() != source.bytes)
        return std::nullopt;
    FileHash before = whole ? *whole : FileHash();
    QByteArray wanted;
    QByteArray found;
    const FileCopier::Result read = copier().hash(source, wanted, whole);
    if (read != FileCopier::Result::Done)
        return resultOf(read);
    const FileCopier::Result back = copier().readBack(waiting.path, found);
    if (back == FileCopier::Result::Stopped)
        return DiskResult::Stopped;
    if (found != wanted || back != FileCopier::Result::Done) {
        if (whole)
            *whole = before;
        return std::nullopt;
    }
    Waiting kept = waiting;
    kept.part.hash = wanted;
    wait(kept);
    return DiskResult::Done;
}

DiskResult PlainDisk::putPicture(const FileCopier::Source &source, Waiting waiting)
{
    BackupPart &part = waiting.part;
    if (m_pool.hasSize(source.bytes)) {
        const DiskResult result = resultOf(copier().hash(source, part.hash));
        part.bytes = part.size = copier().bytesRead();
        if (result != DiskResult::Done)
            return result;
    }
    if (!hasPicture(part.hash, part.size)) {
        waiting.path = m_pool.folder() + u"/%1"_s.arg(++m_pictures) + Saving::partSuffix;
        FileHash hash;
        if (!isThere())
            return DiskResult::Gone;
        const DiskResult result = resultOf(copier().copy(source, waiting.path, hash));
        if (result != DiskResult::Done)
            return result;
        part.hash = hash.result();
        part.bytes = part.size = copier().bytesRead();
        waiting.finalPath = m_pool.pathFor(part.name, part.hash);
    }
    wait(waiting);
    return DiskResult::Done;
}

bool PlainDisk::wasThere() const
{
    return !m_waiting.isEmpty() && m_waiting.constLast().path.isEmpty();
}

bool PlainDisk::takeBack()
{
    if (m_waiting.isEmpty())
        return false;
    const Waiting last = m_waiting.takeLast();
    if (last.path.isEmpty())
        return true;
    m_waitingBytes -= last.part.bytes;
    std::ignore = Disk::remove(last.path);
    m_names.drop(last.stored);
    return true;
}

DiskResult PlainDisk::prove()
{
    QStringList paths;
    for (const Waiting &waiting : std::as_const(m_waiting)) {
        if (!waiting.path.isEmpty())
            paths.append(waiting.path);
    }
    if (!paths.isEmpty() && !Disk::flushAll(folder(), paths))
        return whyNotWritten();
    for (const Waiting &waiting : std::as_const(m_waiting)) {
        QByteArray hash = waiting.part.hash;
        setFailedFile(waiting.part.name);
        const FileCopier::Result result =
            waiting.path.isEmpty() ? FileCopier::Result::Done : copier().readBack(waiting.path, hash);
        if (result == FileCopier::Result::Stopped)
            return DiskResult::Stopped;
        if (result != FileCopier::Result::Done || hash != waiting.part.hash)
            return isThere() ? DiskResult::Differs : DiskResult::Gone;
    }
    for (const Waiting &waiting : std::as_const(m_waiting)) {
        if (!waiting.finalPath.isEmpty() && !takeName(waiting))
            return whyNotWritten();
        record().parts.append(waiting.part);
        m_stored.append(waiting.stored);
    }
    m_waiting.clear();
    m_waitingBytes = 0;
    return DiskResult::Done;
}

bool PlainDisk::takeName(const Waiting &picture)
{
    // Another of the same content may have come in the meantime.
    if (hasPicture(picture.part.hash, picture.part.size))
        return Disk::remove(picture.path);
    if (!Disk::renameOver(picture.path, picture.finalPath))
        return false;
    m_pool.add(picture.finalPath, picture.part.hash, picture.part.size);
    const QString aside = m_pool.damaged(picture.part.hash);
    return aside.isEmpty() || Disk::remove(aside);
}

qsizetype PlainDisk::giveBack()
{
    for (qsizetype i = m_stored.size() - 1; i >= 0; --i) {
        if (m_stored[i].isEmpty())
            continue;
        std::ignore = Disk::remove(pathOf(m_stored[i]));
        m_names.drop(m_stored[i]);
        m_stored.removeAt(i);
        record().parts.removeAt(i);
        return i;
    }
    return -1;
}

QByteArray PlainDisk::sums() const
{
    static const QString pictures = u"../"_s + SetFolder::pictures + u'/';
    QByteArray lines;
    lines.reserve(160 * m_stored.size());
    for (qsizetype i = 0; i < m_stored.size(); ++i) {
        const BackupPart &part = parts()[i];
        if (!m_stored[i].isEmpty()) {
            lines += SumsFile::line(part.hash, m_stored[i]);
            continue;
        }
        const QString path = m_pool.find(part.hash, part.size);
        lines += SumsFile::line(part.hash, pictures + path.sliced(path.lastIndexOf(u'/') + 1));
    }
    return lines;
}

/// What a run that ended before has left and this one did not want.
void PlainDisk::clearLeftovers() const
{
    const QSet<QString> wanted(m_stored.begin(), m_stored.end());
    QDirIterator files(folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString name = path.sliced(folder().size() + 1);
        if (name != DiskRecord::fileName && !wanted.contains(name))
            std::ignore = Disk::remove(path);
    }
}

DiskResult PlainDisk::close(const LastRecord &last)
{
    setFailedFile({});
    if (!isThere())
        return DiskResult::Gone;
    if (isFound())
        clearLeftovers();
    bool isWritten =
        write(SetFolder::sums, sums()) && write(DiskRecord::fileName, DiskRecords::encoded(record()));
    Disk::flushNames(m_pool.folder());
    Disk::flushNames(folder());
    // Last of all: only with it the set is complete.
    if (isWritten && last.set)
        isWritten = write(SetRecord::fileName, last.bytes);
    if (!isWritten)
        return whyNotWritten();
    Disk::flushNames(folder());
    return DiskResult::Done;
}
