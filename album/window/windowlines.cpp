// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/windowlines.h"

#include "album/model/kepttexts.h"
#include "album/model/lines.h"
#include "album/model/photodatewords.h"
#include "album/model/phototexts.h"
#include "album/model/takendate.h"
#include "shell/core/dates.h"
#include "shell/pictures/heifpictures.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

using AlbumLines::number;

QString counted(int count, const QString &one, const QString &several)
{
    return number(count) + u' ' + (count == 1 ? one : several);
}

QString andList(const QStringList &names)
{
    if (names.size() < 2)
        return names.join(QString());
    return names.mid(0, names.size() - 1).join(u", "_s) + u" and "_s + names.last();
}

} // namespace

namespace AlbumWindowLines {

using AlbumLines::pictures;

QString nameOf(const Photo &photo)
{
    return photo.caption.isEmpty() ? photo.fileName() : photo.caption;
}

QString starsAndDate(const Photo &photo, const DateStyle &style)
{
    QString date = PhotoDateWords::words(photo.date, style);
    if (photo.rating == 0)
        return date;
    return QString(int(photo.rating), u'★') + (date.isEmpty() ? QString() : u"  "_s) + date;
}

QString withPeople(const Photo &photo)
{
    const QStringList people = PhotoTexts::list(photo.people);
    return people.isEmpty() ? QString() : u"with "_s + andList(people);
}

QString spoken(const Photo &photo, const DateStyle &style)
{
    QStringList parts{nameOf(photo), PhotoDateWords::words(photo.date, style), withPeople(photo)};
    if (photo.rating > 0)
        parts.append(counted(photo.rating, u"star"_s, u"stars"_s));
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

QString below(const Photo &photo, const DateStyle &style)
{
    QStringList parts{starsAndDate(photo, style), photo.place, withPeople(photo)};
    parts.removeAll(QString());
    QString words = parts.join(u", "_s);
    if (!photo.story.isEmpty())
        words += (words.isEmpty() ? QString() : u"\n"_s) + photo.story;
    return words;
}

QString sign(const Photo &photo, PictureQueue::Look look)
{
    switch (look) {
    case PictureQueue::Look::Away:
        return photo.has(Photo::NotThere) ? u"Its file is missing"_s : u"Its disk is not plugged in"_s;
    case PictureQueue::Look::Cut:
        return u"Only a part of its file can be read"_s;
    default:
        return {};
    }
}

QString facts(const Photo &photo)
{
    QStringList parts;
    if (photo.width > 0 && photo.height > 0)
        parts.append(u"%1 × %2"_s.arg(photo.width).arg(photo.height));
    if (photo.size > 0)
        parts.append(QLocale::c().formattedDataSize(photo.size, 1, QLocale::DataSizeSIFormat));
    const QString folder = QFileInfo(photo.path).path();
    if (folder != u"."_s)
        parts.append(QDir::toNativeSeparators(folder));
    return parts.join(u", "_s);
}

QString dateFrom(const Photo &photo, QDate today)
{
    switch (photo.dateFrom) {
    case Photo::DateFrom::Picture:
        return u"from the picture"_s;
    case Photo::DateFrom::File:
        if (TakenDate::fromName(photo.fileName(), today) == QString::fromLatin1(photo.date.edtf()))
            return u"from the file's name"_s;
        return u"from the file, which may be younger than the picture"_s;
    default:
        return {};
    }
}

QString place(int row, int count)
{
    return u"%1 of %2"_s.arg(number(row + 1), number(count));
}

QString nameOf(ShelfView::Kind kind)
{
    switch (kind) {
    case ShelfView::Kind::All:
        return u"All Pictures"_s;
    case ShelfView::Kind::NoAlbum:
        return u"In No Album"_s;
    case ShelfView::Kind::OnThisDay:
        return u"On This Day"_s;
    case ShelfView::Kind::NoDate:
        return u"Without a Date"_s;
    case ShelfView::Kind::Missing:
        return u"Missing"_s;
    default:
        return {};
    }
}

QString viewSpoken(const QString &name, int count)
{
    return name + u", "_s + pictures(count);
}

QString title(const PhotosShown &shown, const PhotoAlbum *album, QDate today, const DateStyle &style)
{
    if (shown.isSearch())
        return u"Found: “%1”"_s.arg(shown.words);
    switch (shown.view.kind) {
    case ShelfView::Kind::Album:
        return album ? album->name : QString();
    case ShelfView::Kind::Year:
        return QString::number(shown.view.number);
    case ShelfView::Kind::Decade:
        return u"The %1s"_s.arg(shown.view.number);
    case ShelfView::Kind::OnThisDay:
        return u"On This Day, %1"_s.arg(Dates::shortText(today, style));
    default:
        return nameOf(shown.view.kind);
    }
}

QString emptiness(const PhotosShown &shown)
{
    if (shown.isSearch())
        return u"No picture was found"_s;
    switch (shown.view.kind) {
    case ShelfView::Kind::NoAlbum:
        return u"Every picture is in an album"_s;
    case ShelfView::Kind::OnThisDay:
        return u"No picture was taken on this day in another year"_s;
    case ShelfView::Kind::NoDate:
        return u"Every picture has a date"_s;
    case ShelfView::Kind::Missing:
        return u"No picture is missing"_s;
    case ShelfView::Kind::Album:
        return u"There is no picture in this album yet"_s;
    default:
        return u"There is no picture here"_s;
    }
}

QString emptyLine(const PhotosShown &shown)
{
    if (shown.isSearch())
        return u"Captions, stories, people, tags, places, albums, file names and dates were searched."_s;
    return shown.isOf(ShelfView::Kind::Album)
               ? u"Drag pictures onto its name at the left, or choose Put into Album."_s
               : QString();
}

QString countOfAlbums(int count)
{
    return count == 0 ? u"No albums yet"_s : counted(count, u"album"_s, u"albums"_s);
}

QString differing(bool isWhole)
{
    return isWhole ? u"(they differ)"_s : u"(each has others, too)"_s;
}

QString changed(const QString &what, int count)
{
    return count == 1 ? u"Changed: %1"_s.arg(what) : u"Changed: %1 of %2"_s.arg(what, pictures(count));
}

QString rated(int rating, int count)
{
    const QString stars = rating == 0 ? u"no stars"_s : counted(rating, u"star"_s, u"stars"_s);
    return count == 1 ? u"Rated: %1"_s.arg(stars) : u"Rated: %1, %2"_s.arg(stars, pictures(count));
}

QString newAlbum()
{
    return u"New Album"_s;
}

QString turned(int count)
{
    return u"Turned: "_s + pictures(count);
}

QString leftOut(bool isLeftOut, int count)
{
    return (isLeftOut ? u"Left out of slide shows: "_s : u"In slide shows again: "_s) + pictures(count);
}

QString inAlready(const QString &album)
{
    return u"They are in “%1” already"_s.arg(album);
}

QString ratingEntry(int rating)
{
    return rating == 0 ? u"&No stars"_s : counted(rating, u"star"_s, u"stars"_s).prepend(u'&');
}

QString shiftTitle(int count)
{
    return u"Shift the Dates of "_s + pictures(count);
}

QString shiftOutcome(const QString &before, const QString &after)
{
    return before.isEmpty() ? u"The first one has no date, and keeps none"_s
                            : u"The first one: %1 becomes %2"_s.arg(before, after);
}

QString renamed(const QString &album)
{
    return u"Album renamed to “%1”"_s.arg(album);
}

QString intoTitle(PhotoAlbum::Into into)
{
    switch (into) {
    case PhotoAlbum::Into::Picture:
        return u"What is said of its pictures is written into them, too"_s;
    case PhotoAlbum::Into::Beside:
        return u"What is said of its pictures is written into files beside them, too"_s;
    default:
        return u"What is said of its pictures stands in the album alone"_s;
    }
}

QString orderTitle(PhotoAlbum::Sorting sorting)
{
    switch (sorting) {
    case PhotoAlbum::Sorting::ByHand:
        return u"Pictures of the album stand in the order that they are given by hand"_s;
    case PhotoAlbum::Sorting::ByName:
        return u"Pictures of the album stand by name"_s;
    default:
        return u"Pictures of the album stand by day"_s;
    }
}

QString watched(const QString &folder)
{
    return u"New pictures in %1 come into the album"_s.arg(QDir::toNativeSeparators(folder));
}

QString pathTooLong(const QString &path)
{
    return AlbumLines::pathTooLong(QDir::toNativeSeparators(path));
}

QString takenIn(const TakeIn::Result &result)
{
    QStringList parts{result.added.isEmpty() ? u"No new pictures"_s
                                             : u"%1 taken in"_s.arg(pictures(result.added.size()))};
    if (result.wasStopped)
        parts.append(u"stopped"_s);
    if (!result.whyNoMore.isEmpty())
        parts.append(u"others left out"_s);
    if (result.foundAgain > 0)
        parts.append(u"%1 found again"_s.arg(number(result.foundAgain)));
    if (result.known > 0)
        parts.append(u"%1 here already"_s.arg(number(result.known)));
    if (!result.refused.isEmpty())
        parts.append(u"%1 not taken, such as %2"_s.arg(number(result.refused.size()),
                                                       QDir::toNativeSeparators(result.refused.first())));
    const QString words = parts.join(u", "_s);
    return result.whyNoMore.isEmpty() ? words : result.whyNoMore + u": "_s + words;
}

QString count(int chosen, int shown, bool areMarked)
{
    if (areMarked && chosen > 0)
        return u"%1 marked"_s.arg(number(chosen));
    return chosen > 1 ? u"%1 of %2 chosen"_s.arg(number(chosen), pictures(shown)) : pictures(shown);
}

QString printed(const QString &name, int count)
{
    return u"%1: %2"_s.arg(name, pictures(count));
}

QString toASheet(int count)
{
    return u"%1 to a sheet"_s.arg(count);
}

QString toAPage(int count)
{
    return u"%1 to a page"_s.arg(count);
}

QString bothChanged(const QString &file, int count)
{
    const QString others =
        count > 1 ? u", and %1 after it"_s.arg(counted(count - 1, u"other"_s, u"others"_s)) : QString();
    return u"Changed here and by another program: %1%2. Where one of them says nothing, the other's is kept."_s
        .arg(file, others);
}

QString settleOthers(int count)
{
    return count == 1 ? u"&For the other one, too"_s : u"&For the %1 others, too"_s.arg(number(count));
}

QString conflicts(int count)
{
    return u"Changed here and by another program: "_s + pictures(count);
}

QString whatIsRead()
{
    QStringList formats{u"JPEG"_s, u"PNG"_s, u"GIF"_s, u"BMP"_s};
    const QList<QByteArray> further = QImageReader::supportedImageFormats();
    if (further.contains("webp"))
        formats.append(u"WebP"_s);
    if (further.contains("tiff"))
        formats.append(u"TIFF"_s);
    if (HeifPictures::areReadable())
        formats.append({u"HEIC"_s, u"AVIF"_s});
    return andList(formats) + u" can be read here.\n"_s +
           (KeptTexts::isBuiltIn()
                ? u"Captions, people, tags, ratings and dates can be written into pictures."_s
                : u"Captions stand in the album alone."_s);
}

} // namespace AlbumWindowLines
