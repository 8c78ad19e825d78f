// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/shelfedits.h"

#include "album/model/albumfile.h"
#include "album/model/lines.h"
#include "album/model/photofile.h"
#include "album/model/phototexts.h"
#include "album/model/placeorder.h"
#include "album/model/recordbytes.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <span>

namespace {

/// The record that is there, with the fields in which `after` differs from `before`: what nobody changed
/// stays as it is, understood or not.
QByteArray patched(const QByteArray &there, const QByteArray &before, const QByteArray &after,
                   std::span<const qsizetype> fields)
{
    QByteArray bytes = there.leftJustified(after.size(), '\0');
    for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
        const qsizetype length = fields[i + 1] - fields[i];
        const QByteArrayView wanted = QByteArrayView(after).sliced(fields[i], length);
        if (QByteArrayView(before).sliced(fields[i], length) != wanted)
            std::ranges::copy(wanted, bytes.begin() + fields[i]);
    }
    return bytes;
}

QByteArray emptied(qsizetype recordLength)
{
    return RecordBytes::deleted.toByteArray().leftJustified(recordLength, '\0');
}

bool isFree(QByteArrayView record)
{
    return record.startsWith(RecordBytes::deleted) || RecordBytes::isNeverUsed(record);
}

/// What was changed and has no room in a record; empty where all has.
QString tooLong(const Photo &after, const Photo &before)
{
    struct Field {
        QString Photo::*text;
        qsizetype bytes;
        const char *name;
    };
    static constexpr std::array fields{Field{&Photo::caption, PhotoTexts::captionBytes, "caption"},
                                       Field{&Photo::story, PhotoTexts::storyBytes, "story"},
                                       Field{&Photo::place, PhotoTexts::placeBytes, "place"},
                                       Field{&Photo::tags, PhotoTexts::tagsBytes, "list of tags"},
                                       Field{&Photo::people, PhotoTexts::peopleBytes, "list of people"}};
    for (const Field &field : fields) {
        const QString &text = after.*field.text;
        if (text != before.*field.text && !PhotoTexts::fits(text, field.bytes))
            return QString::fromLatin1(field.name);
    }
    return {};
}

template <typename Item>
std::size_t placeOf(const std::vector<Item> &items, int number, int Item::*member)
{
    return std::size_t(std::ranges::find(items, number, member) - items.begin());
}

} // namespace

ShelfEdits::ShelfEdits(const DataFolder &folder, const ShelfRecords &records)
    : m_records(records)
    , m_photos(RecordsReader::ofPhotos(folder))
    , m_places(RecordsReader::ofPlaces(folder))
    , m_change(std::make_shared<ShelfChange>())
{}

ShelfEdits::Change ShelfEdits::done(bool isPossible)
{
    return isPossible ? m_change : nullptr;
}

bool ShelfEdits::refuse(const QString &why)
{
    m_refusal = why;
    return false;
}

bool ShelfEdits::refuseAsOutdated()
{
    m_isOutdated = true;
    return refuse(AlbumLines::changedMeanwhile());
}

ShelfEdits::Change ShelfEdits::changePhotos(const QList<int> &photos,
                                            const std::function<void(Photo &)> &edit)
{
    for (const int record : photos) {
        const QByteArray there = m_photos.read(record);
        const std::optional<Photo> before = PhotoFile::decode(record, there);
        if (!before)
            return done(refuseAsOutdated());
        Photo after = *before;
        edit(after);
        if (after == *before)
            continue;
        if (after.path != before->path && !PhotoTexts::fitsPath(after.path))
            return done(refuse(AlbumLines::pathTooLong(after.path)));
        if (const QString what = tooLong(after, *before); !what.isEmpty())
            return done(refuse(AlbumLines::textTooLong(what, after.fileName())));
        const QByteArray wanted = PhotoFile::encode(after);
        m_change->writePhoto(record, there,
                             patched(there, PhotoFile::encode(*before), wanted, PhotoFile::fields));
    }
    return m_change;
}

ShelfEdits::Change ShelfEdits::addPhotos(std::vector<Photo> &photos, int album)
{
    const QList<int> numbers = m_records.freePhotos(qsizetype(photos.size()));
    if (numbers.size() < qsizetype(photos.size()))
        return done(refuse(AlbumLines::noMorePictures()));
    for (std::size_t i = 0; i < photos.size(); ++i) {
        photos[i].record = numbers[qsizetype(i)];
        const QByteArray there = m_photos.read(photos[i].record);
        if (!PhotoTexts::fitsPath(photos[i].path))
            return done(refuse(AlbumLines::pathTooLong(photos[i].path)));
        if (!isFree(there))
            return done(refuseAsOutdated());
        m_change->writePhoto(photos[i].record, there, PhotoFile::encode(photos[i]));
    }
    return done(album == 0 || addPlaces(album, numbers, 0));
}

ShelfEdits::Change ShelfEdits::removePhotos(const QList<int> &photos)
{
    m_change = std::make_shared<ShelfChange>(ShelfChange::Order::PlacesFirst);
    QList<int> sorted = photos;
    std::ranges::sort(sorted);
    const auto goes = [&sorted](int record) { return std::ranges::binary_search(sorted, record); };
    std::vector<PhotoPlace> places;
    std::ranges::copy_if(m_records.allPlaces(), std::back_inserter(places),
                         [&](const PhotoPlace &place) { return goes(place.photo); });
    if (!removePlaces(places))
        return nullptr;
    for (PhotoAlbum album : m_records.albums()) {
        if (!goes(album.cover))
            continue;
        album.cover = 0; // else the picture that takes its record would be it
        if (!write(album))
            return nullptr;
    }
    for (const int record : sorted) {
        const QByteArray there = m_photos.read(record);
        if (!PhotoFile::decode(record, there))
            return done(refuseAsOutdated());
        m_change->writePhoto(record, there.leftJustified(PhotoFile::recordLength, '\0'),
                             emptied(PhotoFile::recordLength));
    }
    return m_change;
}

bool ShelfEdits::mayHave(const PhotoAlbum &album)
{
    if (!PhotoTexts::fits(album.name, PhotoTexts::albumNameBytes))
        return refuse(AlbumLines::nameTooLong());
    if (!album.folder.isEmpty() && !PhotoTexts::fitsPath(album.folder))
        return refuse(AlbumLines::pathTooLong(album.folder));
    return true;
}

ShelfEdits::Change ShelfEdits::addAlbum(PhotoAlbum &album)
{
    const QList<int> free = m_records.freePlaces(1);
    if (!mayHave(album))
        return nullptr;
    if (free.isEmpty())
        return done(refuse(AlbumLines::noMoreAlbums()));
    album.record = free.constFirst();
    album.order = 0;
    return done(insert(m_records.albums(), m_records.albums().size(), {album}));
}

ShelfEdits::Change ShelfEdits::changeAlbum(const PhotoAlbum &album)
{
    return done(m_records.album(album.record) ? mayHave(album) && write(album) : refuseAsOutdated());
}

ShelfEdits::Change ShelfEdits::moveAlbum(int album, int before)
{
    const PhotoAlbum *moved = m_records.album(album);
    if (!moved)
        return done(refuseAsOutdated());
    std::vector<PhotoAlbum> others = m_records.albums();
    std::erase_if(others, [album](const PhotoAlbum &other) { return other.record == album; });
    return done(insert(others, placeOf(others, before, &PhotoAlbum::record), {*moved}));
}

ShelfEdits::Change ShelfEdits::removeAlbum(int album)
{
    std::vector<PhotoPlace> places;
    std::ranges::copy_if(m_records.allPlaces(), std::back_inserter(places),
                         [album](const PhotoPlace &place) { return place.album == album; });
    const QByteArray there = m_places.read(album);
    if (!AlbumFile::decodeAlbum(album, there))
        return done(refuseAsOutdated());
    if (!removePlaces(places))
        return nullptr;
    m_change->writePlace(album, there.leftJustified(AlbumFile::recordLength, '\0'),
                         emptied(AlbumFile::recordLength));
    return m_change;
}

ShelfEdits::Change ShelfEdits::putInto(int album, const QList<int> &photos, int before)
{
    return done(addPlaces(album, photos, before));
}

bool ShelfEdits::addPlaces(int album, const QList<int> &photos, int before)
{
    if (!m_records.album(album))
        return refuseAsOutdated();
    const std::vector<PhotoPlace> there = m_records.places(album);
    std::vector<PhotoPlace> added;
    for (const int photo : photos) {
        const auto isOfPhoto = [photo](const PhotoPlace &place) { return place.photo == photo; };
        if (std::ranges::none_of(there, isOfPhoto) && std::ranges::none_of(added, isOfPhoto))
            added.push_back({.record = 0, .album = album, .photo = photo});
    }
    const QList<int> free = m_records.freePlaces(qsizetype(added.size()));
    if (free.size() < qsizetype(added.size()))
        return refuse(AlbumLines::noMoreAlbums());
    for (std::size_t i = 0; i < added.size(); ++i)
        added[i].record = free[qsizetype(i)];
    return insert(there, placeOf(there, before, &PhotoPlace::photo), added);
}

ShelfEdits::Change ShelfEdits::arrange(int album, const QList<int> &photos, int before)
{
    std::vector<PhotoPlace> others = m_records.places(album);
    std::vector<PhotoPlace> moved;
    for (const int photo : photos) {
        const auto found = std::ranges::find(others, photo, &PhotoPlace::photo);
        if (found == others.end())
            continue;
        moved.push_back(*found);
        others.erase(found);
    }
    return done(insert(others, placeOf(others, before, &PhotoPlace::photo), moved));
}

ShelfEdits::Change ShelfEdits::takeOut(int album, const QList<int> &photos)
{
    std::vector<PhotoPlace> places;
    std::ranges::copy_if(m_records.allPlaces(), std::back_inserter(places), [&](const PhotoPlace &place) {
        return place.album == album && photos.contains(place.photo);
    });
    return done(removePlaces(places));
}

template <typename Item>
bool ShelfEdits::insert(const std::vector<Item> &others, std::size_t at, const std::vector<Item> &moved)
{
    std::vector<quint32> order;
    order.reserve(others.size());
    std::ranges::transform(others, std::back_inserter(order), &Item::order);
    const std::vector<quint32> numbers = PlaceOrder::inserted(order, at, moved.size());
    std::vector<Item> all = others;
    all.insert(all.begin() + std::ptrdiff_t(at), moved.begin(), moved.end());
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].order == numbers[i])
            continue;
        all[i].order = numbers[i];
        if (!write(all[i]))
            return false;
    }
    return true;
}

bool ShelfEdits::write(const PhotoAlbum &album)
{
    const QByteArray there = m_places.read(album.record);
    const std::optional<PhotoAlbum> before = AlbumFile::decodeAlbum(album.record, there);
    if (!before && !isFree(there))
        return refuseAsOutdated();
    const QByteArray wanted = AlbumFile::encode(album);
    m_change->writePlace(album.record, there,
                         before ? patched(there, AlbumFile::encode(*before), wanted, AlbumFile::fields)
                                : wanted);
    return true;
}

bool ShelfEdits::write(const PhotoPlace &place)
{
    const QByteArray there = m_places.read(place.record);
    const std::optional<PhotoPlace> before = AlbumFile::decodePlace(place.record, there);
    const bool isSame = before && before->album == place.album && before->photo == place.photo;
    if (!isSame && !isFree(there))
        return refuseAsOutdated();
    m_change->writePlace(place.record, there, AlbumFile::encode(place));
    return true;
}

bool ShelfEdits::removePlaces(const std::vector<PhotoPlace> &places)
{
    for (const PhotoPlace &place : places) {
        const QByteArray there = m_places.read(place.record);
        const std::optional<PhotoPlace> before = AlbumFile::decodePlace(place.record, there);
        if (!before || before->album != place.album || before->photo != place.photo)
            return refuseAsOutdated();
        m_change->writePlace(place.record, there.leftJustified(AlbumFile::recordLength, '\0'),
                             emptied(AlbumFile::recordLength));
    }
    return true;
}
