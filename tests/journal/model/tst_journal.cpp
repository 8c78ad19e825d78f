// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalform.h"
#include "journal/model/lines.h"
#include "storage/saving.h"
#include "tests/journal/model/journaldays.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString file = u"DJour2026.Fil"_s;
const QDate day(2026, 3, 14);
const QDate lastDay(2026, 12, 31);

JournalEntry written(QDate date, const QString &text)
{
    return {.date = date, .text = text};
}

} // namespace

/// The journal on files written out by hand.
class TestJournal final : public QObject
{
    Q_OBJECT

private:
    const StandingClock m_clock;

private slots:
    void readsWhatIsThereAndKeepsItsBytes_data()
    {
        rows<QByteArray, QStringList>({
            {"all that an entry can say",
             "=== 2026-03-14\r\nwritten 2026-03-15 08:12\r\ntags garden, school\r\n"
             "picture Pictures/ferry.jpg | The ferry\r\npicture /far/b.png\r\nweather "
             "sunny\r\n\r\nOne\r\n\r\nTwo\r\n",
             {u"2026-03-14 at 2026-03-15 08:12 #garden #school <Pictures/ferry.jpg>The ferry </far/b.png> {weather sunny}: One//Two"_s}},
            {"lines that look like ours",
             "=== 2026-03-14\r\n\r\n\\=== 2026-03-15\r\n\\\\o/\r\n=is kept\r\n",
             {u"2026-03-14: === 2026-03-15/\\o//=is kept"_s}},
            {"line feeds alone", "=== 2026-03-14\ntags a\n\nOne\nTwo\n", {u"2026-03-14 #a: One/Two"_s}},
            {"an earlier version, and one of a deleted day",
             "=== 2026-03-14\r\n\r\nNow\r\n=== 2026-03-14 earlier\r\n\r\nThen\r\n=== 2026-03-16 "
             "earlier\r\n\r\nGone\r\n",
             {u"2026-03-14: Now"_s, u"earlier 2026-03-14: Then"_s, u"earlier 2026-03-16: Gone"_s}},
            {"two entries of a day",
             "=== 2026-03-14\r\ntags a\r\n\r\nOne\r\n\r\n=== 2026-03-14\r\ntags b, A\r\n\r\nTwo\r\n",
             {u"2026-03-14 #a #b: One//Two"_s}},
            {"bytes of Windows-1252 among UTF-8",
             "=== 2026-03-14\r\n\r\nCaf\xE9 caf\xC3\xA9 \x80\r\n",
             {u"2026-03-14: Caf\u00e9 caf\u00e9 \u20ac"_s}},
            {"two entries of a day, each with its pictures",
             "=== 2026-03-14\r\npicture a.jpg\r\npicture b.jpg\r\n\r\n[picture 2]\r\nOne\r\n"
             "=== 2026-03-14\r\npicture c.jpg\r\n\r\nTwo\r\n[picture 1]\r\n",
             {u"2026-03-14 <a.jpg> <b.jpg> <c.jpg>: [picture 2]/One/[picture 1]//Two/[picture 3]"_s}},
            {"no empty line",
             "=== 2026-03-14\r\nWe went to the sea.\r\n=== 2026-03-15\r\nsleep, all day\r\n",
             {u"2026-03-14: We went to the sea."_s, u"2026-03-15: sleep, all day"_s}},
            {"a bar in a path, and a time that is none",
             "=== 2026-03-14\r\npicture a \\| b.jpg | c | d\r\nwritten at noon\r\n\r\nOne\r\n",
             {u"2026-03-14 <a | b.jpg>c | d {written at noon}: One"_s}},
            {"dates that are none, and of another year, are text",
             "=== 2026-03-14\r\n\r\nOne\r\n=== 2026-02-30\r\n=== 2025-03-14\r\n",
             {u"2026-03-14: One/=== 2026-02-30/=== 2025-03-14"_s}},
            {"lines in front of the first entry",
             "to be sorted\r\n\r\n=== 2026-03-14\r\n\r\nOne\r\n",
             {u"2026-03-14: One"_s}},
            {"an empty entry, and one of blanks", "=== 2026-03-14\r\n=== 2026-03-15\r\n\r\n \r\n", {}},
        });
    }
    void readsWhatIsThereAndKeepsItsBytes()
    {
        const auto [bytes, days] = row<QByteArray, QStringList>();
        const TestFolder folder;
        folder.put(file, journalHead + bytes);
        Journal journal(folder.folder(), m_clock);
        QCOMPARE(described(journal, 2026), days);
        QVERIFY(journal.put(written(lastDay, u"New\n=== \\"_s)));
        QVERIFY(journal.save());
        QCOMPARE(folder.bytes(file),
                 journalHead + bytes +
                     "=== 2026-12-31\r\nwritten 2026-11-23 08:50\r\n\r\nNew\r\n\\=== \\\r\n");
        // What is read is what would be written.
        for (const JournalBlock &block : JournalForm::blocks(folder.bytes(file), 2026)) {
            if (block.kind == JournalBlock::Loose)
                continue;
            const JournalEntry entry = JournalForm::entry(block);
            QCOMPARE(JournalForm::entry(JournalForm::block(entry, block.kind)), entry);
        }
    }

    void putsDaysInOrderAndEndsTheLastLine()
    {
        const TestFolder folder;
        folder.put(file, "\xEF\xBB\xBFQuillery journal 1\n=== 2026-05-02\n\nMay\n=== 2026-01-02\n\nJanuary");
        Journal journal(folder.folder(), m_clock);
        QVERIFY(journal.put({.date = day,
                             .written = QDateTime(day, QTime(7, 5)),
                             .tags = {u"a, b"_s, u"B"_s, u" c\n"_s},
                             .pictures = {{u"Pictures/a.jpg"_s, u"By\nthe sea"_s}},
                             .otherLines = {u"weather sunny"_s},
                             .text = u"One\r\nTwo\n"_s + QChar(u'\0')}));
        QVERIFY(journal.save());
        QCOMPARE(folder.bytes(file),
                 journalHead +
                     "=== 2026-01-02\n\nJanuary\r\n"
                     "=== 2026-03-14\r\nwritten 2026-03-14 07:05\r\ntags a, b, c\r\n"
                     "picture Pictures/a.jpg | By the sea\r\nweather sunny\r\n\r\nOne\r\nTwo\r\n\r\n"
                     "=== 2026-05-02\n\nMay\n");
    }

    void onlyReadsWhatIsNotOurs_data()
    {
        rows<QByteArray, QStringList>({
            {"another file", "Dear diary\r\n=== 2026-03-14\r\n\r\nOne\r\n", {u"2026-03-14: One"_s}},
            {"a later version",
             "Quillery journal 2\r\n=== 2026-03-14\r\n\r\nOne\r\n",
             {u"2026-03-14: One"_s}},
            {"a zero byte",
             journalHead + "=== 2026-03-14\r\n\r\nOne\r\n" + QByteArray(1, '\0'),
             {u"2026-03-14: One/"_s}},
            {"a later seal", "Quillery journal sealed 2\r\n" + noiseOf(700), {}},
            {"cut in the first line", "Quillery jour", {}},
            {"noise", noiseOf(5000), {}},
        });
    }
    void onlyReadsWhatIsNotOurs()
    {
        const auto [bytes, days] = row<QByteArray, QStringList>();
        const TestFolder folder;
        folder.put(file, bytes);
        Journal journal(folder.folder(), m_clock);
        QCOMPARE(journal.state(2026), JournalYear::State::ForReading);
        QVERIFY(!journal.whyReadOnly(2026).isEmpty());
        QCOMPARE(described(journal, 2026), days);
        QVERIFY(!journal.put(written(day, u"Mine"_s)) && !journal.deleteForGood(day) && journal.save());
        QCOMPARE(folder.bytes(file), bytes);

        folder.put(u"DJour2026 set aside.Fil"_s, "of last time");
        QCOMPARE(journal.setAside(2026), u"DJour2026 set aside 2.Fil"_s);
        QCOMPARE(folder.bytes(u"DJour2026 set aside 2.Fil"_s), bytes);
        QVERIFY(journal.put(written(day, u"Mine"_s)) && journal.save());
        QCOMPARE(folder.bytes(file),
                 journalHead + "=== 2026-03-14\r\nwritten 2026-11-23 08:50\r\n\r\nMine\r\n");
    }

    /// All that was read of the year is in the new file, and what others made of it in the other.
    void setsAsideWhatBecameForeignWhileItWasOpen()
    {
        const TestFolder folder;
        folder.put(file, journalHead + "=== 2026-03-13\r\n\r\nOne\r\n");
        Journal journal(folder.folder(), m_clock);
        QVERIFY(journal.put(written(day, u"Mine"_s)) && journal.whyNotSaved(2026).isEmpty());
        folder.put(file, "Something else\r\n");
        QVERIFY(!journal.save());
        QCOMPARE(journal.whyNotSaved(2026), JournalLines::foreignFile(file));
        QCOMPARE(journal.setAside(2026), u"DJour2026 set aside.Fil"_s);
        QVERIFY(journal.save() && journal.whyNotSaved(2026).isEmpty());
        QCOMPARE(folder.bytes(u"DJour2026 set aside.Fil"_s), "Something else\r\n");
        QCOMPARE(
            folder.bytes(file),
            journalHead +
                "=== 2026-03-13\r\n\r\nOne\r\n=== 2026-03-14\r\nwritten 2026-11-23 08:50\r\n\r\nMine\r\n");
    }

    void writesNothingWhereAFolderStands()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkpath(folder.path(file)));
        expectWarning("Cannot read.*DJour2026");
        Journal journal(folder.folder(), m_clock);
        QVERIFY(!journal.put(written(day, u"Mine"_s)));
        QCOMPARE(journal.years(), QList<int>{2026});
        QVERIFY(!journal.mayBeWritten(QDate(999, 1, 1)) && !journal.mayBeWritten(QDate(10000, 1, 1)));
    }

    void keepsTheDayAsItWasBeforeTheSitting()
    {
        const TestFolder folder;
        Journal journal(folder.folder(), m_clock);
        const auto saved = [&] { return journal.save() ? folder.bytes(file) : QByteArray("not saved"); };
        QVERIFY(journal.put(written(day, u"One"_s)));
        QCOMPARE(saved(), journalHead + "=== 2026-03-14\r\nwritten 2026-11-23 08:50\r\n\r\nOne\r\n");
        QVERIFY(journal.put(written(day, u"One, two"_s)));
        const QByteArray two = "written 2026-11-23 08:50\r\n\r\nOne, two\r\n";
        QCOMPARE(saved(), journalHead + "=== 2026-03-14\r\n" + two);

        journal.beginSitting();
        QVERIFY(journal.put(written(day, u"x"_s)));
        QVERIFY(journal.put(written(day, u"y"_s)));
        const QByteArray earlier = "=== 2026-03-14 earlier\r\n" + two;
        QCOMPARE(saved(), journalHead + "=== 2026-03-14\r\nwritten 2026-11-23 08:50\r\n\r\ny\r\n" + earlier);
        QVERIFY(journal.put(written(day, u" \n"_s)));
        QCOMPARE(saved(), journalHead + "=== 2026-03-14 earlier\r\nwritten 2026-11-23 08:50\r\n\r\ny\r\n");
        QVERIFY(!journal.entry(day) && journal.dates(2026).isEmpty());
        QVERIFY(journal.put(*journal.earlier(day)));
        QCOMPARE(saved(), journalHead + "=== 2026-03-14\r\nwritten 2026-11-23 08:50\r\n\r\ny\r\n" + earlier);
        QVERIFY(journal.put(written(day, u"One, two"_s)));
        QCOMPARE(saved(), journalHead + "=== 2026-03-14\r\n" + two);

        QVERIFY(journal.deleteForGood(day));
        QVERIFY(journal.put(written(day, {})));
        QCOMPARE(saved(), journalHead);
    }

    /// Also bit by bit, and where something else is written then.
    void keepsWhatIsDeletedInTheSittingThatBeganIt()
    {
        const TestFolder folder;
        Journal journal(folder.folder(), m_clock);
        const QByteArray earlier =
            journalHead + "=== 2026-03-14 earlier\r\nwritten 2026-11-23 08:50\r\n\r\nOne two three\r\n";
        for (const QString &text : {u"One two three"_s, u"One three"_s, u"One"_s, QString(), QString()})
            QVERIFY(journal.put(written(day, text)) && journal.save());
        QCOMPARE(folder.bytes(file), earlier);
        QVERIFY(journal.put(written(day, u"Four"_s)) && journal.save());
        QCOMPARE(folder.bytes(file),
                 QByteArray(earlier).insert(journalHead.size(),
                                            "=== 2026-03-14\r\nwritten 2026-11-23 08:50\r\n\r\nFour\r\n"));
        QVERIFY(journal.put(*journal.earlier(day)) && journal.save());
        QCOMPARE(folder.bytes(file), QByteArray(earlier).replace(" earlier", ""));
    }

    void putsBackTheBytesThatUndoComesBackTo()
    {
        const QByteArray before = journalHead + "=== 2026-03-14\n\nOne\n=== 2026-03-14\nmore\n"
                                                "=== 2026-03-14 earlier\n\nOld\n";
        const TestFolder folder;
        folder.put(file, before);
        Journal journal(folder.folder(), m_clock);
        const JournalEntry entry = *journal.entry(day);
        QVERIFY(journal.put(written(day, u"Two"_s)) && journal.save());
        QVERIFY(folder.bytes(file) != before);
        QVERIFY(journal.put(entry) && journal.save());
        QCOMPARE(folder.bytes(file), before);
    }

    void losesNothingWhereTheDiskRefuses()
    {
        const QByteArray before = journalHead + "=== 2026-01-02\r\n\r\nOld\r\n";
        const QByteArray after = before + "=== 2026-03-14\r\nwritten 2026-11-23 08:50\r\n\r\nNew\r\n";
        for (const DiskFailure failure : {DiskFailure::OneStep, DiskFailure::TheEnd}) {
            for (int refused = 1; refused <= 4; ++refused) {
                const TestFolder folder;
                folder.put(file, before);
                Journal journal(folder.folder(), m_clock);
                QVERIFY(journal.put(written(day, u"New"_s)));
                {
                    const FailingDisk disk(failure, refused);
                    QVERIFY(!journal.save() && journal.isModified());
                }
                QCOMPARE(folder.bytes(file), before);
                if (failure == DiskFailure::TheEnd)
                    Saving::recover(folder.folder());
                QCOMPARE(journal.entry(day)->text, u"New"_s);
                QVERIFY(journal.save() && !journal.isModified());
                QCOMPARE(folder.bytes(file), after);
            }
        }
    }

    void takesInWhatSomebodyElseWrote_data()
    {
        const QByteArray base = journalHead + "=== 2026-03-14\r\n\r\nOne\r\n";
        const QByteArray mine = "=== 2026-03-14\r\n\r\nMine\r\n";
        const QByteArray earlier = "=== 2026-03-14 earlier\r\n\r\nOne\r\n";
        rows<QByteArray, QByteArray>({
            {"another day", base + "=== 2026-04-01\r\n\r\nTheirs\r\n",
             journalHead + mine + earlier + "=== 2026-04-01\r\n\r\nTheirs\r\n"},
            {"the same day", journalHead + "=== 2026-03-14\r\n\r\nTheirs\r\n",
             journalHead + "=== 2026-03-14\r\n\r\nMine\r\n\r\nTheirs\r\n" + earlier},
            {"the same day: its tags and a picture alone",
             journalHead + "=== 2026-03-14\r\ntags sea\r\npicture a.jpg | A\r\nweather fine\r\n\r\nOne\r\n",
             journalHead + "=== 2026-03-14\r\ntags sea\r\npicture a.jpg | A\r\nweather fine\r\n\r\nMine\r\n" +
                 earlier},
            {"the day is gone", journalHead + "=== 2026-04-01\r\n\r\nTheirs\r\n",
             journalHead + mine + earlier + "=== 2026-04-01\r\n\r\nTheirs\r\n"},
            {"the file was emptied", "", journalHead + mine + earlier},
            {"it is another file now", "Dear diary\r\n", "Dear diary\r\n"},
        });
    }
    void takesInWhatSomebodyElseWrote()
    {
        const auto [theirs, bytes] = row<QByteArray, QByteArray>();
        const TestFolder folder;
        folder.put(file, journalHead + "=== 2026-03-14\r\n\r\nOne\r\n");
        Journal journal(folder.folder(), m_clock);
        QVERIFY(journal.put(written(day, u"Mine"_s)));
        QTest::qWait(20);
        folder.put(file, theirs);
        journal.reread();
        QCOMPARE(journal.save(), bytes != theirs);
        QCOMPARE(folder.bytes(file), bytes);
        QVERIFY(journal.entry(day)->text.startsWith(u"Mine"_s));
    }

    void goesFromEntryToEntry()
    {
        const TestFolder folder;
        folder.put(u"djour1999.fil"_s, journalHead + "=== 1999-03-14\r\ntags Sea\r\n\r\nA\r\n");
        folder.put(u"DJour2024.Fil"_s, journalHead +
                                           "=== 2024-02-29\r\ntags sea\r\n\r\nB\r\n"
                                           "=== 2024-03-12\r\n\r\nC\r\n=== 2024-03-15 earlier\r\n\r\nD\r\n");
        folder.put(file, journalHead + "=== 2026-02-28\r\n\r\nE\r\n=== 2026-03-14\r\ntags tea\r\n\r\nF\r\n");
        folder.put(u"DJour99.Fil"_s, "no year");
        Journal journal(folder.folder(), m_clock);
        QCOMPARE(journal.years(), (QList<int>{1999, 2024, 2026}));
        QCOMPARE(journal.previous(QDate(2026, 2, 28)), QDate(2024, 3, 12));
        QCOMPARE(journal.next(QDate(2000, 1, 1)), QDate(2024, 2, 29));
        QCOMPARE(journal.previous(QDate(1999, 3, 14)), QDate());
        QCOMPARE(journal.next(QDate(2026, 3, 14)), QDate());
        while (journal.readNext(2026)) {}
        QCOMPARE(journal.onThisDay(day, 0), QList<QDate>{QDate(1999, 3, 14)});
        QCOMPARE(journal.onThisDay(day, 2), (QList<QDate>{QDate(2024, 3, 12), QDate(1999, 3, 14)}));
        QCOMPARE(journal.onThisDay(QDate(2024, 2, 29), 0), QList<QDate>{});
        QCOMPARE(journal.onThisDay(QDate(2024, 2, 29), 1), QList<QDate>{QDate(2026, 2, 28)});
        QCOMPARE(journal.tags(), (QMap<QString, int>{{u"sea"_s, 2}, {u"tea"_s, 1}}));
    }

    /// Whatever becomes of a year: what is left of it stays when another day is written.
    void keepsWhatIsLeftOfADamagedYear()
    {
        const QByteArray whole = journalHead + "=== 2026-01-02\r\ntags sea\r\n\r\nCaf\xC3\xA9\r\n"
                                               "=== 2026-01-02 earlier\r\n\r\n\\=\r\n"
                                               "=== 2026-05-06\r\n\r\nMay\r\n";
        QByteArrayList damaged;
        for (qsizetype at = 0; at < whole.size(); ++at) {
            damaged << whole.first(at) << whole;
            damaged.last()[at] = char(whole[at] ^ (1 << at % 8));
        }
        const TestFolder folder;
        for (const QByteArray &bytes : std::as_const(damaged)) {
            folder.put(file, bytes);
            Journal journal(folder.folder(), m_clock);
            const QStringList days = described(journal, 2026);
            const bool isWritten = journal.put(written(lastDay, u"New"_s)) && journal.save();
            QCOMPARE(folder.bytes(file) == bytes, !isWritten);
            for (const QByteArray &line : bytes.sliced(isWritten ? bytes.indexOf('\n') + 1 : 0).split('\n'))
                QVERIFY2(folder.bytes(file).contains(line), bytes);
            const QStringList now = described(journal, 2026);
            QVERIFY2(now.size() >= days.size() && (!isWritten || now.last().endsWith(u"New")), bytes);
        }
    }

    void keepsTenMegabytesOnADay()
    {
        QString text;
        for (int line = 0; text.size() < 10'000'000; ++line)
            text += QString(u"=\\caf\u00e9 "_s).repeated(line % 50) + u'\n';
        const TestFolder folder;
        Journal journal(folder.folder(), m_clock);
        QVERIFY(journal.put(written(day, text)) && journal.save());
        QVERIFY(Journal(folder.folder(), m_clock).entry(day)->text == text);
    }
};

QTEST_GUILESS_MAIN(TestJournal)
#include "tst_journal.moc"
