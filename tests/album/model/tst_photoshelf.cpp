// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photoshelf.h"
#include "tests/album/model/albumbytes.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QSignalSpy>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString photoFile = u"Photobk3.Fil"_s;
const QString albumFile = u"Photobk4.Fil"_s;

QByteArray picture(const QByteArray &path)
{
    return pictureBytes({{0, "PIC1"}, {4, path}});
}

QByteArray album(const QByteArray &name, char order = 4)
{
    return albumBytes({{0, "ALB1"}, {5, QByteArray(1, order)}, {16, name}});
}

QByteArray place(char album, char photo, char order)
{
    return albumBytes(
        {{0, "PLC1"}, {4, QByteArray(1, album)}, {8, QByteArray(1, photo)}, {13, QByteArray(1, order)}});
}

const QByteArray deletedPicture = pictureBytes({{0, "****"}});
const QByteArray deletedPlace = albumBytes({{0, "****"}});
const QByteArray threePictures = picture("a.jpg") + picture("b.jpg") + picture("c.jpg");
/// Grandmother with b and a, in this order.
const QByteArray oneAlbum = album("Grandmother") + place(1, 2, 4) + place(1, 1, 8);

Photo photoAt(const QString &path)
{
    Photo photo;
    photo.path = path;
    return photo;
}

} // namespace

/// The shelf on the bytes of its two files.
class TestPhotoShelf : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(u"*.warning=false"_s); }

    void init() { putBack(); }

    void knowsWhatTheFilesHave()
    {
        m_test.put(photoFile, picture("a.jpg") + deletedPicture + QByteArray(2560, '\0') + picture("d.jpg"));
        // A place of a picture that is gone, a second one of the same picture, an album by its order.
        m_test.put(albumFile, album("Second", 8) + place(1, 4, 8) + place(1, 1, 4) + place(1, 2, 1) +
                                  place(1, 4, 12) + album("First"));
        const auto shelf = opened();
        QCOMPARE(shelf->photos().size(), 2U);
        QVERIFY(!shelf->photo(2) && shelf->photo(4)->path == u"d.jpg"_s);
        QCOMPARE(shelf->albums().front().name, u"First"_s);
        QCOMPARE(shelf->recordsIn(1), QList<int>({1, 4}));
        QCOMPARE(shelf->albumsOf(4), QList<int>{1});
        QCOMPARE(shelf->coverOf(1), 1);
        QCOMPARE(shelf->coverOf(6), 0);
    }

    void writesTheFieldsThatChanged()
    {
        // What is no text of ours and what stands behind the fields stays as it is.
        QByteArray other = pictureBytes({{0, "PIC1"}, {4, "b.jpg"}, {836, "caf\xe9"}, {2500, "later"}});
        m_test.put(photoFile, picture("a.jpg") + other);
        const auto shelf = opened();
        QVERIFY(shelf->change({1, 2}, u"Rated"_s, [](Photo &photo) {
            photo.rating = 5;
            photo.caption = u"Lake"_s;
        }));
        QByteArray first = picture("a.jpg");
        for (QByteArray *record : {&first, &other}) {
            record->replace(516, 4, "Lake");
            record->replace(2390, 1, "\x05");
        }
        QVERIFY(m_test.bytes(photoFile) == first + other);
        QCOMPARE(shelf->photo(2)->caption, u"Lake"_s);
        QCOMPARE(m_steps.size(), 1);
        // A rating that somebody has given since is none of the caption's business.
        QVERIFY(shelf->note({1}, [](Photo &photo) { photo.place = u"Berlin"_s; }));
        QCOMPARE(m_steps.constLast().undo(), ChangeResult::Done);
        QCOMPARE(shelf->photo(1)->caption, QString());
        QCOMPARE(shelf->photo(1)->place, u"Berlin"_s);
    }

    void takesTheLowestFreeRecords()
    {
        m_test.put(photoFile, deletedPicture + picture("b.jpg") + QByteArray(2560, '\0') + picture("d.jpg"));
        m_test.put(albumFile, album("Grandmother") + deletedPlace);
        const auto shelf = opened();
        QCOMPARE(shelf->addPhotos({photoAt(u"x.jpg"_s), photoAt(u"y.jpg"_s), photoAt(u"z.jpg"_s)}, 1),
                 QList<int>({1, 3, 5}));
        QVERIFY(m_test.bytes(photoFile) ==
                picture("x.jpg") + picture("b.jpg") + picture("y.jpg") + picture("d.jpg") + picture("z.jpg"));
        QVERIFY(m_test.bytes(albumFile) ==
                album("Grandmother") + place(1, 1, 4) + place(1, 3, 8) + place(1, 5, 12));
        QCOMPARE(m_steps.constLast().undo(), ChangeResult::Done);
        QCOMPARE(shelf->photos().size(), 2U);
        QCOMPARE(shelf->countIn(1), 0);
    }

    /// The file of the pictures was lost, while the albums still name them.
    void inheritsNothingOfPicturesThatWereLost()
    {
        const QByteArray cover = albumBytes({{0, "ALB1"}, {5, "\x04"}, {8, "\x03"}, {16, "Grandmother"}});
        m_test.put(photoFile, {});
        m_test.put(albumFile, cover + place(1, 2, 4) + place(1, 1, 8));
        const auto shelf = opened();
        QCOMPARE(shelf->addPhotos({photoAt(u"x.jpg"_s), photoAt(u"y.jpg"_s)}), QList<int>({4, 5}));
        QCOMPARE(shelf->countIn(1), 0);
        QCOMPARE(shelf->coverOf(1), 0);
    }

    /// What is learnt of a file is nobody's doing: its content, that it is not there, that texts stand in it.
    void takesBackWhatWasDoneBeforeAFileWasLookedAt()
    {
        m_test.put(photoFile, deletedPicture + picture("b.jpg"));
        m_test.put(albumFile, {});
        const auto shelf = opened();
        const auto learn = [](Photo &photo) {
            photo.hash.fill(7);
            photo.size = 1000;
            photo.set(Photo::TextsInFile, true);
        };
        QCOMPARE(shelf->addPhotos({photoAt(u"x.jpg"_s), photoAt(u"y.jpg"_s)}), QList<int>({1, 3}));
        QVERIFY(shelf->note({1, 2, 3}, learn));
        QCOMPARE(m_steps.constLast().undo(), ChangeResult::Done);
        QVERIFY(m_test.bytes(photoFile).startsWith(deletedPicture));
        QVERIFY(m_test.bytes(photoFile).endsWith(QByteArray(2560, '\0')));
        QCOMPARE(m_steps.constLast().redo(), ChangeResult::Done);
        QVERIFY(shelf->note({1, 2, 3}, learn));
        QVERIFY(
            shelf->change({2}, u"Left out"_s, [](Photo &photo) { photo.set(Photo::LeftOutOfShows, true); }));
        QVERIFY(shelf->note({2}, [](Photo &photo) { photo.set(Photo::TextsInFile, false); }));
        QCOMPARE(m_steps.constLast().undo(), ChangeResult::Done);
        QVERIFY(!shelf->photo(2)->has(Photo::LeftOutOfShows) && !shelf->photo(2)->has(Photo::TextsInFile));
        QVERIFY(shelf->removePhotos({3}));
        QCOMPARE(m_steps.constLast().undo(), ChangeResult::Done);
        QCOMPARE(shelf->photo(3)->size, 1000);
    }

    void removesPlacesAndCoversWithAPicture()
    {
        QByteArray covered = album("Grandmother");
        covered[8] = 2;
        m_test.put(albumFile, covered + place(1, 2, 4) + place(1, 1, 8));
        const auto shelf = opened();
        QVERIFY(shelf->removePhotos({2}));
        QVERIFY(m_test.bytes(photoFile) == picture("a.jpg") + deletedPicture + picture("c.jpg"));
        QVERIFY(m_test.bytes(albumFile) == album("Grandmother") + deletedPlace + place(1, 1, 8));
        QCOMPARE(m_steps.constLast().title, u"Taken off the list: b.jpg"_s);
        QCOMPARE(m_steps.constLast().undo(), ChangeResult::Done);
        QVERIFY(m_test.bytes(photoFile) == threePictures);
        QCOMPARE(shelf->coverOf(1), 2);
        // The record is taken by another one: what was taken off cannot go there.
        QCOMPARE(m_steps.constLast().redo(), ChangeResult::Done);
        QCOMPARE(shelf->addPhotos({photoAt(u"x.jpg"_s)}), QList<int>{2});
        QCOMPARE(m_steps.constFirst().undo(), ChangeResult::Outdated);
    }

    void makesMovesAndRemovesAlbums()
    {
        const auto shelf = opened();
        const int second = shelf->addAlbum({.name = u"Second"_s});
        const int third = shelf->addAlbum({.name = u"Third"_s});
        QCOMPARE(second, 4);
        QVERIFY(m_test.bytes(albumFile) ==
                oneAlbum + albumBytes({{0, "ALB1"}, {5, "\x08"}, {12, "\x01"}, {16, "Second"}}) +
                    albumBytes({{0, "ALB1"}, {5, "\x0c"}, {12, "\x01"}, {16, "Third"}}));
        QVERIFY(shelf->moveAlbum(third, 1));
        QCOMPARE(names(*shelf), QStringList({u"Third"_s, u"Grandmother"_s, u"Second"_s}));
        QVERIFY(shelf->removeAlbum(1));
        QCOMPARE(names(*shelf), QStringList({u"Third"_s, u"Second"_s}));
        QVERIFY(m_test.bytes(albumFile).startsWith(QByteArray(deletedPlace + deletedPlace + deletedPlace)));
        QVERIFY(m_test.bytes(photoFile) == threePictures);
        QVERIFY(!shelf->addAlbum({.name = QString(97, u'a')}));
        QCOMPARE(m_said.constLast(), u"This name is too long"_s);
    }

    void writesOneRecordForADrag()
    {
        const auto shelf = opened();
        QVERIFY(shelf->putInto(1, {3, 1})); // 1 is there already
        QVERIFY(m_test.bytes(albumFile) == oneAlbum + place(1, 3, 12));
        QVERIFY(shelf->arrange(1, {3}, 1));
        QVERIFY(m_test.bytes(albumFile) == oneAlbum + place(1, 3, 6));
        QVERIFY(shelf->takeOut(1, {3}));
        QVERIFY(m_test.bytes(albumFile) == oneAlbum + deletedPlace);
    }

    /// Against a plain list; each of them taken back and made again now and then.
    void arrangesAsAPlainList()
    {
        QByteArray pictures;
        for (int i = 0; i < 30; ++i)
            pictures += picture("p.jpg");
        m_test.put(photoFile, pictures);
        m_test.put(albumFile, album("Grandmother"));
        const auto shelf = opened();
        QList<int> plain(30);
        std::iota(plain.begin(), plain.end(), 1);
        QVERIFY(shelf->putInto(1, plain));
        QRandomGenerator random(19);
        for (int i = 0; i < 1000; ++i) {
            QList<int> moved{plain.takeAt(random.bounded(int(plain.size())))};
            if (random.bounded(4) == 0)
                moved.append(plain.takeAt(random.bounded(int(plain.size()))));
            // Often to the same place, where the numbers run out.
            const qsizetype at = random.bounded(2) == 0 ? 3 : random.bounded(int(plain.size()) + 1);
            QVERIFY(shelf->arrange(1, moved, plain.value(at, 0)));
            for (qsizetype j = 0; j < moved.size(); ++j)
                plain.insert(at + j, moved[j]);
            QCOMPARE(shelf->recordsIn(1), plain);
            if (i % 10 == 0) {
                QCOMPARE(m_steps.constLast().undo(), ChangeResult::Done);
                QCOMPARE(m_steps.constLast().redo(), ChangeResult::Done);
                QCOMPARE(opened()->recordsIn(1), plain);
            }
        }
    }

    void survivesAFullDiskAndAKill_data()
    {
        rows<std::function<bool(PhotoShelf &)>>(
            {{"a caption",
              [](PhotoShelf &shelf) {
                  return shelf.change({1, 2}, u"Caption"_s, [](Photo &photo) { photo.caption = u"Lake"_s; });
              }},
             {"a new picture",
              [](PhotoShelf &shelf) { return !shelf.addPhotos({photoAt(u"x.jpg"_s)}, 1).isEmpty(); }},
             {"a picture that goes", [](PhotoShelf &shelf) { return shelf.removePhotos({2}); }},
             {"an album that goes", [](PhotoShelf &shelf) { return shelf.removeAlbum(1); }},
             {"a drag", [](PhotoShelf &shelf) { return shelf.arrange(1, {1}, 2); }}});
    }
    void survivesAFullDiskAndAKill()
    {
        const auto [change] = row<std::function<bool(PhotoShelf &)>>();
        failAtEachStep(
            m_test.folder(), [this] { putBack(); },
            [&, change = change] {
                PhotoShelf shelf(m_test.folder());
                shelf.load();
                return change(shelf);
            },
            [this] { return QByteArray(m_test.bytes(photoFile) + m_test.bytes(albumFile)); });
    }

    /// Before anything is recovered, as another program would read it.
    void leavesNoPlaceWithoutItsPicture()
    {
        for (int refused = 1; refused <= 12; ++refused) {
            putBack();
            {
                const auto shelf = opened();
                const FailingDisk disk(DiskFailure::TheEnd, refused);
                std::ignore = refused % 2 == 0 ? shelf->removePhotos({2})
                                               : !shelf->addPhotos({photoAt(u"x.jpg"_s)}, 1).isEmpty();
            }
            const auto shelf = opened();
            for (const PhotoPlace &place : shelf->records().allPlaces())
                QVERIFY(shelf->photo(place.photo));
            QVERIFY(ChangeSet::recover(m_test.folder()));
        }
    }

    void writesNothingToWhatIsNotOurs_data()
    {
        rows<QByteArray, bool>({{"noise", noiseOf(6000), true},
                                {"text", "Dear Anne,\r\n", true},
                                {"short", "PI", true},
                                {"cut in a record", picture("a.jpg").first(900), false},
                                {"one record of noise among ours", noiseOf(2560) + picture("b.jpg"), false},
                                {"nothing", "", false},
                                {"zeros", QByteArray(6000, '\0'), false}});
    }
    void writesNothingToWhatIsNotOurs()
    {
        const auto [bytes, isForeign] = row<QByteArray, bool>();
        m_test.put(photoFile, bytes);
        const auto shelf = opened();
        QCOMPARE(shelf->foreignFiles().contains(photoFile), isForeign);
        QCOMPARE(shelf->addPhotos({photoAt(u"x.jpg"_s)}).isEmpty(), isForeign);
        QVERIFY(isForeign
                    ? m_test.bytes(photoFile) == bytes
                    : m_test.bytes(photoFile).startsWith(bytes.first(std::min<qsizetype>(4, bytes.size()))) ||
                          bytes.startsWith('\0'));
        if (!isForeign)
            return;
        QCOMPARE(m_said.constLast(),
                 u"Photobk3.Fil is not a file of this photo album: it is left as it is."_s);
        QVERIFY(shelf->setAside(photoFile));
        QVERIFY(m_test.bytes(u"Photobk3 (set aside).Fil"_s) == bytes);
        QCOMPARE(shelf->addPhotos({photoAt(u"x.jpg"_s)}), QList<int>{3}); // the album still names the others
        m_test.put(photoFile, bytes);
        shelf->load();
        QVERIFY(shelf->setAside(photoFile));
        QVERIFY(m_test.bytes(u"Photobk3 (set aside 2).Fil"_s) == bytes);
    }

    void seesWhatSomebodyElseHasWritten()
    {
        const auto shelf = opened();
        m_test.put(photoFile, picture("a.jpg") + deletedPicture + picture("c.jpg"));
        QVERIFY(!shelf->change({2}, u"Caption"_s, [](Photo &photo) { photo.caption = u"Lake"_s; }));
        QVERIFY(!shelf->photo(2));
        QVERIFY(m_said.constLast().startsWith(u"Somebody else"_s));
    }

    void refusesWhereNothingMayBeWritten()
    {
        const DataFolder readOnly(m_test.folder().path(), u"For reading only."_s);
        PhotoShelf shelf(readOnly);
        shelf.load();
        QCOMPARE(shelf.photos().size(), 3U);
        QVERIFY(!shelf.removePhotos({1}));
        QCOMPARE(shelf.whyLocked(), u"For reading only."_s);
        QVERIFY(m_test.bytes(photoFile) == threePictures);
    }

    void refusesATextThatHasNoRoom()
    {
        const auto shelf = opened();
        const auto add = [](Photo &photo) { photo.people += QString(photo.record * 80, u'\u00e9'); };
        QVERIFY(shelf->change({1}, u"People"_s, add));
        const QByteArray before = m_test.bytes(photoFile);
        QVERIFY(!shelf->change({1, 2}, u"People"_s, add)); // none of both
        QCOMPARE(m_said.constLast(), u"The list of people of a.jpg would be too long"_s);
        QVERIFY(m_test.bytes(photoFile) == before);
        // An accent by itself is part of its letter in the file.
        QVERIFY(shelf->change({3}, u"Caption"_s, [](Photo &photo) { photo.caption = u"cafe\u0301"_s; }));
        QCOMPARE(m_test.bytes(photoFile).mid(2 * 2560 + 516, 6), QByteArray("caf\xc3\xa9\0", 6));
    }

    void refusesAPathThatNoRecordCanKeep()
    {
        const auto shelf = opened();
        QVERIFY(shelf->addPhotos({photoAt(QString(600, u'a'))}).isEmpty());
        QVERIFY(m_said.constLast().contains(u"too long"_s));
        QVERIFY(m_test.bytes(photoFile) == threePictures);
    }

private:
    void putBack()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
        m_test.put(photoFile, threePictures);
        m_test.put(albumFile, oneAlbum);
        m_steps.clear();
        m_said.clear();
    }

    std::unique_ptr<PhotoShelf> opened()
    {
        auto shelf = std::make_unique<PhotoShelf>(m_test.folder());
        connect(shelf.get(), &PhotoShelf::edited, this,
                [this](const UndoStep &step) { m_steps.append(step); });
        connect(shelf.get(), &PhotoShelf::said, this, [this](const QString &line) { m_said.append(line); });
        shelf->load();
        return shelf;
    }

    static QStringList names(const PhotoShelf &shelf)
    {
        QStringList names;
        for (const PhotoAlbum &album : shelf.albums())
            names.append(album.name);
        return names;
    }

    TestFolder m_test;
    QList<UndoStep> m_steps;
    QStringList m_said;
};

QTEST_APPLESS_MAIN(TestPhotoShelf)
#include "tst_photoshelf.moc"
