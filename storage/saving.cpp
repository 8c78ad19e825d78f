// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/saving.h"

#include "storage/disk.h"
#include "storage/log.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <tuple>

namespace {

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

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    return replaceFile(folder, name, content, {});
}

bool Saving::replaceFile(const DataFolder &folder, const QString &name, QByteArrayView content,
                         const std::function<bool(const QByteArray &written)> &isRight)
{
    const QString path = folder.filePath(name);
    if (folder.isReadOnly() || !isReplaceable(path)) {
        qCWarning(storageLog).noquote() << "Cannot replace" << path << "- it is a folder or write-protected";
        return false;
    }
    const QString part = path + partSuffix;
    const QString staged = path + stagedSuffix;
    const bool isNew = isMissingOrEmptied(path);
    if (!Disk::writeWhole(part, content) || (isRight && !isRight(contentOf(part))) ||
        !Disk::renameOver(part, staged)) {
        std::ignore = Disk::remove(part);
        return false;
    }
    if (!Disk::renameOver(staged, path)) {
        // Only where the old file went on the way is this one all that is left. A new one that was refused
        // must not come at the next start.
        if (isNew || !isMissingOrEmptied(path))
            std::ignore = Disk::remove(staged);
        return false;
    }
    Disk::flushNames(folder.path());
    return true;
}

void Saving::recover(const DataFolder &folder)
{
    if (folder.isReadOnly())
        return;
    for (const QString &part : filesEndingWith(folder, partSuffix))
        QFile::remove(folder.path() + u'/' + part);

    for (const QString &name : filesEndingWith(folder, stagedSuffix)) {
        const QString staged = folder.path() + u'/' + name;
        const QString original = folder.filePath(name.chopped(stagedSuffix.size()));
        if (isMissingOrEmptied(original))
            std::ignore = Disk::renameOver(staged, original); // the next start tries again
        else if (QFileInfo(original).isFile())
            QFile::remove(staged);
    }
}
