// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/filecopier.h"

#include "storage/disk.h"
#include "storage/systemfile.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace {

constexpr qsizetype pieceBytes = qsizetype(256) * 1024;
/// What waits in memory for a slow disk stays small, so that a stop need not wait for it.
constexpr qint64 flushBytes = qint64(8) * 1024 * 1024;

} // namespace

FileCopier::FileCopier(std::function<bool(qint64 bytes)> goOn)
    : m_goOn(std::move(goOn))
    , m_buffer(pieceBytes, Qt::Uninitialized)
{}

FileCopier::Result FileCopier::pump(QFile &file, qint64 bytes, const Sink &sink)
{
    while (m_bytesRead < bytes) {
        const qint64 count =
            file.read(m_buffer.data(), std::min<qint64>(m_buffer.size(), bytes - m_bytesRead));
        if (count < 0)
            return Result::NotRead;
        if (count == 0)
            break;
        if (!sink(QByteArrayView(m_buffer).first(count)))
            return Result::NotWritten;
        m_bytesRead += count;
        if (!m_goOn(count))
            return Result::Stopped;
    }
    return Result::Done;
}

FileCopier::Result FileCopier::read(const Source &source, const Sink &sink)
{
    m_bytesRead = 0;
    if (source.path.isEmpty()) {
        const QByteArrayView content =
            QByteArrayView(source.content).sliced(source.offset).first(source.bytes);
        if (!sink(content))
            return Result::NotWritten;
        m_bytesRead = content.size();
        return m_goOn(content.size()) ? Result::Done : Result::Stopped;
    }
    QFile file(source.path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !file.seek(source.offset))
        return Result::NotRead;
    return pump(file, source.bytes, sink);
}

FileCopier::Result FileCopier::copy(const Source &source, const QString &path, FileHash &hash,
                                    FileHash *whole)
{
    QFile target(path);
    m_error.clear();
    if (!target.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        m_error = target.errorString();
        return Result::NotWritten;
    }
    qint64 written = 0;
    qint64 begun = 0; // of what the disk was told to take
    const Result result = read(source, [&](QByteArrayView bytes) {
        if (!Disk::writeAt(target, written, bytes)) {
            m_error = target.errorString();
            return false;
        }
        hash.add(bytes);
        if (whole)
            whole->add(bytes);
        written += bytes.size();
        if (written - begun >= flushBytes) {
            SystemFile::startFlush(target.handle(), begun, written - begun);
            begun = written;
        }
        return true;
    });
    if (source.changed.isValid())
        target.setFileTime(source.changed, QFileDevice::FileModificationTime);
    if (result != Result::Done) {
        target.close();
        std::ignore = Disk::remove(path);
    }
    return result;
}

FileCopier::Result FileCopier::readBack(const QString &path, QByteArray &hash)
{
    m_bytesRead = 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return Result::NotRead;
    SystemFile::forget(file.handle());
    FileHash sum;
    const Result result = pump(file, std::numeric_limits<qint64>::max(), [&sum](QByteArrayView bytes) {
        sum.add(bytes);
        return true;
    });
    hash = sum.result();
    return result;
}

FileCopier::Result FileCopier::hash(const Source &source, QByteArray &hash, FileHash *whole)
{
    FileHash sum;
    const Result result = read(source, [&sum, whole](QByteArrayView bytes) {
        sum.add(bytes);
        if (whole)
            whole->add(bytes);
        return true;
    });
    hash = sum.result();
    return result;
}
