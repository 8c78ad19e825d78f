// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setrecords.h"

#include <QSet>
#include <QString>
#include <QStringList>

/// The names that files get in the folder of a set, in the order of the disk's record: where two would be the
/// same to a disk that does not tell spellings apart, the second is "name ~2.Fil".
class StoredNames
{
public:
    StoredNames();

    /// The path below the folder. For a piece of a file that is cut, its number follows: ".001".
    QString add(const QString &name, int piece);
    /// Takes the last one back, which did not get there.
    void drop(const QString &stored) { m_files.remove(stored.toCaseFolded()); }

private:
    QSet<QString> m_files; ///< what all spellings of a path have in common
    QSet<QString> m_folders;
};

/// Where the parts of a disk lie.
class PartPaths
{
public:
    /// `folder` is that of the set on the disk.
    PartPaths(const QString &folder, const DiskRecord &record);

    /// Of each part, in the order of the record; empty for a picture that the drive has not.
    const QStringList &paths() const { return m_paths; }

private:
    QStringList m_paths;
};
