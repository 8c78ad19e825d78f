// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/recordsreader.h"
#include "album/model/shelfchange.h"
#include "album/model/shelfrecords.h"
#include "storage/datafolder.h"

#include <QString>

#include <functional>
#include <memory>

/// What each thing that is done to pictures and albums changes in their files. Made for one of them: a null
/// change means that it cannot be done, and `refusal` says why; an empty one that all is so already.
class ShelfEdits
{
public:
    using Change = std::shared_ptr<ShelfChange>;

    ShelfEdits(const DataFolder &folder, const ShelfRecords &records);

    const QString &refusal() const { return m_refusal; }
    /// Whether the reason is that the files hold something else by now.
    bool isOutdated() const { return m_isOutdated; }

    /// `edit` is called with each of the pictures, as the file has it.
    Change changePhotos(const QList<int> &photos, const std::function<void(Photo &)> &edit);
    /// Gives the pictures their numbers; they go to the end of `album` unless that is 0.
    Change addPhotos(std::vector<Photo> &photos, int album);
    Change removePhotos(const QList<int> &photos);

    /// Gives the album its number, and its place behind the others.
    Change addAlbum(PhotoAlbum &album);
    Change changeAlbum(const PhotoAlbum &album);
    Change moveAlbum(int album, int before);
    Change removeAlbum(int album);

    /// Before a picture of the album or, where that is none, at its end.
    Change putInto(int album, const QList<int> &photos, int before);
    Change arrange(int album, const QList<int> &photos, int before);
    Change takeOut(int album, const QList<int> &photos);

private:
    bool refuse(const QString &why);
    bool refuseAsOutdated();
    bool mayHave(const PhotoAlbum &album);
    bool addPlaces(int album, const QList<int> &photos, int before);
    /// Puts `moved`, whose order is 0 where they are new, before item `at` of the others.
    template <typename Item>
    bool insert(const std::vector<Item> &others, std::size_t at, const std::vector<Item> &moved);
    bool write(const PhotoAlbum &album);
    bool write(const PhotoPlace &place);
    bool removePlaces(const std::vector<PhotoPlace> &places);
    Change done(bool isPossible);

    const ShelfRecords &m_records;
    RecordsReader m_photos;
    RecordsReader m_places;
    Change m_change;
    QString m_refusal;
    bool m_isOutdated = false;
};
