// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/viewermessages.h"
#include "addressbook/viewer/pictureswindow.h"
#include "shell/look/theme.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturegallery.h"
#include "shell/preview/previewpane.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/openwindow.h"
#include "tests/support/testpictures.h"

#include <QDir>
#include <QImage>

using namespace Qt::Literals::StringLiterals;

class TestAddbkdisplay2 : public OpenWindow<ADDBKDISPLAY2>
{
    Q_OBJECT
private slots:
    void init() { m_test = std::make_unique<TestProgram>(TestProgram::Household); }
    void cleanup() { close(); }

    void showsThePicturesPageByPage()
    {
        open();
        QCOMPARE(m_window->windowTitle(), u"Family/Friends Pictures Display Screen"_s);
        QCOMPARE(labelText("picturePage"), u"Page 1 of 2"_s);
        QCOMPARE(labelText("pictureTotal"), u" Total = 26"_s);
        QCOMPARE(gallery()->model()->rowCount(), 20);
        QCOMPARE(name(0), u"Kessler, Tessa"_s);
        QTRY_COMPARE(gallery()->waitingCount(), 0);
        QVERIFY(isSeen(0));
        QCOMPARE(name(3), u"Vance, Ulrich"_s); // whose picture is missing, and keeps its place
        QVERIFY(!isSeen(3));
        QVERIFY(isSeen(4));
        // The page fills the view, and the whole of a tile is the picture's.
        const QRect tile = gallery()->visualRect(gallery()->model()->index(19, 0));
        QVERIFY(gallery()->viewport()->rect().contains(tile));
        QCOMPARE(tile.size(), gallery()->gridSize());
        QVERIFY(!isOffered("previousPictures"));
        click("nextPictures");
        QCOMPARE(labelText("picturePage"), u"Page 2 of 2"_s);
        QCOMPARE(gallery()->model()->rowCount(), 6);
        QCOMPARE(name(5), u"Calloway, Elisabeth"_s);
        QVERIFY(!isOffered("nextPictures"));
        QTest::keyClick(gallery(), Qt::Key_PageDown);
        QCOMPARE(labelText("picturePage"), u"Page 2 of 2"_s);
        QTest::keyClick(gallery(), Qt::Key_PageUp);
        QCOMPARE(labelText("picturePage"), u"Page 1 of 2"_s);
        QTRY_COMPARE(gallery()->waitingCount(), 0);

        gallery()->setCurrentIndex(gallery()->model()->index(1, 0));
        click("enlargePicture");
        QCOMPARE(labelText("enlargedName"), u"Garland, Anne"_s);
        QTRY_VERIFY(find<PictureFrame>("enlargedPicture")->hasPicture());
        QTest::keyClick(m_window, Qt::Key_Escape);
        QVERIFY(gallery()->hasFocus());
        QVERIFY(m_window->isVisible());
    }

    void followsTheAddressBook()
    {
        open();
        m_window->hide();
        m_window->show();
        QCoreApplication::processEvents();
        QVERIFY(asked().isEmpty()); // it warns once
        click("nextPictures");
        changeElsewhere(u"Addbk2.Fil"_s,
                        m_test->bytes(u"Addbk2.Fil"_s).replace("Kessler, Tessa", "####ler, Tessa"));
        QCOMPARE(labelText("pictureTotal"), u" Total = 25"_s);
        QCOMPARE(labelText("picturePage"), u"Page 2 of 2"_s);
    }

    void printsThePageShown()
    {
        open();
        trigger("mOPrt");
        emit m_window->findChild<ActivityBar *>()->stopRequested();
        QTest::qWait(200);
        QVERIFY(!m_window->isPreviewShown());
        QCOMPARE(said(), u"Stopped"_s);
        click("nextPictures");
        trigger("mOPrt");
        QTRY_VERIFY_WITH_TIMEOUT(m_window->isPreviewShown(), 30000);
        QCOMPARE(m_window->findChild<PreviewPane *>()->sheetCount(), 1);
        trigger("mOPrt"); // the pictures of that preview are gone
        QVERIFY(!m_window->isPreviewShown());
    }

    void survivesFilesThatAreNoPictures()
    {
        putPictures({u"noise.jpg"_s, u"empty.jpg"_s, u"folder.jpg"_s, u"cut.jpg"_s, u"huge.bmp"_s,
                     u"../../etc/passwd"_s, QString(200, u'x'), u"\\\\?\\pipe"_s});
        m_test->setBytes(u"noise.jpg"_s, noiseOf(4000));
        m_test->setBytes(u"empty.jpg"_s, {});
        QVERIFY(QDir(m_test->folder.path()).mkdir(u"folder.jpg"_s));
        makePicture(m_test->path(u"cut.jpg"_s), {400, 300});
        m_test->setBytes(u"cut.jpg"_s, m_test->bytes(u"cut.jpg"_s).left(200));
        m_test->setBytes(
            u"huge.bmp"_s,
            QByteArray::fromHex(
                "424d3600000000000000360000002800000000ffff7f00ffff7f01001800000000000000000000000000"));
        open();
        QCOMPARE(gallery()->model()->rowCount(), 8);
        QTRY_COMPARE(gallery()->waitingCount(), 0);
        QVERIFY(!m_window->grab().isNull());
        trigger("mOPrt");
        QTRY_VERIFY_WITH_TIMEOUT(m_window->isPreviewShown(), 30000);
        QVERIFY(!m_window->grab().isNull());
    }

    /// Photographs are read while the window goes on.
    void neverWaitsForPhotographs()
    {
        putPictures(QStringList(3, u"large.jpg"_s));
        makePicture(m_test->path(u"large.jpg"_s), {4000, 3000});
        m_window = new ADDBKDISPLAY2(m_test->program);
        QCOMPARE(gallery()->waitingCount(), 3);
        showActive(*m_window);
        QTRY_COMPARE_WITH_TIMEOUT(gallery()->waitingCount(), 0, 60000);
        QVERIFY(isSeen(2));
        asked();
    }

    void saysWhenThereIsNoPicture()
    {
        putPictures({});
        m_window = new ADDBKDISPLAY2(m_test->program);
        showActive(*m_window);
        QCoreApplication::processEvents();
        QVERIFY(asked().isEmpty());
        QVERIFY(find<QWidget>("emptyPictures")->isVisible());
        QCOMPARE(labelText("picturePage"), u"Page 1 of 1"_s);
        QVERIFY(!isOffered("enlargePicture"));
        QVERIFY(!find<QAction>("mOPrt")->isEnabled());
    }

private:
    void open()
    {
        m_window = new ADDBKDISPLAY2(m_test->program);
        showActive(*m_window);
        QList<Message> shown;
        QVERIFY(QTest::qWaitFor([&] { return !(shown = asked()).isEmpty(); }));
        QCOMPARE(shown, {ViewerMessages::picturesRestraint()});
    }

    /// An address book of persons with these picture paths.
    void putPictures(const QStringList &stored)
    {
        QByteArray lines = neverWritten(60), entries = neverWritten(724);
        for (const QString &path : stored) {
            const auto record = int(lines.size() / 60 + 1);
            lines += lineBytes(lineOf("Person " + QByteArray::number(record), record));
            entries += entryBytes({"Person"}, path.toLatin1());
        }
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_test->setBytes(u"Addbk1.Fil"_s, entries);
        m_test->setBytes(u"Addbk2.Fil"_s, lines);
    }

    PictureGallery *gallery() const { return find<PictureGallery>("pictures"); }
    QString name(int index) const { return gallery()->model()->index(index, 0).data().toString(); }

    /// The top of a tile without a picture has the ground of its dashed frame.
    bool isSeen(int index) const
    {
        const QRect tile = gallery()->visualRect(gallery()->model()->index(index, 0));
        const QImage shown = gallery()->viewport()->grab(tile).toImage();
        return shown.pixelColor(tile.width() / 2, 10) != Theme::of(gallery()).locked;
    }
};

QTEST_MAIN(TestAddbkdisplay2)
#include "tst_pictureswindow.moc"
