// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/shelfrecords.h"

#include "album/model/albumfile.h"
#include "album/model/photofile.h"
#include "album/model/recordbytes.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <tuple>

namespace {

auto placeKey(const PhotoPlace &place)
{
    return std::tuple(place.album, place.order, place.record);
}

auto albumKey(const PhotoAlbum &album)
{
    return std::pair(album.order, album.record);
}

} // namespace

void ShelfRecords::Use::set(int number, Kind kind)
{
    if (std::size_t(number) > m_kinds.size())
        m_kinds.resize(std::size_t(number), Never);
    Kind &known = m_kinds[std::size_t(number) - 1];
    count(known, -1);
    count(kind, 1);
    known = kind;
}

ShelfRecords::Use::Kind ShelfRecords::Use::kindOf(QByteArrayView bytes)
{
    if (bytes.startsWith(RecordBytes::deleted))
        return Free;
    return RecordBytes::isNeverUsed(bytes) ? Never : Damaged;
}

void ShelfRecords::Use::count(Kind kind, int by)
{
    if (kind == Damaged)
        m_damaged += by;
    else if (kind != Never)
        m_ours += by;
}

QList<int> ShelfRecords::Use::free(qsizetype count, int last, const QSet<int> &named) const
{
    QList<int> numbers;
    numbers.reserve(count);
    for (int number = 1; number <= last && numbers.size() < count; ++number) {
        const bool isKnown = std::size_t(number) <= m_kinds.size();
        const Kind kind = isKnown ? m_kinds[std::size_t(number) - 1] : Never;
        if ((kind == Never || kind == Free) && !named.contains(number))
            numbers.append(number);
    }
    return numbers;
}

void ShelfRecords::clear()
{
    *this = ShelfRecords();
}

void ShelfRecords::readPhoto(int number, QByteArrayView bytes)
{
    if (number > PhotoFile::lastRecord)
        return;
    std::optional<Photo> photo = PhotoFile::decode(number, bytes);
    const auto after = std::ranges::lower_bound(m_photos, number, {}, &Photo::record);
    const bool isKnown = after != m_photos.end() && after->record == number;
    if (photo) {
        m_photoUse.set(number, Use::Used);
        if (isKnown)
            *after = std::move(*photo);
        else
            m_photos.insert(after, std::move(*photo));
        return;
    }
    if (isKnown)
        m_photos.erase(after);
    m_photoUse.set(number, Use::kindOf(bytes));
}

void ShelfRecords::readPlace(int number, QByteArrayView bytes)
{
    if (number > AlbumFile::lastRecord)
        return;
    if (std::optional<PhotoPlace> place = AlbumFile::decodePlace(number, bytes)) {
        m_placeUse.set(number, Use::Used);
        m_places.push_back(*place);
    } else if (std::optional<PhotoAlbum> album = AlbumFile::decodeAlbum(number, bytes)) {
        m_placeUse.set(number, Use::Used);
        m_albums.push_back(std::move(*album));
    } else {
        m_placeUse.set(number, Use::kindOf(bytes));
    }
}

void ShelfRecords::forgetPlaces(const QList<int> &numbers)
{
    QList<int> sorted = numbers;
    std::ranges::sort(sorted);
    const auto isOne = [&sorted](const auto &item) {
        return std::ranges::binary_search(sorted, item.record);
    };
    std::erase_if(m_places, isOne);
    std::erase_if(m_albums, isOne);
}

void ShelfRecords::settle()
{
    std::ranges::sort(m_places, {}, placeKey);
    std::ranges::sort(m_albums, {}, albumKey);
}

const Photo *ShelfRecords::photo(int record) const
{
    const auto found = std::ranges::lower_bound(m_photos, record, {}, &Photo::record);
    return found != m_photos.end() && found->record == record ? &*found : nullptr;
}

const PhotoAlbum *ShelfRecords::album(int record) const
{
    const auto found = std::ranges::find(m_albums, record, &PhotoAlbum::record);
    return found == m_albums.end() ? nullptr : &*found;
}

std::vector<PhotoPlace> ShelfRecords::places(int album) const
{
    const auto first = std::ranges::lower_bound(m_places, album, {}, &PhotoPlace::album);
    const auto end = std::ranges::upper_bound(m_places, album, {}, &PhotoPlace::album);
    std::vector<PhotoPlace> places;
    places.reserve(std::size_t(end - first));
    std::vector<bool> isIn(m_photos.empty() ? 0 : std::size_t(m_photos.back().record) + 1);
    for (auto place = first; place != end; ++place) {
        if (!m_photoUse.isUsed(place->photo) || isIn[std::size_t(place->photo)])
            continue;
        isIn[std::size_t(place->photo)] = true;
        places.push_back(*place);
    }
    return places;
}

std::vector<PhotoPlace> ShelfRecords::placesOf(int photo) const
{
    std::vector<PhotoPlace> places;
    std::ranges::copy_if(m_places, std::back_inserter(places),
                         [photo](const PhotoPlace &place) { return place.photo == photo; });
    return places;
}

QList<int> ShelfRecords::freePhotos(qsizetype count) const
{
    QSet<int> named;
    for (const PhotoPlace &place : m_places)
        named.insert(place.photo);
    for (const PhotoAlbum &album : m_albums)
        named.insert(album.cover);
    return m_photoUse.free(count, PhotoFile::lastRecord, named);
}

QList<int> ShelfRecords::freePlaces(qsizetype count) const
{
    return m_placeUse.free(count, AlbumFile::lastRecord, {});
}
