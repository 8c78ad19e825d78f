// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photooffile.h"

#include "album/model/kepttexts.h"
#include "album/model/photodate.h"
#include "album/model/phototexts.h"
#include "album/model/picturefiles.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

Photo::DateFrom dateFrom(DateFound found)
{
    switch (found) {
    case DateFound::Picture:
        return Photo::DateFrom::Picture;
    case DateFound::File:
        return Photo::DateFrom::File;
    case DateFound::Nowhere:
        break;
    }
    return Photo::DateFrom::Nowhere;
}

/// Who led to the address book still does.
QList<PhotoPerson> persons(const QStringList &names, const QList<PhotoPerson> &before)
{
    QList<PhotoPerson> persons;
    persons.reserve(names.size());
    for (const QString &name : names) {
        const auto known = std::ranges::find(before, name, &PhotoPerson::name);
        persons.append(known == before.end() ? PhotoPerson{.name = name} : *known);
    }
    return persons;
}

/// As it is seen.
QSize upright(const FoundTexts &found, const QString &path)
{
    if (!found.pixels.isEmpty())
        return found.orientation >= 5 ? found.pixels.transposed() : found.pixels;
    if (!QFileInfo(path).isFile())
        return {}; // a pipe would let nobody go who waits for it
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90) ? size.transposed()
                                                                                     : size;
}

} // namespace

Photo PhotoOfFile::read(const QString &path, QDate today)
{
    Photo photo;
    const FoundTexts found = KeptTexts::read(path, today);
    take(photo, found);
    takeFacts(photo, path);
    const QSize size = upright(found, path);
    if (size.isValid()) {
        photo.width = quint32(size.width());
        photo.height = quint32(size.height());
    }
    return photo;
}

void PhotoOfFile::take(Photo &photo, const FoundTexts &found)
{
    const PictureTexts texts = cut(found.texts);
    photo.caption = texts.caption;
    photo.setTags(texts.tags);
    photo.setPersons(persons(texts.people, photo.persons()));
    photo.rating = quint8(texts.rating);
    const bool isTypedAlone =
        photo.dateFrom == Photo::DateFrom::Typed && found.dateFound != DateFound::Picture;
    if (!isTypedAlone) {
        photo.date = PhotoDate::fromEdtf(texts.date.toLatin1());
        photo.dateFrom = dateFrom(found.dateFound);
    }
    photo.set(Photo::TextsInFile, !PhotoOfFile::texts(photo).isEmpty());
}

void PhotoOfFile::takeFacts(Photo &photo, const QString &path)
{
    const qint64 size = QFileInfo(path).size();
    const qint64 time = PictureFiles::timeOf(path);
    if (size != photo.size || time != photo.fileTime)
        photo.hash = {};
    photo.size = size;
    photo.fileTime = time;
}

PictureTexts PhotoOfFile::texts(const Photo &photo)
{
    PictureTexts texts{.caption = photo.caption,
                       .people = PhotoTexts::list(photo.people),
                       .tags = photo.tagList(),
                       .rating = photo.rating,
                       .date = {}};
    if (photo.dateFrom == Photo::DateFrom::Typed)
        texts.date = QString::fromLatin1(photo.date.edtf());
    return texts;
}

PictureTexts PhotoOfFile::cut(const PictureTexts &texts)
{
    const auto cutList = [](const QStringList &list, qsizetype bytes) {
        return PhotoTexts::list(PhotoTexts::cut(PhotoTexts::joined(list), bytes));
    };
    PictureTexts whole = texts;
    whole.caption = PhotoTexts::cut(texts.caption, PhotoTexts::captionBytes);
    whole.people = cutList(texts.people, PhotoTexts::peopleBytes);
    whole.tags = cutList(texts.tags, PhotoTexts::tagsBytes);
    return whole;
}
