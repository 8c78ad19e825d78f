// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealedsource.h"

#include "backup/model/diskrecords.h"
#include "backup/model/setfolder.h"

#include <utility>

namespace {

/// A record is held whole while it is read.
constexpr qint64 mostRecordBytes = DiskRecords::mostBytes;

QByteArray contentOf(SealedReader &reader)
{
    QByteArray content;
    if (reader.entry().size > mostRecordBytes)
        return {};
    content.reserve(reader.entry().size);
    const bool isRead = reader.readAll([&content](QByteArrayView bytes) {
        content.append(bytes);
        return true;
    });
    return isRead ? content : QByteArray();
}

} // namespace

SealedSource::SealedSource(std::shared_ptr<const SealedKey> key, const QByteArray &set,
                           const QDateTime &begun, std::function<bool(qint64 bytes)> goOn)
    : m_key(std::move(key))
    , m_set(set)
    , m_places(set, begun)
    , m_goOn(std::move(goOn))
{}

QByteArray SealedSource::keyRecord(const QString &folder)
{
    QFile file(folder + u'/' + SetFolder::sealed);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.read(SealedKey::recordLength);
}

std::unique_ptr<SealedReader> SealedSource::open(QFile &file, int number) const
{
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !file.seek(SealedKey::recordLength))
        return nullptr;
    return std::make_unique<SealedReader>(*m_key, m_set, number, [this, &file](char *bytes, qint64 size) {
        return goOn(file.pos()) ? file.read(bytes, size) : -1;
    });
}

/// The last files of that name count: a household may have one of the same, and comes before them.
bool SealedSource::readInside(SealedReader &reader, Inside &inside) const
{
    std::optional<DiskRecord> disk;
    while (reader.next()) {
        if (reader.entry().name == DiskRecord::fileName)
            disk = DiskRecords::diskRecord(contentOf(reader));
        else if (reader.entry().name == SetRecord::fileName)
            inside.set = DiskRecords::setRecord(contentOf(reader));
    }
    if (reader.state() != SealedReader::State::Complete || !disk)
        return false;
    inside.disk = *disk;
    return true;
}

RestoreSource::Reading SealedSource::lookInside(const QString &folder, int number)
{
    if (m_inside.contains(number))
        return Reading::Done;
    QFile file(folder + u'/' + SetFolder::sealed);
    const std::unique_ptr<SealedReader> reader = open(file, number);
    if (!reader)
        return Reading::Missing;
    Inside inside;
    if (!readInside(*reader, inside)) {
        if (!goOn(file.pos()))
            return Reading::Stopped;
        return DiskRecords::readDisk(folder) ? Reading::Damaged : Reading::Missing;
    }
    if (inside.disk.set != m_set || inside.disk.number != number)
        return Reading::Damaged;
    m_inside.emplace(number, std::move(inside));
    return Reading::Done;
}

std::optional<SetRecord> SealedSource::setRecord(const QString &root, int lastDisk)
{
    QString folder;
    if (m_places.find(root, lastDisk, folder) != Reading::Done ||
        lookInside(folder, lastDisk) != Reading::Done)
        return std::nullopt;
    const std::optional<SetRecord> &set = m_inside.at(lastDisk).set;
    return set && set->set == m_set ? set : std::nullopt;
}

RestoreSource::Reading SealedSource::read(const QString &root, int number, Visitor &visitor)
{
    QString folder;
    if (const Reading found = m_places.find(root, number, folder); found != Reading::Done)
        return found;
    if (const Reading looked = lookInside(folder, number); looked != Reading::Done)
        return looked;
    QFile file(folder + u'/' + SetFolder::sealed);
    const std::unique_ptr<SealedReader> reader = open(file, number);
    if (!reader)
        return Reading::Missing;
    for (const BackupPart &part : m_inside.at(number).disk.parts) {
        if (!reader->next() || reader->entry().size != part.bytes)
            return DiskRecords::readDisk(folder) ? Reading::Damaged : Reading::Missing;
        if (!visitor.wants(part))
            continue;
        if (const Reading shown = show(*reader, part, visitor); shown != Reading::Done)
            return shown;
    }
    return Reading::Done;
}

RestoreSource::Reading SealedSource::show(SealedReader &reader, const BackupPart &part,
                                          Visitor &visitor) const
{
    qint64 taken = 0;
    bool isWanted = true;
    const bool isRead = reader.readAll([&](QByteArrayView bytes) {
        taken += bytes.size();
        isWanted = visitor.take(bytes);
        return isWanted;
    });
    if (!isWanted)
        return Reading::Stopped;
    return visitor.end(isRead && taken == part.bytes) ? Reading::Done : Reading::Stopped;
}
