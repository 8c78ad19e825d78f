// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumfile.h"

#include "album/model/phototexts.h"
#include "album/model/recordbytes.h"

#include <algorithm>

namespace {

// Where an album's fields stand.
constexpr qsizetype orderAt = 4;
constexpr qsizetype coverAt = 8;
constexpr qsizetype sortingAt = 12;
constexpr qsizetype nameAt = 16;
constexpr qsizetype folderAt = 112;
constexpr quint32 intoPicture = 16;
constexpr quint32 intoBeside = 32;
static_assert(folderAt - nameAt == PhotoTexts::albumNameBytes);
// And a place's.
constexpr qsizetype albumAt = 4;
constexpr qsizetype photoAt = 8;
constexpr qsizetype placeOrderAt = 12;

quint32 sortingNumber(const PhotoAlbum &album)
{
    const quint32 sorting = quint32(album.sorting);
    switch (album.into) {
    case PhotoAlbum::Into::Picture:
        return sorting + intoPicture;
    case PhotoAlbum::Into::Beside:
        return sorting + intoBeside;
    case PhotoAlbum::Into::Nowhere:
        break;
    }
    return sorting;
}

int recordNumber(QByteArrayView bytes, qsizetype at)
{
    return std::max(RecordBytes::number<qint32>(bytes, at), 0);
}

} // namespace

QByteArray AlbumFile::encode(const PhotoAlbum &album)
{
    QByteArray bytes(recordLength, '\0');
    std::ranges::copy(albumMark, bytes.begin());
    RecordBytes::put(bytes, orderAt, album.order);
    RecordBytes::put(bytes, coverAt, qint32(album.cover));
    RecordBytes::put(bytes, sortingAt, sortingNumber(album));
    RecordBytes::putText(bytes, nameAt, PhotoTexts::albumNameBytes, PhotoTexts::composed(album.name));
    RecordBytes::putText(bytes, folderAt, PhotoTexts::pathBytes, album.folder);
    return bytes;
}

QByteArray AlbumFile::encode(const PhotoPlace &place)
{
    QByteArray bytes(recordLength, '\0');
    std::ranges::copy(placeMark, bytes.begin());
    RecordBytes::put(bytes, albumAt, qint32(place.album));
    RecordBytes::put(bytes, photoAt, qint32(place.photo));
    RecordBytes::put(bytes, placeOrderAt, place.order);
    return bytes;
}

std::optional<PhotoAlbum> AlbumFile::decodeAlbum(int record, QByteArrayView bytes)
{
    if (!bytes.startsWith(albumMark))
        return {};
    PhotoAlbum album;
    album.record = record;
    album.order = RecordBytes::number<quint32>(bytes, orderAt);
    album.cover = recordNumber(bytes, coverAt);
    const auto number = RecordBytes::number<quint32>(bytes, sortingAt);
    const quint32 sorting = number % intoPicture;
    album.sorting = sorting <= quint32(PhotoAlbum::Sorting::ByName) ? PhotoAlbum::Sorting(sorting)
                                                                    : PhotoAlbum::Sorting::ByHand;
    if ((number & intoPicture) != 0)
        album.into = PhotoAlbum::Into::Picture;
    else if ((number & intoBeside) != 0)
        album.into = PhotoAlbum::Into::Beside;
    album.name = RecordBytes::text(bytes, nameAt, PhotoTexts::albumNameBytes);
    album.folder = RecordBytes::text(bytes, folderAt, PhotoTexts::pathBytes);
    return album;
}

std::optional<PhotoPlace> AlbumFile::decodePlace(int record, QByteArrayView bytes)
{
    if (!bytes.startsWith(placeMark))
        return {};
    return PhotoPlace{.record = record,
                      .album = recordNumber(bytes, albumAt),
                      .photo = recordNumber(bytes, photoAt),
                      .order = RecordBytes::number<quint32>(bytes, placeOrderAt)};
}
