// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturefolder.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestPictureFolder : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }
    void startsWhereItWasLast_data();
    void startsWhereItWasLast();
    void remembersAFolderAsOneLine();
    void refusesAFolderThatNoLineHolds();
    void findsWhatAStoredPathMeans_data();
    void findsWhatAStoredPathMeans();
    void prefersThePathAsItStands();
    void knowsWhatAnEntryCanKeep();

private:
    PictureFolder pictures() const { return PictureFolder(m_files->folder()); }

    std::unique_ptr<TestFolder> m_files;
};

void TestPictureFolder::startsWhereItWasLast_data()
{
    QTest::addColumn<std::optional<QByteArray>>("content");
    QTest::addColumn<QString>("folder");
    using Content = std::optional<QByteArray>;
    QTest::newRow("no file") << Content() << u"C:\\"_s;
    QTest::newRow("empty file") << Content("") << u"C:\\"_s;
    QTest::newRow("one line") << Content("C:\\Bilder\\M\xFCller\\\r\n") << u"C:\\Bilder\\Müller\\"_s;
    QTest::newRow("bare line end, and more lines") << Content("/home/anne/\nsecond\n") << u"/home/anne/"_s;
    QTest::newRow("no line end") << Content("C:\\Pictures") << u"C:\\Pictures"_s;
}

void TestPictureFolder::startsWhereItWasLast()
{
    QFETCH(std::optional<QByteArray>, content);
    if (content)
        m_files->put(u"GColor4.Fil"_s, *content);
    QTEST(pictures().lastUsed(), "folder");
}

void TestPictureFolder::remembersAFolderAsOneLine()
{
    m_files->put(u"gcolor4.fil"_s, "C:\\old\\\r\nrest\r\n");
    const QByteArray separator(1, QDir::separator().toLatin1());
    QVERIFY(pictures().remember(u"/home/Zo\u00EB"_s));
    QCOMPARE(m_files->bytes(u"gcolor4.fil"_s),
             separator + "home" + separator + "Zo\xEB" + separator + "\r\n");
    QVERIFY(pictures().remember(u"/"_s));
    QCOMPARE(m_files->bytes(u"gcolor4.fil"_s), separator + "\r\n");
}

void TestPictureFolder::refusesAFolderThatNoLineHolds()
{
    QVERIFY(!pictures().remember(u"/home/Ωmega"_s));
    QVERIFY(!pictures().remember(u"/home/a\nb"_s));
    QVERIFY(!QFile::exists(m_files->path(u"GColor4.Fil"_s)));
}

void TestPictureFolder::findsWhatAStoredPathMeans_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("found");
    QTest::newRow("moved to the Pictures folder")
        << u"C:\\OLD\\Pictures\\photo01.jpg"_s << u"pictures/Photo01.JPG"_s;
    QTest::newRow("other slashes") << u"/old/photo01.jpg"_s << u"pictures/Photo01.JPG"_s;
    QTest::newRow("both slashes") << u"C:\\old/photo01.jpg"_s << u"pictures/Photo01.JPG"_s;
    QTest::newRow("a bare name") << u"PHOTO01.jpg"_s << u"pictures/Photo01.JPG"_s;
    QTest::newRow("a drive only") << u"C:photo01.jpg"_s << u"pictures/Photo01.JPG"_s;
    QTest::newRow("the data folder first") << u"D:\\both.bmp"_s << u"both.bmp"_s;
    QTest::newRow("nowhere") << u"C:\\Pictures\\moved away.jpg"_s << QString();
    QTest::newRow("a folder of that name") << u"C:\\folder.jpg"_s << QString();
    QTest::newRow("no picture") << u"**"_s << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("only a folder") << u"C:\\Pictures\\"_s << QString();
    QTest::newRow("the folder itself") << u"C:\\Pictures\\.."_s << QString();
}

void TestPictureFolder::findsWhatAStoredPathMeans()
{
    QFETCH(QString, stored);
    QFETCH(QString, found);
    QDir folder(m_files->path({}));
    QVERIFY(folder.mkdir(u"pictures"_s) && folder.mkdir(u"folder.jpg"_s));
    m_files->put(u"pictures/Photo01.JPG"_s, "a");
    m_files->put(u"pictures/both.bmp"_s, "a");
    m_files->put(u"both.bmp"_s, "a");
    const QString expected = found.isEmpty() ? QString() : QDir::cleanPath(m_files->path(found));
    QCOMPARE(QDir::cleanPath(pictures().locate(stored)), expected);
}

void TestPictureFolder::prefersThePathAsItStands()
{
    const TestFolder elsewhere;
    elsewhere.put(u"a.jpg"_s, "a");
    m_files->put(u"a.jpg"_s, "b");
    QCOMPARE(pictures().locate(elsewhere.path(u"a.jpg"_s)), elsewhere.path(u"a.jpg"_s));
    QVERIFY(QFile::remove(elsewhere.path(u"a.jpg"_s)));
    QCOMPARE(QDir::cleanPath(pictures().locate(elsewhere.path(u"a.jpg"_s))), m_files->path(u"a.jpg"_s));
}

void TestPictureFolder::knowsWhatAnEntryCanKeep()
{
    QVERIFY(PictureFolder::isStorable(QString(200, u'\u00EB'), 200));
    QVERIFY(!PictureFolder::isStorable(QString(201, u'a'), 200));
    QVERIFY(!PictureFolder::isStorable(u"/home/Ωmega.jpg"_s, 200));
    QVERIFY(!PictureFolder::isStorable(u"/home/a.jpg "_s, 200));
}

QTEST_GUILESS_MAIN(TestPictureFolder)
#include "tst_picturefolder.moc"
