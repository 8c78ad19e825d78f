// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>

/// What a disk takes.
struct DiskRoom {
    qint64 bytes = 0;                      ///< that are free
    qint64 block = 4096;                   ///< a file takes whole ones
    qint64 largestFile = qint64(1) << 62U; ///< 4 GiB less one byte on FAT
    qint64 each = 0;                       ///< that a file takes besides

    /// Of the drive or folder now.
    static DiskRoom of(const QString &folder);
    /// As an empty disk like this one has it.
    static DiskRoom ofEmpty(const QString &folder);

    /// Of it as much as `limit` leaves; the file system takes no larger files for that.
    DiskRoom within(const std::optional<DiskRoom> &limit) const;

    /// What a file, or a piece, of so many bytes takes, with its lines in the records; without bytes, these
    /// alone.
    qint64 needed(const QString &name, qint64 bytes) const;

    bool operator==(const DiskRoom &) const = default;
};

/// A part of a file on a disk.
struct PlannedPart {
    int item = 0; ///< in the list that was planned
    qint64 offset = 0;
    qint64 bytes = 0;
    int piece = 0; ///< from 1 on where the file is cut; 0 where it is whole

    bool operator==(const PlannedPart &) const = default;
};

struct PlannedDisk {
    QList<PlannedPart> parts;
    qint64 bytes = 0; ///< that are written to it

    bool operator==(const PlannedDisk &) const = default;
};

/// What of an item is to be put on disks: all of it, or the rest of one that is cut.
struct PlannedItem {
    QString name;
    qint64 size = 0;
    qint64 offset = 0;    ///< the first byte that is still to come
    int pieces = 0;       ///< that are there already
    bool isThere = false; ///< the drive has this picture: it takes no room
};

/// Which file goes on which disk: each whole on the first disk that has room, and cut only where it is larger
/// than an empty one.
struct DiskPlan {
    QList<PlannedDisk> disks;
    /// Whether everything has a place: not where an empty disk takes nothing.
    bool isPossible = true;

    /// The first disk has the room `first`, the others `next`.
    static DiskPlan of(const QList<PlannedItem> &items, const DiskRoom &first, const DiskRoom &next);

    qint64 bytes() const;
};
