// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Which disks are plugged in: what lies on one that is not is away, and not lost.
struct MountedPlaces {
    QStringList removable; ///< folders in whose folders disks appear
    QStringList mounted;   ///< folders in which there is a disk now

    static MountedPlaces now();

    /// Whether the path lies on a disk that is not there.
    bool isAway(const QString &path) const;
    /// The folders of disks that can be taken out, cards and telephones.
    QStringList cards() const;
};
