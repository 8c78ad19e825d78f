// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealedwriter.h"

SealedWriter::SealedWriter(const SealedKey &key, const QByteArray &set, int disk, const ArchiveSink &sink)
    : m_isBegun(sink(key.record()))
    , m_stream(key.key(), SealedStream::context(set, disk),
               [this, sink](QByteArrayView bytes) { return m_isBegun && sink(bytes); })
    , m_archive(ArchiveForm::Tar, [this](QByteArrayView bytes) { return m_stream.write(bytes); })
{}

bool SealedWriter::finish()
{
    return m_archive.finish() && m_stream.finish();
}

qint64 SealedWriter::mostBytes(qint64 tarBytes)
{
    return SealedKey::recordLength + SealedStream::sealedLength(tarBytes + ArchiveWriter::mostTarEnd);
}
