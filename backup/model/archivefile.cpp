// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/archivefile.h"

#include "backup/model/diskrecords.h"
#include "shell/core/programmodule.h"

#include <algorithm>

namespace {

constexpr qint64 pieceLength = 64 << 10;
/// A tar is made of blocks of this length.
constexpr qint64 tarBlock = 512;

const ArchiveModule *module()
{
    static const ArchiveModule *const table = [] {
        const auto entrance = reinterpret_cast<ArchiveEntrance>(
            ProgramModule::function(QLatin1StringView(archiveModuleName), archiveEntranceName));
        return entrance ? entrance() : nullptr;
    }();
    return table;
}

qint64 inBlocks(qint64 bytes)
{
    return (bytes + tarBlock - 1) / tarBlock * tarBlock;
}

} // namespace

ArchiveWriter::ArchiveWriter(ArchiveForm form, const ArchiveSink &sink)
    : m_form(form)
    , m_writing(module() ? module()->startWriting(form, sink) : nullptr)
{}

/// Behind a refusal the archive cannot be gone on with.
bool ArchiveWriter::noted(bool isDone)
{
    if (!isDone)
        m_writing.reset();
    return isDone;
}

bool ArchiveWriter::isAvailable()
{
    return module() != nullptr;
}

bool ArchiveWriter::begin(const ArchiveEntry &entry)
{
    if (!m_writing || !isFileWhole())
        return noted(false);
    m_left = entry.size;
    const bool isSized = entry.size >= 0 || (entry.size == unknownSize && m_form == ArchiveForm::Zip);
    return noted(isSized && DiskRecords::isSafe(entry.name) && m_writing->begin(entry));
}

bool ArchiveWriter::write(QByteArrayView bytes)
{
    if (!m_writing || (m_left != unknownSize && bytes.size() > m_left))
        return noted(false);
    if (m_left != unknownSize)
        m_left -= bytes.size();
    return bytes.isEmpty() || noted(m_writing->write(bytes));
}

bool ArchiveWriter::add(const ArchiveEntry &entry, QByteArrayView bytes)
{
    return begin(entry) && write(bytes);
}

bool ArchiveWriter::finish()
{
    return noted(m_writing && isFileWhole() && m_writing->finish());
}

qint64 ArchiveWriter::mostTarBytes(const QString &name, qint64 size)
{
    // Its head; where the name or the size do not go into that, another one with a record of them.
    constexpr qint64 otherWords = 256;
    return tarBlock + inBlocks(size) + tarBlock + inBlocks(2 * name.toUtf8().size() + otherWords);
}

ArchiveReader::ArchiveReader(ArchiveForm form, const ArchiveSource &source, const ArchiveLimits &limits)
    : m_reading(module() ? module()->startReading(form, source) : nullptr)
    , m_limits(limits)
{
    if (!m_reading)
        m_state = module() ? State::Damaged : State::NotAvailable;
}

ArchiveSource ArchiveReader::sourceOf(QIODevice &file)
{
    return {.read = [&file](char *bytes, qint64 size) { return file.read(bytes, size); },
            .seek = [&file](qint64 place) { return file.seek(place); },
            .size = file.size()};
}

bool ArchiveReader::stop(State state)
{
    m_state = state;
    m_reading.reset();
    return false;
}

bool ArchiveReader::next()
{
    if (m_state != State::Reading)
        return false;
    switch (m_reading->next(m_entry)) {
    case ArchiveReading::Step::End:
        return stop(State::Complete);
    case ArchiveReading::Step::Refused:
        return stop(State::Refused);
    case ArchiveReading::Step::Damaged:
        return stop(State::Damaged);
    case ArchiveReading::Step::Entry:
        break;
    }
    const bool isBelieved = ++m_files <= m_limits.files && m_entry.size >= 0 &&
                            m_entry.size <= m_limits.bytes - m_bytes && DiskRecords::isSafe(m_entry.name);
    if (!isBelieved)
        return stop(State::Refused);
    m_bytes += m_entry.size;
    m_left = m_entry.size;
    m_isFileDamaged = false;
    return true;
}

qint64 ArchiveReader::read(char *bytes, qint64 size)
{
    if (m_state != State::Reading || m_isFileDamaged)
        return -1;
    const qint64 got = m_reading->read(bytes, size);
    m_isFileDamaged = got < 0 || got > m_left || (got == 0 && m_left > 0 && size > 0);
    if (m_isFileDamaged)
        return -1;
    m_left -= got;
    return got;
}

bool ArchiveReader::readAll(const std::function<bool(QByteArrayView bytes)> &take)
{
    QByteArray piece(std::clamp<qint64>(m_left, 1, pieceLength), Qt::Uninitialized);
    while (true) {
        const qint64 got = read(piece.data(), piece.size());
        if (got <= 0)
            return got == 0;
        if (!take(QByteArrayView(piece).first(got)))
            return false;
    }
}
