// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/laidfiles.h"

#include "storage/changeset.h"
#include "storage/disk.h"
#include "storage/log.h"
#include "storage/systemfile.h"

#include <QDir>

#include <algorithm>

namespace {

/// Many small files are written before the first is flushed: the disk then has less to do in all. So many
/// stay open meanwhile, and so many bytes wait in memory that is the system's.
constexpr std::size_t mostOpen = 128;
constexpr qint64 mostWaiting = qint64(8) * 1024 * 1024;

} // namespace

LaidFiles::LaidFiles(const DataFolder &folder)
    : m_path(folder.path() + u'/' + ChangeSet::layingFolder)
{}

void LaidFiles::drop()
{
    m_file.reset();
    if (!m_isHandedOver)
        QDir(m_path).removeRecursively();
}

bool LaidFiles::begin()
{
    return QDir(m_path).removeRecursively() && QDir().mkpath(m_path);
}

bool LaidFiles::open(int number, qint64 offset)
{
    m_file = std::make_unique<QFile>(path(number));
    m_offset = offset;
    m_begun = offset;
    if (m_file->open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return true;
    qCWarning(storageLog).noquote() << "Cannot write" << m_file->fileName() << '-' << m_file->errorString();
    return false;
}

bool LaidFiles::write(QByteArrayView bytes)
{
    if (!Disk::writeAt(*m_file, m_offset, bytes))
        return false;
    m_offset += bytes.size();
    if (m_offset - m_begun >= mostWaiting) {
        SystemFile::startFlush(m_file->handle(), m_begun, m_offset - m_begun);
        m_begun = m_offset;
    }
    return true;
}

void LaidFiles::close(const QDateTime &changed)
{
    // A disk that keeps no times takes the file all the same.
    m_file->setFileTime(changed, QFileDevice::FileModificationTime);
    m_paths.insert(m_file->fileName());
    m_file.reset();
}

bool LaidFiles::flush()
{
    if (!Disk::flushAll(m_path, m_paths.values()))
        return false;
    Disk::flushNames(m_path);
    return true;
}
