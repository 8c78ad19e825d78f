// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "album/model/photoalbum.h"

#include <QByteArrayView>
#include <QList>
#include <QSet>

#include <vector>

/// All pictures, albums and places, as their files hold them; in memory alone.
class ShelfRecords
{
public:
    void clear();
    /// Takes what record `number` of the pictures holds now.
    void readPhoto(int number, QByteArrayView bytes);
    /// The same of the albums and places.
    void readPlace(int number, QByteArrayView bytes);
    /// Before what albums and places hold is taken once more.
    void forgetPlaces(const QList<int> &numbers);
    /// Behind the last of these: puts albums and places in order.
    void settle();

    /// By record.
    const std::vector<Photo> &photos() const { return m_photos; }
    const Photo *photo(int record) const;
    /// In the order of the list.
    const std::vector<PhotoAlbum> &albums() const { return m_albums; }
    const PhotoAlbum *album(int record) const;
    /// The places of an album that lead to a picture, by hand; each picture has one.
    std::vector<PhotoPlace> places(int album) const;
    /// Those of a picture, by album.
    std::vector<PhotoPlace> placesOf(int photo) const;
    /// All places, also those that lead nowhere, by album and order.
    const std::vector<PhotoPlace> &allPlaces() const { return m_places; }

    /// The lowest `count` numbers that are free for pictures; fewer where there are no more. What an album
    /// still names of pictures that were lost is not free: another picture would inherit it.
    QList<int> freePhotos(qsizetype count) const;
    /// The same for albums and places.
    QList<int> freePlaces(qsizetype count) const;

    /// How many records are nobody's: they stay as they are.
    int damaged() const { return m_photoUse.damaged() + m_placeUse.damaged(); }
    /// Whether the file of the pictures has something in it, and nothing of ours.
    bool arePhotosForeign() const { return m_photoUse.isForeign(); }
    bool arePlacesForeign() const { return m_placeUse.isForeign(); }

private:
    /// What the records of a file are used for.
    class Use
    {
    public:
        enum Kind : quint8 { Never, Free, Used, Damaged };
        void set(int number, Kind kind);
        /// What a record is that holds nothing of ours.
        static Kind kindOf(QByteArrayView bytes);
        /// Those that are free but for the `named` ones.
        QList<int> free(qsizetype count, int last, const QSet<int> &named) const;
        int damaged() const { return m_damaged; }
        bool isForeign() const { return m_damaged > 0 && m_ours == 0; }
        bool isUsed(int number) const
        {
            return number > 0 && std::size_t(number) <= m_kinds.size() &&
                   m_kinds[std::size_t(number) - 1] == Used;
        }

    private:
        void count(Kind kind, int by);

        std::vector<Kind> m_kinds;
        int m_damaged = 0;
        int m_ours = 0;
    };

    std::vector<Photo> m_photos;
    std::vector<PhotoAlbum> m_albums;
    std::vector<PhotoPlace> m_places;
    Use m_photoUse;
    Use m_placeUse;
};
