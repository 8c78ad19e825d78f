// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/holdings.h"
#include "backup/model/setrecords.h"

#include <QHash>

#include <optional>

/// The hashes of files that have not changed since a set was made: a picture that the drive has already need
/// not be read again.
class KnownFiles
{
public:
    /// Those of the last complete set on the drive, and of `last`, the household's record of its last backup.
    static KnownFiles of(const std::optional<SetRecord> &last, const QString &drive);

    /// Those of the record; what was added before goes on counting where it says nothing.
    void add(const SetRecord &record);

    /// Nothing where the file is not known, or has another size or time since.
    QByteArray hash(const BackupItem &item) const;

private:
    struct File {
        qint64 size = 0;
        qint64 changed = 0; ///< milliseconds
        QByteArray hash;
    };
    QHash<QString, File> m_files;
};
