// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/holidaypanel.h"
#include "calendar/window/rulespanel.h"
#include "tests/support/testprogram.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

QString cell(const QWidget &panel, const char *list, int row, int column)
{
    return control<QTableView>(panel, list)->model()->index(row, column).data().toString();
}

/// Shows the panel as the whole of its window.
void open(QWidget &window, TaskPanel &panel)
{
    auto *column = new QVBoxLayout(&window);
    column->addWidget(&panel);
    window.resize(960, 700);
    showActive(window);
}

void type(const QWidget &panel, const char *box, const QString &text)
{
    auto *line = control<QLineEdit>(panel, box);
    line->selectAll();
    QTest::keyClicks(line, text);
}

} // namespace

class TestRulePanels : public QObject
{
    Q_OBJECT
private slots:
    void buildARuleFromChoices()
    {
        TestProgram desk;
        QWidget window;
        RulesPanel &panel = *new RulesPanel(desk.program, &window, &window);
        QSignalSpy accepted(&panel, &RulesPanel::accepted);
        WallCalendar calendar;
        calendar.from = QDate(2027, 1, 1);
        panel.start(calendar);
        open(window, panel);
        QTest::mouseClick(control<QPushButton>(panel, "rulesNew"), Qt::LeftButton);
        QTest::mouseClick(control<QPushButton>(panel, "rulesKeep"), Qt::LeftButton);
        QCOMPARE(accepted.count(), 0); // it has no words yet
        type(panel, "rulesWords", u"Paper bin"_s);
        type(panel, "rulesStart", u"5 Jan 2027"_s);
        QCOMPARE(control<QLineEdit>(panel, "rulesRule")->text(), u"every 2 weeks 2027-01-05"_s);
        QCOMPARE(cell(panel, "rulesList", 0, 1), u"Every second Tuesday from January 5, 2027 on"_s);
        QCOMPARE(cell(panel, "rulesList", 0, 2), u"Tue, Jan 5, 2027"_s);
        QTest::mouseClick(control<QPushButton>(panel, "rulesNew"), Qt::LeftButton);
        type(panel, "rulesWords", u"Choir"_s);
        for (int step = 0; step < 3; ++step) // to "A weekday of a month"
            QTest::keyClick(control<QComboBox>(panel, "rulesWay"), Qt::Key_Down);
        QTest::keyClicks(control<QComboBox>(panel, "rulesOrdinal"), u"last"_s);
        QTest::keyClicks(control<QComboBox>(panel, "rulesWeekday"), u"Thursday"_s);
        QTest::keyClicks(control<QComboBox>(panel, "rulesMonth"), u"May"_s);
        type(panel, "rulesFirstYear", u"2027"_s);
        for (const QString &year : {u"2"_s, u"2026"_s}) { // half a year, and one before the first
            type(panel, "rulesLastYear", year);
            QTest::mouseClick(control<QPushButton>(panel, "rulesKeep"), Qt::LeftButton);
            QCOMPARE(accepted.count(), 0);
            QVERIFY(control<QLineEdit>(panel, "rulesLastYear")->hasFocus());
        }
        QTest::keyClick(control<QLineEdit>(panel, "rulesLastYear"), Qt::Key_Delete);
        auto *list = control<QTableView>(panel, "rulesList");
        for (const auto &[key, row] : {std::pair(Qt::Key_Home, 0), std::pair(Qt::Key_End, 1)}) {
            QTest::keyClick(list, key);
            QCOMPARE(list->currentIndex().row(), row);
        }
        QTest::keyClicks(control<QComboBox>(panel, "rulesSign")->lineEdit(), u"*"_s);
        QTest::mouseClick(control<QPushButton>(panel, "rulesKeep"), Qt::LeftButton);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(panel.rules(), (QList<CalendarRule>{{u"every 2 weeks 2027-01-05"_s, {}, u"Paper bin"_s},
                                                     {u"last thu 05 years 2027-"_s, u"*"_s, u"Choir"_s}}));
    }

    void takeARuleThatIsTyped()
    {
        TestProgram desk;
        QWidget window;
        RulesPanel &panel = *new RulesPanel(desk.program, &window, &window);
        WallCalendar calendar;
        calendar.from = QDate(2027, 1, 1);
        calendar.rules = {{u"nth 4 thu 11"_s, {}, u"Feast"_s}};
        panel.start(calendar);
        open(window, panel);
        QCOMPARE(control<QComboBox>(panel, "rulesOrdinal")->currentText(), u"fourth"_s);
        type(panel, "rulesRule", u"easter -2 moved fri+1"_s);
        QCOMPARE(control<QSpinBox>(panel, "rulesDistance")->value(), -2);
        QCOMPARE(control<QComboBox>(panel, "rulesMoving")->currentText(), u"As the rule says"_s);
        control<QSpinBox>(panel, "rulesDistance")->setValue(-3); // what has no choice of its own stays
        QCOMPARE(panel.rules().first().rule, u"easter -3 moved fri+1"_s);
        type(panel, "rulesRule", u"last fri"_s);
        QCOMPARE(control<QComboBox>(panel, "rulesMonth")->currentText(), u"every month"_s);
        QTest::keyClick(control<QComboBox>(panel, "rulesWay"), Qt::Key_Up); // a date is in a month
        QCOMPARE(panel.rules().first().rule, u"01-01"_s);
        type(panel, "rulesRule", u"nth 9 thu 11"_s);
        QCOMPARE(cell(panel, "rulesList", 0, 1), u"! Cannot be read: nth 9 thu 11"_s);
        QCOMPARE(panel.rules().first().rule, u"nth 9 thu 11"_s);
        desk.dialogs.willAnswer(Answer::No);
        QSignalSpy left(&panel, &TaskPanel::left);
        QTest::keyClick(&panel, Qt::Key_Escape);
        QCOMPARE(left.count(), 0);
        desk.dialogs.willAnswer(Answer::Yes);
        QTest::keyClick(&panel, Qt::Key_Escape);
        QCOMPARE(left.count(), 1);
    }

    void keepTheHouseholdsHolidays()
    {
        TestProgram desk;
        const QByteArray before = "Quillery holidays 1\r\n"
                                  "set\tOurs\r\n"
                                  "colour\tgreen\r\n"
                                  "holiday\t05-01\tTrip\tfar\r\n"
                                  "holiday\tnth 9 mon 01\tNever\r\n";
        desk.setBytes(u"Holiday1.Fil"_s, before);
        QWidget window;
        HolidayPanel &panel = *new HolidayPanel(desk.program, &window, &window);
        QSignalSpy changed(&panel, &HolidayPanel::changed), left(&panel, &TaskPanel::left);
        panel.start(u"ours"_s);
        open(window, panel);
        QCOMPARE(cell(panel, "holidaysList", 1, 1), u"! Line 5 cannot be read: nth 9 mon 01"_s);
        type(panel, "holidaysRule", u"05-02"_s);
        auto *sets = control<QComboBox>(panel, "holidaysSet");
        QTest::keyClicks(sets, u"Sweden"_s);
        QTest::keyClick(control<QTableView>(panel, "holidaysList"), Qt::Key_Delete);
        QTest::keyClick(sets, Qt::Key_Home);
        type(panel, "holidaysWords", u"New Year's Day"_s); // as it is: nothing that the household changes
        QTest::keyClick(sets, Qt::Key_Down);               // Canada
        QTest::keyClick(control<QTableView>(panel, "holidaysList"), Qt::Key_Delete);
        QTest::mouseClick(control<QPushButton>(panel, "holidaysDrop"), Qt::LeftButton); // as it came
        QCOMPARE(desk.bytes(u"Holiday1.Fil"_s), before);
        QTest::mouseClick(control<QPushButton>(panel, "holidaysNewSet"), Qt::LeftButton);
        type(panel, "holidaysName", u"Sweden"_s);
        QTest::mouseClick(control<QPushButton>(panel, "holidaysKeep"), Qt::LeftButton);
        QCOMPARE(changed.count(), 0); // there is one of that name
        type(panel, "holidaysName", u"School"_s);
        QTest::mouseClick(control<QPushButton>(panel, "holidaysNew"), Qt::LeftButton);
        type(panel, "holidaysWords", u"First day"_s);
        type(panel, "holidaysRule", u"09-01"_s);
        QTest::mouseClick(control<QPushButton>(panel, "holidaysKeep"), Qt::LeftButton);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(left.count(), 1);
        const QByteArray after = desk.bytes(u"Holiday1.Fil"_s);
        QVERIFY(after.startsWith("Quillery holidays 1\r\n"
                                 "set\tOurs\r\n"
                                 "colour\tgreen\r\n"
                                 "holiday\t05-02\tTrip\tfar\r\n"
                                 "holiday\tnth 9 mon 01\tNever\r\n"
                                 "set\tSweden\r\n"
                                 "holiday\t01-06\tEpiphany\r\n"));
        QVERIFY(after.endsWith("set\tSchool\r\nholiday\t09-01\tFirst day\r\n"));
        QVERIFY(!after.contains("Canada"));
        QVERIFY(!after.contains("United States"));
    }

    void leadFromTopToBottomByKeys()
    {
        TestProgram desk;
        QWidget window;
        HolidayPanel &panel = *new HolidayPanel(desk.program, &window, &window);
        panel.start(u"Ireland"_s);
        open(window, panel);
        QCOMPARE(cell(panel, "holidaysList", 0, 2), QString());
        QCOMPARE(control<QTableView>(panel, "holidaysList")->currentIndex().row(), 1); // that is kept now
        panel.setFocus();
        QStringList names;
        for (int step = 0; step < 15; ++step) {
            names << window.focusWidget()->objectName().remove(u"holidays"_s);
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(names.join(u' '),
                 u"Set NewSet List Words Way Month Day Moving FirstYear LastYear Rule Remove New Keep "
                 "Cancel"_s);
    }

    void leaveAFileOfALaterVersionAsItIs()
    {
        TestProgram desk;
        desk.setBytes(u"Holiday1.Fil"_s, "Quillery holidays 2\r\nset\tOurs\r\n");
        QWidget window;
        HolidayPanel &panel = *new HolidayPanel(desk.program, &window, &window);
        panel.start();
        open(window, panel);
        QVERIFY(!control<QPushButton>(panel, "holidaysKeep")->isEnabled());
        QVERIFY(!control<QPushButton>(panel, "holidaysNew")->isEnabled());
        QTest::keyClick(control<QTableView>(panel, "holidaysList"), Qt::Key_Delete);
        QTest::keyClick(&panel, Qt::Key_Escape);
        QCOMPARE(desk.bytes(u"Holiday1.Fil"_s), "Quillery holidays 2\r\nset\tOurs\r\n");
    }
};

QTEST_MAIN(TestRulePanels)
#include "tst_rulepanels.moc"
