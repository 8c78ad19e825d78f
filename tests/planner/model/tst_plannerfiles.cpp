// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/dayrecord.h"
#include "planner/model/plannernews.h"
#include "planner/model/plannersearch.h"
#include "planner/model/recurrencerun.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/plannerdays.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "tests/support/testprogram.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString yearFile = u" 2026.Cal"_s;
const QDate newYear(2026, 1, 1); // record 11
const Appointment ferns{u"9:00 AM"_s, u"Water the ferns"_s};

/// 1 January with one entry, and other programs' bytes behind it.
QByteArray firstDays()
{
    return QByteArray(10 * 900, 'o') + QByteArray("8:00 AM").leftJustified(140) +
           QByteArray("Run").leftJustified(700) + "Full      " + QByteArray(50, 'x') + QByteArray(900, 'y');
}

RecurrenceRun walk(const DataFolder &folder, RecurrenceAction action, int days)
{
    Recurrence daily;
    daily.beginning = newYear;
    daily.occurrences = days;
    return {folder, UntimedPlacement::First, action, ferns, daily};
}

/// Whether every byte is as it was, or zero where there was none, apart from the fields of dates in the walk.
bool isRestUntouched(const QByteArray &before, const QByteArray &after, int days)
{
    const auto rest = [&](QByteArray bytes) {
        bytes = bytes.leftJustified(std::max(before.size(), after.size()), '\0');
        for (int i = 0; i < days; ++i) {
            const qsizetype at = (DayRecord::number(newYear.addDays(i)) - 1) * 900;
            for (qsizetype byte = at; byte < std::min(at + 850, bytes.size()); ++byte)
                bytes[byte] = '-';
        }
        return bytes;
    };
    return rest(before) == rest(after);
}

} // namespace

class TestYearFiles : public QObject
{
    Q_OBJECT
private slots:
    void survivesAnyBytes_data()
    {
        rows<QByteArray>({
            {"empty", {}},
            {"a byte", QByteArray(1, '\xff')},
            {"a day", firstDays()},
            {"zeros", QByteArray(431 * 900, '\0')},
            {"noise", noiseOf(431 * 900)},
            {"noise that counts as saved",
             QByteArray(noiseOf(840) + "Full      " + noiseOf(50)).repeated(431)},
            {"more than a year", noiseOf(500 * 900 + 17)},
        });
    }

    void survivesAnyBytes()
    {
        const auto [bytes] = row<QByteArray>();
        const TestProgram test;
        test.setBytes(yearFile, bytes);
        const PlannerFiles files(test.folder);
        const auto lookAtEverything = [&] {
            files.days(QDate(2025, 12, 1), QDate(2027, 1, 31));
            PlannerSearch search(files, u"e"_s);
            runThrough(search);
            PlannerNews::liveLine(test.folder, newYear.startOfDay());
            return files.read(newYear);
        };
        lookAtEverything();
        QCOMPARE(test.bytes(yearFile), bytes);

        constexpr int days = 40;
        RecurrenceRun insert = walk(test.folder, RecurrenceAction::Insert, days);
        runThrough(insert);
        QCOMPARE(insert.made() + insert.full(), days);
        RecurrenceRun remove = walk(test.folder, RecurrenceAction::Remove, days);
        runThrough(remove);
        QCOMPARE(remove.removed(), insert.made());
        QVERIFY(isRestUntouched(bytes, test.bytes(yearFile), days));
        lookAtEverything();
    }

    /// Nobody can say that an appointment is not in a file that cannot be read.
    void tellsWhatItCannotRead()
    {
        const TestProgram test;
        QVERIFY(QDir().mkpath(test.path(yearFile)));
        for (const RecurrenceAction action : {RecurrenceAction::Insert, RecurrenceAction::Remove}) {
            RecurrenceRun run = walk(test.folder, action, 1);
            runThrough(run);
            QCOMPARE(run.failed(), 1);
        }
    }

    void hasNoFileBeyondTheDatesOfThePlanner()
    {
        const TestProgram test;
        PlannerFiles files(test.folder);
        for (const QDate date : {QDate(-1, 5, 5), QDate(999, 12, 31), QDate(10000, 1, 1), QDate()}) {
            QCOMPARE(files.read(date), PlannerDay());
            QVERIFY(!files.write(date, {}));
        }
        files.forEachDay(0, [](QDate, const PlannerDay &) { QFAIL("no day is of the year 0"); });
        QCOMPARE(files.days(QDate(-1, 12, 25), QDate(999, 12, 31)).size(), 0U);
        test.setBytes(u" 0000.Cal"_s, QByteArray());
        QCOMPARE(files.years(), QList<int>());
        QCOMPARE(QDir(test.folder.path()).entryList(QDir::Files), QStringList{u" 0000.Cal"_s});
        QVERIFY(DayRecord::ofNumber(firstDays(), DayRecord::number({})).isEmpty());
    }

    void readsWhatACutFileStillHolds()
    {
        const TestProgram test;
        const PlannerFiles files(test.folder);
        const QByteArray whole = firstDays();
        for (qsizetype cut = 0; cut <= whole.size(); cut += cut < 9000 ? 499 : 1) {
            const QByteArray bytes = whole.left(cut);
            test.setBytes(yearFile, bytes);
            // The mark stands at the end of a day: from its fourth letter on the day is there.
            const int entries = cut >= 9000 + 844 ? 1 : 0;
            QCOMPARE(files.read(newYear).entryCount(), entries);
            if (cut % 50 != 0 && cut < whole.size())
                continue;
            RecurrenceRun run = walk(test.folder, RecurrenceAction::Insert, 1);
            runThrough(run);
            QCOMPARE(files.read(newYear).entryCount(), entries + 1);
            QVERIFY(isRestUntouched(bytes, test.bytes(yearFile), 1));
        }
    }

    void tellsTheTruthAboutAFullDisk_data()
    {
        rows<int, int>({
            {"no room at all", 0, 0},
            {"within the first day", 10 * 900 + 300, 0},
            {"within the mark of the fourth", 40 * 900 + 842, 3},
            {"behind the fourth", 40 * 900 + 850, 4},
        });
    }

    void tellsTheTruthAboutAFullDisk()
    {
#ifdef Q_OS_UNIX
        const auto [room, made] = row<int, int>();
        const TestProgram test;
        RecurrenceRun run = walk(test.folder, RecurrenceAction::Insert, 6);
        {
            const FileSizeLimit fullDisk{rlim_t(room)};
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
            while (run.failed() == 0 && run.step()) {}
        }
        QCOMPARE(run.made(), made);
        QCOMPARE(run.failed(), 1);
        QCOMPARE(run.lastDate(), newYear.addDays(made));
        const PlannerFiles files(test.folder);
        for (int i = 0; i < 6; ++i)
            QCOMPARE(files.read(newYear.addDays(i)).entryCount(), i < made ? 1 : 0);
#endif
    }
};

QTEST_GUILESS_MAIN(TestYearFiles)
#include "tst_plannerfiles.moc"
