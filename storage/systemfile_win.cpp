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
std::wstring longPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(QDir::current().absoluteFilePath(path)));
    if (native.startsWith("\\\\?\\"_L1) || native.startsWith("\\\\.\\"_L1))
        return native.toStdWString();
    if (native.startsWith("\\\\"_L1))
        return QString(u"\\\\?\\UNC\\"_s + native.sliced(2)).toStdWString();
    return QString(u"\\\\?\\"_s + native).toStdWString();
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

void SystemFile::flushNames(const QString &) {}

std::error_code SystemFile::renameOver(const QString &from, const QString &to)
{
    const std::wstring source = longPath(from), target = longPath(to);
    const QDeadlineTimer deadline(patience);
    while (!MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        const DWORD failure = GetLastError();
        if (!isPassing(failure) || deadline.hasExpired())
            return {int(failure), std::system_category()};
        QThread::msleep(pause);
    }
    return {};
}
