// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/contenthash.h"
#include "album/model/photoshelf.h"
#include "album/model/takein.h"
#include "tests/support/failingdisk.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

#include <QSignalSpy>

#include <fstream>
#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);

QStringList namesOf(const PhotoShelf &shelf)
{
    QStringList names;
    for (const Photo &photo : shelf.photos())
        names.append(photo.fileName());
    names.sort();
    return names;
}

} // namespace

class TestTakeIn : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestFolder> m_data;
    std::unique_ptr<QTemporaryDir> m_elsewhere;
    std::unique_ptr<PhotoShelf> m_shelf;
    std::vector<UndoStep> m_steps;

    QString picture(const QString &name, QSize size = {16, 12}, const QColor &color = Qt::red) const
    {
        const QString path = m_elsewhere->filePath(name);
        if (!QDir().mkpath(QFileInfo(path).path()))
            QTest::qFail("no folder", __FILE__, __LINE__);
        return makePicture(path, size, color);
    }

    TakeIn::Result taken(TakeIn::Wish wish)
    {
        TakeIn takeIn(*m_shelf);
        TakeIn::Result result;
        connect(&takeIn, &TakeIn::finished, this, [&](const TakeIn::Result &all) { result = all; });
        QSignalSpy finished(&takeIn, &TakeIn::finished);
        if (wish.paths.isEmpty())
            wish.paths = {m_elsewhere->path()};
        wish.today = today;
        takeIn.start(wish);
        if (!finished.wait(10000))
            QTest::qFail("it does not end", __FILE__, __LINE__);
        return result;
    }

private slots:
    void init()
    {
        m_data = std::make_unique<TestFolder>();
        m_elsewhere = std::make_unique<QTemporaryDir>();
        m_shelf = std::make_unique<PhotoShelf>(m_data->folder());
        m_shelf->load();
        m_steps.clear();
        connect(m_shelf.get(), &PhotoShelf::edited, this,
                [this](const UndoStep &step) { m_steps.push_back(step); });
    }

    void picturesOfAllFoldersAreTakenInOnce()
    {
        picture(u"a/IMG_20190704_153012.jpg"_s);
        picture(u"a/b/Lake.PNG"_s, {20, 40});
        picture(u"a/b/same.jpg"_s);
        picture(u".hidden/c.jpg"_s);
        QVERIFY(makeFile(m_elsewhere->filePath(u"a/empty.jpg"_s), {}));
        QVERIFY(makeFile(m_elsewhere->filePath(u"a/notes.txt"_s), "no picture"));
        QVERIFY(QDir().mkpath(m_elsewhere->filePath(u"a/folder.jpg"_s)));
        QFile::link(m_elsewhere->path(), m_elsewhere->filePath(u"a/b/circle"_s));
        const int album = m_shelf->addAlbum({.name = u"Grandmother"_s});
        m_steps.clear();

        const TakeIn::Result result = taken({.album = album});
        const QStringList names{u"IMG_20190704_153012.jpg"_s, u"Lake.PNG"_s, u"empty.jpg"_s, u"same.jpg"_s};
        QCOMPARE(namesOf(*m_shelf), names);
        QCOMPARE(result.added.size(), 4);
        QCOMPARE(m_shelf->countIn(album), 4);
        const Photo *lake = m_shelf->photoAt(m_elsewhere->filePath(u"a/b/Lake.PNG"_s));
        QVERIFY(lake);
        QCOMPARE(QSize(int(lake->width), int(lake->height)), QSize(20, 40));
        const Photo *dated = m_shelf->photoAt(m_elsewhere->filePath(u"a/IMG_20190704_153012.jpg"_s));
        QCOMPARE(dated->date.edtf(), "2019-07-04T15:30:12");
        QCOMPARE(dated->dateFrom, Photo::DateFrom::File);

        QCOMPARE(taken({.album = album}).known, 4);
        QCOMPARE(m_shelf->photos().size(), std::size_t(4));
        QCOMPARE(m_steps.size(), std::size_t(1));
        QCOMPARE(m_steps.front().undo(), ChangeResult::Done);
        QCOMPARE(namesOf(*m_shelf), QStringList());
        QCOMPARE(m_steps.front().redo(), ChangeResult::Done);
        QCOMPARE(m_shelf->countIn(album), 4);
    }

    void aPictureThatWasMovedIsTheSameOne()
    {
        const QString path = picture(u"old.jpg"_s);
        const int record = taken({}).added.value(0);
        QVERIFY(m_shelf->note({record}, [&](Photo &photo) {
            photo.hash = ContentHash::of(path, std::atomic_bool(false)).value_or(Photo::Hash());
        }));
        QVERIFY(m_shelf->change({record}, u"Caption"_s, [](Photo &photo) { photo.caption = u"Anne"_s; }));
        QVERIFY(QDir().mkpath(m_elsewhere->filePath(u"album"_s)));
        QVERIFY(QFile::rename(path, m_elsewhere->filePath(u"album/new.jpg"_s)));
        const TakeIn::Result result = taken({});
        QCOMPARE(result.foundAgain, 1);
        QCOMPARE(m_shelf->photos().size(), std::size_t(1));
        QCOMPARE(m_shelf->photo(record)->fileName(), u"new.jpg"_s);
        QCOMPARE(m_shelf->photo(record)->caption, u"Anne"_s);
    }

    void aCardIsCopiedByMonthWithoutWhatIsHere()
    {
        picture(u"DCIM/IMG_20190704_153012.jpg"_s, {16, 12}, Qt::red);
        picture(u"DCIM/IMG_20190705_101010.jpg"_s, {16, 12}, Qt::blue);
        QVERIFY(QFile::copy(m_elsewhere->filePath(u"DCIM/IMG_20190705_101010.jpg"_s),
                            m_elsewhere->filePath(u"DCIM/IMG_20190705_101010_1.jpg"_s)));
        QCOMPARE(taken({.copy = TakeIn::Copy::ByMonth}).added.size(), 2);
        QCOMPARE(m_shelf->photos().front().path, u"Pictures/2019/2019-07/IMG_20190704_153012.jpg"_s);
        QCOMPARE(m_data->bytes(u"Pictures/2019/2019-07/IMG_20190704_153012.jpg"_s),
                 contentOf(m_elsewhere->filePath(u"DCIM/IMG_20190704_153012.jpg"_s)));

        picture(u"DCIM/IMG_20200101_000000.jpg"_s, {16, 12}, Qt::green);
        const TakeIn::Result again = taken({.copy = TakeIn::Copy::ByMonth});
        QCOMPARE(again.added.size(), 1);
        QCOMPARE(again.known, 3);
        QCOMPARE(QDir(m_elsewhere->filePath(u"DCIM"_s)).entryList(QDir::Files).size(), 4);
    }

    void aPathThatDoesNotFitIsRefusedByName()
    {
        const QString deep = u"x"_s.repeated(200) + u'/' + u"y"_s.repeated(200) + u'/' + u"z"_s.repeated(150);
        const QString path = picture(deep + u".jpg"_s);
        picture(u"short.jpg"_s);
        QStringList refused{path};
#ifndef Q_OS_WIN
        const QString noName = m_elsewhere->filePath(u"latin"_s); // a name of another code page
        std::ofstream((noName + u'\u00e9' + u".jpg"_s).toLatin1().toStdString()) << "x";
        const QString pipe = m_elsewhere->filePath(u"a pipe.jpg"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        refused.prepend(pipe);
        refused.prepend(noName + QChar(QChar::ReplacementCharacter) + u".jpg"_s);
#endif
        const TakeIn::Result result = taken({});
        QCOMPARE(result.refused, refused);
        QCOMPARE(result.added.size(), 1);
    }

    void whatWasThereBeforeIsNotTakenInAgain()
    {
        picture(u"taken out.jpg"_s);
        picture(u"off the list.jpg"_s);
        const QTemporaryDir moved;
        QVERIFY(QDir().mkpath(moved.filePath(u"summer"_s)));
        makePicture(moved.filePath(u"summer/inner.jpg"_s), {16, 12});
        const int album = m_shelf->addAlbum({.name = u"Telephone"_s});
        taken({.album = album});
        const int off = m_shelf->photoAt(m_elsewhere->filePath(u"off the list.jpg"_s))->record;
        QVERIFY(m_shelf->removePhotos({off}));
        QVERIFY(m_shelf->takeOut(album, m_shelf->recordsIn(album)));
        QTest::qWait(20); // files tell their times in whole milliseconds
        const QDateTime since = QDateTime::currentDateTime();
        QTest::qWait(20);
        picture(u"new.jpg"_s);
        QVERIFY(QDir().rename(moved.filePath(u"summer"_s), m_elsewhere->filePath(u"summer"_s)));
        // Windows does not tell when a folder was moved: what is in it waits to be asked for.
        const bool isMoveTold = QSysInfo::kernelType() != "winnt"_L1;
        QCOMPARE(taken({.album = album, .since = since}).added.size(), isMoveTold ? 2 : 1);
        QStringList names{u"inner.jpg"_s, u"new.jpg"_s, u"taken out.jpg"_s};
        if (!isMoveTold)
            names.removeFirst();
        QCOMPARE(namesOf(*m_shelf), names);
        QCOMPARE(m_shelf->countIn(album), isMoveTold ? 2 : 1);
    }

    void aFullDiskTakesInNothing()
    {
        picture(u"a.jpg"_s);
        const FailingDisk disk(DiskFailure::OneStep, 1);
        const TakeIn::Result result = taken({});
        QCOMPARE(result.added.size(), 0);
        QCOMPARE(result.whyNoMore, u"The disk refused to save this"_s);
        QVERIFY(!result.wasStopped && m_steps.empty());
    }
};

QTEST_GUILESS_MAIN(TestTakeIn)
#include "tst_takein.moc"
