// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/folderlock.h"

#include "storage/log.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

FolderLock::FolderLock(const DataFolder &folder)
    : m_lock(folder.path() + u"/Quillery.lock")
{
    // A lock grows old only by the death of its program, however long that one runs.
    m_lock.setStaleLockTime(0);
}

bool FolderLock::take()
{
    if (m_lock.tryLock(0))
        return true;

    qint64 process = 0;
    QString host;
    QString program;
    if (m_lock.error() == QLockFile::LockFailedError && m_lock.getLockInfo(&process, &host, &program))
        return false;

    // A power cut can leave a lock without its owner's number, which by itself would never go stale. It can
    // be removed only while no program holds it.
    if (m_lock.error() == QLockFile::LockFailedError && m_lock.removeStaleLockFile() && m_lock.tryLock(0))
        return true;

    const bool isHeld = m_lock.error() == QLockFile::LockFailedError && QFileInfo(m_lock.fileName()).isFile();
    if (!isHeld)
        qCWarning(storageLog).noquote() << "Running without a lock: cannot make" << m_lock.fileName();
    return !isHeld;
}

QString FolderLock::holder() const
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!m_lock.getLockInfo(&process, &host, &program))
        return {};
    return u"process %1 on the computer %2"_s.arg(process).arg(host);
}

bool FolderLock::takeOver()
{
    // It may have gone by itself meanwhile.
    QFile::remove(m_lock.fileName());
    return take();
}
