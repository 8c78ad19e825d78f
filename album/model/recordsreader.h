// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QByteArray>
#include <QFile>

#include <memory>

/// Reads records of a file that stays open as long as this lives. A missing file is an empty one, and is not
/// made.
class RecordsReader
{
public:
    static RecordsReader ofPhotos(const DataFolder &folder);
    static RecordsReader ofPlaces(const DataFolder &folder);

    /// At most a record's length; fewer at the end of the file.
    QByteArray read(int number);

private:
    RecordsReader(const QString &path, qsizetype recordLength);

    std::unique_ptr<QFile> m_file;
    qsizetype m_recordLength;
};
