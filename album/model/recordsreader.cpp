// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/recordsreader.h"

#include "album/model/albumfile.h"
#include "album/model/photofile.h"

RecordsReader::RecordsReader(const QString &path, qsizetype recordLength)
    : m_file(std::make_unique<QFile>(path))
    , m_recordLength(recordLength)
{
    if (m_file->exists())
        m_file->open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

RecordsReader RecordsReader::ofPhotos(const DataFolder &folder)
{
    return {folder.filePath(PhotoFile::name), PhotoFile::recordLength};
}

RecordsReader RecordsReader::ofPlaces(const DataFolder &folder)
{
    return {folder.filePath(AlbumFile::name), AlbumFile::recordLength};
}

QByteArray RecordsReader::read(int number)
{
    const bool isThere = m_file->isOpen() && m_file->seek((number - 1) * qint64(m_recordLength));
    return isThere ? m_file->read(m_recordLength) : QByteArray();
}
