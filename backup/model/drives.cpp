// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/drives.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

Drive driveOf(const QStorageInfo &volume, const QString &folder)
{
    QString name = volume.name();
    if (name.isEmpty())
        name = QFileInfo(folder).fileName();
    if (name.isEmpty())
        name = folder;
    return {name, folder, volume.bytesAvailable(), volume.bytesTotal(), volume.isReadOnly()};
}

bool isForPeople(const QStorageInfo &volume)
{
    if (!volume.isValid() || !volume.isReady() || volume.bytesTotal() <= 0)
        return false;
#ifdef Q_OS_WIN
    return !volume.isRoot();
#else
    static constexpr std::array places{"/media/"_L1, "/run/media/"_L1, "/mnt/"_L1, "/Volumes/"_L1};
    const QString path = volume.rootPath() + u'/';
    return std::ranges::any_of(places, [&path](QLatin1StringView place) {
        return path.startsWith(place) && path.size() > place.size();
    });
#endif
}

/// The path without links, as far as it is there; for a folder that is still to be made, of the one above it.
QString realPath(const QString &path)
{
    QFileInfo folder(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    QString rest;
    while (!folder.exists() && !folder.isRoot()) {
        rest = u'/' + folder.fileName() + rest;
        folder.setFile(folder.path());
    }
    return folder.canonicalFilePath() + rest;
}

} // namespace

QList<Drive> Drives::now()
{
    QList<Drive> drives;
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (isForPeople(volume))
            drives.append(driveOf(volume, volume.rootPath()));
    }
    std::ranges::sort(drives, {}, &Drive::folder);
    return drives;
}

Drive Drives::of(const QString &folder)
{
    const QStorageInfo volume(folder);
    if (QDir::cleanPath(volume.rootPath()) == QDir::cleanPath(folder))
        return driveOf(volume, folder);
    Drive drive = driveOf(volume, folder);
    drive.name = QFileInfo(QDir::cleanPath(folder)).fileName();
    return drive;
}

bool Drives::isMountedAt(const QString &folder)
{
    const QString path = QFileInfo(folder).canonicalFilePath();
    return !path.isEmpty() && QDir::cleanPath(QStorageInfo(path).rootPath()) == path;
}

bool Drives::isOwn(const QString &folder, const QStringList &own)
{
    const QString place = realPath(folder) + u'/';
    return std::ranges::any_of(own, [&place](const QString &one) {
#ifdef Q_OS_WIN
        return place.startsWith(realPath(one) + u'/', Qt::CaseInsensitive);
#else
        return place.startsWith(realPath(one) + u'/');
#endif
    });
}
