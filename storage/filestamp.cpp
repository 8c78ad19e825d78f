// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/filestamp.h"

#include <QFileInfo>

FileStamp FileStamp::of(const DataFolder &folder, const QStringList &names)
{
    FileStamp stamp;
    for (const QString &path : folder.filePaths(names)) {
        const QFileInfo file(path);
        stamp.m_files.append({file.filePath(), file.lastModified(), file.size()});
    }
    return stamp;
}
