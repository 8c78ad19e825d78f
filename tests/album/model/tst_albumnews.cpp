// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumholdings.h"
#include "album/model/albumnews.h"
#include "album/model/albumsource.h"
#include "tests/album/model/albumbytes.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray taken(const QByteArray &date, const QByteArray &path = "a.jpg", const QByteArray &caption = {},
                 const QByteArray &people = {})
{
    return pictureBytes({{0, "PIC1"}, {4, path}, {516, caption}, {2036, people}, {2356, date}});
}

QByteArray missing()
{
    return pictureBytes({{0, "PIC1"}, {4, "gone.jpg"}, {2391, "\x04"}});
}

const QByteArray deleted = pictureBytes({{0, "****"}, {2356, "2019-11-21"}});
const QByteArray album = albumBytes({{0, "ALB1"}, {16, "Grandmother"}});
const QByteArray place = albumBytes({{0, "PLC1"}, {4, "\x01"}, {8, "\x01"}, {12, "\x01"}});

QStringList hitsOf(AlbumSource &source, const QString &text)
{
    while (source.prepare()) {}
    QStringList hits;
    for (const SearchHit &hit : source.matches(text, 3))
        hits.append(u"%1 | %2 | %3 %4"_s.arg(hit.title, hit.context)
                        .arg(hit.place.record)
                        .arg(AlbumSource::albumOf(hit.place)));
    return hits;
}

} // namespace

/// What the photo album tells the rest of the program.
class TestAlbumNews : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
    }

    void tellsOnItsCard_data()
    {
        const QByteArray old =
            taken("2019-11-21T08:00:00") + deleted + taken("2019-11-21") + taken("2015-11-21");
        rows<QByteArray, QByteArray, QString, bool>({
            {"nothing", {}, {}, {}, false},
            {"one picture", taken("1974"), {}, u"1 picture"_s, false},
            {"in albums", taken("2026-11-21") + taken({}), album + place + album, u"2 pictures in 2 albums"_s,
             false},
            {"thousands", taken("1974").repeated(1000), {}, u"1,000 pictures"_s, false},
            {"on this day", old, album, u"On this day in 2019: 2 pictures"_s, false},
            {"the later of two years",
             taken("2015-11-21") + taken("2019-11-21"),
             {},
             u"On this day in 2019: 1 picture"_s,
             false},
            {"what is missing first", old + missing(), album, u"1 picture is missing"_s, true},
            {"noise", noiseOf(9000), noiseOf(900), {}, false},
        });
    }
    void tellsOnItsCard()
    {
        const auto [pictures, albums, text, isDue] = row<QByteArray, QByteArray, QString, bool>();
        m_test.put(u"Photobk3.Fil"_s, pictures);
        m_test.put(u"Photobk4.Fil"_s, albums);
        const auto line = AlbumNews::liveLine(m_test.folder(), QDate(2026, 11, 21));
        QCOMPARE(line ? line->text : QString(), text);
        QCOMPARE(line && line->urgency == LiveLine::Due, isDue);
    }

    void tellsOfEarlierYears()
    {
        m_test.put(u"Photobk3.Fil"_s, taken("1974") + taken("2019-11-21") + taken("2019-11-21T10:00:00") +
                                          taken("2015-11-22") + taken("2024-11-22") + taken("2026-11-23") +
                                          taken("2020-02-29"));
        QStringList told;
        for (const DayNote &note :
             AlbumNews::dayNotes(m_test.folder(), QDate(2026, 2, 1), QDate(2026, 12, 1)))
            told.append(note.date.toString(Qt::ISODate) + u' ' + note.text + u" -> " +
                        QString::number(note.place.record));
        QCOMPARE(told, QStringList({u"2026-11-21 2 pictures from 2019 -> 2"_s,
                                    u"2026-11-22 2 pictures from 2015 to 2024 -> 4"_s}));
    }

    void holdsFilesAndPictures()
    {
        QVERIFY(QDir(m_test.folder().path()).mkpath(u"Pictures"_s));
        for (const QString &name : {u"Pictures/a.jpg"_s, u"Pictures/b.jpg"_s, u"Photobk4 (set aside).Fil"_s})
            m_test.put(name, "x");
        m_test.put(u"PHOTOBK3.FIL"_s, taken("2020-05-02", "Pictures/b.jpg", {}, "Karin; Anne Lind") +
                                          taken("2020-05-01", "Pictures/a.jpg", {}, "Anne Lindner") +
                                          taken("2020-05-01", "Pictures/gone.jpg"));
        m_test.put(u"Photobk4.Fil"_s, album + place + albumBytes({{0, "ALB1"}, {16, "Empty"}}));
        const DataFolder &folder = m_test.folder();
        const QString a = m_test.path(u"Pictures/a.jpg"_s);
        const QString b = m_test.path(u"Pictures/b.jpg"_s);
        // A disk that does not tell spellings apart has them as they are asked for.
        QCOMPARE(AlbumHoldings::files(folder).join(u'|').toLower(),
                 u"photobk3.fil|photobk4.fil|photobk4 (set aside).fil"_s);
        QCOMPARE(AlbumHoldings::pictures(folder), QStringList({a, b}));
        QCOMPARE(AlbumHoldings::albums(folder), QList<PictureAlbum>({{u"Grandmother"_s, {b}}}));
        QCOMPARE(AlbumHoldings::picturesOfDay(folder, QDate(2020, 5, 1)), QStringList{a});
        QCOMPARE(AlbumHoldings::picturesOfPerson(folder, u"anne lind"_s), QStringList{b});
    }

    void isFoundByTheSearchOverEverything()
    {
        QByteArray many;
        for (int i = 0; i < 300; ++i) // more than are read at once
            many += taken("1974", "p/scan.png");
        m_test.put(u"Photobk3.Fil"_s, taken("1974~", "p/lake.png", "Grandmother at the caf\xc3\xa9") +
                                          deleted + many + taken("2020-05-01", "p/IMG_7.jpg", {}, "Karin"));
        m_test.put(u"Photobk4.Fil"_s, albumBytes({{0, "****"}, {16, "Grandfather"}}) + album);
        AlbumSource source(m_test.folder(), DateStyle::Usa);
        QCOMPARE(hitsOf(source, u"grandmother"_s),
                 QStringList(
                     {u"Grandmother | Album | 2 2"_s, u"Grandmother at the caf\u00e9 | about 1974 | 1 0"_s}));
        QCOMPARE(hitsOf(source, u"CAFE lake"_s),
                 QStringList({u"Grandmother at the caf\u00e9 | about 1974 | 1 0"_s}));
        QCOMPARE(hitsOf(source, u"karin"_s), QStringList({u"IMG_7.jpg | May 1, 2020, Karin | 303 0"_s}));
        QCOMPARE(hitsOf(source, u"scan"_s).size(), 3);
        QCOMPARE(hitsOf(source, u" "_s), QStringList());
        m_test.put(u"Photobk3.Fil"_s, taken("1974", "p/new.png"));
        QCOMPARE(hitsOf(source, u"new"_s), QStringList({u"new.png | 1974 | 1 0"_s}));
        QCOMPARE(hitsOf(source, u"karin"_s), QStringList());
    }

private:
    TestFolder m_test;
};

QTEST_APPLESS_MAIN(TestAlbumNews)
#include "tst_albumnews.moc"
