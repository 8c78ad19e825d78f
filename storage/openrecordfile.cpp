// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/openrecordfile.h"

#include "storage/disk.h"
#include "storage/log.h"

OpenRecordFile::OpenRecordFile(const QString &path, qsizetype recordLength)
    : m_file(path)
    , m_recordLength(recordLength)
    , m_record(recordLength, '\0')
{
    m_isWritable = m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    if (!m_isWritable && !m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qCWarning(storageLog).noquote() << "Cannot open" << path << '-' << m_file.errorString();
}

bool OpenRecordFile::seek(int number)
{
    return number >= 1 && m_file.isOpen() && m_file.seek((qint64(number) - 1) * m_recordLength);
}

QByteArrayView OpenRecordFile::read(int number)
{
    m_hasFailed = !m_file.isOpen() && m_file.exists();
    if (!seek(number))
        return {};
    const qint64 count = m_file.read(m_record.data(), m_recordLength);
    m_hasFailed = count < 0;
    return QByteArrayView(m_record).first(count > 0 ? qsizetype(count) : 0);
}

bool OpenRecordFile::write(int number, QByteArrayView value)
{
    if (m_isWritable && value.size() <= m_recordLength && seek(number)) {
        const qint64 offset = m_file.pos();
        const qint64 size = m_file.size();
        const QByteArray former = m_file.read(value.size());
        m_isFlushed = false;
        if (Disk::writeAt(m_file, offset, value))
            return true;
        // Half a record is worse than none.
        if (!Disk::writeAt(m_file, offset, former) || !m_file.resize(size))
            qCWarning(storageLog).noquote() << "Record" << number << "of" << m_file.fileName() << "is torn";
    }
    qCWarning(storageLog).noquote() << "Cannot write record" << number << "of" << m_file.fileName() << '-'
                                    << m_file.errorString();
    return false;
}

bool OpenRecordFile::flush()
{
    m_isFlushed = m_isFlushed || Disk::flush(m_file);
    return m_isFlushed;
}
