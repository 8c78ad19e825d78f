// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturefolder.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

class TestPictureFolder : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }

    void startsWhereItWasLast_data()
    {
        rows<std::optional<QByteArray>, QString>({
            {"no file", {}, u"C:\\"_s},
            {"empty file", "", u"C:\\"_s},
            {"one line", "C:\\Bilder\\M\xFCller\\\r\n", u"C:\\Bilder\\Müller\\"_s},
            {"bare line end, and more lines", "/home/anne/\nsecond\n", u"/home/anne/"_s},
            {"no line end", "C:\\Pictures", u"C:\\Pictures"_s},
        });
    }

    void startsWhereItWasLast()
    {
        const auto [content, folder] = row<std::optional<QByteArray>, QString>();
        if (content)
            m_files->put(u"GColor4.Fil"_s, *content);
        QCOMPARE(pictures().lastUsed(), folder);
    }

    void remembersAFolderAsOneLine()
    {
        m_files->put(u"gcolor4.fil"_s, "C:\\old\\\r\nrest\r\n");
        const QByteArray separator(1, QDir::separator().toLatin1());
        QVERIFY(pictures().remember(u"/home/Zo\u00EB"_s));
        QCOMPARE(m_files->bytes(u"gcolor4.fil"_s),
                 separator + "home" + separator + "Zo\xEB" + separator + "\r\n");
        QVERIFY(pictures().remember(u"/"_s));
        QCOMPARE(m_files->bytes(u"gcolor4.fil"_s), separator + "\r\n");
        QVERIFY(!pictures().remember(u"/home/Ωmega"_s));
        QVERIFY(!pictures().remember(u"/home/a\nb"_s));
        QCOMPARE(m_files->bytes(u"gcolor4.fil"_s), separator + "\r\n");
    }

    void findsWhatAStoredPathMeans_data()
    {
        rows<QString, QString>({
            {"moved to the Pictures folder", u"C:\\OLD\\Pictures\\photo01.jpg"_s, u"pictures/Photo01.JPG"_s},
            {"other slashes", u"/old/photo01.jpg"_s, u"pictures/Photo01.JPG"_s},
            {"both slashes", u"C:\\old/photo01.jpg"_s, u"pictures/Photo01.JPG"_s},
            {"a bare name", u"PHOTO01.jpg"_s, u"pictures/Photo01.JPG"_s},
            {"a drive only", u"C:photo01.jpg"_s, u"pictures/Photo01.JPG"_s},
            {"the data folder first", u"D:\\both.bmp"_s, u"both.bmp"_s},
            {"nowhere", u"C:\\Pictures\\moved away.jpg"_s, {}},
            {"a folder of that name", u"C:\\folder.jpg"_s, {}},
            {"no picture", u"**"_s, {}},
            {"empty", {}, {}},
            {"only a folder", u"C:\\Pictures\\"_s, {}},
            {"the folder itself", u"C:\\Pictures\\.."_s, {}},
        });
    }

    void findsWhatAStoredPathMeans()
    {
        const auto [stored, found] = row<QString, QString>();
        QDir folder(m_files->path({}));
        QVERIFY(folder.mkdir(u"pictures"_s) && folder.mkdir(u"folder.jpg"_s));
        m_files->put(u"pictures/Photo01.JPG"_s, "a");
        m_files->put(u"pictures/both.bmp"_s, "a");
        m_files->put(u"both.bmp"_s, "a");
        const QString located = pictures().locate(stored);
        QCOMPARE(located.isEmpty(), found.isEmpty());
        QCOMPARE(spelt(located), found.isEmpty() ? QString() : spelt(m_files->path(found)));
    }

    void prefersThePathAsItStands()
    {
        const TestFolder elsewhere;
        elsewhere.put(u"a.jpg"_s, "a");
        m_files->put(u"a.jpg"_s, "b");
        QCOMPARE(pictures().locate(elsewhere.path(u"a.jpg"_s)), elsewhere.path(u"a.jpg"_s));
        QVERIFY(QFile::remove(elsewhere.path(u"a.jpg"_s)));
        QCOMPARE(QDir::cleanPath(pictures().locate(elsewhere.path(u"a.jpg"_s))), m_files->path(u"a.jpg"_s));
    }

    void knowsWhatAnEntryCanKeep()
    {
        QVERIFY(PictureFolder::isStorable(QString(200, u'\u00EB'), 200));
        QVERIFY(!PictureFolder::isStorable(QString(201, u'a'), 200));
        QVERIFY(!PictureFolder::isStorable(u"/home/Ωmega.jpg"_s, 200));
        QVERIFY(!PictureFolder::isStorable(u"/home/a.jpg "_s, 200));
    }

private:
    PictureFolder pictures() const { return PictureFolder(m_files->folder()); }

    std::unique_ptr<TestFolder> m_files;
};

QTEST_GUILESS_MAIN(TestPictureFolder)
#include "tst_picturefolder.moc"
