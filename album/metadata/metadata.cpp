// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/metadata/metadata.h"

#include <exiv2/exiv2.hpp>

#include <QtGlobal>

#include <map>
#include <mutex>
#include <string>

namespace {

constexpr char xmpCaption[] = "Xmp.dc.description";
constexpr char xmpTags[] = "Xmp.dc.subject";
constexpr char xmpPeople[] = "Xmp.iptcExt.PersonInImage";
constexpr char xmpRating[] = "Xmp.xmp.Rating";
constexpr char xmpCreated[] = "Xmp.photoshop.DateCreated";
constexpr char xmpOriginal[] = "Xmp.exif.DateTimeOriginal";
constexpr char xmpOrientation[] = "Xmp.tiff.Orientation";
constexpr char iptcMark[] = "Iptc.Envelope.CharacterSet";
constexpr char iptcCaption[] = "Iptc.Application2.Caption";
constexpr char iptcTags[] = "Iptc.Application2.Keywords";
constexpr char exifCaption[] = "Exif.Image.ImageDescription";
constexpr char exifOriginal[] = "Exif.Photo.DateTimeOriginal";
constexpr char exifDigitized[] = "Exif.Photo.DateTimeDigitized";
/// Where those two stand; it goes with the last of them.
constexpr char exifPlace[] = "Exif.Image.ExifTag";
constexpr char exifOrientation[] = "Exif.Image.Orientation";
/// Escape, "%G": what follows is UTF-8.
constexpr char utf8Mark[] = "\x1b%G";
/// What a keyword of IPTC may be long.
constexpr qsizetype keywordBytes = 64;
/// What a caption of IPTC may be long.
constexpr qsizetype captionBytes = 2000;

/// The library's code for XMP is not safe on several threads.
std::mutex oneAtATime; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): a lock is what it is

void prepare()
{
    static const bool isReady = [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::enableBMFF(true);
        return Exiv2::XmpParser::initialize();
    }();
    Q_UNUSED(isReady)
}

QByteArray bytesOf(const std::string &text)
{
    return {text.data(), qsizetype(text.size())};
}

std::string textOf(QByteArrayView bytes)
{
    return {bytes.data(), std::size_t(bytes.size())};
}

Exiv2::Image::AutoPtr opened(QByteArrayView file)
{
    Exiv2::Image::AutoPtr image =
        Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(file.data()), long(file.size()));
    image->readMetadata();
    return image;
}

// Reading.

QByteArray textAt(const Exiv2::XmpData &data, const char *key)
{
    const auto found = data.findKey(Exiv2::XmpKey(key));
    if (found == data.end())
        return {};
    if (const auto *text = dynamic_cast<const Exiv2::LangAltValue *>(&found->value())) {
        const auto any = text->value_.find("x-default");
        if (any != text->value_.end())
            return bytesOf(any->second);
        return text->value_.empty() ? QByteArray() : bytesOf(text->value_.begin()->second);
    }
    return bytesOf(found->toString());
}

QList<QByteArray> textsAt(const Exiv2::XmpData &data, const char *key)
{
    QList<QByteArray> texts;
    const auto found = data.findKey(Exiv2::XmpKey(key));
    if (found == data.end())
        return texts;
    texts.reserve(found->count());
    for (long i = 0; i < found->count(); ++i)
        texts.append(bytesOf(found->toString(i)));
    return texts;
}

QByteArray textAt(const Exiv2::ExifData &data, const char *key)
{
    const auto found = data.findKey(Exiv2::ExifKey(key));
    return found == data.end() ? QByteArray() : bytesOf(found->toString());
}

QList<QByteArray> textsAt(const Exiv2::IptcData &data, const char *key)
{
    QList<QByteArray> texts;
    for (const Exiv2::Iptcdatum &datum : data) {
        if (datum.key() == key)
            texts.append(bytesOf(datum.toString()));
    }
    return texts;
}

bool isCoordinate(const Exiv2::Exifdatum &datum)
{
    return datum.groupName() == "GPSInfo" || datum.key() == "Exif.Image.GPSTag";
}

bool isCoordinate(const Exiv2::Xmpdatum &datum)
{
    return datum.groupName() == "exif" && datum.tagName().rfind("GPS", 0) == 0;
}

void take(const Exiv2::XmpData &data, Metadata &found)
{
    found.xmp = {textAt(data, xmpCaption), textsAt(data, xmpPeople), textsAt(data, xmpTags)};
    found.rating = textAt(data, xmpRating);
    found.xmpCreated = textAt(data, xmpCreated);
    found.xmpOriginal = textAt(data, xmpOriginal);
    for (const Exiv2::Xmpdatum &datum : data)
        found.hasCoordinates = found.hasCoordinates || isCoordinate(datum);
}

void take(const Exiv2::Image &image, Metadata &found)
{
    take(image.xmpData(), found);
    const Exiv2::IptcData &iptc = image.iptcData();
    found.iptc = {textsAt(iptc, iptcCaption).value(0), {}, textsAt(iptc, iptcTags)};
    const Exiv2::ExifData &exif = image.exifData();
    found.exif.caption = textAt(exif, exifCaption);
    found.exifOriginal = textAt(exif, exifOriginal);
    found.exifDigitized = textAt(exif, exifDigitized);
    found.pixels = {image.pixelWidth(), image.pixelHeight()};
    const auto turned = exif.findKey(Exiv2::ExifKey(exifOrientation));
    if (turned != exif.end() && turned->count() > 0)
        found.orientation = int(turned->toLong());
    for (const Exiv2::Exifdatum &datum : exif)
        found.hasCoordinates = found.hasCoordinates || datum.groupName() == "GPSInfo";
}

// Writing.

bool isTakenOut(const std::optional<QByteArray> &text)
{
    return text && text->isEmpty();
}

template <typename Data, typename Key>
void takeOut(Data &data, const Key &key)
{
    for (auto at = data.findKey(key); at != data.end(); at = data.findKey(key))
        data.erase(at);
}

template <typename Data, typename IsMeant>
void takeOutIf(Data &data, IsMeant isMeant)
{
    for (auto at = data.begin(); at != data.end();)
        at = isMeant(*at) ? data.erase(at) : std::next(at);
}

void putList(Exiv2::XmpData &data, const char *key, const QList<QByteArray> &texts)
{
    const Exiv2::XmpKey place(key);
    takeOut(data, place);
    if (texts.isEmpty())
        return;
    Exiv2::XmpArrayValue list(Exiv2::xmpBag);
    for (const QByteArray &text : texts)
        list.read(textOf(text));
    data.add(place, &list);
}

/// Other languages of a caption stay.
void putCaption(Exiv2::XmpData &data, const QByteArray &caption)
{
    const Exiv2::XmpKey place(xmpCaption);
    Exiv2::LangAltValue text;
    const auto former = data.findKey(place);
    if (former != data.end()) {
        if (const auto *languages = dynamic_cast<const Exiv2::LangAltValue *>(&former->value()))
            text.value_ = languages->value_;
    }
    takeOut(data, place);
    if (caption.isEmpty())
        return;
    text.value_["x-default"] = textOf(caption);
    data.add(place, &text);
}

void put(Exiv2::XmpData &data, const MetadataChange &change)
{
    if (change.caption)
        putCaption(data, *change.caption);
    if (change.people)
        putList(data, xmpPeople, *change.people);
    if (change.tags)
        putList(data, xmpTags, *change.tags);
    if (change.rating) {
        takeOut(data, Exiv2::XmpKey(xmpRating));
        if (*change.rating != 0)
            data[xmpRating] = std::to_string(*change.rating);
    }
    if (isTakenOut(change.xmpCreated))
        takeOut(data, Exiv2::XmpKey(xmpCreated));
    else if (change.xmpCreated)
        data[xmpCreated] = textOf(*change.xmpCreated);
    const bool isWhole = change.xmpCreated && change.exifOriginal && !change.exifOriginal->isEmpty();
    if (isWhole && data.findKey(Exiv2::XmpKey(xmpOriginal)) != data.end())
        data[xmpOriginal] = textOf(*change.xmpCreated);
    if (change.orientation != 0 && data.findKey(Exiv2::XmpKey(xmpOrientation)) != data.end())
        data[xmpOrientation] = std::to_string(change.orientation);
    if (change.withoutCoordinates)
        takeOutIf(data, [](const Exiv2::Xmpdatum &datum) { return isCoordinate(datum); });
}

/// Marks the texts as UTF-8, and makes those so that were something else.
void markUtf8(Exiv2::IptcData &data, const MetadataChange &change)
{
    const Exiv2::IptcKey mark(iptcMark);
    if (textsAt(data, iptcMark).value(0) == utf8Mark)
        return;
    for (Exiv2::Iptcdatum &datum : data) {
        if (datum.typeId() == Exiv2::string)
            datum.setValue(textOf(change.asUtf8(bytesOf(datum.toString()))));
    }
    takeOut(data, mark);
    Exiv2::StringValue value(utf8Mark);
    data.add(mark, &value);
}

void put(Exiv2::IptcData &data, const MetadataChange &change)
{
    const bool isSaid =
        (change.caption && !change.caption->isEmpty()) || (change.tags && !change.tags->isEmpty());
    if (isSaid)
        markUtf8(data, change);
    if (change.caption) {
        const Exiv2::IptcKey place(iptcCaption);
        takeOut(data, place);
        Exiv2::StringValue value(textOf(*change.caption));
        if (!change.caption->isEmpty() && change.caption->size() <= captionBytes)
            data.add(place, &value);
    }
    if (change.tags) {
        const Exiv2::IptcKey place(iptcTags);
        takeOut(data, place);
        for (const QByteArray &tag : *change.tags) {
            Exiv2::StringValue value(textOf(tag));
            if (tag.size() <= keywordBytes)
                data.add(place, &value);
        }
    }
}

void put(Exiv2::ExifData &data, const MetadataChange &change)
{
    if (change.caption) {
        takeOut(data, Exiv2::ExifKey(exifCaption));
        if (!change.caption->isEmpty())
            data[exifCaption] = textOf(*change.caption);
    }
    if (isTakenOut(change.exifOriginal))
        takeOut(data, Exiv2::ExifKey(exifOriginal));
    else if (change.exifOriginal)
        data[exifOriginal] = textOf(*change.exifOriginal);
    if (change.orientation != 0)
        data[exifOrientation] = std::uint16_t(change.orientation);
    if (change.withoutCoordinates)
        takeOutIf(data, [](const Exiv2::Exifdatum &datum) { return isCoordinate(datum); });
}

/// How often each thing is said, apart from what a change may take out.
std::map<std::string, int> othersOf(const Exiv2::Image &image, const MetadataChange &change)
{
    std::map<std::string, int> others;
    others["comment " + image.comment()] = 1;
    for (const Exiv2::Exifdatum &datum : image.exifData()) {
        const bool isOfDate = datum.key() == exifOriginal || datum.key() == exifPlace;
        const bool mayGo = datum.key() == exifCaption || (isOfDate && isTakenOut(change.exifOriginal));
        if (!mayGo && !(change.withoutCoordinates && isCoordinate(datum)))
            ++others[datum.key()];
    }
    for (const Exiv2::Iptcdatum &datum : image.iptcData()) {
        if (datum.key() != iptcCaption && datum.key() != iptcTags && datum.key() != iptcMark)
            ++others[datum.key()];
    }
    for (const Exiv2::Xmpdatum &datum : image.xmpData()) {
        const std::string key = datum.key();
        const bool mayGo = key == xmpCaption || key == xmpPeople || key == xmpTags || key == xmpRating ||
                           (key == xmpCreated && isTakenOut(change.xmpCreated));
        if (!mayGo && !(change.withoutCoordinates && isCoordinate(datum)))
            ++others[key];
    }
    return others;
}

bool hasAll(const std::map<std::string, int> &now, const std::map<std::string, int> &before)
{
    for (const auto &[key, count] : before) {
        const auto found = now.find(key);
        if (found == now.end() || found->second < count)
            return false;
    }
    return true;
}

/// Whether there is XMP that the library could not take apart, and would write over.
bool hasUnreadXmp(const Exiv2::Image &image)
{
    return !image.xmpPacket().empty() && image.xmpData().empty();
}

bool mayWrite(const Exiv2::Image &image, Exiv2::MetadataId kind)
{
    return (image.checkMode(kind) & Exiv2::amWrite) != 0;
}

QByteArray written(QByteArrayView file, const MetadataChange &change)
{
    const Exiv2::Image::AutoPtr image = opened(file);
    if (!mayWrite(*image, Exiv2::mdXmp) || hasUnreadXmp(*image))
        return {};
    const auto before = othersOf(*image, change);
    put(image->xmpData(), change);
    if (mayWrite(*image, Exiv2::mdIptc))
        put(image->iptcData(), change);
    if (mayWrite(*image, Exiv2::mdExif))
        put(image->exifData(), change);
    image->writeMetadata();

    Exiv2::BasicIo &io = image->io();
    if (io.open() != 0)
        return {};
    QByteArray result(qsizetype(io.size()), Qt::Uninitialized);
    const long got = io.read(reinterpret_cast<Exiv2::byte *>(result.data()), long(result.size()));
    io.close();
    if (got != long(result.size()))
        return {};
    return hasAll(othersOf(*opened(result), change), before) ? result : QByteArray();
}

QByteArray writtenBeside(QByteArrayView text, const MetadataChange &change)
{
    Exiv2::XmpData data;
    if (!text.isEmpty() && Exiv2::XmpParser::decode(data, textOf(text)) != 0)
        return {};
    put(data, change);
    std::string packet;
    const auto form = std::uint16_t(Exiv2::XmpParser::omitPacketWrapper);
    if (Exiv2::XmpParser::encode(packet, data, form) != 0)
        return {};
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + bytesOf(packet);
}

// The border.

/// What `work` comes to; nothing where the library gave up.
template <typename Work>
auto guarded(Work work) -> decltype(work())
{
    try {
        const std::scoped_lock lock(oneAtATime);
        prepare();
        return work();
    } catch (...) { // its own errors, and what damaged bytes make of the standard library's
        return {};
    }
}

bool readFile(QByteArrayView file, Metadata &found)
{
    return guarded([&] {
        take(*opened(file), found);
        return true;
    });
}

bool readBesideText(QByteArrayView text, Metadata &found)
{
    return guarded([&] {
        Exiv2::XmpData data;
        if (Exiv2::XmpParser::decode(data, textOf(text)) != 0)
            return false;
        take(data, found);
        return true;
    });
}

QByteArray writeFile(QByteArrayView file, const MetadataChange &change)
{
    return guarded([&] { return written(file, change); });
}

QByteArray writeBesideText(QByteArrayView text, const MetadataChange &change)
{
    return guarded([&] { return writtenBeside(text, change); });
}

} // namespace

extern "C" Q_DECL_EXPORT const MetadataModule *quilleryMetadata()
{
    static constexpr MetadataModule table{readFile, readBesideText, writeFile, writeBesideText};
    return &table;
}
