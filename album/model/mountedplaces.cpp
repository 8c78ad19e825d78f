// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/mountedplaces.h"

#include <QDir>
#include <QStandardPaths>
#include <QStorageInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool liesIn(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder.endsWith(u'/') ? folder : QString(folder + u'/'));
}

/// "C:/" of "C:/Pictures/a.jpg", and "//server/share" of a place in the network; empty where paths have none.
QString driveOf(const QString &path)
{
    if (path.size() > 2 && path[0].isLetter() && path[1] == u':')
        return path.first(2) + u'/';
    return {};
}

} // namespace

MountedPlaces MountedPlaces::now()
{
    MountedPlaces places;
#ifndef Q_OS_WIN
    places.removable = {u"/media"_s, u"/run/media"_s, u"/mnt"_s, u"/Volumes"_s};
    // Where the desktop shows telephones and disks of the network.
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (!runtime.isEmpty())
        places.removable.append(runtime + u"/gvfs"_s);
#endif
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        if (volume.isReady())
            places.mounted.append(QDir::cleanPath(volume.rootPath()));
    }
    return places;
}

bool MountedPlaces::isAway(const QString &path) const
{
    if (const QString drive = driveOf(path); !drive.isEmpty())
        return !QDir(drive).exists();
    const auto holds = [&path](const QString &folder) { return liesIn(path, folder); };
    const auto place = std::ranges::find_if(removable, holds);
    if (place == removable.end())
        return false;
    return std::ranges::none_of(mounted, [&](const QString &disk) {
        return disk != *place && liesIn(disk, *place) && liesIn(path, disk);
    });
}

QStringList MountedPlaces::cards() const
{
    QStringList cards;
    for (const QString &disk : mounted) {
        const auto holds = [&disk](const QString &folder) { return liesIn(disk, folder) && disk != folder; };
        const bool isDrive = !driveOf(disk).isEmpty();
        if (isDrive || std::ranges::any_of(removable, holds))
            cards.append(disk);
    }
    // Telephones are folders of the desktop's one place.
    for (const QString &folder : removable) {
        if (!folder.endsWith(u"/gvfs"_s))
            continue;
        for (const QString &name : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            cards.append(folder + u'/' + name);
    }
    return cards;
}
