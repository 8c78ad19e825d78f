// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/recurrencerun.h"
#include "tests/support/plannerdays.h"
#include "tests/support/recurrences.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;
using Recurrences::times;
using Recurrences::until;

namespace {

RecurrenceRun inserting(const TestProgram &test, const Appointment &appointment, const Recurrence &recurrence)
{
    return {test.folder, UntimedPlacement::First, RecurrenceAction::Insert, appointment, recurrence};
}

} // namespace

class TestRecurrenceRun : public QObject
{
    Q_OBJECT
private slots:
    void insertsOncePerDate()
    {
        const TestProgram test;
        const Appointment piano = Appointment::ofRow(
            u" 5:00 PM "_s, u"Piano lesson with a text that is longer than its fifty bytes"_s);
        for (const int made : {10, 0}) {
            RecurrenceRun run =
                inserting(test, piano, until(Recurrence::Weekdays, QDate(2026, 11, 2), QDate(2026, 11, 15)));
            runThrough(run);
            QCOMPARE(run.made(), made);
            QCOMPARE(run.done(), 10);
            QCOMPARE(run.lastDate(), QDate(2026, 11, 13));
        }
        const PlannerDay day = PlannerFiles(test.folder).read(QDate(2026, 11, 13));
        QCOMPARE(day.times[0], u"5:00 PM"_s);
        QCOMPARE(day.texts[0], u"Piano lesson with a text that is longer than its f"_s);
        QCOMPARE(day.entryCount(), 1);
    }

    void countsFullDates()
    {
        const TestProgram test;
        PlannerFiles files(test.folder);
        PlannerDay day;
        for (std::size_t row = 0; row < 13; ++row)
            day.times[row] = u"8:%1 PM"_s.arg(10 + row);
        QVERIFY(files.write(QDate(2026, 3, 2), day));
        day.texts[13] = u"the fourteenth"_s;
        QVERIFY(files.write(QDate(2026, 3, 1), day));

        RecurrenceRun run =
            inserting(test, {u"7:00 AM"_s, u"Run"_s}, times(Recurrence::Daily, QDate(2026, 3, 1), 2));
        runThrough(run);
        QCOMPARE(run.full(), 1);
        QCOMPARE(run.made(), 1);
        QCOMPARE(files.read(QDate(2026, 3, 2)).times[0], u"7:00 AM"_s);
        QCOMPARE(files.read(QDate(2026, 3, 2)).entryCount(), 14);
    }

    void removesOneCopyPerDate()
    {
        const TestProgram test;
        PlannerFiles files(test.folder);
        const std::pair twice(u"9:00 AM"_s, u"Twice"_s), stays(u"8:00 AM"_s, u"Stays"_s);
        QVERIFY(files.write(QDate(2026, 5, 5), dayOf({twice, twice, stays})));
        const QByteArray other(850, 'y');
        test.setBytes(u" 2025.Cal"_s, other);

        RecurrenceRun run(test.folder, UntimedPlacement::First, RecurrenceAction::Remove,
                          {twice.first, twice.second},
                          until(Recurrence::Daily, QDate(2025, 12, 30), QDate(2026, 5, 31)));
        runThrough(run);
        QCOMPARE(run.removed(), 1);
        QCOMPARE(files.read(QDate(2026, 5, 5)).entryCount(), 2);
        QCOMPARE(files.read(QDate(2026, 5, 5)).texts[0], u"Stays"_s);
        QCOMPARE(test.bytes(u" 2025.Cal"_s), other);
    }

    void doesNothingWithoutAnAppointment()
    {
        const TestProgram test;
        RecurrenceRun run =
            inserting(test, Appointment::ofRow(u"  "_s, {}), times(Recurrence::Daily, QDate(2026, 1, 1), 5));
        QVERIFY(!run.step());
        QVERIFY(!test.folder.exists(u" 2026.Cal"_s));
    }
};

QTEST_GUILESS_MAIN(TestRecurrenceRun)
#include "tst_recurrencerun.moc"
