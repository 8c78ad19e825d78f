// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/shellmessages.h"
#include "shell/frame/picturepanel.h"
#include "shell/pictures/pictureframe.h"
#include "tests/support/openwindow.h"
#include "tests/support/testpictures.h"

#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

class TestPicturePanel : public OpenWindow<PicturePanel>
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_album = m_test->temporary.filePath(u"album"_s);
        m_drives = {m_test->temporary.path()};
        QVERIFY(QDir().mkpath(m_album));
        m_test->setBytes(u"GColor4.Fil"_s, (m_album + u"/\r\n"_s).toLatin1());
    }

    void cleanup() { close(); }

    void startsWhereThePicturesAre()
    {
        const QString household = m_test->path(u"Pictures"_s);
        QVERIFY(QDir().mkpath(household));
        open();
        QCOMPARE(shownFolder(), m_album); // used last
        QCOMPARE(find<QComboBox>("Drive1")->currentText(),
                 QDir::toNativeSeparators(m_test->temporary.path()));
        m_test->setBytes(u"GColor4.Fil"_s, "C:\\QUILLERY\\Pictures\\\r\n");
        m_window->start(false);
        QCOMPARE(shownFolder(), household);
        QVERIFY(asked().isEmpty());
    }

    void listsPictureFilesOnly()
    {
        for (const char *name : {"b.jpg", "A.BMP", "c.Gif", "d.wmf", "e.EMF", "f.png", "notes.txt", "jpg"})
            QVERIFY(makeFile(m_album + u'/' + QString::fromLatin1(name), {}));
        open();
        QCOMPARE(files(), QStringList({u"A.BMP"_s, u"b.jpg"_s, u"c.Gif"_s, u"d.wmf"_s, u"e.EMF"_s}));
    }

    void entersAPictureAndRemembersItsFolder()
    {
        const QString path = makePicture(m_album + u"/anne.jpg", {40, 30});
        open();
        QVERIFY(QFile::remove(m_test->path(u"GColor4.Fil"_s)));
        const QSignalSpy entered(m_window, &PicturePanel::pictureEntered);
        QVERIFY(!isOffered("pictureEnter"));
        QVERIFY(!find<QPushButton>("pictureEnter")->toolTip().isEmpty());
        choose(u"anne.jpg"_s);
        QVERIFY(find<PictureFrame>("picturePreview")->hasPicture());
        click("pictureEnter");
        QCOMPARE(entered, QList<QVariantList>{{QDir::toNativeSeparators(path)}});
        QCOMPARE(m_test->bytes(u"GColor4.Fil"_s),
                 QDir::toNativeSeparators(m_album + u'/').toLatin1() + "\r\n");

        const QSignalSpy deleted(m_window, &PicturePanel::pictureDeleted);
        click("pictureDelete");
        QCOMPARE(deleted.count(), 1);
        m_window->start(false);
        QVERIFY(!isOffered("pictureDelete"));
    }

    void saysSoWhenAFileIsNoPicture()
    {
        QVERIFY(makeFile(m_album + u"/old.wmf"_s, "\xd7\xcd\xc6\x9a not a picture here"));
        open();
        choose(u"old.wmf"_s);
        const auto *preview = find<PictureFrame>("picturePreview");
        QVERIFY(!preview->hasPicture());
        QCOMPARE(preview->words(), u"Program is unable to load this file as a Picture File!!!"_s);
        QVERIFY(!isOffered("pictureEnter"));
    }

    void walksThroughFolders()
    {
        QVERIFY(QDir(m_album).mkdir(u"summer"_s));
        m_drives.append(m_test->temporary.filePath(u"pulled-out"_s));
        open();
        auto *folders = find<QListWidget>("Dir1");
        QCOMPARE(folders->accessibleName(), u"Folders"_s);
        const auto openFolder = [folders](int row) {
            folders->setFocus();
            folders->setCurrentRow(row);
            QTest::keyClick(folders, Qt::Key_Return);
        };
        QCOMPARE(folders->item(0)->text(), u".."_s);
        openFolder(1);
        QCOMPARE(shownFolder(), QString(m_album + u"/summer"_s));
        openFolder(0);
        QCOMPARE(shownFolder(), m_album);
        // What has gone meanwhile is said, and the drive itself is shown.
        QVERIFY(QDir(m_album).rmdir(u"summer"_s));
        openFolder(1);
        QCOMPARE(asked(), {ShellMessages::deviceUnavailable()});
        QCOMPARE(shownFolder(), m_test->temporary.path());

        auto *drives = find<QComboBox>("Drive1");
        drives->setFocus();
        QTest::keyClick(drives, Qt::Key_Down);
        QCOMPARE(asked(), {ShellMessages::driveUnavailable()});
        QCOMPARE(drives->currentIndex(), 0);
        QCOMPARE(shownFolder(), m_test->temporary.path());
    }

    void aDoubleClickOpensAFolderAndEntersAPicture()
    {
        QVERIFY(QDir(m_album).mkdir(u"summer"_s));
        const QString path = makePicture(m_album + u"/summer/anne.jpg", {40, 30});
        open();
        const auto doubleClick = [](QListWidget *list, int row) {
            const QPoint place = list->visualItemRect(list->item(row)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        };
        doubleClick(find<QListWidget>("Dir1"), 1);
        QCOMPARE(shownFolder(), QString(m_album + u"/summer"_s));
        const QSignalSpy entered(m_window, &PicturePanel::pictureEntered);
        doubleClick(fileList(), 0);
        QCOMPARE(entered, QList<QVariantList>{{QDir::toNativeSeparators(path)}});
        QVERIFY(!fileList()->item(0)->data(Qt::CheckStateRole).isValid()); // no tick beside it
    }

    void refusesAPathThatNoEntryCanHold()
    {
        const QStringList names{u"αννα.jpg"_s, QString(180, u'x') + u".jpg"};
        for (const QString &name : names)
            makePicture(m_album + u'/' + name, {40, 30});
        open();
        const QSignalSpy entered(m_window, &PicturePanel::pictureEntered);
        const QSignalSpy said(m_window, &PicturePanel::said);
        for (const QString &name : names) {
            choose(name);
            click("pictureEnter");
        }
        QCOMPARE(said.count(), 2);
        QCOMPARE(entered.count(), 0);
    }

private:
    void open()
    {
        delete m_window;
        m_window = new PicturePanel(
            m_test->program,
            {u"Select Picture"_s, 200, u"The path cannot be kept"_s, u"There is no picture"_s},
            [this] { return m_drives; });
        m_window->resize(800, 500);
        showActive(*m_window);
        m_window->start(true);
    }

    QStringList files() const
    {
        QStringList names;
        for (int row = 0; row < fileList()->count(); ++row)
            names.append(fileList()->item(row)->text());
        return names;
    }

    void choose(const QString &file) const
    {
        fileList()->setCurrentItem(fileList()->findItems(file, Qt::MatchExactly).value(0));
    }

    QListWidget *fileList() const { return find<QListWidget>("File1"); }

    QString shownFolder() const { return QDir::fromNativeSeparators(labelText("picturePath")); }

    QString m_album;
    QStringList m_drives;
};

QTEST_MAIN(TestPicturePanel)
#include "tst_picturepanel.moc"
