// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/systemfile.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

bool SystemFile::flush(int handle)
{
    // A file system that cannot be asked (EINVAL) is no failure of what was written.
    return fdatasync(handle) == 0 || errno == EINVAL;
}

void SystemFile::startFlush(int handle, qint64 offset, qint64 bytes)
{
#ifdef Q_OS_LINUX
    if (offset > 0)
        sync_file_range(handle, 0, offset, SYNC_FILE_RANGE_WAIT_BEFORE);
    sync_file_range(handle, offset, bytes, SYNC_FILE_RANGE_WRITE);
#else
    Q_UNUSED(handle)
    Q_UNUSED(offset)
    Q_UNUSED(bytes)
#endif
}

std::optional<bool> SystemFile::flushAll(const QString &path)
{
#ifdef Q_OS_LINUX
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool isFlushed = syncfs(handle) == 0;
    close(handle);
    return isFlushed;
#else
    Q_UNUSED(path)
    return std::nullopt;
#endif
}

void SystemFile::forget(int handle)
{
    posix_fadvise(handle, 0, 0, POSIX_FADV_DONTNEED);
}

void SystemFile::flushNames(const QString &path)
{
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
}

std::error_code SystemFile::renameOver(const QString &from, const QString &to)
{
    std::error_code failure;
    std::filesystem::rename(QFile::encodeName(from).toStdString(), QFile::encodeName(to).toStdString(),
                            failure);
    return failure;
}

std::span<const int> SystemFile::failuresWhenFull()
{
    static constexpr int failures[] = {ENOSPC, EDQUOT};
    return failures;
}

std::span<const int> SystemFile::failuresWhenProtected()
{
    static constexpr int failures[] = {EROFS, EACCES, EPERM};
    return failures;
}

QByteArray SystemFile::encodedPath(const QString &path)
{
    return QFile::encodeName(path);
}
