// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/disk.h"

#include "storage/log.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#ifdef Q_OS_WIN
#include <io.h>
#include <qt_windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

std::filesystem::path systemPath(const QString &path)
{
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

std::function<bool()> &gate()
{
    static std::function<bool()> instance;
    return instance;
}

bool isRefused()
{
    return gate() && !gate()();
}

bool said(bool isDone, const char *step, const QFile &file)
{
    if (!isDone)
        qCWarning(storageLog).noquote() << "Cannot" << step << file.fileName() << '-' << file.errorString();
    return isDone;
}

} // namespace

void Disk::setGate(std::function<bool()> gate)
{
    ::gate() = std::move(gate);
}

bool Disk::writeAt(QFile &file, qint64 offset, QByteArrayView bytes)
{
    const bool isTorn = isRefused();
    const qsizetype length = isTorn ? bytes.size() / 2 : bytes.size();
    const bool isWritten = file.seek(offset) && file.write(bytes.data(), length) == length && file.flush();
    return said(isWritten && !isTorn, "write", file);
}

bool Disk::replaceAt(QFile &file, qint64 offset, QByteArrayView bytes, QByteArrayView former, bool andFlush)
{
    const qint64 size = file.size();
    if (writeAt(file, offset, bytes) && (!andFlush || flush(file)))
        return true;
    if (!writeAt(file, offset, former) || !file.resize(size))
        qCWarning(storageLog).noquote() << "Torn at" << offset << "bytes:" << file.fileName();
    return false;
}

bool Disk::remove(const QString &path)
{
    QFile file(path);
    return said(!isRefused() && (!file.exists() || file.remove()), "remove", file);
}

bool Disk::flush(QFile &file)
{
#ifdef Q_OS_WIN
    const bool isFlushed = file.flush() && FlushFileBuffers(HANDLE(_get_osfhandle(file.handle())));
#else
    // A file system that cannot be asked (EINVAL) is no failure of what was written.
    const bool isFlushed = file.flush() && (fdatasync(file.handle()) == 0 || errno == EINVAL);
#endif
    return said(isFlushed && !isRefused(), "flush", file);
}

void Disk::flushNames([[maybe_unused]] const QString &path)
{
#ifndef Q_OS_WIN
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
#endif
}

bool Disk::writeWhole(const QString &path, QByteArrayView content)
{
    QFile file(path);
    return said(file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered), "write",
                file) &&
           writeAt(file, 0, content) && flush(file);
}

bool Disk::renameOver(const QString &from, const QString &to)
{
    std::error_code failure;
    if (isRefused())
        failure = std::make_error_code(std::errc::no_space_on_device);
    else
        std::filesystem::rename(systemPath(from), systemPath(to), failure);
    if (failure)
        qCWarning(storageLog).noquote()
            << "Cannot rename" << from << "to" << to << '-' << QString::fromLocal8Bit(failure.message());
    return !failure;
}
