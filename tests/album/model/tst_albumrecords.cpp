// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumrecords.h"
#include "album/model/photoshelf.h"
#include "tests/support/recordsback.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Photo photoOf(const QString &path, const QString &caption, qint64 size = 0)
{
    Photo photo;
    photo.path = path;
    photo.caption = caption;
    photo.size = size;
    return photo;
}

/// Puts pictures onto the list of a folder and, with a name, into an album there.
void make(const TestFolder &folder, const std::vector<Photo> &photos, const QString &album)
{
    PhotoShelf shelf(folder.folder());
    shelf.load();
    int number = 0;
    if (!album.isEmpty()) {
        PhotoAlbum made;
        made.name = album;
        number = shelf.addAlbum(made);
    }
    QVERIFY(photos.empty() || !shelf.addPhotos(photos, number).isEmpty());
}

const Photo sea = photoOf(u"Pictures/sea.jpg"_s, u"The sea"_s, 7);
const Photo wood = photoOf(u"Pictures/wood.jpg"_s, {});
const QStringList seaTold{u"sea.jpg, The sea"_s, u"File: Pictures/sea.jpg"_s, u"Caption: The sea"_s};
const QStringList woodTold{u"wood.jpg"_s, u"File: Pictures/wood.jpg"_s};
const QString album = u"\nSummer"_s;

} // namespace

class TestAlbumRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
        make(*m_there, {wood, sea}, u"Summer"_s);
    }

    void tellsOfPicturesAndAlbums()
    {
        const QStringList albumTold{u"Album Summer"_s, wood.path, sea.path};
        QCOMPARE(told(recordsOf(*m_there)), albumTold + woodTold + seaTold);
        // A copy cut short, and noise.
        m_there->put(u"Photobk3.Fil"_s, m_there->bytes(u"Photobk3.Fil"_s).left(2560 + 600));
        QCOMPARE(recordsOf(*m_there).all().size(), std::size_t(3));
        m_there->put(u"Photobk3.Fil"_s, noiseOf(6000));
        QCOMPARE(told(recordsOf(*m_there)), QStringList(u"Album Summer"_s));
    }

    void bringsBack_data()
    {
        using Photos = std::vector<Photo>;
        const Photo other = photoOf(u"Pictures/sea.jpg"_s, u"A lake"_s, 9);
        const Photo town = photoOf(u"Pictures/town.jpg"_s, {});
        const QStringList townTold{u"town.jpg"_s, u"File: Pictures/town.jpg"_s};
        rows<Photos, QString, QString, QStringList>({
            {"an album with its pictures",
             {},
             {},
             album,
             QStringList{u"Album Summer"_s, wood.path, sea.path} + woodTold + seaTold},
            {"an album, beside what came into it",
             {town},
             u"Summer"_s,
             album,
             QStringList{u"Album Summer"_s, town.path, wood.path, sea.path} + townTold + woodTold + seaTold},
            {"a picture that was taken off the list", {wood}, {}, sea.path, woodTold + seaTold},
            {"what was said of a picture", {town, other}, {}, sea.path, townTold + seaTold},
        });
    }
    void bringsBack()
    {
        const auto [photos, name, key, texts] = row<std::vector<Photo>, QString, QString, QStringList>();
        make(*m_here, photos, name);
        const QStringList before = told(recordsOf(*m_here));
        AlbumRecords records = recordsOf(*m_here);
        const RecordsBack back = records.bringBack(recordsOf(*m_there), {key});
        QCOMPARE(back.refusal, QString());
        QCOMPARE(back.keys, QStringList(key));
        QCOMPARE(told(records), texts);
        PhotoShelf shelf(m_here->folder());
        shelf.load();
        const Photo *photo = shelf.photoAt(sea.path);
        const bool wasThere = !photos.empty() && photos.back().path == sea.path;
        QVERIFY(photo && photo->size == (wasThere ? 9 : 7)); // what its file is like now is known here
        QCOMPARE(back.step->undo(), ChangeResult::Done);
        QCOMPARE(told(records), before);
        QCOMPARE(back.step->redo(), ChangeResult::Done);
        QCOMPARE(told(records), texts);
    }

private:
    static AlbumRecords recordsOf(const TestFolder &folder) { return {folder.folder(), DateStyle::Other}; }

    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestAlbumRecords)
#include "tst_albumrecords.moc"
