// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/holdings.h"
#include "backup/model/setrecords.h"

#include <QHash>
#include <QTemporaryDir>

struct Program;

/// Whose the files of a backup are: what each function says of their names alone, of those in the copy where
/// it lies open, and of those here. A function that must read one file to know its others may not know them
/// where the copy lies on several disks or is sealed.
class CopyOwners
{
public:
    /// On the thread of the windows; `files` are those of the whole set, `copy` is its folder on the disk
    /// that is in, empty for a sealed one.
    CopyOwners(const Program &program, const QList<BackupFile> &files, const QString &copy);

    /// Looks at the files; on any thread.
    void find();
    /// The names of those here, as a backup would have them.
    const QStringList &here() const { return m_here; }
    /// The functions and groups by the names of files.
    const QHash<QString, QString> &all() const { return m_all; }

private:
    struct Place {
        DataFolder folder;
        QList<BackupSource> sources;
    };

    void add(const Program &program, const QString &path);

    QTemporaryDir m_names; ///< empty files of the names in the set
    QList<Place> m_places; ///< what is here last: it says the same as the copy, or knows better
    QStringList m_here;
    QHash<QString, QString> m_all;
};
