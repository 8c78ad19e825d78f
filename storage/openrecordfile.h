// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/recordfile.h"

#include <QByteArray>
#include <QFile>

/// A random-access file that stays open over many reads and writes, for walks over thousands of records. The
/// rules are those of `RecordFile`; every write goes to the system at once, and to the disk itself with
/// `flush`. It is opened, and made when missing, at once; a file that can only be read is read.
class OpenRecordFile
{
public:
    explicit OpenRecordFile(const RecordFile &file);

    /// As `RecordFile::read`; the view is good until the next call.
    QByteArrayView read(int number);

    /// Whether the last read failed: the file is there and cannot be read. A record behind its end is none.
    bool hasFailed() const { return m_hasFailed; }

    /// As `RecordFile::write`.
    [[nodiscard]] bool write(int number, QByteArrayView value);

    /// Puts on the disk what was written since the last time.
    [[nodiscard]] bool flush();

private:
    bool seek(int number);

    QFile m_file;
    qsizetype m_recordLength;
    QByteArray m_record;
    int m_readNumber = 0; ///< the record whose bytes `m_record` begins with; 0: none
    qsizetype m_readLength = 0;
    bool m_isWritable = false;
    bool m_hasFailed = false;
    bool m_isFlushed = true;
};
