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

QByteArray SystemFile::encodedPath(const QString &path)
{
    return QFile::encodeName(path);
}
