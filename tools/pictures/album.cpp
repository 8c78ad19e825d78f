// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photoshelf.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a person has said of a picture.
struct Said {
    const char16_t *caption;
    const char *date;
    const char16_t *people;
    int rating;
};

constexpr std::array said{Said{u"Anne and Karin at the lake", "1974~", u"Anne Lind; Karin Holm", 5},
                          Said{u"The first summer in the new house", "1982-22", u"Nils Holm", 4},
                          Said{u"Midsummer", "1985-06-21", u"", 0},
                          Said{u"Josephine begins school", "1989-08-21", u"Josephine Holm", 3},
                          Said{u"", "198X", u"", 0},
                          Said{u"Grandmother in her garden", "1970/1975", u"", 5},
                          Said{u"", "2019-07-04T15:12:00", u"", 0},
                          Said{u"On the way to Italy", "2019-11-21T09:30:00", u"", 2}};

/// The pictures of the household's entries, as an album that somebody has worked on for a while.
void furnish(const DataFolder &folder)
{
    PhotoShelf shelf(folder);
    shelf.load();
    std::vector<Photo> photos;
    const QDir pictures(folder.filePath(u"Pictures"_s));
    for (const QFileInfo &file : pictures.entryInfoList(QDir::Files, QDir::Name)) {
        const std::size_t which = photos.size();
        Photo photo;
        photo.path = shelf.storedPath(file.absoluteFilePath());
        photo.size = file.size();
        photo.fileTime = file.lastModified().toSecsSinceEpoch();
        if (which < said.size()) {
            photo.caption = QString::fromUtf16(said[which].caption);
            photo.people = QString::fromUtf16(said[which].people);
            photo.date = PhotoDate::fromEdtf(said[which].date);
            photo.rating = quint8(said[which].rating);
            photo.dateFrom = Photo::DateFrom::Typed;
        } else {
            photo.date = PhotoDate::of(QDate(2021, 5, 1).addDays(qint64(which) * 9));
            photo.dateFrom = Photo::DateFrom::Picture;
        }
        photos.push_back(photo);
    }
    const QList<int> records = shelf.addPhotos(std::move(photos));
    for (const QString &name : {u"Grandmother"_s, u"Summer House"_s, u"Italy 2019"_s}) {
        PhotoAlbum album;
        album.name = name;
        album.sorting = PhotoAlbum::Sorting::ByHand;
        const int number = shelf.addAlbum(album);
        shelf.putInto(number, records.mid(number % 3, 6));
    }
}

void takePanels(PictureSession &session)
{
    for (const auto &[command, name] : {std::pair("mEShift", "album-shift"),
                                        {"mPShow", "album-slide-show-options"},
                                        {"mPFind", "album-find-again"},
                                        {"mPAlike", "album-alike"},
                                        {"mPExport", "album-export"},
                                        {"mPCard", "album-cards"},
                                        {"mOPrt", "album-print"}}) {
        session.trigger(command);
        session.take(name);
        session.key(Qt::Key_Escape);
    }
    session.trigger("mOPrt");
    session.click("albumPrintShow");
    session.take("album-preview");
    session.key(Qt::Key_Escape);
    session.key(Qt::Key_Escape);
}

} // namespace

void Albums::photos(const Camera &camera)
{
    {
        PictureSession session(camera);
        session.open(Function::PhotoAlbum);
        session.take("album-empty");
    }
    PictureSession session(camera);
    furnish(session.program().folder);
    session.open(Function::PhotoAlbum);
    session.take("album-grid");
    session.focus("photoGrid");
    session.key(Qt::Key_Home);
    session.key(Qt::Key_F2);
    session.take("album-caption");
    session.focus("photoGrid");
    session.key(Qt::Key_Space);
    session.key(Qt::Key_Right);
    session.key(Qt::Key_Space);
    session.take("album-several");
    session.key(Qt::Key_Home);
    session.key(Qt::Key_Return);
    session.take("album-large");
    session.key(Qt::Key_Escape);
    takePanels(session);
    session.fill("photoSearch", u"summer 82"_s);
    session.take("album-search");
}
