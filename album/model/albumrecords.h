// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"
#include "shell/core/programstate.h"
#include "shell/core/recordlines.h"
#include "storage/datafolder.h"

#include <QHash>

class PhotoShelf;
struct Photo;
struct PhotoAlbum;

/// What the album knows of its pictures, and the albums with the pictures in them, to be compared with
/// another version and brought back from there. A picture is known by its path, an album by its name. The
/// files of pictures are none of this.
class AlbumRecords final : public FunctionRecords, public RecordLines
{
public:
    AlbumRecords(const DataFolder &folder, DateStyle style);

    QString counted(int count) const override;
    std::vector<FunctionRecord> all() const override;
    QStringList lines(const QString &key) const override;
    void visitLines(const std::function<bool(const FunctionRecord &record, const QStringList &lines)> &visit)
        const override;
    /// What is known of a picture as it was, and pictures that are off the list, onto it again. An album
    /// comes with its pictures; what came into it since stays.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override;

private:
    QStringList linesOf(const Photo &photo) const;

    DataFolder m_folder;
    DateStyle m_style;
};
