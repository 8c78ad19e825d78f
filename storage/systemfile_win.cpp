// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/systemfile.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QThread>

#include <io.h>
#include <qt_windows.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patience = 1000; ///< milliseconds
constexpr int pause = 50;

/// The form of a path that may be longer than 260 letters.
QString longPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    if (native.startsWith("\\\\?\\"_L1) || native.startsWith("\\\\.\\"_L1))
        return native;
    if (native.startsWith("\\\\"_L1))
        return u"\\\\?\\UNC\\"_s + native.sliced(2);
    return u"\\\\?\\"_s + native;
}

/// Whether the failure is that of a file which another program, often a virus scanner, has open just now.
bool isPassing(DWORD failure)
{
    return failure == ERROR_ACCESS_DENIED || failure == ERROR_SHARING_VIOLATION ||
           failure == ERROR_LOCK_VIOLATION || failure == ERROR_USER_MAPPED_FILE;
}

} // namespace

bool SystemFile::flush(int handle)
{
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(handle)));
}

void SystemFile::startFlush(int, qint64, qint64) {}

std::optional<bool> SystemFile::flushAll(const QString &)
{
    return std::nullopt;
}

void SystemFile::forget(int) {}

void SystemFile::flushNames(const QString &) {}

std::error_code SystemFile::renameOver(const QString &from, const QString &to)
{
    const std::wstring source = longPath(from).toStdWString(), target = longPath(to).toStdWString();
    const QDeadlineTimer deadline(patience);
    while (!MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        const DWORD failure = GetLastError();
        if (!isPassing(failure) || deadline.hasExpired())
            return {int(failure), std::system_category()};
        QThread::msleep(pause);
    }
    return {};
}

std::span<const int> SystemFile::failuresWhenFull()
{
    constexpr int quotaExceeded = 1295; // ERROR_DISK_QUOTA_EXCEEDED, which not every header has
    static constexpr int failures[] = {ERROR_DISK_FULL, ERROR_HANDLE_DISK_FULL, quotaExceeded};
    return failures;
}

std::span<const int> SystemFile::failuresWhenProtected()
{
    static constexpr int failures[] = {ERROR_WRITE_PROTECT, ERROR_ACCESS_DENIED};
    return failures;
}

QByteArray SystemFile::encodedPath(const QString &path)
{
    // By these first letters the library of the dictionaries knows UTF-8.
    return longPath(path).toUtf8();
}
