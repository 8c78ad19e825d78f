// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/archivefile.h"
#include "backup/model/sealedkey.h"
#include "backup/model/sealedstream.h"

/// Reads what `SealedWriter` has written, file by file, each piece proven before it is handed out. What was
/// read is all there only when the state is complete at the end.
class SealedReader
{
public:
    enum class State {
        Reading,
        Complete,    ///< all files were seen, and the last chunk says that there is no more
        Incomplete,  ///< it ends before that, whatever it holds
        Damaged,     ///< not every byte is as it was sealed; or it is another set's, or another disk's
        Refused,     ///< what was sealed is no archive of ours
        NotAvailable ///< the program came without what reads archives
    };

    /// `source` hands out the bytes of the file behind the record of the key, as in `ArchiveSource::read`.
    SealedReader(const SealedKey &key, const QByteArray &set, int disk,
                 const SealedStream::Reader::Source &source, const ArchiveLimits &limits = {});
    Q_DISABLE_COPY_MOVE(SealedReader)

    State state() const;
    /// As `ArchiveReader`; the names are composed (NFC), the files come in the order in which they were
    /// written.
    bool next();
    const ArchiveEntry &entry() const { return m_archive.entry(); }
    qint64 read(char *bytes, qint64 size) { return m_archive.read(bytes, size); }
    bool readAll(const std::function<bool(QByteArrayView bytes)> &take) { return m_archive.readAll(take); }

private:
    SealedStream::Reader m_stream;
    ArchiveReader m_archive;
};
