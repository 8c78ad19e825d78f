// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/saving.h"

#include "storage/log.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

#ifdef Q_OS_WIN
#include <io.h>
#include <qt_windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

/// Puts what was written to `file` on the disk itself, where a power cut cannot take it.
bool flushToDisk(QFile &file)
{
#ifdef Q_OS_WIN
    return file.flush() && FlushFileBuffers(HANDLE(_get_osfhandle(file.handle())));
#else
    return file.flush() && fsync(file.handle()) == 0;
#endif
}

/// Puts the names of `folder` on the disk. Without it a power cut may undo a rename, never tear a file.
void flushNames([[maybe_unused]] const QString &folder)
{
#ifndef Q_OS_WIN
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return;
    fsync(handle);
    close(handle);
#endif
}

std::filesystem::path systemPath(const QString &path)
{
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return QFile::encodeName(path).toStdString();
#endif
}

/// Gives the file `from` the name `to`, in place of the file of that name.
bool renameOver(const QString &from, const QString &to)
{
    std::error_code failure;
    std::filesystem::rename(systemPath(from), systemPath(to), failure);
    if (failure)
        qCWarning(storageLog).noquote()
            << "Cannot rename" << from << "to" << to << '-' << QString::fromLocal8Bit(failure.message());
    return !failure;
}

bool writeWhole(const QString &path, QByteArrayView content)
{
    QFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) &&
                           file.write(content.data(), content.size()) == content.size() && flushToDisk(file);
    if (!isWritten)
        qCWarning(storageLog).noquote() << "Cannot write" << path << '-' << file.errorString();
    return isWritten;
}

/// Whether a file can take the place at `path`: nothing is there, or a file that may be written to.
bool isReplaceable(const QString &path)
{
    const QFileInfo original(path);
    return !original.exists() || (original.isFile() && original.isWritable());
}

bool isMissingOrEmptied(const QString &path)
{
    const QFileInfo original(path);
    return !original.exists() || (original.isFile() && original.size() == 0);
}

/// The files of `folder` whose name ends with `suffix`, in our own spelling.
QStringList filesEndingWith(const DataFolder &folder, QLatin1StringView suffix)
{
    QStringList names;
    QDirIterator entries(folder.path(), QDir::Files | QDir::Hidden | QDir::System);
    while (entries.hasNext()) {
        entries.next();
        if (entries.fileName().endsWith(suffix) && entries.fileName().size() > suffix.size())
            names += entries.fileName();
    }
    return names;
}

} // namespace

bool Saving::replaceFile(const DataFolder &folder, const QString &name, QByteArrayView content)
{
    const QString path = folder.filePath(name);
    if (!isReplaceable(path)) {
        qCWarning(storageLog).noquote() << "Cannot replace" << path << "- it is a folder or write-protected";
        return false;
    }
    const QString part = path + partSuffix;
    const QString staged = path + stagedSuffix;
    if (!writeWhole(part, content) || !renameOver(part, staged)) {
        QFile::remove(part);
        return false;
    }
    if (!renameOver(staged, path)) {
        if (!isMissingOrEmptied(path))
            QFile::remove(staged);
        return false;
    }
    flushNames(folder.path());
    return true;
}

void Saving::recover(const DataFolder &folder)
{
    for (const QString &part : filesEndingWith(folder, partSuffix))
        QFile::remove(folder.path() + u'/' + part);

    for (const QString &name : filesEndingWith(folder, stagedSuffix)) {
        const QString staged = folder.path() + u'/' + name;
        const QString original = folder.filePath(name.chopped(stagedSuffix.size()));
        if (isMissingOrEmptied(original))
            renameOver(staged, original);
        else if (QFileInfo(original).isFile())
            QFile::remove(staged);
    }
}
