// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/calendaroptions.h"
#include "planner/window/plannerviews.h"
#include "shell/core/area.h"
#include "tests/planner/window/openplanner.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QListView>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);
/// 21 November is record 381 of its year.
constexpr int recordOfToday = 380 * 900;

} // namespace

class TestZcalandar1 : public QObject
{
    Q_OBJECT
private slots:
    void opensOnTheDayOfToday()
    {
        TestProgram test;
        writeDay(test, today, dayOf({{u"8:30 AM"_s, u"Market"_s}}));
        const OpenPlanner screen(test);
        QCOMPARE(screen.caption(), u"Saturday, November 21, 2026"_s);
        QCOMPARE(screen.rows(), QStringList{u"8:30 AM|Market"_s});
        QCOMPARE(screen.window().focusWidget(), screen.time(1));
        QVERIFY(!screen.window().isModified());
    }

    void savesTheDayInTimeOrder()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        screen.type(3, u"2:00 PM"_s, u"Choir"_s);
        screen.type(7, u"9:30 AM"_s, u"Zoë"_s);
        QVERIFY(screen.window().isModified());
        screen.click("saveDay");
        QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::daySaved()});
        QCOMPARE(screen.rows(), (QStringList{u"9:30 AM|Zoë"_s, u"2:00 PM|Choir"_s}));
        QVERIFY(!screen.window().isModified());

        const QByteArray record = test.bytes(u" 2026.Cal"_s).mid(recordOfToday);
        QVERIFY(record.startsWith("9:30 AM   2:00 PM   "));
        QCOMPARE(record.size(), 850);
    }

    void asksBeforeUnsavedTextsGo_data()
    {
        rows<bool, Answer>({
            {"another day, Yes saves the day that was loaded", false, Answer::Yes},
            {"another day, No drops what was typed", false, Answer::No},
            {"exit, Yes saves", true, Answer::Yes},
            {"exit, No drops", true, Answer::No},
        });
    }

    void asksBeforeUnsavedTextsGo()
    {
        const auto [exits, answer] = row<bool, Answer>();
        TestProgram test;
        const OpenPlanner screen(test);
        screen.type(5, {}, u"Ferns"_s);
        // Nothing is replaced by the day that is there.
        screen.trigger("mVToday");
        QVERIFY(test.dialogs.takeShown().isEmpty());
        QVERIFY(screen.window().isModified());

        test.dialogs.willAnswer(answer);
        const QDate other(2027, 1, 2);
        if (exits)
            screen.click("exitPlanner");
        else
            screen.choose(other);
        QList<Message> expected{exits ? PlannerMessages::saveBeforeExiting()
                                      : PlannerMessages::saveBeforeNextAction()};
        if (answer == Answer::Yes)
            expected << PlannerMessages::daySaved();
        QCOMPARE(test.dialogs.takeShown(), expected);
        QCOMPARE(screen.isOpen(), !exits);
        QCOMPARE(PlannerFiles(test.folder).peek(today).texts[0],
                 answer == Answer::Yes ? u"Ferns"_s : QString());
        if (exits)
            return;
        QCOMPARE(screen.caption(), u"Saturday, January 2, 2027"_s);
        QCOMPARE(screen.rows(), QStringList());
        QVERIFY(PlannerFiles(test.folder).peek(other).isEmpty());
        screen.choose(today);
        QCOMPARE(screen.rows(), answer == Answer::Yes ? QStringList{u"|Ferns"_s} : QStringList());
        QVERIFY(test.dialogs.takeShown().isEmpty());
    }

    void asksBeforeItSavesNothing()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            QCOMPARE(test.bytes(u" 2026.Cal"_s), QByteArray());
            test.dialogs.willAnswer(answer);
            screen.click("saveDay");
            QCOMPARE(test.dialogs.takeShown().value(0), PlannerMessages::nothingToSave());
        }
        QCOMPARE(test.bytes(u" 2026.Cal"_s).mid(recordOfToday), QByteArray(840, ' ') + "Full      ");
    }

    void clearsTheRowsAfterAQuestion()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        screen.click("clearDay");
        QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::nothingToClear()});

        screen.type(2, u"1:00 PM"_s, u"Lunch"_s);
        for (const Answer answer : {Answer::Cancel, Answer::No, Answer::Yes}) {
            QCOMPARE(screen.rows().size(), 3);
            test.dialogs.willAnswer(answer);
            screen.click("clearDay");
            QCOMPARE(test.dialogs.takeShown(),
                     QList<Message>{PlannerMessages::clearDay(u"Saturday, November 21, 2026"_s)});
        }
        QCOMPARE(screen.rows(), QStringList());
    }

    void copiesADayRowByRow()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        auto *paste = screen.find<QAction>("mEPaste");
        screen.trigger("mECopy");
        QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::nothingToCopy()});
        QVERIFY(!paste->isEnabled());

        screen.type(0, u"7:00 AM"_s, u"Run"_s);
        screen.type(4, {}, u"Call"_s);
        screen.trigger("mECopy");
        test.dialogs.willAnswer(Answer::No);
        screen.choose(today.addDays(1));
        screen.type(0, {}, u"Mine"_s);
        paste->trigger();
        QCOMPARE(screen.rows(), (QStringList{u"|Mine"_s, u"|"_s, u"|"_s, u"|"_s, u"|Call"_s}));
        QVERIFY(screen.window().isModified());
        QVERIFY(PlannerFiles(test.folder).peek(today.addDays(1)).isEmpty());
    }

    void keepsWhereUntimedEntriesStand()
    {
        TestProgram test;
        {
            const OpenPlanner screen(test);
            QVERIFY(screen.find<QRadioButton>("Option7_0")->isChecked());
            screen.tick("Option7_1");
            screen.type(0, u"9:00 AM"_s, u"Timed"_s);
            screen.type(1, {}, u"Any time"_s);
            screen.click("saveDay");
            QCOMPARE(screen.rows(), (QStringList{u"|Any time"_s, u"9:00 AM|Timed"_s}));
        }
        QCOMPARE(test.bytes(u"GColor3.Fil"_s).mid(57 * 20), QByteArray("\x01\x00", 2));
        const OpenPlanner again(test);
        QVERIFY(again.find<QRadioButton>("Option7_1")->isChecked());
    }

    void picksTimesFromTheList()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        auto *list = screen.find<QComboBox>("Combo1");
        QCOMPARE(list->count(), 33);
        QCOMPARE(list->itemText(0), u"6:00 AM"_s);
        QCOMPARE(list->itemText(12), u"12:00 PM"_s);
        QCOMPARE(list->itemText(32), u"10:00 PM"_s);
        screen.text(6)->setFocus();
        emit list->activated(11);
        QCOMPARE(screen.time(6)->text(), u"11:30 AM"_s);
        QCOMPARE(screen.window().focusWidget(), screen.text(6));
        QVERIFY(screen.window().isModified());
    }

    void takesWhatARowCanHold()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        QTest::keyClicks(screen.time(0), u"12:00 in the night"_s);
        QTest::keyClicks(screen.text(0), QString(60, u'w'));
        QCOMPARE(screen.time(0)->text(), u"12:00 in t"_s);
        QCOMPARE(screen.text(0)->text().size(), 50);
        for (const QString &foreign : {u"\u4e00"_s, u"\u0142"_s, u"\u2192"_s}) {
            OpenPlanner::typeInto(screen.text(1), foreign);
            QCOMPARE(screen.text(1)->text(), QString());
            QVERIFY(screen.said().contains(foreign));
        }
    }

    void walksRowsAndDaysByKeys()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        const auto focus = [&] { return screen.window().focusWidget(); };
        screen.time(2)->setFocus();
        QTest::keyClick(focus(), Qt::Key_Down);
        QCOMPARE(focus(), screen.time(3));
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), screen.text(3));
        QTest::keyClick(focus(), Qt::Key_Up);
        QCOMPARE(focus(), screen.text(2));
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(focus(), screen.text(3));
        QTest::keyClicks(screen.time(3), u"8:00"_s);
        QTest::keyClick(screen.text(3), Qt::Key_Return);
        QCOMPARE(focus(), screen.time(4));
        QCOMPARE(screen.said(), u"Row 5 of 14"_s);

        test.dialogs.willAnswer(Answer::No);
        QTest::keyClick(focus(), Qt::Key_PageDown);
        QCOMPARE(screen.date(), today.addDays(1));
        QTest::keyClick(focus(), Qt::Key_PageUp);
        QTest::keyClick(focus(), Qt::Key_PageUp);
        QCOMPARE(screen.date(), today.addDays(-1));
        QTest::keyClick(focus(), Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(screen.date(), today);
        screen.click("next_day");
        QCOMPARE(screen.date(), today.addDays(1));

        auto *days = screen.find<MonthView>("MonthView1")->findChild<QTableView *>();
        days->setFocus();
        QTest::keyClick(days, Qt::Key_Right);
        QTRY_COMPARE(screen.date(), today.addDays(2));
        QTest::keyClick(days, Qt::Key_Left);
        QTRY_COMPARE(screen.date(), today.addDays(1));
        QCOMPARE(focus(), days);
        QTest::keyClick(days, Qt::Key_Return);
        QTRY_COMPARE(focus(), screen.time(0));
        QCOMPARE(screen.find<MonthView>("MonthView1")->selectedDate(), today.addDays(1));
    }

    void goesToATypedDate()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        test.dialogs.willInput(u"2/29/2028"_s);
        screen.trigger("mVGo");
        QCOMPARE(screen.date(), QDate(2028, 2, 29));
        test.dialogs.willInput(u"the day after"_s);
        screen.trigger("mVGo");
        QCOMPARE(screen.date(), QDate(2028, 2, 29));
        QVERIFY(screen.said().contains("the day after"_L1));
    }

    void staysWithinYearsOfFourDigits_data()
    {
        const QDate first(1000, 1, 1), last(9999, 12, 31);
        rows<QString, QByteArray, int, QDate>({
            {"a date before the first", u"01/01/0001"_s, {}, 0, today},
            {"a day before the first", u"01/01/1000"_s, "mVDay", -1, first},
            {"a day after the last", u"12/31/9999"_s, "mVDay", 1, last},
            {"a week before the first", u"01/03/1000"_s, "mVWeek", -1, first},
            {"a week after the last", u"12/28/9999"_s, "mVWeek", 1, last},
            {"a month before the first", u"01/20/1000"_s, "mVMonth", -1, first},
            {"a month after the last", u"12/02/9999"_s, "mVMonth", 1, last},
        });
    }

    void staysWithinYearsOfFourDigits()
    {
        const auto [typed, view, steps, expected] = row<QString, QByteArray, int, QDate>();
        TestProgram test;
        test.setBytes(u"SWR2.fil"_s, QByteArray(13 * 20, '\0').append('\1')); // two months
        const OpenPlanner screen(test);
        test.dialogs.willInput(typed);
        screen.trigger("mVGo");
        if (steps != 0) {
            QVERIFY(screen.said().isEmpty() || screen.said().startsWith("Row"_L1));
            screen.trigger(view.constData());
            screen.trigger(steps < 0 ? "mVBack" : "mVNext");
        }
        QVERIFY2(screen.said().endsWith("January 1, 1000 to December 31, 9999"_L1),
                 qPrintable(screen.said()));
        QCOMPARE(screen.window().findChild<PlannerViews *>()->date(), expected);
        QCOMPARE(QDir(test.folder.path()).entryList({u"* 999.Cal"_s, u"* 10000.Cal"_s}), QStringList());
    }

    void keepsTypedTextWhenTheDiskRefuses()
    {
        TestProgram test;
        QVERIFY(QDir(test.folder.path()).mkdir(u" 2026.Cal"_s));
        const OpenPlanner screen(test);
        screen.type(0, u"8:00"_s, u"Bus"_s);
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
        screen.click("saveDay");
        QVERIFY(test.dialogs.takeShown().isEmpty());
        QVERIFY(screen.said().contains("could not be saved"_L1));

        // Nor does another day take the place of what is on the screen.
        test.dialogs.willAnswer(Answer::Yes);
        screen.choose(QDate(2027, 3, 3));
        QCOMPARE(screen.date(), today);
        QCOMPARE(screen.rows(), QStringList{u"8:00|Bus"_s});
        QVERIFY(screen.window().isModified());
    }

    void leavesUntouchedTextsAsTheyAre()
    {
        TestProgram test;
        // Noise with the mark of a saved day: control characters, which no box can show.
        const QByteArray record = QByteArray(840, '\x01') + "Full      " + QByteArray(50, 'x');
        test.setBytes(u" 2026.Cal"_s, QByteArray(QByteArray(recordOfToday, '\0') + record));
        const OpenPlanner screen(test);
        QVERIFY(!screen.window().isModified());
        screen.text(0)->setFocus();
        screen.text(0)->selectAll();
        QTest::keyClicks(screen.text(0), u"A"_s);
        screen.click("saveDay");
        const QByteArray saved = test.bytes(u" 2026.Cal"_s).mid(recordOfToday);
        QCOMPARE(saved.left(140), QByteArray(140, '\x01'));
        QCOMPARE(saved.mid(850), QByteArray(50, 'x'));
    }

    void keepsTheCalendarOptions()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        auto *first = screen.find<MonthView>("MonthView1");
        auto *second = screen.find<MonthView>("monthViewAfter");
        QCOMPARE(first->firstDayOfWeek(), Qt::Sunday);
        QVERIFY(!second->isVisible());

        screen.trigger("mOCal");
        QCoreApplication::processEvents(); // to be laid out
        for (const char *choice : {"months_1", "weekNumbers_1", "weekStart_3", "today_1"})
            screen.tick(choice);
        QCOMPARE(test.bytes(u"SWR2.fil"_s), QByteArray());
        screen.click("calendarOptionsOk");
        QCOMPARE(CalendarOptions::read(test.settings), (CalendarOptions{1, 1, 4, 1}));

        QCOMPARE(first->firstDayOfWeek(), Qt::Wednesday);
        QCOMPARE(first->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
        QVERIFY(second->isVisible());
        QCOMPARE(second->monthShown(), 12);
        second->setSelectedDate(QDate(2026, 12, 24));
        QTRY_COMPARE(screen.date(), QDate(2026, 12, 24));
        QCOMPARE(first->monthShown(), 11);
    }

    void opensDaysFromWeekAndMonth()
    {
        TestProgram test;
        writeDay(test, QDate(2026, 11, 18), dayOf({{u"8:30 AM"_s, u"Market"_s}}));
        const OpenPlanner screen(test);
        screen.type(0, {}, u"unsaved"_s);
        test.dialogs.willAnswer(Answer::No);
        screen.trigger("mVMonth");
        auto *month = screen.find<QTableView>("monthGrid");
        QVERIFY(month->isVisible());
        const QModelIndex wednesday = month->model()->index(2, 3); // the third week, from Sunday
        QVERIFY(wednesday.data(Qt::AccessibleTextRole).toString().contains("8:30 AM Market"_L1));
        QTest::mouseClick(month->viewport(), Qt::LeftButton, {}, month->visualRect(wednesday).center());
        QCOMPARE(screen.date(), QDate(2026, 11, 18));
        QCOMPARE(screen.rows(), QStringList{u"8:30 AM|Market"_s});

        screen.trigger("mVWeek");
        auto *week = screen.find<QListView>("weekView");
        QVERIFY(week->isVisible());
        QTest::keyClick(week, Qt::Key_Down);
        QTest::keyClick(week, Qt::Key_PageDown);
        QTest::keyClick(week, Qt::Key_Return);
        QCOMPARE(screen.date(), QDate(2026, 11, 26));
        QVERIFY(!week->isVisible());

        screen.trigger("mVMonth");
        QTest::keyClick(month, Qt::Key_PageUp);
        QCOMPARE(screen.find<QLabel>("monthTitle")->text(), u"October 2026"_s);
        QTest::keyClick(month, Qt::Key_Escape);
        QVERIFY(!month->isVisible());
        QVERIFY(screen.isOpen());
    }

    void opensDaysFromTheSearch()
    {
        TestProgram test;
        PlannerFiles files(test.folder);
        writeDay(test, QDate(2019, 2, 1), dayOf({{u"9:00"_s, u"Piano tuner"_s}}));
        writeDay(test, QDate(2027, 5, 5), dayOf({{u"8:00"_s, u"Bus"_s}, {u"9:00"_s, u"piano"_s}}));
        const OpenPlanner screen(test);
        auto *box = screen.find<QLineEdit>("plannerSearch");
        auto *hits = screen.find<QTableView>("searchHits");
        QTest::keyClicks(box, u"violin"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(!hits->isVisible());
        QVERIFY(screen.said().contains("violin"_L1));

        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(screen.isOpen());
        QTest::keyClicks(box, u"PIANO"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(hits->isVisible());
        QCOMPARE(hits->model()->rowCount(), 2);
        // The nearest one to come is chosen.
        QTest::keyClick(hits, Qt::Key_Return);
        QCOMPARE(screen.date(), QDate(2027, 5, 5));
        QCOMPARE(screen.window().focusWidget(), screen.text(1));
    }

    void importsDatedToDoItems()
    {
        TestProgram test;
        test.setBytes(u"TODOActv.FIL"_s, "\"Paint\",\"12/01/2026\",\"\"\r\n\"Old\",\"11/20/2026\",\"\"\r\n"
                                         "\"Someday\",\"\",\"\"\r\n\"Call\",\"Sat 11/21/2026\",\"x\"\r\n");
        const OpenPlanner screen(test);
        PlannerFiles files(test.folder);
        for (int round = 0; round < 2; ++round) {
            test.dialogs.willAnswer(Answer::Yes);
            if (round == 0)
                screen.trigger("mVWeek");
            screen.trigger("mUImport");
            QTRY_VERIFY(screen.find<QAction>("mUImport")->isEnabled() && screen.said().contains("To Do"_L1));
            QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::importToDoItems()});
            QCOMPARE(screen.window().focusWidget(), screen.time(0));
            QCOMPARE(screen.rows(), QStringList{u"|Call"_s});
            QCOMPARE(files.peek(QDate(2026, 12, 1)).entryCount(), 1);
            QVERIFY(files.peek(QDate(2026, 11, 20)).isEmpty());
        }
        QCOMPARE(screen.said(), u"0 To Do items entered, 2 there already, 1 dated before this day"_s);
    }

    void tellsWhenNothingCanBeImported()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        QList<Message> expected{PlannerMessages::importToDoItems()};
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            test.dialogs.willAnswer(answer);
            screen.trigger("mUImport");
            QCOMPARE(test.dialogs.takeShown(), expected);
            expected << PlannerMessages::nothingToImport();
        }
    }

    void asksOnlyUnguardedFunctionsForNotes()
    {
        TestProgram test;
        FunctionEntry entry;
        QDate from, to;
        entry.dayNotes = [&](const Program &, QDate first, QDate last) {
            from = first;
            to = last;
            return QList<DayNote>{{first.addDays(3), u"Anne Lind turns 48"_s, u"Address Book"_s}};
        };
        test.functions.add(Function::AddressBook, entry);
        {
            const OpenPlanner screen(test);
            auto *list = screen.find<QListView>("comingUp");
            QTRY_COMPARE(list->model()->rowCount(), 1);
            QCOMPARE(from, today);
            QVERIFY(to > today.addDays(6));
            QCOMPARE(list->model()->index(0, 0).data(Qt::ToolTipRole).toString(),
                     u"Anne Lind turns 48 (Address Book, on Tuesday)"_s);
            QCOMPARE(screen.rows(), QStringList());
        }
        from = {};
        test.state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
        const OpenPlanner guarded(test);
        QTest::qWait(20);
        QVERIFY(!from.isValid());
    }

    void previewsWhatIsShown()
    {
        TestProgram test;
        const OpenPlanner screen(test);
        screen.type(0, u"8:00"_s, u"Bus"_s);
        screen.trigger("mOPrt");
        QVERIFY(screen.window().isPreviewShown());
        // The page keys belong to the preview now.
        QVERIFY(!screen.find<QAction>("mVNext")->isEnabled());
        screen.window().closePreview();
        QVERIFY(screen.find<QAction>("mVNext")->isEnabled());
        QCOMPARE(screen.rows(), QStringList{u"8:00|Bus"_s});

        test.dialogs.willAnswer(Answer::No);
        test.dialogs.willRun([](QDialog &dialog) {
            control<QLineEdit>(dialog, "rangeFrom")->setText(u"12/31/2026"_s);
            QTest::mouseClick(control<QPushButton>(dialog, "rangeOk"), Qt::LeftButton);
            return dialog.result();
        });
        screen.trigger("mOPRange");
        QVERIFY(screen.window().isPreviewShown());

        // Another view never comes up behind the page.
        for (const char *command : {"mVWeek", "mVMonth", "mOCal", "mEFind", "mVDay"}) {
            screen.trigger("mOPDay");
            QVERIFY(screen.window().isPreviewShown());
            screen.trigger(command);
            QVERIFY2(!screen.window().isPreviewShown(), command);
        }
    }
};

QTEST_MAIN(TestZcalandar1)
#include "tst_plannerwindow.moc"
