// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/contenthash.h"
#include "album/model/findagain.h"
#include "album/model/photooffile.h"
#include "album/model/photoshelf.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

class TestFindAgain : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestFolder> m_data;
    std::unique_ptr<QTemporaryDir> m_disk;
    std::unique_ptr<PhotoShelf> m_shelf;
    std::optional<UndoStep> m_step;

    QString place(const QString &name) const { return m_disk->filePath(name); }
    QString picture(const QString &name, const QColor &color) const
    {
        if (!QDir().mkpath(QFileInfo(place(name)).path()))
            QTest::qFail("no folder", __FILE__, __LINE__);
        return makePicture(place(name), {16, 12}, color);
    }
    int add(const QString &path)
    {
        Photo photo = PhotoOfFile::read(path, QDate(2026, 11, 23));
        photo.path = m_shelf->storedPath(path);
        photo.hash = ContentHash::of(path, std::atomic_bool(false)).value_or(Photo::Hash());
        return m_shelf->addPhotos({photo}).value(0);
    }
    static void search(FindAgain &findAgain, const QString &folder)
    {
        QSignalSpy finished(&findAgain, &FindAgain::finished);
        findAgain.start(folder);
        QVERIFY(finished.wait(10000));
    }
    QString pathOf(int record) const { return m_shelf->photo(record)->path; }

private slots:
    void init()
    {
        m_data = std::make_unique<TestFolder>();
        m_disk = std::make_unique<QTemporaryDir>();
        m_shelf = std::make_unique<PhotoShelf>(m_data->folder());
        m_shelf->load();
        connect(m_shelf.get(), &PhotoShelf::edited, this, [this](const UndoStep &step) { m_step = step; });
    }

    void aMovedFolderIsFoundByContent()
    {
        const int red = add(picture(u"old/lake/1.bmp"_s, Qt::red));
        const int blue = add(picture(u"old/lake/2.bmp"_s, Qt::blue));
        const int copy = add(picture(u"old/best/2.bmp"_s, Qt::blue));
        const int gone = add(picture(u"old/lake/3.bmp"_s, Qt::green));
        const int stays = add(picture(u"here/1.bmp"_s, Qt::red));
        QVERIFY(QDir().mkpath(place(u"new"_s)));
        QVERIFY(QFile::rename(place(u"old"_s), place(u"new/pictures"_s)));
        QVERIFY(QFile::rename(place(u"new/pictures/lake/1.bmp"_s), place(u"new/pictures/lake/one.bmp"_s)));
        QVERIFY(QFile::remove(place(u"new/pictures/lake/3.bmp"_s)));
        picture(u"new/pictures/lake/3.bmp"_s, Qt::yellow); // another picture of the same name and size
        QVERIFY(
            m_shelf->note({red, blue, copy, gone}, [](Photo &photo) { photo.set(Photo::NotThere, true); }));

        FindAgain findAgain(*m_shelf, {});
        QCOMPARE(findAgain.missingCount(), 4);
        search(findAgain, place(u"new"_s));
        QCOMPARE(findAgain.found().size(), std::size_t(3));
        QVERIFY(findAgain.link(findAgain.found()));
        QCOMPARE(pathOf(red), place(u"new/pictures/lake/one.bmp"_s));
        QCOMPARE(pathOf(blue), place(u"new/pictures/lake/2.bmp"_s));
        QCOMPARE(pathOf(copy), place(u"new/pictures/best/2.bmp"_s));
        QCOMPARE(pathOf(gone), place(u"old/lake/3.bmp"_s));
        QCOMPARE(pathOf(stays), place(u"here/1.bmp"_s));
        QCOMPARE(findAgain.missingCount(), 1);
        QCOMPARE(findAgain.soughtCount(), 4);
        QCOMPARE(m_step->undo(), ChangeResult::Done);
        QCOMPARE(pathOf(red), place(u"old/lake/1.bmp"_s));
        QCOMPARE(findAgain.missingCount(), 4);
    }

    void whatOtherFunctionsNameIsLinkedInTheSameStep()
    {
        const QString shared = picture(u"old/anne.bmp"_s, Qt::red);
        const QString own = picture(u"old/car.bmp"_s, Qt::blue);
        const int record = add(shared);
        QVERIFY(QFile::rename(place(u"old"_s), place(u"new"_s)));
        QHash<QString, QString> linked;
        int undone = 0;
        const auto relink = [&](const QHash<QString, QString> &files) -> std::optional<UndoStep> {
            linked = files;
            const auto undo = [&undone] {
                ++undone;
                return ChangeResult::Done;
            };
            return UndoStep{u"others"_s, undo, undo};
        };
        FindAgain findAgain(*m_shelf, {{shared, own, u"C:\\Pictures\\nowhere.bmp"_s}, relink});
        search(findAgain, place(u"new"_s));
        const std::vector<FoundPicture> expected{{record, shared, place(u"new/anne.bmp"_s), true},
                                                 {0, shared, place(u"new/anne.bmp"_s), true},
                                                 {0, own, place(u"new/car.bmp"_s), false}};
        QCOMPARE(findAgain.found(), expected);
        QVERIFY(findAgain.link(expected));
        const QHash<QString, QString> files{{shared, place(u"new/anne.bmp"_s)},
                                            {own, place(u"new/car.bmp"_s)}};
        QCOMPARE(linked, files);
        QCOMPARE(m_step->undo(), ChangeResult::Done);
        QCOMPARE(undone, 1);
        QCOMPARE(pathOf(record), shared);
    }

    void whereOthersAreRefusedNothingIsLinked()
    {
        const QString path = picture(u"old/anne.bmp"_s, Qt::red);
        const int record = add(path);
        QVERIFY(QFile::rename(place(u"old"_s), place(u"new"_s)));
        FindAgain findAgain(
            *m_shelf, {{path}, [](const QHash<QString, QString> &) { return std::optional<UndoStep>(); }});
        search(findAgain, place(u"new"_s));
        QVERIFY(!findAgain.link(findAgain.found()));
        QCOMPARE(pathOf(record), path);
    }
};

QTEST_GUILESS_MAIN(TestFindAgain)
#include "tst_findagain.moc"
