// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalexport.h"
#include "journal/model/journalhtml.h"
#include "journal/model/journalimport.h"
#include "shell/pictures/keptpictures.h"
#include "tests/journal/model/journaldays.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString file = u"DJour2026.Fil"_s;
const QByteArray there = journalHead + "=== 2026-03-14\r\n\r\nThere\r\n";

/// The preview, a line for each of its own.
QStringList shown(const JournalImport &import)
{
    QStringList lines;
    for (std::size_t line = 0; line < import.lineCount(); ++line)
        lines << u"%1 %2 %3: %4"_s.arg(QString::number(import.lineNumber(line)),
                                       import.cell(line, JournalImport::Date),
                                       import.cell(line, JournalImport::Text), import.whatBecomesOf(line));
    return lines;
}

} // namespace

/// What comes in as text, and what leaves as text and for browsers.
class TestJournalImport final : public QObject
{
    Q_OBJECT

private:
    const StandingClock m_clock;

private slots:
    void putsWhatComesUnderWhatIsThere_data()
    {
        rows<QByteArray, QStringList, QByteArray>({
            {"a log",
             "my log\n\n[2026-03-14 08:12] Woke **up**\n=late\n\n[2026-3-14 9:30 PM] Slept\n[2026-03-15] All "
             "day\n"
             "[2026-03-16 25:00] Never\nmore of it\n[2026-02-30 08:00] Never\n[not a date] is text\n",
             {u"1  my log: Not read: no date above it"_s,
              u"3 2026-03-14 08:12 Woke up: Will stand under what the day has"_s,
              u"6 2026-3-14 21:30 Slept: Will stand under what the day has"_s,
              u"7 2026-03-15 All day: Will be a new day"_s,
              u"8 2026-03-16 Never: Not read: 25:00 is no time"_s,
              u"10 2026-02-30 08:00 Never: Not read: 2026-02-30 is no date"_s},
             journalHead +
                 "=== 2026-03-14\r\nwritten 2026-03-14 08:12\r\n\r\nThere\r\n\r\n08:12 Woke **up**\r\n"
                 "\\=late\r\n\r\n21:30 Slept\r\n"
                 "=== 2026-03-14 earlier\r\n\r\nThere\r\n"
                 "=== 2026-03-15\r\nwritten 2026-11-23 08:50\r\n\r\nAll day\r\n"},
            {"the form of the journal",
             "Quillery journal 1\r\nlost\r\n=== 2026-03-15\r\nwritten 2026-03-16 07:00\r\ntags "
             "sea\r\nweather fine\r\n\r\nOne\r\n"
             "[2026-01-01] is text\r\n=== 2026-03-15 earlier\r\n\r\nOld\r\n=== 2026-03-14\r\n\r\nThere\r\n",
             {u"2  lost: Not read: no date above it"_s, u"3 2026-03-15 One: Will be a new day"_s,
              u"10 2026-03-15 Old: Not taken: an earlier version"_s,
              u"13 2026-03-14 There: Not taken: the day has it already"_s},
             there + "=== 2026-03-15\r\nwritten 2026-03-16 07:00\r\ntags sea\r\nweather fine\r\n\r\nOne\r\n"
                     "[2026-01-01] is text\r\n"},
            {"parts of what is there, its tags, and a picture at its place",
             "=== 2026-03-14\n\nTher\n=== 2026-03-14\ntags sea\npicture a.jpg\n\nThere\n[picture 1]\n"
             "=== 2026-03-14\ntags sea, tea\n\nThere\n=== 2026-03-14\npicture a.jpg\n\nThere\n[picture 1]\n",
             {u"1 2026-03-14 Ther: Will stand under what the day has"_s,
              u"4 2026-03-14 There: Will stand under what the day has"_s,
              u"10 2026-03-14 There: Will stand under what the day has"_s,
              u"14 2026-03-14 There: Will stand under what the day has"_s},
             journalHead + "=== 2026-03-14\r\ntags sea, tea\r\npicture "
                           "a.jpg\r\n\r\nThere\r\n\r\nTher\r\n"
                           "\r\nThere\r\n[picture 1]\r\n=== 2026-03-14 earlier\r\n\r\nThere\r\n"},
            {"a year that cannot be written to",
             "[2019-05-01 08:00] Sea\n",
             {u"1 2019-05-01 08:00 Sea: Not taken: 2019 cannot be written to"_s},
             there},
            {"UTF-16",
             QByteArray("\xFF\xFE[\0002\0000\0002\0006\0-\0000\0003\0-\0001\0005\0]\0 \0A\0\n\0", 32),
             {u"1 2026-03-15 A: Will be a new day"_s},
             there + "=== 2026-03-15\r\nwritten 2026-11-23 08:50\r\n\r\nA\r\n"},
            {"nothing", "", {}, there},
        });
    }
    void putsWhatComesUnderWhatIsThere()
    {
        const auto [bytes, lines, after] = row<QByteArray, QStringList, QByteArray>();
        const TestFolder folder;
        folder.put(file, there);
        folder.put(u"DJour2019.Fil"_s, "Quillery journal 2\r\n");
        Journal journal(folder.folder(), m_clock);
        JournalImport import(bytes, journal);
        while (import.step()) {}
        QCOMPARE(shown(import), lines);
        const QList<JournalEntry> before = import.take();
        QCOMPARE(import.chosenCount(), 0);
        QVERIFY(journal.save());
        QCOMPARE(folder.bytes(file), after);
        for (const JournalEntry &entry : before)
            QVERIFY(journal.takeBack(entry));
        QVERIFY(journal.save());
        QCOMPARE(folder.bytes(file), there);
    }

    void takesOnlyWhatIsTicked()
    {
        const TestFolder folder;
        Journal journal(folder.folder(), m_clock);
        JournalImport import("[2026-03-14] One\n[2026-03-15] Two\n", journal);
        import.step();
        import.setChosen(0, false);
        QCOMPARE(import.chosenCount(), 1);
        import.take();
        QCOMPARE(journal.dates(2026), QList<QDate>{QDate(2026, 3, 15)});
    }

    void leavesInTheFormThatComesBack()
    {
        const TestFolder folder;
        folder.put(u"DJour2019.Fil"_s, journalHead + "=== 2019-03-14\r\ntags Sea\r\n\r\nA\r\n");
        folder.put(file, journalHead +
                             "=== 2026-03-14\r\ntags sea\r\n\r\n\\=B\r\n=== 2026-03-14 earlier\r\n\r\nC\r\n"
                             "=== 2026-03-15\r\n\r\nD\r\n");
        Journal journal(folder.folder(), m_clock);
        const auto exported = [&journal](const JournalExport::Selection &selection) {
            return JournalExport::text(JournalExport::entries(journal, selection));
        };
        const QByteArray a = "=== 2019-03-14\r\ntags Sea\r\n\r\nA\r\n";
        const QByteArray b = "=== 2026-03-14\r\ntags sea\r\n\r\n\\=B\r\n";
        const QByteArray d = "=== 2026-03-15\r\n\r\nD\r\n";
        QCOMPARE(exported({}), journalHead + a + b + d);
        QCOMPARE(exported({.tag = u"SEA"_s}), journalHead + a + b);
        QCOMPARE(exported({.from = QDate(2019, 3, 15), .to = QDate(2026, 3, 14)}), journalHead + b);

        const TestFolder other;
        Journal copy(other.folder(), m_clock);
        JournalImport import(exported({}), copy);
        while (import.step()) {}
        import.take();
        for (const QDate date : {QDate(2019, 3, 14), QDate(2026, 3, 14), QDate(2026, 3, 15)}) {
            QCOMPARE(copy.entry(date)->text, journal.entry(date)->text);
            QCOMPARE(copy.entry(date)->tags, journal.entry(date)->tags);
        }
    }

    void makesAFileForBrowsers()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkpath(folder.path(u"Pictures"_s)));
        folder.put(u"Pictures/the ferry.jpg"_s, "ferry");
        const JournalEntry entry{
            .date = QDate(2026, 3, 14),
            .tags = {u"a<b"_s},
            .pictures = {{u"Pictures/the ferry.jpg"_s, u"At \"sea\""_s}, {u"/far/gone.png"_s}},
            .text = u"# To sea\n**We** & *you*\n[picture 1]\n- One\n- Two\n\n[picture 7]"_s};
        const JournalHtml html({entry}, u"Holm <2026>"_s, DateStyle::Other, folder.folder());
        const QString path = folder.path(u"out/My journal.html"_s);
        const QByteArray bytes = html.file(path);
        QVERIFY(bytes.contains("<title>Holm &lt;2026&gt;</title>"));
        const qsizetype begin = bytes.indexOf("<article");
        QCOMPARE(
            bytes.sliced(begin, bytes.indexOf("</article>") - begin),
            QByteArray("<article id=\"2026-03-14\">\n<h2>Saturday, 14 March 2026</h2>\n<h3>To sea</h3>\n"
                       "<p><b>We</b> &amp; <i>you</i></p>\n"
                       "<figure><img src=\"My%20journal%20pictures/2026-03-14%20the%20ferry.jpg\" "
                       "alt=\"At &quot;sea&quot;\"><figcaption>At &quot;sea&quot;</figcaption></figure>\n"
                       "<ul>\n<li style=\"margin-left: 0em\">One</li>\n<li style=\"margin-left: "
                       "0em\">Two</li>\n</ul>\n"
                       "<p>[picture 7]</p>\n"
                       "<figure><div class=\"missing\">gone.png</div></figure>\n"
                       "<p class=\"tags\">a&lt;b</p>\n"));
        QCOMPARE(html.copyPictures(path), QStringList{u"gone.png"_s});
        QCOMPARE(folder.bytes(u"out/My journal pictures/2026-03-14 the ferry.jpg"_s), QByteArray("ferry"));
    }

    void keepsPicturesWithTheJournal()
    {
        const TestFolder folder;
        const TestFolder outside;
        outside.put(u"ferry.jpg"_s, "one");
        const auto keep = [&](const TestFolder &from, const QString &name) {
            return KeptPictures::keepCopy(folder.folder(), from.path(name));
        };
        QCOMPARE(keep(outside, u"ferry.jpg"_s), u"Pictures/ferry.jpg"_s);
        QCOMPARE(keep(outside, u"ferry.jpg"_s), u"Pictures/ferry.jpg"_s);
        outside.put(u"ferry.jpg"_s, "two");
        QCOMPARE(keep(outside, u"ferry.jpg"_s), u"Pictures/ferry 2.jpg"_s);
        QCOMPARE(folder.bytes(u"Pictures/ferry.jpg"_s), QByteArray("one"));
        QCOMPARE(folder.bytes(u"Pictures/ferry 2.jpg"_s), QByteArray("two"));
        QCOMPARE(keep(outside, u"none.jpg"_s), QString());
        folder.put(u"here.png"_s, "x");
        QCOMPARE(keep(folder, u"here.png"_s), u"here.png"_s);

        const auto locate = [&](const QString &path) { return KeptPictures::locate(folder.folder(), path); };
        QCOMPARE(locate(u"Pictures/ferry.jpg"_s), folder.path(u"Pictures/ferry.jpg"_s));
        QCOMPARE(locate(outside.path(u"ferry.jpg"_s)), outside.path(u"ferry.jpg"_s));
        QCOMPARE(locate(u"C:\\moved\\ferry.jpg"_s), folder.path(u"Pictures/ferry.jpg"_s));
        QCOMPARE(locate(u"Pictures"_s), QString());
    }
};

QTEST_GUILESS_MAIN(TestJournalImport)
#include "tst_journalimport.moc"
