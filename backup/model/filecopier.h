// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/filehash.h"

#include <QByteArray>
#include <QDateTime>
#include <QFile>
#include <QString>

#include <functional>

/// Reads and copies files in small pieces, hashing them on the way, so that it can be stopped at any moment
/// and takes no more memory for a large one.
class FileCopier
{
public:
    enum class Result {
        Done,
        Stopped,
        NotRead,   ///< the source
        NotWritten ///< the target
    };

    /// The bytes that are to be read.
    struct Source {
        QString path;
        QByteArray content; ///< in place of a file, where the path is empty
        qint64 offset = 0;
        qint64 bytes = 0;    ///< fewer are read where the file has become shorter
        QDateTime changed{}; ///< which a copy takes over
    };
    using Sink = std::function<bool(QByteArrayView)>;

    /// `goOn` is told how many bytes were read, and stops all by answering false.
    explicit FileCopier(std::function<bool(qint64 bytes)> goOn);

    /// Hands the bytes to `sink`, in order; false from there is `NotWritten`.
    Result read(const Source &source, const Sink &sink);
    /// Writes them to the file at `path`, which is made anew, and adds them to `hash`, and to that of the
    /// whole file. The new file is removed where that fails.
    Result copy(const Source &source, const QString &path, FileHash &hash, FileHash *whole = nullptr);
    /// The hash of the file at `path` as the disk has it, past what the system keeps of it in memory.
    Result readBack(const QString &path, QByteArray &hash);
    /// The hash of the source.
    Result hash(const Source &source, QByteArray &hash, FileHash *whole = nullptr);

    /// Counts bytes that are read elsewhere; false: stop.
    bool goOn(qint64 bytes) const { return m_goOn(bytes); }

    /// Of the last one.
    qint64 bytesRead() const { return m_bytesRead; }
    /// Why the last target was not written, as the system says it.
    const QString &error() const { return m_error; }

private:
    Result pump(QFile &file, qint64 bytes, const Sink &sink);

    std::function<bool(qint64)> m_goOn;
    QByteArray m_buffer;
    qint64 m_bytesRead = 0;
    QString m_error;
};
