// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photofile.h"

#include "album/model/phototexts.h"
#include "album/model/recordbytes.h"

#include <algorithm>

namespace {

// Where a picture's fields stand.
constexpr qsizetype pathAt = 4;
constexpr qsizetype captionAt = 516;
constexpr qsizetype storyAt = 836;
constexpr qsizetype placeAt = 1796;
constexpr qsizetype tagsAt = 1876;
constexpr qsizetype peopleAt = 2036;
constexpr qsizetype personsAt = 2292;
constexpr qsizetype dateAt = 2356;
constexpr qsizetype dateFromAt = 2388;
constexpr qsizetype turnsAt = 2389;
constexpr qsizetype ratingAt = 2390;
constexpr qsizetype widthAt = PhotoFile::factsAt;
constexpr qsizetype heightAt = 2396;
constexpr qsizetype sizeAt = 2400;
constexpr qsizetype timeAt = 2408;
constexpr qsizetype hashAt = 2416;
constexpr qsizetype end = PhotoFile::factsEnd;
constexpr qsizetype numberLength = 4;

static_assert(captionAt - pathAt == PhotoTexts::pathBytes);
static_assert(storyAt - captionAt == PhotoTexts::captionBytes);
static_assert(placeAt - storyAt == PhotoTexts::storyBytes);
static_assert(tagsAt - placeAt == PhotoTexts::placeBytes);
static_assert(peopleAt - tagsAt == PhotoTexts::tagsBytes);
static_assert(personsAt - peopleAt == PhotoTexts::peopleBytes);
static_assert(dateAt - personsAt == numberLength * Photo::mostPeople);
static_assert(dateFromAt - dateAt == PhotoDate::width);
static_assert(end - hashAt == qsizetype(sizeof(Photo::Hash)));

quint8 byteAt(QByteArrayView bytes, qsizetype at)
{
    return RecordBytes::number<quint8>(bytes, at);
}

} // namespace

QByteArray PhotoFile::encode(const Photo &photo)
{
    QByteArray bytes(recordLength, '\0');
    std::ranges::copy(mark, bytes.begin());
    RecordBytes::putText(bytes, pathAt, PhotoTexts::pathBytes, photo.path);
    RecordBytes::putText(bytes, captionAt, PhotoTexts::captionBytes, PhotoTexts::composed(photo.caption));
    RecordBytes::putText(bytes, storyAt, PhotoTexts::storyBytes, PhotoTexts::composed(photo.story));
    RecordBytes::putText(bytes, placeAt, PhotoTexts::placeBytes, PhotoTexts::composed(photo.place));
    RecordBytes::putText(bytes, tagsAt, PhotoTexts::tagsBytes, PhotoTexts::composed(photo.tags));
    RecordBytes::putText(bytes, peopleAt, PhotoTexts::peopleBytes, PhotoTexts::composed(photo.people));
    qsizetype at = personsAt;
    for (const int record : photo.personRecords) {
        RecordBytes::put(bytes, at, qint32(record));
        at += numberLength;
    }
    std::ranges::copy(photo.date.edtf(), bytes.begin() + dateAt);
    RecordBytes::put(bytes, dateFromAt, quint8(photo.dateFrom));
    RecordBytes::put(bytes, turnsAt, photo.turns);
    RecordBytes::put(bytes, ratingAt, photo.rating);
    RecordBytes::put(bytes, bitsAt, photo.bits);
    RecordBytes::put(bytes, widthAt, photo.width);
    RecordBytes::put(bytes, heightAt, photo.height);
    RecordBytes::put(bytes, sizeAt, photo.size);
    RecordBytes::put(bytes, timeAt, photo.fileTime);
    std::ranges::copy(photo.hash, bytes.begin() + hashAt);
    return bytes;
}

std::optional<Photo> PhotoFile::decode(int record, QByteArrayView bytes)
{
    if (!bytes.startsWith(mark))
        return {};
    Photo photo;
    photo.record = record;
    photo.path = RecordBytes::text(bytes, pathAt, PhotoTexts::pathBytes);
    photo.caption = RecordBytes::text(bytes, captionAt, PhotoTexts::captionBytes);
    photo.story = RecordBytes::text(bytes, storyAt, PhotoTexts::storyBytes);
    photo.place = RecordBytes::text(bytes, placeAt, PhotoTexts::placeBytes);
    photo.tags = RecordBytes::text(bytes, tagsAt, PhotoTexts::tagsBytes);
    photo.people = RecordBytes::text(bytes, peopleAt, PhotoTexts::peopleBytes);
    for (std::size_t i = 0; i < photo.personRecords.size(); ++i)
        photo.personRecords[i] =
            std::max(RecordBytes::number<qint32>(bytes, personsAt + numberLength * qsizetype(i)), 0);
    photo.date = PhotoDate::fromEdtf(RecordBytes::textBytes(bytes, dateAt, PhotoDate::width));
    const quint8 from = byteAt(bytes, dateFromAt);
    photo.dateFrom =
        from <= quint8(Photo::DateFrom::Typed) ? Photo::DateFrom(from) : Photo::DateFrom::Nowhere;
    photo.turns = byteAt(bytes, turnsAt) % 4;
    photo.rating = quint8(std::min<int>(byteAt(bytes, ratingAt), Photo::mostRating));
    photo.bits = byteAt(bytes, bitsAt);
    photo.width = RecordBytes::number<quint32>(bytes, widthAt);
    photo.height = RecordBytes::number<quint32>(bytes, heightAt);
    photo.size = RecordBytes::number<qint64>(bytes, sizeAt);
    photo.fileTime = RecordBytes::number<qint64>(bytes, timeAt);
    if (bytes.size() >= end)
        std::copy_n(bytes.data() + hashAt, photo.hash.size(), photo.hash.begin());
    return photo;
}
