// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The folder that holds the household's files. Names match without regard to case: the exact spelling first,
/// else the first match in the folder's order, so that writing never makes a twin of a file that is there.
class DataFolder
{
public:
    /// With a reason why it is for reading only, nothing in this room writes to the folder, not even where
    /// the system would allow it.
    explicit DataFolder(const QString &path, QString whyReadOnly = {});

    const QString &path() const { return m_path; }

    bool isReadOnly() const { return !m_whyReadOnly.isEmpty(); }
    /// A sentence for the user; empty where the folder is written to.
    const QString &whyReadOnly() const { return m_whyReadOnly; }

    /// The path to read or write `name` at: the file that is there under any spelling, else `name` itself.
    QString filePath(const QString &name) const;
    /// The same for each of `names`, in one pass over the folder, however many of them are missing.
    QStringList filePaths(const QStringList &names) const;

    /// The path of the file `name` in the subfolder `folder` (both case-blind; an empty `folder` is the data
    /// folder itself); empty when no such file is there, or only a folder of that name.
    QString existingFile(const QString &folder, const QString &name) const;

    bool exists(const QString &name) const;

    /// Whether files can be made here; tried with a file, since permission bits do not tell on every
    /// platform. A full disk is no answer to that: true, and each save tells.
    bool isWritable() const;

private:
    QString m_path;
    QString m_whyReadOnly;
};
