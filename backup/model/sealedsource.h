// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/restoresource.h"
#include "backup/model/sealedkey.h"
#include "backup/model/sealedreader.h"
#include "backup/model/setsource.h"

#include <QFile>

#include <functional>
#include <map>
#include <memory>

/// A sealed set on its disks, given its key. What a disk holds stands at the end of it, so that each is read
/// through once before its first part is shown.
class SealedSource final : public RestoreSource
{
public:
    /// `goOn` is asked while a disk is read through, with the bytes that were read of it: false stops that.
    SealedSource(std::shared_ptr<const SealedKey> key, const QByteArray &set, const QDateTime &begun,
                 std::function<bool(qint64 bytes)> goOn = {});

    /// The record of the key on the disk whose set lies in `folder`, for `SealedKey::opening`; empty where it
    /// cannot be read.
    static QByteArray keyRecord(const QString &folder);

    /// The set's record, which the last disk has inside; nothing where the disk at `root` has none, or is not
    /// whole.
    std::optional<SetRecord> setRecord(const QString &root, int lastDisk);

    Reading read(const QString &root, int number, Visitor &visitor) override;
    std::optional<DiskRecord> diskAt(const QString &root) const override { return m_places.diskAt(root); }

private:
    /// The records that a disk has inside.
    struct Inside {
        DiskRecord disk;
        std::optional<SetRecord> set;
    };

    bool goOn(qint64 bytes) const { return !m_goOn || m_goOn(bytes); }
    Reading lookInside(const QString &folder, int number);
    std::unique_ptr<SealedReader> open(QFile &file, int number) const;
    bool readInside(SealedReader &reader, Inside &inside) const;
    Reading show(SealedReader &reader, const BackupPart &part, Visitor &visitor) const;

    std::shared_ptr<const SealedKey> m_key;
    QByteArray m_set;
    SetSource m_places;
    std::function<bool(qint64 bytes)> m_goOn;
    std::map<int, Inside> m_inside; ///< of the disks that were read through
};
