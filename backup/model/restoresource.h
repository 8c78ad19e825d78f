// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setrecords.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

/// What the files of a backup are read from, disk by disk: a set as it lies there, or a sealed one.
class RestoreSource
{
public:
    virtual ~RestoreSource() = default;

    /// What came of reading a disk.
    enum class Reading {
        Done,
        Stopped,   ///< the visitor wanted no more
        Missing,   ///< there is no disk of a set at this place, or not any more
        WrongDisk, ///< there is one of another set, or of another number
        Damaged    ///< its record cannot be read, or what holds its parts ends too early
    };

    /// Is shown the parts that a disk has, in the order in which they lie there.
    class Visitor
    {
    public:
        virtual ~Visitor() = default;
        /// Whether the bytes of `part` are to be read.
        virtual bool wants(const BackupPart &part) = 0;
        /// The next bytes of the part, 1 MiB at most. False stops the reading.
        virtual bool take(QByteArrayView bytes) = 0;
        /// Behind the last bytes; not all of the part's where `isWhole` is false. False stops the reading.
        virtual bool end(bool isWhole) = 0;

    protected:
        Visitor() = default;
        Visitor(const Visitor &) = default;
        Visitor &operator=(const Visitor &) = default;
    };

    /// Shows the parts of disk `number`, which stands at `root`, to `visitor`.
    virtual Reading read(const QString &root, int number, Visitor &visitor) = 0;

    /// What disk was found at `root` instead, for the words about a wrong one; nothing where there is none.
    virtual std::optional<DiskRecord> diskAt(const QString &root) const = 0;

protected:
    RestoreSource() = default;
    RestoreSource(const RestoreSource &) = default;
    RestoreSource &operator=(const RestoreSource &) = default;
};
