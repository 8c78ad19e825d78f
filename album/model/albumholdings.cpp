// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumholdings.h"

#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"
#include "album/model/shelfview.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList pathsOf(const PhotoShelf &shelf, const QList<int> &records)
{
    QStringList paths;
    for (const int record : records) {
        const QString path = QDir::cleanPath(shelf.filePath(*shelf.photo(record)));
        if (QFileInfo(path).isFile())
            paths.append(path);
    }
    return paths;
}

/// The pictures that `isOne` names, by date.
template <typename IsOne>
QStringList pathsWhere(const DataFolder &folder, const IsOne &isOne)
{
    PhotoShelf shelf(folder);
    shelf.load();
    QList<int> records;
    for (const Photo &photo : shelf.photos()) {
        if (isOne(photo))
            records.append(photo.record);
    }
    ShelfViews::sort(shelf, records, PhotoAlbum::Sorting::ByDate);
    return pathsOf(shelf, records);
}

} // namespace

QStringList AlbumHoldings::files(const DataFolder &folder)
{
    QStringList files;
    for (const QString &name : PhotoShelf::fileNames()) {
        if (const QString path = folder.existingFile({}, name); !path.isEmpty())
            files.append(QFileInfo(path).fileName());
    }
    files += QDir(folder.path())
                 .entryList({u"Photobk3 (set aside*).Fil"_s, u"Photobk4 (set aside*).Fil"_s}, QDir::Files,
                            QDir::Name);
    return files;
}

QStringList AlbumHoldings::pictures(const DataFolder &folder)
{
    QStringList paths = pathsWhere(folder, [](const Photo &) { return true; });
    paths.removeDuplicates();
    return paths;
}

QList<PictureAlbum> AlbumHoldings::albums(const DataFolder &folder)
{
    PhotoShelf shelf(folder);
    shelf.load();
    QList<PictureAlbum> albums;
    for (const PhotoAlbum &album : shelf.albums()) {
        QList<int> records = shelf.recordsIn(album.record);
        ShelfViews::sort(shelf, records, album.sorting);
        if (const QStringList paths = pathsOf(shelf, records); !paths.isEmpty())
            albums.append({album.name, paths});
    }
    return albums;
}

QStringList AlbumHoldings::picturesOfDay(const DataFolder &folder, QDate day)
{
    return pathsWhere(folder, [day](const Photo &photo) { return day.isValid() && photo.date.day() == day; });
}

QStringList AlbumHoldings::picturesOfPerson(const DataFolder &folder, const QString &person)
{
    const QString name = PhotoTexts::composed(person).simplified();
    return pathsWhere(folder, [&name](const Photo &photo) {
        return !name.isEmpty() && PhotoTexts::list(photo.people).contains(name, Qt::CaseInsensitive);
    });
}
