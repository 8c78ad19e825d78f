// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannerfiles.h"
#include "planner/model/plannernews.h"
#include "tests/support/plannerdays.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestPlannerNews : public QObject
{
    Q_OBJECT
private slots:
    void tellsTheNextAppointment()
    {
        const TestProgram test;
        const QDateTime now(QDate(2026, 11, 21), QTime(10, 24));
        QVERIFY(!PlannerNews::liveLine(test.folder, now));
        QVERIFY(!test.folder.exists(u" 2026.Cal"_s));

        PlannerFiles files(test.folder);
        QVERIFY(files.write(
            now.date(),
            dayOf({{{}, u"Ferns"_s}, {u"8:30 AM"_s, u"Market"_s}, {u"11:30 AM"_s, u"Dentist"_s}})));
        QCOMPARE(PlannerNews::liveLine(test.folder, now),
                 (LiveLine{u"11:30 AM  Dentist"_s, LiveLine::Plain,
                           u"Three appointments today, the next one at 11:30 AM."_s}));
        QCOMPARE(PlannerNews::liveLine(test.folder, now.addSecs(7200))->text, u"Ferns"_s);
        QCOMPARE(PlannerNews::liveLine(test.folder, now.addDays(-1))->text, u"Tomorrow: Ferns"_s);
        QVERIFY(files.write(now.date(), dayOf({{u"8:00"_s, u"Choir"_s}, {u"9:30 AM"_s, u"Market"_s}})));
        QCOMPARE(PlannerNews::liveLine(test.folder, now)->text, u"8:00  Choir"_s); // of the evening, perhaps
    }

    void notesTheAppointmentsOfARange()
    {
        const TestProgram test;
        PlannerFiles files(test.folder);
        QVERIFY(files.write({2026, 12, 31}, dayOf({{u"9:30 PM"_s, u"Fireworks"_s},
                                                   {{}, {}},
                                                   {u"late"_s, u"Tea"_s},
                                                   {{}, u"Ferns"_s},
                                                   {u"8:00"_s, u"Choir"_s}})));
        QVERIFY(files.write({2026, 12, 30}, dayOf({{u"8"_s, u"Market"_s}})));
        const QDate eve(2026, 12, 31);
        const auto note = [&](const QString &text, QTime time, int row) {
            return DayNote{eve, text, u"Daily Planner"_s, NoteKind::Appointment, time, {0, eve, row}};
        };
        DayNote choir = note(u"Choir"_s, {8, 0}, 4);
        choir.timeText = u"8:00"_s;
        QCOMPARE(PlannerNews::dayNotes(test.folder, eve, eve.addDays(7)),
                 (QList<DayNote>{note(u"Fireworks"_s, {21, 30}, 0), note(u"late  Tea"_s, {}, 2),
                                 note(u"Ferns"_s, {}, 3), choir}));
        QCOMPARE(PlannerNews::dayNotes(test.folder, {}, eve), QList<DayNote>());
        QCOMPARE(PlannerNews::files(test.folder), QStringList{u" 2026.Cal"_s}); // none was made for 2027
    }
};

QTEST_GUILESS_MAIN(TestPlannerNews)
#include "tst_plannernews.moc"
