// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/newcalendarpanel.h"
#include "shell/preview/sheetview.h"
#include "tests/support/testprogram.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;

class TestNewCalendarPanel : public QObject
{
    Q_OBJECT
private slots:
    void makesWhatIsChosen()
    {
        TestProgram desk;
        NewCalendarPanel panel(desk.program);
        QSignalSpy accepted(&panel, &NewCalendarPanel::accepted);
        panel.resize(900, 640);
        panel.start();
        showActive(panel);
        auto *title = control<QLineEdit>(panel, "calendarTitle");
        QCOMPARE(title->text(), u"Family Calendar 2027"_s); // the program's day is in November
        QTest::keyClick(control<QComboBox>(panel, "calendarMonth"), Qt::Key_A);
        QTest::keyClick(control<QComboBox>(panel, "calendarMonth"), Qt::Key_U);
        QCOMPARE(title->text(), u"Family Calendar 2027/28"_s);
        control<QSpinBox>(panel, "calendarMonths")->setValue(13);
        QTest::keyClicks(control<QComboBox>(panel, "calendarLayout"), u"Columns"_s);
        QTest::keyClicks(control<QComboBox>(panel, "calendarStyle"), u"Open"_s);
        QTest::keyClicks(control<QComboBox>(panel, "calendarPaper"), u"A5"_s);
        QTest::keyClicks(control<QComboBox>(panel, "calendarOrientation"), u"Upright"_s);
        QTest::keyClicks(control<QComboBox>(panel, "calendarWeekStart"), u"Saturday"_s);
        control<QCheckBox>(panel, "calendarWeekNumbers")->setChecked(false);
        QTest::keyClicks(control<QLineEdit>(panel, "calendarPersons"), u" Anne,Tom , anne,,a,b,c,d,e"_s);
        auto *holidays = control<QListWidget>(panel, "calendarHolidays");
        QCOMPARE(holidays->count(), 13);
        for (int row = 0; row < holidays->count(); ++row) {
            QListWidgetItem *item = holidays->item(row);
            item->setCheckState(item->text() == u"Germany" ? Qt::Checked : Qt::Unchecked);
        }
        title->selectAll();
        QTest::keyClicks(title, u"  Kitchen "_s);
        QTest::keyClick(title, Qt::Key_Return);
        QCOMPARE(accepted.count(), 1);
        const WallCalendar calendar = panel.calendar();
        QCOMPARE(calendar.title, u"Kitchen"_s);
        QCOMPARE(calendar.from, QDate(2027, 8, 1));
        QCOMPARE(calendar.months, 13);
        QCOMPARE(calendar.look,
                 (CalendarLook{CalendarLayout::Columns, CalendarStyle::Open, u"A5"_s, false, Qt::Saturday}));
        QCOMPARE(calendar.persons, (QStringList{u"Anne"_s, u"Tom"_s, u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
        QCOMPARE(calendar.holidaySets, QStringList{u"Germany"_s});
        QCOMPARE(calendar.days.size(), 9);
        QCOMPARE(calendar.days.value(QDate(2027, 10, 3)),
                 QList({DayLine{LineSource::Holiday, QDate(2027, 10, 3), false, u"German Unity Day"_s,
                                u"German Unity Day"_s}}));
    }

    void asksForATitle()
    {
        TestProgram desk;
        NewCalendarPanel panel(desk.program);
        QSignalSpy accepted(&panel, &NewCalendarPanel::accepted);
        panel.start();
        showActive(panel);
        auto *title = control<QLineEdit>(panel, "calendarTitle");
        QTest::keyClick(title, Qt::Key_Space);
        QTest::mouseClick(control<QPushButton>(panel, "newCalendarMake"), Qt::LeftButton);
        QCOMPARE(accepted.count(), 0);
        QVERIFY(title->hasFocus());
    }

    void changesHolidaysAndLeavesWhatAPersonDid()
    {
        TestProgram desk;
        WallCalendar calendar;
        calendar.title = u"Ours"_s;
        calendar.from = QDate(2027, 1, 1);
        calendar.holidaySets = {u"Germany"_s, u"Gone"_s};
        const auto line = [](LineSource source, QDate origin, const QString &original, const QString &shown) {
            return DayLine{source, origin, false, original, shown};
        };
        const QDate unity(2027, 10, 3), christmas(2027, 12, 25);
        calendar.days = {
            {unity,
             {line(LineSource::Typed, {}, {}, u"Cake"_s),
              line(LineSource::Holiday, unity, u"German Unity Day"_s, u"German Unity Day"_s)}},
            {christmas, {line(LineSource::Holiday, christmas, u"Christmas Day"_s, u"Christmas!"_s)}}};
        NewCalendarPanel panel(desk.program);
        panel.startLook(calendar);
        QCOMPARE(panel.calendar(), calendar);
        auto *holidays = control<QListWidget>(panel, "calendarHolidays");
        for (int row = 0; row < holidays->count(); ++row)
            holidays->item(row)->setCheckState(holidays->item(row)->text() == u"Austria" ? Qt::Checked
                                                                                         : Qt::Unchecked);
        const WallCalendar changed = panel.calendar();
        QCOMPARE(changed.holidaySets, QStringList{u"Austria"_s});
        QCOMPARE(changed.days.value(unity), calendar.days.value(unity).first(1));
        QCOMPARE(changed.days.value(christmas), calendar.days.value(christmas));
        QCOMPARE(changed.days.value(QDate(2027, 10, 26)).first().shown, u"National Day"_s);
    }
};

QTEST_MAIN(TestNewCalendarPanel)
#include "tst_newcalendarpanel.moc"
