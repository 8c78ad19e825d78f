// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/kepttexts.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "album/model/shelflook.h"
#include "album/model/textlines.h"
#include "album/model/textskeeper.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);

/// Writes into the picture as another program does.
void writeElsewhere(const QString &path, const QString &caption, int rating = 0)
{
    QTest::qWait(20); // files tell their times in whole milliseconds
    PictureTexts texts = KeptTexts::read(path, today).texts;
    texts.caption = caption;
    texts.rating = rating;
    texts.date.clear();
    QVERIFY(KeptTexts::write(path, texts, KeptTexts::Into::Picture, today).isKept);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime);
}

} // namespace

class TestTextsKeeper : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestFolder> m_data;
    std::unique_ptr<PhotoShelf> m_shelf;
    QString m_path;
    int m_album = 0;
    int m_record = 0;

    void makeShelf(PhotoAlbum::Into into)
    {
        m_album = m_shelf->addAlbum({.into = into, .name = u"Grandmother"_s});
        Photo photo = PhotoOfFile::read(m_path, today);
        photo.path = m_shelf->storedPath(m_path);
        m_record = m_shelf->addPhotos({photo}, m_album).value(0);
        QVERIFY(m_record > 0);
    }
    void say(const QString &caption)
    {
        QVERIFY(m_shelf->change({m_record}, u"Caption"_s, [&](Photo &photo) { photo.caption = caption; }));
    }
    void look(ShelfLook &look, const MountedPlaces &places = {})
    {
        QSignalSpy finished(&look, &ShelfLook::finished);
        look.start(today, places);
        QVERIFY(finished.wait(10000));
    }
    const Photo &photo() const { return *m_shelf->photo(m_record); }
    QString inFile() const { return KeptTexts::read(m_path, today).texts.caption; }

private slots:
    void init()
    {
        if (!KeptTexts::isBuiltIn())
            QSKIP("built without the library for texts in pictures");
        m_data = std::make_unique<TestFolder>();
        m_shelf = std::make_unique<PhotoShelf>(m_data->folder());
        m_shelf->load();
        m_path = makePicture(m_data->path(u"lake.jpg"_s), {16, 12});
    }

    void captionsGoWhereTheAlbumWantsThem_data()
    {
        rows<int, bool, bool>({{"nowhere", int(PhotoAlbum::Into::Nowhere), false, false},
                               {"into the picture", int(PhotoAlbum::Into::Picture), true, false},
                               {"beside it", int(PhotoAlbum::Into::Beside), true, true}});
    }
    void captionsGoWhereTheAlbumWantsThem()
    {
        const auto [into, isInFile, isBeside] = row<int, bool, bool>();
        const QByteArray original = contentOf(m_path);
        makeShelf(PhotoAlbum::Into(into));
        std::optional<UndoStep> step;
        connect(m_shelf.get(), &PhotoShelf::edited, this, [&](const UndoStep &last) { step = last; });
        TextsKeeper keeper(*m_shelf, today);
        QSignalSpy finished(&keeper, &TextsKeeper::finished);
        say(u"Anne at the lake"_s);
        QCOMPARE(finished.wait(isInFile ? 10000 : 50), isInFile);
        QCOMPARE(inFile(), isInFile ? u"Anne at the lake"_s : QString());
        QCOMPARE(contentOf(m_path) == original, !isInFile || isBeside);
        QCOMPARE(QFile::exists(m_path + u".xmp"_s), isBeside);
        QCOMPARE(photo().has(Photo::TextsInFile), isInFile);
        QCOMPARE(photo().size, QFileInfo(m_path).size());
        QCOMPARE(photo().isHashed(), isInFile); // it may be moved before the next look

        QCOMPARE(step->undo(), ChangeResult::Done);
        if (isInFile)
            QVERIFY(finished.wait(10000));
        QCOMPARE(inFile(), QString());
        QCOMPARE(photo().caption, QString());
    }

    void whatTheDiskRefusesStaysInTheAlbum()
    {
        makeShelf(PhotoAlbum::Into::Picture);
        QFile::setPermissions(m_path, QFileDevice::ReadOwner);
        if (QFileInfo(m_path).isWritable())
            QVERIFY(QFile::remove(m_path) && QDir().mkpath(m_path)); // whom no right stops
        TextsKeeper keeper(*m_shelf, today);
        QSignalSpy said(&keeper, &TextsKeeper::said);
        say(u"Anne at the lake"_s);
        QVERIFY(said.wait(10000));
        QVERIFY(!photo().has(Photo::TextsInFile));
        QCOMPARE(photo().caption, u"Anne at the lake"_s);
    }

    void anAlbumThatWantsThemLaterCatchesUp()
    {
        makeShelf(PhotoAlbum::Into::Nowhere);
        TextsKeeper keeper(*m_shelf, today);
        say(u"Anne at the lake"_s);
        PhotoAlbum album = *m_shelf->album(m_album);
        album.into = PhotoAlbum::Into::Picture;
        QVERIFY(m_shelf->changeAlbum(u"Into the pictures"_s, album));
        QSignalSpy finished(&keeper, &TextsKeeper::finished);
        keeper.catchUp();
        QVERIFY(finished.wait(10000));
        QCOMPARE(inFile(), u"Anne at the lake"_s);
    }

    void whatAnotherProgramWritesComesIntoTheAlbum()
    {
        makeShelf(PhotoAlbum::Into::Picture);
        TextsKeeper keeper(*m_shelf, today);
        ShelfLook shelfLook(*m_shelf);
        writeElsewhere(m_path, u"Karin at the lake"_s);
        look(shelfLook);
        QCOMPARE(photo().caption, u"Karin at the lake"_s);
        QVERIFY(photo().has(Photo::TextsInFile) && photo().isHashed());
        QVERIFY(shelfLook.conflicts().empty() && !keeper.isRunning());
    }

    void whatAnotherProgramWroteMeanwhileIsNotWrittenOver()
    {
        makeShelf(PhotoAlbum::Into::Picture);
        TextsKeeper keeper(*m_shelf, today);
        QSignalSpy foundChanged(&keeper, &TextsKeeper::foundChanged);
        writeElsewhere(m_path, u"Karin"_s);
        say(u"Anne"_s);
        QVERIFY(foundChanged.wait(10000));
        QCOMPARE(inFile(), u"Karin"_s);
        ShelfLook shelfLook(*m_shelf);
        look(shelfLook);
        QCOMPARE(shelfLook.conflicts().size(), std::size_t(1));
        connect(&shelfLook, &ShelfLook::keptInAlbum, &keeper, &TextsKeeper::write);
        QSignalSpy finished(&keeper, &TextsKeeper::finished);
        QVERIFY(shelfLook.settle({m_record}, ShelfLook::Keep::InAlbum));
        QVERIFY(finished.wait(10000));
        QCOMPARE(inFile(), u"Anne"_s);
    }

    void whatAFileSaysNothingOfStays_data()
    {
        rows<QByteArray, bool>({{"stripped of its texts", {}, true},
                                {"noise", QByteArray(5000, 'x'), false},
                                {"cut short", QByteArray("\xFF\xD8\xFF\xE0"), false}});
    }
    void whatAFileSaysNothingOfStays()
    {
        const auto [bytes, isPicture] = row<QByteArray, bool>();
        const QByteArray stripped = contentOf(m_path);
        makeShelf(PhotoAlbum::Into::Picture);
        TextsKeeper keeper(*m_shelf, today);
        QSignalSpy finished(&keeper, &TextsKeeper::finished);
        QVERIFY(m_shelf->change({m_record}, u"All"_s, [](Photo &photo) {
            photo.caption = u"Anne at the lake"_s;
            photo.setTags({u"summer"_s});
            photo.rating = 4;
            photo.date = PhotoDate::fromEdtf("1974~");
            photo.dateFrom = Photo::DateFrom::Typed;
        }));
        QVERIFY(finished.wait(10000));
        const PictureTexts texts = PhotoOfFile::texts(photo());
        const Photo::Hash hash = photo().hash;
        QTest::qWait(20);
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(isPicture ? stripped : bytes) > 0);
        file.close();
        ShelfLook shelfLook(*m_shelf);
        look(shelfLook);
        QCOMPARE(PhotoOfFile::texts(photo()), texts);
        QVERIFY(shelfLook.conflicts().empty());
        QCOMPARE(photo().has(Photo::TextsInFile), !isPicture);
        QCOMPARE(photo().hash == hash, !isPicture); // the good one may be found elsewhere
        QCOMPARE(photo().width, quint32(16));
    }

    void anotherTimeAloneIsNoChange()
    {
        writeElsewhere(m_path, u"Karin"_s);
        makeShelf(PhotoAlbum::Into::Nowhere);
        TextsKeeper keeper(*m_shelf, today);
        say(u"Anne"_s);
        ShelfLook shelfLook(*m_shelf);
        look(shelfLook);
        const QDateTime later = QDateTime::currentDateTime().addSecs(3600);
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadWrite) &&
                file.setFileTime(later, QFileDevice::FileModificationTime));
        file.close();
        look(shelfLook);
        QVERIFY(shelfLook.conflicts().empty());
        QCOMPARE(photo().caption, u"Anne"_s);
        QCOMPARE(photo().fileTime, later.toSecsSinceEpoch());
    }

    void aDateThatIsTakenBackIsTakenBackInTheFile_data()
    {
        rows<QString, QByteArray>({{"the camera's", u"2019-07-04T15:30:12"_s, "2019-07-04T16:30:12"},
                                   {"none in the picture", {}, "1974~"},
                                   {"none in the picture, a whole one typed", {}, "1974-07-04T16:30:12"}});
    }
    void aDateThatIsTakenBackIsTakenBackInTheFile()
    {
        const auto [inPicture, typed] = row<QString, QByteArray>();
        PictureTexts texts;
        texts.caption = u"Anne"_s;
        texts.date = inPicture;
        QVERIFY(KeptTexts::write(m_path, texts, KeptTexts::Into::Picture, today).isKept);
        makeShelf(PhotoAlbum::Into::Picture);
        std::optional<UndoStep> step;
        connect(m_shelf.get(), &PhotoShelf::edited, this, [&](const UndoStep &last) { step = last; });
        TextsKeeper keeper(*m_shelf, today);
        QSignalSpy finished(&keeper, &TextsKeeper::finished);
        QVERIFY(m_shelf->change({m_record}, u"Later"_s, [&](Photo &photo) {
            photo.date = PhotoDate::fromEdtf(typed);
            photo.dateFrom = Photo::DateFrom::Typed;
        }));
        QVERIFY(finished.wait(10000));
        QCOMPARE(KeptTexts::read(m_path, today).texts.date, QString::fromLatin1(typed));
        QCOMPARE(step->undo(), ChangeResult::Done);
        QVERIFY(finished.wait(10000));
        const FoundTexts found = KeptTexts::read(m_path, today);
        QCOMPARE(found.dateFound == DateFound::Picture, !inPicture.isEmpty());
        if (!inPicture.isEmpty())
            QCOMPARE(found.texts.date, inPicture);
    }

    void whereBothWereChangedThePersonDecides_data()
    {
        rows<bool>({{"for the album", true}, {"for the picture", false}});
    }
    void whereBothWereChangedThePersonDecides()
    {
        const auto [isForAlbum] = row<bool>();
        const auto keep = isForAlbum ? ShelfLook::Keep::InAlbum : ShelfLook::Keep::InPicture;
        makeShelf(PhotoAlbum::Into::Nowhere);
        say(u"Anne"_s);
        QVERIFY(m_shelf->change({m_record}, u"Tags"_s, [](Photo &photo) { photo.setTags({u"summer"_s}); }));
        writeElsewhere(m_path, u"Karin"_s, 4);
        ShelfLook shelfLook(*m_shelf);
        look(shelfLook);
        QCOMPARE(photo().caption, u"Anne"_s);
        QCOMPARE(inFile(), u"Karin"_s);
        QCOMPARE(shelfLook.conflicts().size(), std::size_t(1));
        QCOMPARE(shelfLook.conflicts().front().inPicture.texts.caption, u"Karin"_s);
        ShelfLook later(*m_shelf); // it was left unsettled
        look(later);
        QCOMPARE(later.conflicts().size(), std::size_t(1));

        std::optional<UndoStep> step;
        connect(m_shelf.get(), &PhotoShelf::edited, this, [&](const UndoStep &last) { step = last; });
        QSignalSpy outdated(&shelfLook, &ShelfLook::outdated);
        const Photo before = photo();
        QVERIFY(shelfLook.settle({m_record}, keep));
        const auto isSettled = [&] {
            return shelfLook.conflicts().empty() && photo().caption == (isForAlbum ? u"Anne" : u"Karin") &&
                   photo().tags == u"summer"_s && photo().rating == 4;
        };
        QVERIFY(isSettled());
        QCOMPARE(inFile(), u"Karin"_s); // the album writes into no picture
        look(shelfLook);
        QVERIFY(isSettled() && photo().isHashed());

        QCOMPARE(step->undo(), ChangeResult::Done);
        look(shelfLook);
        QVERIFY(photo().caption == before.caption && photo().rating == 0 && photo().tags == before.tags);
        QCOMPARE(shelfLook.conflicts().size(), std::size_t(1));
        QCOMPARE(step->redo(), ChangeResult::Done);
        look(shelfLook);
        QVERIFY(isSettled());
        QCOMPARE(outdated.size(), 3);
    }

    void aDiskThatIsNotPluggedInIsNotMissing_data()
    {
        const QString folder = u"FOLDER"_s;
        rows<QStringList, bool>({{"no such disk", {}, true},
                                 {"another one", {folder + u"/OTHER"_s}, true},
                                 {"it is there", {folder + u"/STICK"_s}, false},
                                 {"the whole system", {u"/"_s}, true}});
    }
    void aDiskThatIsNotPluggedInIsNotMissing()
    {
        auto [mounted, isAway] = row<QStringList, bool>();
        mounted.replaceInStrings(u"FOLDER"_s, m_data->path(u"media"_s));
        QVERIFY(QDir().mkpath(m_data->path(u"media/STICK"_s)));
        m_path = makePicture(m_data->path(u"media/STICK/lake.jpg"_s), {16, 12});
        makeShelf(PhotoAlbum::Into::Nowhere);
        QVERIFY(QFile::remove(m_path));
        ShelfLook shelfLook(*m_shelf);
        look(shelfLook, {{m_data->path(u"media"_s)}, mounted});
        QCOMPARE(shelfLook.isAway(m_record), isAway);
        QCOMPARE(photo().has(Photo::NotThere), !isAway);

        makePicture(m_path, {16, 12});
        look(shelfLook, {{m_data->path(u"media"_s)}, mounted});
        QVERIFY(!shelfLook.isAway(m_record) && !photo().has(Photo::NotThere));
    }
};

QTEST_GUILESS_MAIN(TestTextsKeeper)
#include "tst_textskeeper.moc"
