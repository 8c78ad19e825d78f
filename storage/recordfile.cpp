// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordfile.h"

#include "storage/disk.h"
#include "storage/log.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype blockLength = qsizetype(256) * 1024;

/// Opens `file` for reading. A missing file is an everyday thing and stays quiet; any other trouble is
/// logged.
bool openForReading(QFile &file)
{
    if (!file.exists())
        return false;
    if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return true;
    qCWarning(storageLog).noquote() << "Cannot read" << file.fileName() << '-' << file.errorString();
    return false;
}

/// Up to `length` bytes from `offset` into `buffer`; how many there were, 0 when reading fails.
qsizetype readAt(QFile &file, qint64 offset, char *buffer, qsizetype length)
{
    const qint64 count = file.seek(offset) ? file.read(buffer, length) : -1;
    if (count < 0)
        qCWarning(storageLog).noquote() << "Cannot read" << file.fileName() << '-' << file.errorString();
    return std::max<qint64>(count, 0);
}

} // namespace

RecordFile::RecordFile(const DataFolder &folder, const QString &name, qsizetype recordLength)
    : m_path(folder.filePath(name))
    , m_recordLength(recordLength)
    , m_isReadOnly(folder.isReadOnly())
{
    Q_ASSERT(recordLength > 0);
}

QByteArray RecordFile::read(int number) const
{
    return read(number, number);
}

QByteArray RecordFile::read(int first, int last) const
{
    QFile file(m_path);
    if (first < 1 || last < first || !openForReading(file))
        return {};
    const qint64 offset = qint64(first - 1) * m_recordLength;
    const qint64 most = (qint64(last) - first + 1) * m_recordLength;
    const qsizetype length = std::clamp<qint64>(file.size() - offset, 0, most);
    QByteArray bytes(length, Qt::Uninitialized);
    if (length > 0)
        bytes.truncate(readAt(file, offset, bytes.data(), length));
    return bytes;
}

bool RecordFile::write(int number, QByteArrayView value)
{
    if (m_isReadOnly || number < 1 || value.size() > m_recordLength) {
        qCWarning(storageLog).noquote()
            << "Refused to write" << value.size() << "bytes to record" << number << "of" << m_path;
        return false;
    }
    // Unbuffered, so that the bytes leave in one piece and a full disk shows here and not while closing.
    QFile file(m_path);
    const bool isOpen = file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    const qint64 offset = qint64(number - 1) * m_recordLength;
    const QByteArray former = isOpen && file.seek(offset) ? file.read(value.size()) : QByteArray();
    if (isOpen && Disk::replaceAt(file, offset, value, former, true))
        return true;
    qCWarning(storageLog).noquote() << "Cannot write record" << number << "of" << m_path << '-'
                                    << file.errorString();
    return false;
}

void RecordFile::create()
{
    if (m_isReadOnly || QFileInfo(m_path).isFile())
        return;
    QFile file(m_path);
    if (!file.open(QIODevice::ReadWrite))
        qCWarning(storageLog).noquote() << "Cannot create" << m_path << '-' << file.errorString();
}

int RecordFile::recordCount() const
{
    const QFileInfo file(m_path);
    if (!file.isFile())
        return 0;
    const qint64 count = file.size() / m_recordLength + (file.size() % m_recordLength != 0 ? 1 : 0);
    return int(std::min<qint64>(count, std::numeric_limits<int>::max()));
}

void RecordFile::forEach(int first, const std::function<bool(int number, QByteArrayView bytes)> &visit) const
{
    QFile file(m_path);
    if (!openForReading(file))
        return;
    const int last = recordCount();
    QByteArray block(std::max<qsizetype>(blockLength / m_recordLength, 1) * m_recordLength,
                     Qt::Uninitialized);
    for (int number = std::max(first, 1); number <= last;) {
        QByteArrayView rest(block.constData(),
                            readAt(file, qint64(number - 1) * m_recordLength, block.data(), block.size()));
        if (rest.isEmpty())
            return;
        for (; !rest.isEmpty() && number <= last; ++number) {
            const qsizetype length = std::min(m_recordLength, rest.size());
            if (!visit(number, rest.first(length)) || number == std::numeric_limits<int>::max())
                return;
            rest = rest.sliced(length);
        }
    }
}
