// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumfile.h"
#include "album/model/photofile.h"
#include "album/model/photopeople.h"
#include "album/model/phototexts.h"
#include "album/model/placeorder.h"
#include "album/model/shelfrecords.h"
#include "fuzztarget.h"

namespace {

void tryPicture(QByteArrayView bytes)
{
    const std::optional<Photo> photo = PhotoFile::decode(1, bytes);
    if (!photo)
        return;
    const QByteArray written = PhotoFile::encode(*photo);
    require(written.size() == PhotoFile::recordLength, "a record has its length");
    // Bytes that are no UTF-8 may need more room than there is, once.
    const std::optional<Photo> again = PhotoFile::decode(1, written);
    require(again && PhotoFile::decode(1, PhotoFile::encode(*again)) == again, "a picture comes back");
    Photo named = *photo;
    named.setPersons(photo->persons()); // composed from now on
    const QList<PhotoPerson> people = named.persons();
    named.setPersons(people);
    require(named.persons() == people, "people come back");
    require(PhotoPeople::linked(*photo, {}).size() == photo->persons().size(), "nobody is lost");
    const QString cut = PhotoTexts::cut(photo->story, PhotoTexts::captionBytes);
    require(PhotoTexts::fits(cut, PhotoTexts::captionBytes), "what is cut has room");
}

void tryAlbum(QByteArrayView bytes)
{
    if (const std::optional<PhotoPlace> place = AlbumFile::decodePlace(1, bytes))
        require(AlbumFile::decodePlace(1, AlbumFile::encode(*place)) == place, "a place comes back");
    const std::optional<PhotoAlbum> album = AlbumFile::decodeAlbum(1, bytes);
    if (!album)
        return;
    const std::optional<PhotoAlbum> again = AlbumFile::decodeAlbum(1, AlbumFile::encode(*album));
    require(again && AlbumFile::decodeAlbum(1, AlbumFile::encode(*again)) == again, "an album comes back");
}

/// A shelf of short records: places lead anywhere.
void tryShelf(QByteArrayView bytes)
{
    constexpr qsizetype length = 16;
    ShelfRecords records;
    int number = 1;
    for (QByteArrayView rest = bytes; !rest.isEmpty(); rest = rest.sliced(std::min(length, rest.size()))) {
        const QByteArrayView record = rest.first(std::min(length, rest.size()));
        records.readPhoto(number, record);
        records.readPlace(number, record);
        ++number;
    }
    records.settle();
    for (const PhotoAlbum &album : records.albums()) {
        std::vector<quint32> order;
        for (const PhotoPlace &place : records.places(album.record)) {
            require(records.photo(place.photo), "a place leads to a picture");
            order.push_back(place.order);
        }
        const std::vector<quint32> after = PlaceOrder::inserted(order, order.size() / 2, 2);
        require(after.size() == order.size() + 2 && std::ranges::is_sorted(after), "an order stays one");
    }
    for (const int free : records.freePhotos(4))
        require(!records.photo(free), "a free record holds no picture");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    tryPicture(bytes);
    tryAlbum(bytes);
    tryShelf(bytes);
    return 0;
}
