// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumrecords.h"

#include "album/model/albumfile.h"
#include "album/model/photodatewords.h"
#include "album/model/photofile.h"
#include "album/model/photoshelf.h"
#include "album/model/shelfchange.h"
#include "album/model/shelfedits.h"
#include "shell/core/bringingback.h"

#include <QSet>

#include <algorithm>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Keys of albums begin with it, which no path does.
constexpr QChar albumSign = u'\n';

/// The records of a shelf by their keys: those of pictures, and those of albums.
struct Keyed {
    explicit Keyed(const PhotoShelf &shelf)
    {
        for (const Photo &photo : shelf.photos())
            add(photos, photo.path, photo.record);
        for (const PhotoAlbum &album : shelf.albums())
            add(albums, albumSign + album.name, album.record);
    }

    QList<std::pair<QString, int>> photos;
    QList<std::pair<QString, int>> albums;

    static int record(const QList<std::pair<QString, int>> &records, const QString &key)
    {
        const auto found = std::ranges::find(records, key, &std::pair<QString, int>::first);
        return found == records.end() ? 0 : found->second;
    }

private:
    void add(QList<std::pair<QString, int>> &records, const QString &key, int record)
    {
        const bool isFirst = !known.contains(key);
        known.insert(key);
        records.append({isFirst ? key : key + u'\n' + QString::number(record), record});
    }

    QSet<QString> known;
};

/// What is said of a picture, without what its file is like.
Photo said(Photo photo)
{
    photo.record = 0;
    photo.bits &= Photo::LeftOutOfShows;
    photo.width = 0;
    photo.height = 0;
    photo.size = 0;
    photo.fileTime = 0;
    photo.hash = {};
    return photo;
}

/// `photo` with what `other` says of it.
Photo saying(const Photo &photo, const Photo &other)
{
    Photo now = other;
    now.record = photo.record;
    now.path = photo.path;
    now.bits = quint8((photo.bits & ~Photo::LeftOutOfShows) | (other.bits & Photo::LeftOutOfShows));
    now.width = photo.width;
    now.height = photo.height;
    now.size = photo.size;
    now.fileTime = photo.fileTime;
    now.hash = photo.hash;
    return now;
}

QStringList pathsIn(const PhotoShelf &shelf, int album)
{
    QStringList paths;
    for (const int record : shelf.recordsIn(album)) {
        if (const Photo *photo = shelf.photo(record))
            paths.append(photo->path);
    }
    return paths;
}

QByteArray contentOf(const PhotoShelf &shelf, PhotoAlbum album)
{
    QStringList paths = pathsIn(shelf, album.record);
    paths.sort(); // an order by hand is no reason to differ
    const Photo *cover = shelf.photo(album.cover);
    paths.append(cover ? cover->path : QString());
    album.record = 0;
    album.order = 0;
    album.cover = 0;
    return AlbumFile::encode(album) + paths.join(u'\n').toUtf8();
}

QString titleOf(const Photo &photo)
{
    return photo.caption.isEmpty() ? photo.fileName() : photo.fileName() + u", "_s + photo.caption;
}

QString titleOf(const PhotoAlbum &album)
{
    return u"Album "_s + album.name;
}

QStringList linesOf(const PhotoShelf &shelf, const PhotoAlbum &album)
{
    QStringList lines;
    BringingBack::addLine(lines, u"Takes in new pictures of:"_s, album.folder);
    return lines + pathsIn(shelf, album.record);
}

/// Puts pictures and albums of one shelf into another, in one change.
class Bringing
{
public:
    Bringing(const DataFolder &folder, const PhotoShelf &here, const PhotoShelf &there)
        : m_folder(folder)
        , m_there(there)
        , m_hereKeys(here)
        , m_records(here.records())
        , m_here(here)
    {}

    /// The sentence for the user where it cannot be done; empty otherwise.
    QString bring(const QList<int> &photos, const QList<int> &albums)
    {
        QList<int> all = photos;
        for (const int album : albums) {
            for (const int record : m_there.recordsIn(album)) {
                if (!all.contains(record) && !hereOf(record))
                    all.append(record);
            }
        }
        bool isPossible = bringPhotos(all, photos);
        for (const int album : albums)
            isPossible = isPossible && bringAlbum(album);
        return isPossible ? QString() : m_refusal;
    }

    std::shared_ptr<ShelfChange> change() const { return m_change; }

private:
    bool take(ShelfEdits &edits, const ShelfEdits::Change &change)
    {
        m_refusal = edits.refusal();
        if (change)
            m_change->add(*change);
        return change != nullptr;
    }

    /// The record here of one there; 0 where it has none.
    int hereOf(int record) const
    {
        const Photo *photo = m_there.photo(record);
        if (!photo)
            return 0;
        const auto added = m_added.find(photo->path);
        return added != m_added.end() ? *added : Keyed::record(m_hereKeys.photos, photo->path);
    }

    bool bringPhotos(const QList<int> &records, const QList<int> &exchanged)
    {
        std::vector<Photo> added;
        ShelfEdits edits(m_folder, m_records);
        for (const int record : records) {
            const Photo *photo = m_there.photo(record);
            if (!photo)
                continue;
            const int here = hereOf(record);
            if (here == 0)
                added.push_back(*photo);
            else if (exchanged.contains(record) &&
                     !edits.changePhotos({here}, [photo](Photo &now) { now = saying(now, *photo); }))
                return take(edits, nullptr);
        }
        const ShelfEdits::Change change = edits.addPhotos(added, 0);
        for (const Photo &photo : added) {
            m_added.insert(photo.path, photo.record);
            m_records.readPhoto(photo.record, PhotoFile::encode(photo));
        }
        m_records.settle();
        return take(edits, change);
    }

    bool bringAlbum(int record)
    {
        const PhotoAlbum *there = m_there.album(record);
        if (!there)
            return true;
        PhotoAlbum album = *there;
        const int here = Keyed::record(m_hereKeys.albums, albumSign + album.name);
        album.record = here;
        album.cover = hereOf(there->cover);
        ShelfEdits edits(m_folder, m_records);
        if (here > 0) {
            album.order = m_here.album(here)->order;
            if (!take(edits, edits.changeAlbum(album)))
                return false;
        } else if (!take(edits, edits.addAlbum(album))) {
            return false;
        } else {
            album.order = m_records.albums().empty() ? AlbumFile::orderStep
                                                     : m_records.albums().back().order + AlbumFile::orderStep;
            m_records.readPlace(album.record, AlbumFile::encode(album));
            m_records.settle();
        }
        return fill(album.record, record);
    }

    /// Puts the pictures of the album `from` there into the album `into`.
    bool fill(int into, int from)
    {
        QList<int> photos;
        for (const int record : m_there.recordsIn(from))
            photos.append(hereOf(record));
        photos.removeAll(0);
        const QList<int> free = m_records.freePlaces(photos.size());
        ShelfEdits edits(m_folder, m_records);
        if (!take(edits, edits.putInto(into, photos, 0)))
            return false;
        for (const int number : free) // they are taken for the next album
            m_records.readPlace(number, AlbumFile::encode(PhotoPlace{.record = number}));
        m_records.settle();
        return true;
    }

    const DataFolder &m_folder;
    const PhotoShelf &m_there;
    Keyed m_hereKeys;
    ShelfRecords m_records; ///< as they are with what came already
    const PhotoShelf &m_here;
    QHash<QString, int> m_added;
    std::shared_ptr<ShelfChange> m_change = std::make_shared<ShelfChange>();
    QString m_refusal;
};

/// The records of those of `records` that have these keys.
QList<int> wanted(const QList<std::pair<QString, int>> &records, const QSet<QString> &keys,
                  QStringList &found)
{
    QList<int> numbers;
    for (const auto &[key, record] : records) {
        if (!keys.contains(key))
            continue;
        numbers.append(record);
        found.append(key);
    }
    return numbers;
}

} // namespace

AlbumRecords::AlbumRecords(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

QString AlbumRecords::counted(int count) const
{
    return BringingBack::counted(count, u"picture or album"_s, u"pictures and albums"_s);
}

std::vector<FunctionRecord> AlbumRecords::all() const
{
    PhotoShelf shelf(m_folder);
    shelf.load();
    const Keyed keyed(shelf);
    std::vector<FunctionRecord> records;
    records.reserve(std::size_t(keyed.photos.size() + keyed.albums.size()));
    for (const auto &[key, record] : keyed.albums) {
        const PhotoAlbum *album = shelf.album(record);
        records.push_back({key, titleOf(*album), BringingBack::markOf(contentOf(shelf, *album))});
    }
    for (const auto &[key, record] : keyed.photos) {
        const Photo *photo = shelf.photo(record);
        records.push_back({key, titleOf(*photo), BringingBack::markOf(PhotoFile::encode(said(*photo)))});
    }
    return records;
}

QStringList AlbumRecords::linesOf(const Photo &photo) const
{
    QStringList lines{u"File: "_s + photo.path};
    BringingBack::addLine(lines, u"Caption:"_s, photo.caption);
    BringingBack::addLine(lines, u"Story:"_s, photo.story);
    BringingBack::addLine(lines, u"Date:"_s, PhotoDateWords::words(photo.date, m_style));
    BringingBack::addLine(lines, u"Place:"_s, photo.place);
    BringingBack::addLine(lines, u"Tags:"_s, photo.tags);
    BringingBack::addLine(lines, u"People:"_s, photo.people);
    if (photo.rating > 0)
        lines.append(u"Stars: "_s + QString::number(photo.rating));
    if (photo.turns > 0)
        lines.append(u"Turned: "_s + QString::number(photo.turns * 90) + u'\u00b0');
    if (photo.has(Photo::LeftOutOfShows))
        lines.append(u"Left out of shows"_s);
    return lines;
}

QStringList AlbumRecords::lines(const QString &key) const
{
    PhotoShelf shelf(m_folder);
    shelf.load();
    const Keyed keyed(shelf);
    if (const Photo *photo = shelf.photo(Keyed::record(keyed.photos, key)))
        return linesOf(*photo);
    const PhotoAlbum *album = shelf.album(Keyed::record(keyed.albums, key));
    return album ? ::linesOf(shelf, *album) : QStringList();
}

void AlbumRecords::visitLines(
    const std::function<bool(const FunctionRecord &, const QStringList &)> &visit) const
{
    PhotoShelf shelf(m_folder);
    shelf.load();
    const Keyed keyed(shelf);
    for (const auto &[key, record] : keyed.albums) {
        const PhotoAlbum *album = shelf.album(record);
        if (!visit({key, titleOf(*album), {}}, ::linesOf(shelf, *album)))
            return;
    }
    for (const auto &[key, record] : keyed.photos) {
        const Photo *photo = shelf.photo(record);
        if (!visit({key, titleOf(*photo), {}}, linesOf(*photo)))
            return;
    }
}

RecordsBack AlbumRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const AlbumRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    PhotoShelf here(m_folder);
    PhotoShelf there(source->m_folder);
    here.load();
    there.load();
    if (const QString why = here.whyLocked(); !why.isEmpty())
        return BringingBack::refused(why);
    const Keyed keyed(there);
    const QSet<QString> asked(keys.begin(), keys.end());
    QStringList back;
    const QList<int> albums = wanted(keyed.albums, asked, back);
    const QList<int> photos = wanted(keyed.photos, asked, back);
    Bringing bringing(m_folder, here, there);
    if (const QString why = bringing.bring(photos, albums); !why.isEmpty())
        return BringingBack::refused(why);
    if (bringing.change()->isEmpty())
        return {back, {}, {}};
    return BringingBack::done(bringing.change(), m_folder, back, counted(int(back.size())));
}
