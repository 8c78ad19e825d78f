// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/outsidefiles.h"

#include "backup/model/filecopier.h"
#include "backup/model/filehash.h"
#include "storage/disk.h"
#include "storage/saving.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <tuple>
#include <utility>

OutsideFiles::OutsideFiles(const DataFolder &folder, const std::atomic<bool> &isStopped)
    : m_start(folder.path() + u'/')
    , m_disk(QStorageInfo(folder.path()).rootPath())
    , m_isStopped(isStopped)
{}

bool OutsideFiles::isInside(const QString &path)
{
    if (!path.startsWith(m_start))
        return false;
    QString folder = QFileInfo(path).path();
    if (const auto known = m_known.constFind(folder); known != m_known.cend())
        return *known;
    const QString asked = folder;
    while (!QFileInfo::exists(folder))
        folder = QFileInfo(folder).path();
    return *m_known.insert(asked, QStorageInfo(folder).rootPath() == m_disk);
}

bool OutsideFiles::put(const QString &laid, const QString &path)
{
    const QString part = path + Saving::partSuffix;
    const QFileInfo source(laid);
    FileHash hash;
    FileCopier copier([this](qint64) { return !m_isStopped; });
    bool isCopied = QDir().mkpath(QFileInfo(path).path()) &&
                    copier.copy({laid, {}, 0, source.size()}, part, hash) == FileCopier::Result::Done;
    QFile file(part);
    isCopied = isCopied && file.open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    if (isCopied) {
        file.setFileTime(source.lastModified(), QFileDevice::FileModificationTime);
        isCopied = Disk::flush(file);
        file.close();
    }
    if (isCopied && !QFileInfo::exists(path) && Disk::renameOver(part, path)) {
        Disk::flushNames(QFileInfo(path).path());
        m_put.append(path);
        return true;
    }
    std::ignore = Disk::remove(part);
    return false;
}

/// None of them was there before.
void OutsideFiles::takeBack()
{
    for (const QString &path : std::as_const(m_put))
        std::ignore = Disk::remove(path);
}
