// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/archivefile.h"
#include "backup/model/sealedkey.h"
#include "backup/model/sealedstream.h"

/// What a sealed set puts on a disk, as one file: the record of its key, then a sealed stream with a tar in
/// it. The bytes of the file go through `sink` in their order.
class SealedWriter
{
public:
    static constexpr QLatin1StringView fileName{"Quillery.sealed"};

    SealedWriter(const SealedKey &key, const QByteArray &set, int disk, const ArchiveSink &sink);
    Q_DISABLE_COPY_MOVE(SealedWriter)

    /// As `ArchiveWriter`: everything answers false from the first refusal on.
    [[nodiscard]] bool begin(const ArchiveEntry &entry) { return m_archive.begin(entry); }
    [[nodiscard]] bool write(QByteArrayView bytes) { return m_archive.write(bytes); }
    [[nodiscard]] bool add(const ArchiveEntry &entry, QByteArrayView bytes)
    {
        return m_archive.add(entry, bytes);
    }
    /// Ends the tar, and the stream with its last chunk: a file without it is not complete.
    [[nodiscard]] bool finish();

    /// At most so many bytes the file has, where its tar takes `tarBytes` (`ArchiveWriter::mostTarBytes` of
    /// each file in it).
    static qint64 mostBytes(qint64 tarBytes);

private:
    bool m_isBegun;
    SealedStream::Writer m_stream;
    ArchiveWriter m_archive;
};
