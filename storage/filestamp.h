// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QDateTime>
#include <QList>
#include <QStringList>

/// What files were like when they were read: where each stood, when it was written and how long it was. Two
/// stamps of the same files differ when one of them was written, replaced, removed or made in between.
class FileStamp
{
public:
    FileStamp() = default;

    /// The files `names` in `folder` as they are now; a missing one has a stamp too.
    static FileStamp of(const DataFolder &folder, const QStringList &names);

    bool operator==(const FileStamp &) const = default;

private:
    struct File {
        QString path;
        QDateTime written;
        qint64 size = 0;
        bool operator==(const File &) const = default;
    };

    QList<File> m_files;
};
