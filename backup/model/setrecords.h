// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

/// What a disk has of a file, or all of it.
struct BackupPart {
    QString name;      ///< below the household's folder, "/" between folders; as it is there
    qint64 size = 0;   ///< of the whole file, in bytes
    qint64 offset = 0; ///< the first byte that this disk has
    qint64 bytes = 0;  ///< how many it has
    QDateTime changed; ///< when the file was changed last, UTC
    QByteArray hash;   ///< SHA-256 of these bytes, 32 bytes
    int piece = 0;     ///< from 1 on where the file is cut; 0 where it is whole

    bool operator==(const BackupPart &) const = default;
};

/// The record of one disk of a set: its file "DiskInfo.bk1".
struct DiskRecord {
    static constexpr QLatin1StringView fileName{"DiskInfo.bk1"};

    QByteArray set;  ///< the set's id, 16 random bytes
    QDateTime begun; ///< UTC
    int number = 1;  ///< of this disk, from 1 on
    QList<BackupPart> parts;

    bool operator==(const DiskRecord &) const = default;
};

/// How many records of a function a set has.
struct BackupCount {
    QString function; ///< its name in the files, "AddressBook"
    int records = 0;

    bool operator==(const BackupCount &) const = default;
};

/// One file of a set.
struct BackupFile {
    QString name; ///< as in `BackupPart`
    qint64 size = 0;
    QDateTime changed{}; ///< UTC
    QByteArray hash{};   ///< SHA-256 of the whole file, 32 bytes
    int firstDisk = 1;
    int lastDisk = 1;

    bool operator==(const BackupFile &) const = default;
};

/// The record of a whole set: "DiskInfo.Abk" on its last disk, and in the household's folder that of the last
/// backup. Written last: a set without it is not complete.
struct SetRecord {
    static constexpr QLatin1StringView fileName{"DiskInfo.Abk"};

    QByteArray set;
    QDateTime begun; ///< UTC
    QDateTime ended; ///< UTC
    int disks = 1;
    QString drive; ///< the drive's own name: "SILVER"
    bool isSealed = false;
    QDateTime tested; ///< when it was last read back, UTC
    QList<BackupCount> counts;
    QList<BackupFile> files;

    bool operator==(const SetRecord &) const = default;
};
