// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalholdings.h"
#include "journal/model/journalsearch.h"
#include "journal/model/journalsource.h"
#include "tests/journal/model/journaldays.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Hits in lines, what is marked in brackets.
QStringList shown(const QList<JournalHit> &hits)
{
    QStringList lines;
    for (const JournalHit &hit : hits) {
        QString line = hit.context;
        for (auto mark = hit.marks.rbegin(); mark != hit.marks.rend(); ++mark)
            line.insert(mark->first + mark->second, u']').insert(mark->first, u'[');
        lines << hit.date.toString(u"yy-MM-dd "_s) + line;
    }
    return lines;
}

void putYears(const TestFolder &folder)
{
    folder.put(u"DJour2019.Fil"_s, journalHead +
                                       "=== 2019-07-01\r\ntags Garden, sea side\r\n\r\n"
                                       "The **ferry** left late.\r\n\r\n# Evening\r\n\\=Stra\xC3\x9F"
                                       "e\r\n");
    folder.put(
        u"DJour2025.Fil"_s,
        journalHead +
            "=== 2025-01-02\r\n\r\nNo ship.\r\n=== 2025-01-02 earlier\r\n\r\nferry\r\n"
            "=== 2025-01-03\r\npicture Pictures/a.jpg | The old ferry\r\n\r\n[picture 1]\r\nQuiet.\r\n");
    folder.put(u"DJour2026.Fil"_s,
               journalHead +
                   "=== 2026-05-01\r\ntags garden party\r\n\r\nA caf\xC3\xA9 on the FERRY,\r\n"
                   "and the big old\r\nferry home\r\n=== 2026-05-02\r\n\r\n" +
                   QByteArray("word ").repeated(40) + "caf\xE9 " + QByteArray("end ").repeated(40) + "\r\n");
}

} // namespace

/// What is found in three years.
class TestJournalSearch final : public QObject
{
    Q_OBJECT

private:
    const StandingClock m_clock;

private slots:
    void findsWhatIsTyped_data()
    {
        const QString y26 = u"26-05-01 A caf\u00e9 on the [FERRY],"_s;
        const QString y25 = u"25-01-03 The old [ferry]"_s;
        const QString y19 = u"19-07-01 The [ferry] left late."_s;
        const QString cut = u"26-05-02 \u2026"_s + u"word "_s.repeated(8) + u"[caf\u00e9]"_s +
                            u" end"_s.repeated(19) + u"\u2026"_s;
        rows<QString, QStringList>({
            {"a word, also in bold and in a caption", u"ferry"_s, {y26, y25, y19}},
            {"words in any order",
             u"old the FERRY"_s,
             {u"26-05-01 A caf\u00e9 on [the] [FERRY],"_s, u"25-01-03 [The] [old] [ferry]"_s}},
            {"without accents, and with others",
             u"CAF\u00ca"_s,
             {cut, u"26-05-01 A [caf\u00e9] on the FERRY,"_s}},
            {"sharp s", u"strasse"_s, {u"19-07-01 =[Stra\u00dfe]"_s}},
            {"a phrase over a line end", u"\"big old ferry\""_s, {u"26-05-01 A caf\u00e9 on the FERRY,"_s}},
            {"a phrase that is not there", u"\"ferry big\""_s, {}},
            {"a tag that is being typed",
             u"tag:gard"_s,
             {u"26-05-01 A caf\u00e9 on the FERRY,"_s, u"19-07-01 The ferry left late."_s}},
            {"a whole tag", u"TAG:garden "_s, {u"19-07-01 The ferry left late."_s}},
            {"a tag of two words", u"tag:\"sea side\" ferry"_s, {y19}},
            {"a year", u"year:2025 ferry"_s, {y25}},
            {"a year alone", u"year:2019"_s, {u"19-07-01 The ferry left late."_s}},
            {"no place of a picture", u"picture"_s, {}},
            {"blanks and marks alone", u" ** "_s, {}},
            {"two of which one holds the other", u"fer ferry"_s, {y26, y25, y19}},
        });
    }
    void findsWhatIsTyped()
    {
        const auto [typed, hits] = row<QString, QStringList>();
        const TestFolder folder;
        putYears(folder);
        Journal journal(folder.folder(), m_clock);
        JournalSearch atOnce(journal);
        while (atOnce.step(2026)) {}
        atOnce.setQuestion(typed);
        QCOMPARE(shown(atOnce.hits()), hits);
        QCOMPARE(atOnce.count(), hits.size());

        JournalSearch asTyped(journal);
        for (qsizetype length = 1; length <= typed.size(); ++length) {
            asTyped.setQuestion(typed.first(length));
            asTyped.step(2026);
        }
        while (asTyped.step(2026)) {}
        QCOMPARE(shown(asTyped.hits()), hits);
    }

    void findsTheEndOfAVeryLongLine()
    {
        const TestFolder folder;
        Journal journal(folder.folder(), m_clock);
        const QString line = u"end "_s.repeated(100'000);
        QVERIFY(journal.put({.date = QDate(2026, 5, 1), .text = line + u"ferry\nferry"_s}));
        JournalSearch search(journal);
        while (search.step(2026)) {}
        search.setQuestion(u"ferry"_s);
        QCOMPARE(shown(search.hits()),
                 QStringList{u"26-05-01 \u2026"_s + u"end "_s.repeated(10) + u"[ferry]"_s});
        search.setQuestion(u"end"_s);
        QCOMPARE(search.hits().front().marks.size(), 30);
    }

    void followsWhatIsWritten()
    {
        const TestFolder folder;
        putYears(folder);
        Journal journal(folder.folder(), m_clock);
        JournalSearch search(journal);
        search.setQuestion(u"lighthouse"_s);
        QVERIFY(search.step(2018));
        QVERIFY(journal.isRead(2019) && !journal.isRead(2025));
        while (search.step(2018)) {}
        QVERIFY(search.hits().isEmpty());
        QVERIFY(journal.put({.date = QDate(2025, 1, 2), .text = u"To the lighthouse"_s}));
        QCOMPARE(shown(search.hits()), QStringList{u"25-01-02 To the [lighthouse]"_s});
        QVERIFY(journal.put({.date = QDate(2025, 1, 2)}));
        QVERIFY(search.hits().isEmpty());
    }

    void tellsTheSearchOverEverythingUnlessAYearIsSealed()
    {
        const TestFolder folder;
        putYears(folder);
        JournalSource source(folder.folder(), m_clock, DateStyle::Usa);
        while (source.prepare()) {}
        const QList<SearchHit> hits{
            {u"Friday, May 1, 2026"_s, u"A caf\u00e9 on the FERRY,"_s, {.date = QDate(2026, 5, 1)}},
            {u"Friday, January 3, 2025"_s, u"The old ferry"_s, {.date = QDate(2025, 1, 3)}}};
        QCOMPARE(source.matches(u"ferry", 2), hits);
        QTest::qWait(20);
        folder.put(u"DJour2025.Fil"_s, journalHead);
        while (source.prepare()) {}
        QCOMPARE(source.matches(u"ferry", 9).size(), 2);
        folder.put(u"DJour2019.Fil"_s, "Quillery journal sealed 1\r\n" + noiseOf(900));
        QVERIFY(!source.prepare());
        QVERIFY(source.matches(u"ferry", 9).isEmpty());
    }

    void tellsItsFilesAndPictures()
    {
        const TestFolder folder;
        putYears(folder);
        QVERIFY(QDir().mkpath(folder.path(u"Pictures"_s)));
        folder.put(u"Pictures/a.jpg"_s, "picture");
        folder.put(u"DJour2020 set aside.Fil"_s, "x");
        folder.put(u"DJourKey.Fil"_s, "x");
        folder.put(u"DJourKey set aside.Fil"_s, "x");
        folder.put(u"DJourX.Fil"_s, "x");
        QCOMPARE(JournalHoldings::files(folder.folder()),
                 (QStringList{u"DJour2019.Fil"_s, u"DJour2025.Fil"_s, u"DJour2026.Fil"_s,
                              u"DJour2020 set aside.Fil"_s, u"DJourKey set aside.Fil"_s, u"DJourKey.Fil"_s}));
        QCOMPARE(JournalHoldings::pictures(folder.folder()), QStringList{folder.path(u"Pictures/a.jpg"_s)});
    }
};

QTEST_GUILESS_MAIN(TestJournalSearch)
#include "tst_journalsearch.moc"
