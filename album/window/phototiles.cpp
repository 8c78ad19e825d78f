// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/phototiles.h"

#include "album/model/photodatewords.h"
#include "album/model/photoshelf.h"
#include "album/window/wanted.h"
#include "album/window/windowlines.h"
#include "shell/controls/itemdrag.h"
#include "shell/pictures/picturequeue.h"
#include "shell/program/program.h"

#include <QMimeData>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

PhotoTiles::PhotoTiles(const Program &program, const PhotoShelf &shelf, const PictureQueue &queue,
                       QObject *parent)
    : PictureTiles(parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_queue(queue)
{}

bool PhotoTiles::setRecords(const QList<int> &records)
{
    if (records == m_records)
        return false;
    beginResetModel();
    m_records = records;
    m_rows.clear();
    m_rows.reserve(records.size());
    for (int row = 0; row < records.size(); ++row)
        m_rows.insert(records[row], row);
    endResetModel();
    return true;
}

void PhotoTiles::follow(const QList<int> &records)
{
    for (const int record : records) {
        if (const int row = rowOf(record); row >= 0)
            emit dataChanged(index(row), index(row));
    }
}

WantedPicture PhotoTiles::picture(int row) const
{
    return wantedPicture(m_shelf, recordAt(row));
}

PictureTiles::Tile PhotoTiles::tile(int row) const
{
    const Photo *photo = m_shelf.photo(recordAt(row));
    if (!photo)
        return {};
    return {AlbumWindowLines::nameOf(*photo),
            AlbumWindowLines::starsAndDate(*photo, m_program.state.dateStyle)};
}

int PhotoTiles::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

QVariant PhotoTiles::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Photo *photo = m_shelf.photo(recordAt(index.row()));
    if (!photo)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return AlbumWindowLines::nameOf(*photo);
    case Qt::AccessibleTextRole:
        return withSign(AlbumWindowLines::spoken(*photo, m_program.state.dateStyle), u", "_s, *photo);
    case Qt::ToolTipRole:
        return withSign(photo->fileName(), u"\n"_s, *photo);
    default:
        return {};
    }
}

/// Why its tile bears a sign is told, too.
QString PhotoTiles::withSign(const QString &words, const QString &between, const Photo &photo) const
{
    const QString sign = AlbumWindowLines::sign(photo, m_queue.kept(photo.record).look);
    return sign.isEmpty() ? words : words + between + sign;
}

Qt::ItemFlags PhotoTiles::flags(const QModelIndex &index) const
{
    return PictureTiles::flags(index) | Qt::ItemIsDragEnabled;
}

QMimeData *PhotoTiles::mimeData(const QModelIndexList &indexes) const
{
    std::vector<int> records;
    records.reserve(std::size_t(indexes.size()));
    for (const QModelIndex &index : indexes)
        records.push_back(recordAt(index.row()));
    return ItemDrag::of(dragFormat(), records).release();
}
