// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/recurrencerun.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Recurrence until(Recurrence::Kind kind, QDate beginning, QDate end, int interval = 1)
{
    Recurrence recurrence;
    recurrence.kind = kind;
    recurrence.beginning = beginning;
    recurrence.end = end;
    recurrence.interval = interval;
    return recurrence;
}

Recurrence times(Recurrence::Kind kind, QDate beginning, int occurrences, int interval = 1)
{
    Recurrence recurrence = until(kind, beginning, {}, interval);
    recurrence.end.reset();
    recurrence.occurrences = occurrences;
    return recurrence;
}

QStringList datesOf(const Recurrence &recurrence)
{
    QStringList dates;
    RecurrenceDates walk(recurrence);
    while (const auto date = walk.next())
        dates << date->toString(Qt::ISODate);
    return dates;
}

void runThrough(RecurrenceRun &run)
{
    while (run.step()) {}
}

} // namespace

Q_DECLARE_METATYPE(Recurrence)

class TestRecurrence : public QObject
{
    Q_OBJECT
private slots:
    void givesTheDatesOfAKind_data();
    void givesTheDatesOfAKind();
    void staysWithinTenYears_data();
    void staysWithinTenYears();
    void insertsOncePerDate();
    void countsFullDates();
    void crossesTheYear();
    void removesOneCopyPerDate();
    void doesNothingWithoutAnAppointment();
};

void TestRecurrence::givesTheDatesOfAKind_data()
{
    QTest::addColumn<Recurrence>("recurrence");
    QTest::addColumn<QString>("dates");
    const QDate friday(2026, 1, 30);
    QTest::newRow("every third day") << times(Recurrence::Daily, friday, 3, 3)
                                     << u"2026-01-30 2026-02-02 2026-02-05"_s;
    QTest::newRow("to the end date, which counts")
        << until(Recurrence::Daily, friday, QDate(2026, 2, 1)) << u"2026-01-30 2026-01-31 2026-02-01"_s;
    QTest::newRow("weekdays") << times(Recurrence::Weekdays, friday, 3)
                              << u"2026-01-30 2026-02-02 2026-02-03"_s;
    QTest::newRow("weekdays look at twice as many days only")
        << times(Recurrence::Weekdays, QDate(2026, 1, 31), 2) << u"2026-02-02 2026-02-03"_s;
    QTest::newRow("one weekday from a Saturday finds none")
        << times(Recurrence::Weekdays, QDate(2026, 1, 31), 1) << QString();
    Recurrence weekly = times(Recurrence::Weekly, friday, 3, 2);
    weekly.weekday = Qt::Tuesday;
    QTest::newRow("every second Tuesday") << weekly << u"2026-02-03 2026-02-17 2026-03-03"_s;
    Recurrence monthly = times(Recurrence::Monthly, friday, 3);
    monthly.dayOfMonth = 31;
    QTest::newRow("the last day of shorter months") << monthly << u"2026-01-31 2026-02-28 2026-03-31"_s;
    monthly.dayOfMonth = 5;
    monthly.interval = 2;
    QTest::newRow("a day of the month that is over") << monthly << u"2026-02-05 2026-04-05 2026-06-05"_s;
    QTest::newRow("leap day") << times(Recurrence::Yearly, QDate(2024, 2, 29), 3, 2)
                              << u"2024-02-29 2026-02-28 2028-02-29"_s;
    Recurrence yearly = times(Recurrence::YearlyOnDate, friday, 2);
    yearly.yearDay = QDate(2020, 1, 6);
    QTest::newRow("on a date of each year") << yearly << u"2027-01-06 2028-01-06"_s;
    QTest::newRow("no interval") << times(Recurrence::Daily, friday, 5, 0) << QString();
    QTest::newRow("end before the beginning")
        << until(Recurrence::Daily, friday, QDate(2026, 1, 1)) << QString();
    QTest::newRow("no beginning") << times(Recurrence::Daily, {}, 5) << QString();
}

void TestRecurrence::givesTheDatesOfAKind()
{
    QFETCH(Recurrence, recurrence);
    QFETCH(QString, dates);
    QCOMPARE(datesOf(recurrence).join(u' '), dates);
}

void TestRecurrence::staysWithinTenYears_data()
{
    QTest::addColumn<Recurrence>("recurrence");
    QTest::addColumn<int>("occurrences");
    const QDate day(2026, 1, 1);
    QTest::newRow("exactly ten years of days") << times(Recurrence::Daily, day, 3652) << 3652;
    QTest::newRow("a day more") << times(Recurrence::Daily, day, 3653) << 3652;
    QTest::newRow("every second day") << times(Recurrence::Daily, day, 1827, 2) << 1826;
    QTest::newRow("weeks") << times(Recurrence::Weekly, day, 600) << 521;
    QTest::newRow("months") << times(Recurrence::Monthly, day, 41, 3) << 40;
    QTest::newRow("years") << times(Recurrence::Yearly, day, 11) << 10;
    QTest::newRow("one is always possible") << times(Recurrence::Yearly, day, 1, 20) << 1;
}

void TestRecurrence::staysWithinTenYears()
{
    QFETCH(Recurrence, recurrence);
    QFETCH(int, occurrences);
    QCOMPARE(withinTenYears(recurrence).occurrences, occurrences);

    const QDate day(2026, 1, 1);
    QCOMPARE(*withinTenYears(until(Recurrence::Daily, day, QDate(2060, 1, 1))).end, day.addDays(3652));
}

void TestRecurrence::insertsOncePerDate()
{
    const TestProgram test;
    const Appointment piano =
        Appointment::ofRow(u" 5:00 PM "_s, u"Piano lesson with a text that is longer than its fifty bytes"_s);
    for (const int made : {10, 0}) {
        RecurrenceRun run(test.folder, UntimedPlacement::First, RecurrenceAction::Insert, piano,
                          until(Recurrence::Weekdays, QDate(2026, 11, 2), QDate(2026, 11, 15)));
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

void TestRecurrence::countsFullDates()
{
    const TestProgram test;
    PlannerFiles files(test.folder);
    PlannerDay day;
    for (std::size_t row = 0; row < 13; ++row)
        day.times[row] = u"8:%1 PM"_s.arg(10 + row);
    QVERIFY(files.write(QDate(2026, 3, 2), day));
    day.texts[13] = u"the fourteenth"_s;
    QVERIFY(files.write(QDate(2026, 3, 1), day));

    RecurrenceRun run(test.folder, UntimedPlacement::First, RecurrenceAction::Insert,
                      {u"7:00 AM"_s, u"Run"_s}, times(Recurrence::Daily, QDate(2026, 3, 1), 2));
    runThrough(run);
    QCOMPARE(run.full(), 1);
    QCOMPARE(run.made(), 1);
    QCOMPARE(files.read(QDate(2026, 3, 2)).times[0], u"7:00 AM"_s);
    QCOMPARE(files.read(QDate(2026, 3, 2)).entryCount(), 14);
}

void TestRecurrence::crossesTheYear()
{
    const TestProgram test;
    RecurrenceRun run(test.folder, UntimedPlacement::First, RecurrenceAction::Insert, {{}, u"Tree"_s},
                      times(Recurrence::Daily, QDate(2026, 12, 30), 4));
    runThrough(run);
    QCOMPARE(test.bytes(u" 2026.Cal"_s).size(), 900 * 430 + 850);
    QCOMPARE(test.bytes(u" 2027.Cal"_s).size(), 900 * 20 + 850);
    QCOMPARE(test.bytes(u" 2027.Cal"_s).mid(900 * 10 + 140, 4), QByteArray("Tree"));
}

void TestRecurrence::removesOneCopyPerDate()
{
    const TestProgram test;
    PlannerFiles files(test.folder);
    PlannerDay day;
    day.times = {u"9:00 AM"_s, u"9:00 AM"_s, u"8:00 AM"_s};
    day.texts = {u"Twice"_s, u"Twice"_s, u"Stays"_s};
    QVERIFY(files.write(QDate(2026, 5, 5), day));
    const QByteArray other(850, 'y');
    test.setBytes(u" 2025.Cal"_s, other);

    RecurrenceRun run(test.folder, UntimedPlacement::First, RecurrenceAction::Remove,
                      {u"9:00 AM"_s, u"Twice"_s},
                      until(Recurrence::Daily, QDate(2025, 12, 30), QDate(2026, 5, 31)));
    runThrough(run);
    QCOMPARE(run.removed(), 1);
    QCOMPARE(files.read(QDate(2026, 5, 5)).entryCount(), 2);
    QCOMPARE(files.read(QDate(2026, 5, 5)).texts[0], u"Stays"_s);
    QCOMPARE(test.bytes(u" 2025.Cal"_s), other);
}

void TestRecurrence::doesNothingWithoutAnAppointment()
{
    const TestProgram test;
    RecurrenceRun run(test.folder, UntimedPlacement::First, RecurrenceAction::Insert,
                      Appointment::ofRow(u"  "_s, {}), times(Recurrence::Daily, QDate(2026, 1, 1), 5));
    QVERIFY(!run.step());
    QVERIFY(!test.folder.exists(u" 2026.Cal"_s));
}

QTEST_GUILESS_MAIN(TestRecurrence)
#include "tst_recurrence.moc"
