// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalexport.h"
#include "journal/model/journalnews.h"
#include "journal/model/journalwords.h"
#include "tests/journal/model/journaldays.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A year with an entry on the days named, and on every day of January.
QByteArray yearWith(int year, const QByteArrayList &days, const QByteArray &text)
{
    QByteArray bytes = journalHead;
    for (QDate day(year, 1, 1); day.month() == 1; day = day.addDays(1))
        bytes += "=== " + day.toString(Qt::ISODate).toLatin1() + "\r\n\r\n" + QByteArray(700, 'x') + "\r\n";
    for (const QByteArray &day : days)
        bytes += "=== " + QByteArray::number(year) + '-' + day + "\r\n\r\n" + text + "\r\n";
    return bytes;
}

} // namespace

/// What the card of the journal says.
class TestJournalNews final : public QObject
{
    Q_OBJECT

private slots:
    void tellsOfToday_data()
    {
        const QByteArray sealed = "Quillery journal sealed 1\r\n" + noiseOf(600);
        rows<QByteArray, int, QString>({
            {"no journal", {}, 8, {}},
            {"words", yearWith(2026, {"11-23"}, "# Ferry day\r\n\r\n- **two** words, 3rd \xE2\x80\x93 \\o/"),
             8, u"Written today, 6 words"_s},
            {"a word", yearWith(2026, {"11-23"}, "Ferry"), 20, u"Written today, 1 word"_s},
            {"not yet", yearWith(2026, {"11-22", "11-23 earlier"}, "x"), 17, u"Not written yet today"_s},
            {"not yet, in the evening", yearWith(2026, {"11-22"}, "x"), 18,
             u"Not written yet today, 3 entries on this day"_s},
            {"sealed", sealed, 8, u"Sealed"_s},
        });
    }
    void tellsOfToday()
    {
        const auto [bytes, hour, text] = row<QByteArray, int, QString>();
        const TestFolder folder;
        if (!bytes.isEmpty()) {
            folder.put(u"DJour2026.Fil"_s, bytes);
            folder.put(u"DJour2000.Fil"_s, yearWith(2000, {"11-23", "11-24"}, QByteArray(30'000, 'y')));
            folder.put(u"DJour2001.Fil"_s, yearWith(2001, {"11-22", "11-23 earlier", "11-24"}, "short"));
            folder.put(u"DJour2002.Fil"_s, yearWith(2002, {"02-01", "11-23"}, QByteArray(50'000, '\n')));
            folder.put(u"DJour2003.Fil"_s, journalHead + "=== 2003-11-23\n\nFirst\n");
            folder.put(u"DJour2004.Fil"_s, yearWith(2004, {}, {}));
        }
        const auto line =
            JournalNews::liveLine(folder.folder(), QDateTime(QDate(2026, 11, 23), QTime(hour, 0)));
        QCOMPARE(line ? line->text : QString(), text);
    }

    void readsTheTextOfADay()
    {
        const JournalEntry entry{.date = QDate(2026, 1, 1),
                                 .pictures = {{u"a.jpg"_s, u"At sea"_s}},
                                 .text = u"\n[picture 1]\n# To **sea**\n  - *One*\n"_s};
        QCOMPARE(JournalWords::firstLine(entry.text), u"To sea"_s);
        QCOMPARE(JournalWords::count(entry.text), 3);
        QCOMPARE(JournalExport::plainText(entry), u"\nAt sea\nTo sea\n  - One\n"_s);
    }
};

QTEST_GUILESS_MAIN(TestJournalNews)
#include "tst_journalnews.moc"
