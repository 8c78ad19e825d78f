// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealeddisk.h"

#include "backup/model/diskrecords.h"
#include "backup/model/sealedreader.h"
#include "backup/model/setfolder.h"
#include "backup/model/sumsfile.h"
#include "storage/disk.h"
#include "storage/systemfile.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace {

/// What is held at most.
constexpr qint64 smallFile = qint64(2) * 1024 * 1024;
constexpr qint64 flushBytes = qint64(8) * 1024 * 1024;
/// At most so many bytes a file takes besides its own.
constexpr qint64 eachFile = 6144;
/// What a disk is given less in any case.
constexpr qint64 sealedEnd = qint64(24) * 1024;

} // namespace

SealedDisk::SealedDisk(const QString &drive, const DiskRecord &record, FileCopier &copier,
                       std::shared_ptr<const SealedKey> key)
    : SetDisk(drive, record, copier)
    , m_key(std::move(key))
{}

DiskRoom SealedDisk::sealedRoom(DiskRoom room)
{
    room.bytes = std::min(room.bytes, room.largestFile) - sealedEnd;
    room.each = eachFile;
    return room;
}

/// What another run has left there is written over: nothing can be added to a sealed file.
DiskResult SealedDisk::open()
{
    const DiskResult result = SetDisk::open();
    if (result != DiskResult::Done)
        return result;
    m_file.setFileName(pathOf(SetFolder::sealed));
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return whyNotWritten(m_file.errorString());
    m_writer = std::make_unique<SealedWriter>(*m_key, record().set, record().number,
                                              [this](QByteArrayView bytes) { return take(bytes); });
    return DiskResult::Done;
}

bool SealedDisk::take(QByteArrayView bytes)
{
    if (!Disk::writeAt(m_file, m_written, bytes)) {
        m_error = m_file.errorString();
        return false;
    }
    m_hash.add(bytes);
    m_written += bytes.size();
    if (m_written - m_begun >= flushBytes) {
        SystemFile::startFlush(m_file.handle(), m_begun, m_written - m_begun);
        m_begun = m_written;
    }
    return true;
}

DiskResult SealedDisk::whyRefused() const
{
    return whyNotWritten(m_error);
}

DiskResult SealedDisk::put(const FileCopier::Source &source, BackupPart part, FileHash *whole)
{
    setFailedFile(part.name);
    if (const DiskResult result = putHeld(); result != DiskResult::Done)
        return result;
    return source.bytes <= smallFile ? putSmall(source, part, whole) : putLarge(source, part, whole);
}

DiskResult SealedDisk::putSmall(const FileCopier::Source &source, const BackupPart &part, FileHash *whole)
{
    Held held{{}, {}, part.changed};
    held.content.reserve(source.bytes);
    const FileCopier::Result result = copier().read(source, [&held](QByteArrayView bytes) {
        held.content.append(bytes);
        return true;
    });
    if (result != FileCopier::Result::Done)
        return resultOf(result);
    BackupPart got = part;
    got.hash = FileHash::of(held.content);
    got.bytes = held.content.size();
    if (got.piece == 0)
        got.size = got.bytes;
    if (whole)
        whole->add(held.content);
    held.stored = m_names.add(part.name, part.piece);
    m_stored.append(held.stored);
    m_waiting.append(got);
    m_held = std::move(held);
    return DiskResult::Done;
}

DiskResult SealedDisk::putHeld()
{
    if (!m_held)
        return DiskResult::Done;
    const ArchiveEntry entry{m_held->stored, m_held->content.size(), m_held->changed};
    const bool isAdded = m_writer->add(entry, m_held->content);
    m_held.reset();
    return isAdded ? DiskResult::Done : whyRefused();
}

/// As many bytes as were said before, also of a file that becomes shorter while it is read.
DiskResult SealedDisk::putLarge(const FileCopier::Source &source, const BackupPart &part, FileHash *whole)
{
    if (!QFileInfo(source.path).isReadable())
        return DiskResult::NotRead;
    const QString stored = m_names.add(part.name, part.piece);
    if (!m_writer->begin({stored, source.bytes, part.changed}))
        return whyRefused();
    FileHash hash;
    const FileCopier::Sink sink = [&](QByteArrayView bytes) {
        hash.add(bytes);
        if (whole)
            whole->add(bytes);
        return m_writer->write(bytes);
    };
    const FileCopier::Result result = copier().read(source, sink);
    if (result == FileCopier::Result::Stopped)
        return DiskResult::Stopped;
    if (result == FileCopier::Result::NotWritten)
        return whyRefused();
    if (result == FileCopier::Result::NotRead)
        return DiskResult::Spoilt;
    const QByteArray zeros(qsizetype(64) * 1024, '\0');
    for (qint64 left = source.bytes - copier().bytesRead(); left > 0; left -= zeros.size()) {
        if (!sink(QByteArrayView(zeros).first(std::min<qint64>(left, zeros.size()))))
            return whyRefused();
    }
    BackupPart got = part;
    got.hash = hash.result();
    got.bytes = source.bytes;
    m_stored.append(stored);
    m_waiting.append(got);
    return DiskResult::Done;
}

bool SealedDisk::takeBack()
{
    if (!m_held)
        return false;
    m_names.drop(m_held->stored);
    m_held.reset();
    m_stored.removeLast();
    m_waiting.removeLast();
    return true;
}

/// It is read back when all is there; until then the disk as a whole is begun anew.
DiskResult SealedDisk::prove()
{
    const DiskResult result = putHeld();
    if (result == DiskResult::Done)
        record().parts += std::exchange(m_waiting, {});
    return result;
}

/// The lists stand behind the files, so that they can say what was written.
DiskResult SealedDisk::writeLast(const LastRecord &last)
{
    QByteArray sums;
    for (qsizetype i = 0; i < m_stored.size(); ++i)
        sums += SumsFile::line(record().parts[i].hash, m_stored[i]);
    const auto add = [this](QLatin1StringView name, const QByteArray &content) {
        return m_writer->add({name, content.size(), record().begun}, content);
    };
    if (!add(SetFolder::sums, sums) || !add(DiskRecord::fileName, DiskRecords::encoded(record())) ||
        (last.set && !add(SetRecord::fileName, last.bytes)) || !m_writer->finish())
        return whyRefused();
    return Disk::flush(m_file) ? DiskResult::Done : whyNotWritten(m_file.errorString());
}

DiskResult SealedDisk::readBack()
{
    QFile file(m_file.fileName());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !file.seek(SealedKey::recordLength))
        return isThere() ? DiskResult::Differs : DiskResult::Gone;
    SystemFile::forget(file.handle());
    SealedReader reader(*m_key, record().set, record().number,
                        [&file](char *bytes, qint64 size) { return file.read(bytes, size); });
    qsizetype seen = 0;
    bool isSame = true;
    for (; isSame && reader.next(); ++seen) {
        FileHash hash;
        bool isWanted = true;
        isSame = reader.readAll([&](QByteArrayView bytes) {
            hash.add(bytes);
            isWanted = copier().goOn(bytes.size());
            return isWanted;
        });
        if (!isWanted)
            return DiskResult::Stopped;
        if (seen < record().parts.size()) {
            setFailedFile(record().parts[seen].name);
            isSame = isSame && hash.result() == record().parts[seen].hash;
        }
    }
    const bool isAll =
        isSame && reader.state() == SealedReader::State::Complete && seen > record().parts.size();
    if (isAll)
        return DiskResult::Done;
    return isThere() ? DiskResult::Differs : DiskResult::Gone;
}

DiskResult SealedDisk::close(const LastRecord &last)
{
    // There is but one end to it: a second try has to begin the disk anew.
    if (!m_writer)
        return DiskResult::NotWritten;
    DiskResult result = writeLast(last);
    m_writer.reset();
    m_file.close();
    if (result == DiskResult::Done)
        result = readBack();
    if (result != DiskResult::Done)
        return result;
    setFailedFile({});
    DiskRecord disk = record();
    disk.parts = {};
    bool isWritten = write(SetFolder::sums, SumsFile::line(m_hash.result(), SetFolder::sealed)) &&
                     write(DiskRecord::fileName, DiskRecords::encoded(disk));
    Disk::flushNames(folder());
    if (isWritten && last.set) {
        SetRecord outside = *last.set;
        outside.counts = {};
        outside.files = {};
        isWritten = write(SetRecord::fileName, DiskRecords::encoded(outside));
        Disk::flushNames(folder());
    }
    return isWritten ? DiskResult::Done : whyNotWritten();
}
