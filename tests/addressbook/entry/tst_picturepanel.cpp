// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/picturepanel.h"
#include "addressbook/model/messages.h"
#include "shell/pictures/pictureframe.h"
#include "tests/support/testprogram.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

class TestPicturePanel : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void startsWhereThePicturesAre_data();
    void startsWhereThePicturesAre();
    void listsPictureFilesOnly();
    void entersAPictureAndRemembersItsFolder();
    void saysSoWhenAFileIsNoPicture();
    void walksThroughFolders();
    void fallsBackFromWhatIsNotThere();
    void refusesAPathThatNoEntryCanHold();
    void deletesOnlyAPictureThatIsThere();

private:
    QString makePicture(const QString &name) const;
    std::unique_ptr<PicturePanel> makePanel();
    QStringList files(const PicturePanel &panel) const;
    void choose(const PicturePanel &panel, const QString &name) const;
    void openFolder(const PicturePanel &panel, int row) const;
    QString shownFolder(const PicturePanel &panel) const
    {
        return control<QLabel>(panel, "picturePath")->text();
    }

    std::unique_ptr<TestProgram> m_test;
    QString m_album;
    QStringList m_drives;
};

void TestPicturePanel::init()
{
    m_test = std::make_unique<TestProgram>(TestProgram::Empty);
    m_album = m_test->temporary.filePath(u"album"_s);
    m_drives = {m_test->temporary.path()};
    QVERIFY(QDir().mkpath(m_album));
    m_test->setBytes(u"GColor4.Fil"_s, (m_album + u"/\r\n"_s).toLatin1());
}

QString TestPicturePanel::makePicture(const QString &name) const
{
    const QString path = m_album + u'/' + name;
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    if (!image.save(path))
        QTest::qFail("no picture", __FILE__, __LINE__);
    return path;
}

std::unique_ptr<PicturePanel> TestPicturePanel::makePanel()
{
    auto panel = std::make_unique<PicturePanel>(m_test->program, [this] { return m_drives; });
    panel->resize(800, 500);
    showActive(*panel);
    panel->start(true);
    return panel;
}

QStringList TestPicturePanel::files(const PicturePanel &panel) const
{
    QStringList names;
    const auto *list = control<QListWidget>(panel, "File1");
    for (int row = 0; row < list->count(); ++row)
        names.append(list->item(row)->text());
    return names;
}

void TestPicturePanel::choose(const PicturePanel &panel, const QString &name) const
{
    auto *list = control<QListWidget>(panel, "File1");
    list->setCurrentItem(list->findItems(name, Qt::MatchExactly).value(0));
}

void TestPicturePanel::openFolder(const PicturePanel &panel, int row) const
{
    auto *folders = control<QListWidget>(panel, "Dir1");
    folders->setFocus();
    folders->setCurrentRow(row);
    QTest::keyClick(folders, Qt::Key_Return);
}

void TestPicturePanel::startsWhereThePicturesAre_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("in the folder used last") << true;
    QTest::newRow("in the household's folder when that is gone") << false;
}

void TestPicturePanel::startsWhereThePicturesAre()
{
    QFETCH(bool, isThere);
    QVERIFY(QDir().mkpath(m_test->path(u"Pictures"_s)));
    if (!isThere)
        m_test->setBytes(u"GColor4.Fil"_s, "C:\\QUILLERY\\Pictures\\\r\n");
    const auto panel = makePanel();
    QCOMPARE(shownFolder(*panel), isThere ? m_album : m_test->path(u"Pictures"_s));
    QCOMPARE(control<QComboBox>(*panel, "Drive1")->currentText(), m_test->temporary.path());
    QVERIFY(m_test->dialogs.takeShown().isEmpty());
}

void TestPicturePanel::listsPictureFilesOnly()
{
    for (const char *name : {"b.jpg", "A.BMP", "c.Gif", "d.wmf", "e.EMF", "f.png", "notes.txt", "jpg"}) {
        QFile file(m_album + u'/' + QString::fromLatin1(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const auto panel = makePanel();
    QCOMPARE(files(*panel), QStringList({u"A.BMP"_s, u"b.jpg"_s, u"c.Gif"_s, u"d.wmf"_s, u"e.EMF"_s}));
}

void TestPicturePanel::entersAPictureAndRemembersItsFolder()
{
    const QString path = makePicture(u"anne.jpg"_s);
    QFile::remove(m_test->path(u"GColor4.Fil"_s));
    const auto panel = makePanel();
    m_test->setBytes(u"GColor4.Fil"_s, (m_album + u"/\r\n"_s).toLatin1());
    panel->start(false);
    QSignalSpy entered(panel.get(), &PicturePanel::pictureEntered);
    QPushButton *enter = control<QPushButton>(*panel, "pictureEnter");
    QVERIFY(!enter->isEnabled());
    QVERIFY(!enter->toolTip().isEmpty());
    choose(*panel, u"anne.jpg"_s);
    QVERIFY(control<PictureFrame>(*panel, "picturePreview")->hasPicture());
    QTest::mouseClick(enter, Qt::LeftButton);
    QCOMPARE(entered.count(), 1);
    QCOMPARE(entered.first().first().toString(), path);
    QCOMPARE(m_test->bytes(u"GColor4.Fil"_s), (m_album + u"/\r\n"_s).toLatin1());
}

void TestPicturePanel::saysSoWhenAFileIsNoPicture()
{
    QFile file(m_album + u"/old.wmf"_s);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("\xd7\xcd\xc6\x9a not a picture here");
    file.close();
    const auto panel = makePanel();
    choose(*panel, u"old.wmf"_s);
    const auto *preview = control<PictureFrame>(*panel, "picturePreview");
    QVERIFY(!preview->hasPicture());
    QCOMPARE(preview->words(), u"Program is unable to load this file as a Picture File!!!"_s);
    QVERIFY(!control<QPushButton>(*panel, "pictureEnter")->isEnabled());
}

void TestPicturePanel::walksThroughFolders()
{
    QVERIFY(QDir(m_album).mkdir(u"summer"_s));
    const auto panel = makePanel();
    QCOMPARE(control<QListWidget>(*panel, "Dir1")->item(0)->text(), u".."_s);
    openFolder(*panel, 1);
    QCOMPARE(shownFolder(*panel), QString(m_album + u"/summer"_s));
    openFolder(*panel, 0);
    QCOMPARE(shownFolder(*panel), m_album);
}

void TestPicturePanel::fallsBackFromWhatIsNotThere()
{
    QVERIFY(QDir(m_album).mkdir(u"summer"_s));
    m_drives.append(m_test->temporary.filePath(u"pulled-out"_s));
    const auto panel = makePanel();
    QVERIFY(QDir(m_album).rmdir(u"summer"_s));
    openFolder(*panel, 1);
    QCOMPARE(m_test->dialogs.takeShown(), {AddressMessages::deviceUnavailable()});
    QCOMPARE(shownFolder(*panel), m_test->temporary.path());

    auto *drives = control<QComboBox>(*panel, "Drive1");
    drives->setFocus();
    QTest::keyClick(drives, Qt::Key_Down);
    QCOMPARE(m_test->dialogs.takeShown(), {AddressMessages::driveUnavailable()});
    QCOMPARE(drives->currentIndex(), 0);
    QCOMPARE(shownFolder(*panel), m_test->temporary.path());
}

void TestPicturePanel::refusesAPathThatNoEntryCanHold()
{
    makePicture(QString::fromUtf8("\xce\xb1\xce\xbd\xce\xbd\xce\xb1.jpg"));
    makePicture(QString(180, u'x') + u".jpg"_s);
    const auto panel = makePanel();
    QSignalSpy entered(panel.get(), &PicturePanel::pictureEntered);
    QSignalSpy said(panel.get(), &PicturePanel::said);
    for (const QString &name : files(*panel)) {
        choose(*panel, name);
        QTest::mouseClick(control<QPushButton>(*panel, "pictureEnter"), Qt::LeftButton);
    }
    QCOMPARE(said.count(), 2);
    QCOMPARE(entered.count(), 0);
}

void TestPicturePanel::deletesOnlyAPictureThatIsThere()
{
    const auto panel = makePanel();
    QSignalSpy deleted(panel.get(), &PicturePanel::pictureDeleted);
    QPushButton *button = control<QPushButton>(*panel, "pictureDelete");
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(deleted.count(), 1);
    panel->start(false);
    QVERIFY(!button->isEnabled());
}

QTEST_MAIN(TestPicturePanel)
#include "tst_picturepanel.moc"
