// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealedreader.h"

#include <array>

SealedReader::SealedReader(const SealedKey &key, const QByteArray &set, int disk,
                           const SealedStream::Reader::Source &source, const ArchiveLimits &limits)
    : m_stream(key.key(), SealedStream::context(set, disk), source)
    , m_archive(ArchiveForm::Tar,
                {.read = [this](char *bytes, qint64 size) { return m_stream.read(bytes, size); }}, limits)
{}

bool SealedReader::next()
{
    if (m_archive.next())
        return true;
    if (m_archive.state() == ArchiveReader::State::Complete) {
        // What stands behind the tar's end, up to the chunk that ends the stream.
        std::array<char, 4096> rest{};
        while (m_stream.read(rest.data(), rest.size()) > 0) {}
    }
    return false;
}

SealedReader::State SealedReader::state() const
{
    switch (m_archive.state()) {
    case ArchiveReader::State::Reading:
        return State::Reading;
    case ArchiveReader::State::NotAvailable:
        return State::NotAvailable;
    case ArchiveReader::State::Complete:
    case ArchiveReader::State::Refused:
    case ArchiveReader::State::Damaged:
        break;
    }
    // Where the stream ends, or is damaged, so is what it holds.
    switch (m_stream.state()) {
    case SealedStream::Reader::State::Incomplete:
        return State::Incomplete;
    case SealedStream::Reader::State::Damaged:
        return State::Damaged;
    case SealedStream::Reader::State::Reading:
    case SealedStream::Reader::State::Complete:
        break;
    }
    if (m_archive.state() == ArchiveReader::State::Complete)
        return State::Complete;
    return m_archive.state() == ArchiveReader::State::Refused ? State::Refused : State::Damaged;
}
