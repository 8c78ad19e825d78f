// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/folderlock.h"

#include "storage/log.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <tuple>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

FolderLock::FolderLock(const DataFolder &folder)
    : m_path(folder.path())
    , m_lock(folder.path() + u"/Quillery.lock")
{
    // A lock grows old only by the death of its program, however long that one runs.
    m_lock.setStaleLockTime(0);
}

FolderLock::~FolderLock()
{
    release();
}

bool FolderLock::take()
{
    if (lockFolder() && lockFile())
        return true;
    release();
    return false;
}

void FolderLock::release()
{
    m_lock.unlock();
#ifdef Q_OS_UNIX
    if (m_handle >= 0)
        close(m_handle);
#endif
    m_handle = -1;
}

/// False only when another program is known to have locked it.
bool FolderLock::lockFolder()
{
#ifdef Q_OS_UNIX
    if (m_handle >= 0)
        return true;
    m_handle = open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (m_handle < 0 || flock(m_handle, LOCK_EX | LOCK_NB) == 0)
        return true;
    const bool isOthers = errno == EWOULDBLOCK;
    close(m_handle);
    m_handle = -1;
    return !isOthers;
#else
    return true;
#endif
}

/// False when another program holds it.
bool FolderLock::lockFile()
{
    if (m_lock.tryLock(0))
        return true;

    qint64 process = 0;
    QString host;
    QString program;
    const bool isSigned =
        m_lock.error() == QLockFile::LockFailedError && m_lock.getLockInfo(&process, &host, &program);
    // A dead program's number may be given again, and to this one of all.
    const bool hasOwnNumber =
        process == QCoreApplication::applicationPid() &&
        host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0; // Windows tells it in two ways
    if (isSigned && !hasOwnNumber)
        return false;

    // A power cut can leave a lock without its owner's number, which by itself would never go stale, nor
    // would one with our own. It can be removed only while no program holds it.
    if (m_lock.error() == QLockFile::LockFailedError && m_lock.removeStaleLockFile() && m_lock.tryLock(0))
        return true;

    const bool isHeld = m_lock.error() == QLockFile::LockFailedError && QFileInfo(m_lock.fileName()).isFile();
    if (!isHeld)
        qCWarning(storageLog).noquote() << "Running without a lock file: cannot make" << m_lock.fileName();
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
    std::ignore = lockFolder(); // where somebody has that, the user's word counts
    return lockFile();
}
