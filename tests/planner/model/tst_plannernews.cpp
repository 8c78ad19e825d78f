// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannerfiles.h"
#include "planner/model/plannernews.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestPlannerNews : public QObject
{
    Q_OBJECT
private slots:
    void readsTimesOfDay_data();
    void readsTimesOfDay();
    void tellsTheNextAppointment();
};

void TestPlannerNews::readsTimesOfDay_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QTime>("time");
    QTest::newRow("morning") << u"9:30 AM"_s << QTime(9, 30);
    QTest::newRow("noon") << u"12:00 PM"_s << QTime(12, 0);
    QTest::newRow("midnight") << u"12:15am"_s << QTime(0, 15);
    QTest::newRow("24 hours") << u"14:05"_s << QTime(14, 5);
    QTest::newRow("hour alone") << u" 8 "_s << QTime(8, 0);
    QTest::newRow("no hour") << u"25:00"_s << QTime();
    QTest::newRow("13 PM") << u"13:00 PM"_s << QTime();
    QTest::newRow("words") << u"noon"_s << QTime();
    QTest::newRow("empty") << QString() << QTime();
}

void TestPlannerNews::readsTimesOfDay()
{
    QFETCH(QString, text);
    QFETCH(QTime, time);
    QCOMPARE(PlannerNews::timeOfDay(text), time);
}

void TestPlannerNews::tellsTheNextAppointment()
{
    const TestProgram test;
    const QDateTime now(QDate(2026, 11, 21), QTime(10, 24));
    QVERIFY(!PlannerNews::liveLine(test.folder, now));
    QVERIFY(!test.folder.exists(u" 2026.Cal"_s));

    PlannerFiles files(test.folder);
    PlannerDay day;
    day.times = {QString(), u"8:30 AM"_s, u"11:30 AM"_s};
    day.texts = {u"Ferns"_s, u"Market"_s, u"Dentist"_s};
    QVERIFY(files.write(now.date(), day));
    QCOMPARE(PlannerNews::liveLine(test.folder, now),
             (LiveLine{u"11:30 AM  Dentist"_s, LiveLine::Plain,
                       u"Three appointments today, the next one at 11:30 AM."_s}));
    QCOMPARE(PlannerNews::liveLine(test.folder, now.addSecs(7200))->text, u"Ferns"_s);
    QCOMPARE(PlannerNews::liveLine(test.folder, now.addDays(-1))->text, u"Tomorrow: Ferns"_s);
}

QTEST_GUILESS_MAIN(TestPlannerNews)
#include "tst_plannernews.moc"
