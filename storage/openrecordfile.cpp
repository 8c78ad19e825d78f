// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/openrecordfile.h"

#include "storage/disk.h"
#include "storage/log.h"

#include <algorithm>
#include <utility>

OpenRecordFile::OpenRecordFile(const RecordFile &file)
    : m_file(file.path())
    , m_recordLength(file.recordLength())
    , m_record(m_recordLength, '\0')
{
    m_isWritable = !file.isReadOnly() && m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    if (!m_isWritable && !m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        qCWarning(storageLog).noquote() << "Cannot open" << file.path() << '-' << m_file.errorString();
}

bool OpenRecordFile::seek(int number)
{
    return number >= 1 && m_file.isOpen() && m_file.seek((qint64(number) - 1) * m_recordLength);
}

QByteArrayView OpenRecordFile::read(int number)
{
    m_hasFailed = !m_file.isOpen() && m_file.exists();
    m_readNumber = 0;
    if (!seek(number))
        return {};
    const qint64 count = m_file.read(m_record.data(), m_recordLength);
    m_hasFailed = count < 0;
    m_readNumber = m_hasFailed ? 0 : number;
    m_readLength = count > 0 ? qsizetype(count) : 0;
    return QByteArrayView(m_record).first(m_readLength);
}

bool OpenRecordFile::write(int number, QByteArrayView value)
{
    if (m_isWritable && value.size() <= m_recordLength) {
        const QByteArrayView known =
            number == m_readNumber ? QByteArrayView(m_record).first(m_readLength) : read(number);
        const QByteArray former = known.first(std::min(known.size(), value.size())).toByteArray();
        const bool isRead = number == std::exchange(m_readNumber, 0);
        m_isFlushed = false;
        if (isRead && Disk::replaceAt(m_file, (qint64(number) - 1) * m_recordLength, value, former, false))
            return true;
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
