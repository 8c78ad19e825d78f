// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/calendaroptions.h"
#include "planner/window/plannerviews.h"
#include "shell/core/area.h"
#include "tests/planner/window/openplanner.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QListView>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);
/// 21 November is record 381 of its year.
constexpr int recordOfToday = 380 * 900;

} // namespace

class TestZcalandar1 : public OpenPlanner
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void showsAllRowsFromTheBeginning()
    {
        m_window->resize(1020, 700);
        QCoreApplication::processEvents();
        const QRect row = text(13)->rect().translated(text(13)->mapTo(m_window, QPoint()));
        auto *scroll = find<QScrollArea>("dayScroll");
        QVERIFY(scroll->rect().translated(scroll->mapTo(m_window, QPoint())).contains(row));
        QVERIFY(row.height() >= 28);
        m_window->resize(800, 600); // the choice keeps its words
        QCoreApplication::processEvents();
        QVERIFY(find<QLabel>("placementHead")->width() >= find<QLabel>("placementHead")->sizeHint().width());
    }

    void showsSixWeeksInASmallWindow()
    {
        m_window->resize(1024, 736);
        trigger("mVMonth");
        trigger("mVNext");
        trigger("mVNext"); // January 2027
        auto *grid = find<QTableView>("monthGrid");
        QCOMPARE(grid->model()->rowCount(), 6);
        QTRY_COMPARE(grid->verticalScrollBar()->maximum(), 0);
        const auto sunday = [&] { return grid->model()->headerData(0, Qt::Horizontal).toString(); };
        m_window->resize(1400, 736);
        QTRY_COMPARE(sunday(), u"Sunday"_s);
        grid->setFixedWidth(350); // a large font in a narrow window has as little room
        QTRY_COMPARE(sunday(), u"Sun"_s);
    }

    void opensOnTheDayOfToday()
    {
        writeDay(today, dayOf({{u"8:30 AM"_s, u"Market"_s}}));
        show();
        QCOMPARE(caption(), u"Saturday, November 21, 2026"_s);
        QCOMPARE(shownRows(), QStringList{u"8:30 AM|Market"_s});
        QCOMPARE(focus(), time(1));
        QVERIFY(!m_window->isModified());
        // Nothing is typed over on the day that follows.
        writeDay(today.addDays(1), dayOf({{u"9:00 AM"_s, u"Lake"_s}, {u"1:00 PM"_s, u"Lunch"_s}}));
        QTest::keyClick(focus(), Qt::Key_PageDown);
        QCOMPARE(focus(), time(2));
    }

    void savesTheDayInTimeOrder()
    {
        type(3, u"2:00 PM"_s, u"Choir"_s);
        time(7)->setFocus();
        type(7, u"9:30 AM"_s, u"Zoë"_s);
        QVERIFY(m_window->isModified());
        click("saveDay");
        QCOMPARE(asked(), {PlannerMessages::daySaved()});
        QCOMPARE(shownRows(), (QStringList{u"9:30 AM|Zoë"_s, u"2:00 PM|Choir"_s}));
        QVERIFY(!m_window->isModified());

        const QByteArray record = m_test->bytes(u" 2026.Cal"_s).mid(recordOfToday);
        QVERIFY(record.startsWith("9:30 AM   2:00 PM   "));
        QCOMPARE(record.size(), 850);
        // What was typed last is repeated from the free row as well.
        trigger("mERec");
        QVERIFY(isShown("recurrencePanel"));
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
        type(5, {}, u"Ferns"_s);
        // Nothing is replaced by the day that is there.
        trigger("mVToday");
        QVERIFY(asked().isEmpty());
        QVERIFY(m_window->isModified());

        m_test->dialogs.willAnswer(answer);
        const QDate other(2027, 1, 2);
        if (exits)
            click("exitPlanner");
        else
            choose(other);
        QList<Message> expected{exits ? PlannerMessages::saveBeforeExiting()
                                      : PlannerMessages::saveBeforeNextAction()};
        if (answer == Answer::Yes)
            expected << PlannerMessages::daySaved();
        QCOMPARE(asked(), expected);
        QCOMPARE(isOpen(), !exits);
        QCOMPARE(PlannerFiles(m_test->folder).peek(today).texts[0],
                 answer == Answer::Yes ? u"Ferns"_s : QString());
        if (exits)
            return;
        QCOMPARE(caption(), u"Saturday, January 2, 2027"_s);
        QCOMPARE(shownRows(), QStringList());
        QVERIFY(PlannerFiles(m_test->folder).peek(other).isEmpty());
        choose(today);
        QCOMPARE(shownRows(), answer == Answer::Yes ? QStringList{u"|Ferns"_s} : QStringList());
        QVERIFY(asked().isEmpty());
    }

    void asksBeforeItSavesNothing()
    {
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            QCOMPARE(m_test->bytes(u" 2026.Cal"_s), QByteArray());
            m_test->dialogs.willAnswer(answer);
            click("saveDay");
            QCOMPARE(asked().value(0), PlannerMessages::nothingToSave());
        }
        QCOMPARE(m_test->bytes(u" 2026.Cal"_s).mid(recordOfToday), QByteArray(840, ' ') + "Full      ");
    }

    void clearsTheRowsAfterAQuestion()
    {
        click("clearDay");
        QCOMPARE(asked(), {PlannerMessages::nothingToClear()});

        type(2, u"1:00 PM"_s, u"Lunch"_s);
        for (const Answer answer : {Answer::Cancel, Answer::No, Answer::Yes}) {
            QCOMPARE(shownRows().size(), 3);
            m_test->dialogs.willAnswer(answer);
            click("clearDay");
            QCOMPARE(asked(), {PlannerMessages::clearDay(u"Saturday, November 21, 2026"_s)});
        }
        QCOMPARE(shownRows(), QStringList());
    }

    void copiesADayRowByRow()
    {
        auto *paste = find<QAction>("mEPaste");
        trigger("mECopy");
        QCOMPARE(asked(), {PlannerMessages::nothingToCopy()});
        QVERIFY(!paste->isEnabled());

        type(0, u"7:00 AM"_s, u"Run"_s);
        type(4, {}, u"Call"_s);
        trigger("mECopy");
        m_test->dialogs.willAnswer(Answer::No);
        choose(today.addDays(1));
        type(0, {}, u"Mine"_s);
        paste->trigger();
        QCOMPARE(shownRows(), (QStringList{u"|Mine"_s, u"|"_s, u"|"_s, u"|"_s, u"|Call"_s}));
        QVERIFY(m_window->isModified());
        QVERIFY(PlannerFiles(m_test->folder).peek(today.addDays(1)).isEmpty());
    }

    void keepsWhereUntimedEntriesStand()
    {
        QVERIFY(find<QRadioButton>("Option7_0")->isChecked());
        tick("Option7_1");
        type(0, u"9:00 AM"_s, u"Timed"_s);
        type(1, {}, u"Any time"_s);
        click("saveDay");
        QCOMPARE(shownRows(), (QStringList{u"|Any time"_s, u"9:00 AM|Timed"_s}));
        QCOMPARE(m_test->bytes(u"GColor3.Fil"_s).mid(57 * 20), QByteArray("\x01\x00", 2));
        show();
        QVERIFY(find<QRadioButton>("Option7_1")->isChecked());
    }

    void picksTimesFromTheList()
    {
        auto *list = find<QComboBox>("Combo1");
        QCOMPARE(list->count(), 33);
        QCOMPARE(list->itemText(0), u"6:00 AM"_s);
        QCOMPARE(list->itemText(12), u"12:00 PM"_s);
        QCOMPARE(list->itemText(32), u"10:00 PM"_s);
        text(6)->setFocus();
        emit list->activated(11);
        QCOMPARE(time(6)->text(), u"11:30 AM"_s);
        QCOMPARE(focus(), text(6));
        QVERIFY(m_window->isModified());
    }

    void takesWhatARowCanHold()
    {
        QTest::keyClicks(time(0), u"12:00 in the night"_s);
        QTest::keyClicks(text(0), QString(60, u'w'));
        QCOMPARE(time(0)->text(), u"12:00 in t"_s);
        QCOMPARE(text(0)->text().size(), 50);
        for (const QString &foreign : {u"\u4e00"_s, u"\u0142"_s, u"\u2192"_s}) {
            typeInto(text(1), foreign);
            QCOMPARE(text(1)->text(), QString());
            QVERIFY(said().contains(foreign));
        }
    }

    void offersTheUsualFormOfATime()
    {
        const auto *offer = find<QAbstractButton>("timeSuggestion");
        time(0)->setFocus();
        typeInto(time(0), u"930"_s);
        QVERIFY(offer->isVisible());
        QCOMPARE(offer->text(), u"9:30 AM"_s);
        QTest::keyClick(time(0), Qt::Key_Tab);
        QCOMPARE(time(0)->text(), u"9:30 AM"_s);
        QVERIFY(focus() == text(0) && !offer->isVisible() && m_window->isModified());
        QTest::keyClick(time(0), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(time(0)->text(), u"930"_s);
        time(1)->setFocus();
        typeInto(time(1), u"8p"_s);
        QTest::keyClick(time(1), Qt::Key_Return);
        QCOMPARE(time(1)->text(), u"8:00 PM"_s);
        QCOMPARE(focus(), text(1));
        for (const Qt::Key away : {Qt::Key_Down, Qt::Key_Escape}) {
            time(2)->setFocus();
            time(2)->clear();
            typeInto(time(2), u"14:30"_s);
            QVERIFY(offer->isVisible());
            QTest::keyClick(time(2), away);
            QVERIFY(!offer->isVisible() && isOpen());
            QTest::keyClick(time(2), Qt::Key_Tab);
            QCOMPARE(time(2)->text(), u"14:30"_s); // kept as it was typed
        }
        QCOMPARE(labelText("sortedLastWords"), u"Rows 1 and 3 stand last: no AM or PM"_s);
        tick("Option7_1");
        QVERIFY(labelText("sortedLastWords").isEmpty());
        tick("Option7_0");
        QGuiApplication::clipboard()->setText(u"half past nine"_s);
        time(4)->setFocus();
        QTest::keyClick(time(4), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(time(4)->text(), u"half past "_s);
        QVERIFY(said().contains(u"\u201cnine\u201d"_s));
        click("saveDay");
        asked();
        QVERIFY(labelText("sortedLastWords").isEmpty()); // where the rows stand shows it now
    }

    void walksRowsAndDaysByKeys()
    {
        time(2)->setFocus();
        QTest::keyClick(focus(), Qt::Key_Down);
        QCOMPARE(focus(), time(3));
        QTest::keyClick(focus(), Qt::Key_Tab);
        QCOMPARE(focus(), text(3));
        QTest::keyClick(focus(), Qt::Key_Up);
        QCOMPARE(focus(), text(2));
        QTest::keyClick(focus(), Qt::Key_Return);
        QCOMPARE(focus(), text(3));
        QTest::keyClicks(time(3), u"8:00"_s);
        QTest::keyClick(text(3), Qt::Key_Return);
        QCOMPARE(focus(), time(4));
        QCOMPARE(said(), u"Row 5 of 14"_s);

        m_test->dialogs.willAnswer(Answer::No);
        QTest::keyClick(focus(), Qt::Key_PageDown);
        QCOMPARE(date(), today.addDays(1));
        QTest::keyClick(focus(), Qt::Key_PageUp);
        QTest::keyClick(focus(), Qt::Key_PageUp);
        QCOMPARE(date(), today.addDays(-1));
        QTest::keyClick(focus(), Qt::Key_T, Qt::ControlModifier);
        QCOMPARE(date(), today);
        click("next_day");
        QCOMPARE(date(), today.addDays(1));

        auto *days = find<MonthView>("MonthView1")->findChild<QTableView *>();
        days->setFocus();
        QTest::keyClick(days, Qt::Key_Right);
        QTRY_COMPARE(date(), today.addDays(2));
        QTest::keyClick(days, Qt::Key_Left);
        QTRY_COMPARE(date(), today.addDays(1));
        QCOMPARE(focus(), days);
        QTest::keyClick(days, Qt::Key_Return);
        QTRY_COMPARE(focus(), time(0));
        QCOMPARE(find<MonthView>("MonthView1")->selectedDate(), today.addDays(1));
    }

    void goesToATypedDate()
    {
        m_test->dialogs.willInput(u"2/29/2028"_s);
        trigger("mVGo");
        QCOMPARE(date(), QDate(2028, 2, 29));
        m_test->dialogs.willInput(u"the day after"_s);
        trigger("mVGo");
        QCOMPARE(date(), QDate(2028, 2, 29));
        QVERIFY(said().contains("the day after"_L1));
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
        m_test->setBytes(u"SWR2.fil"_s, QByteArray(13 * 20, '\0').append('\1')); // two months
        show();
        m_test->dialogs.willInput(typed);
        trigger("mVGo");
        if (steps != 0) {
            QVERIFY(said().isEmpty() || said().startsWith("Row"_L1));
            trigger(view.constData());
            trigger(steps < 0 ? "mVBack" : "mVNext");
        }
        QVERIFY2(said().endsWith("January 1, 1000 to December 31, 9999"_L1), qPrintable(said()));
        QCOMPARE(m_window->findChild<PlannerViews *>()->date(), expected);
        QCOMPARE(QDir(m_test->folder.path()).entryList({u"* 999.Cal"_s, u"* 10000.Cal"_s}), QStringList());
    }

    void keepsTypedTextWhenTheDiskRefuses()
    {
        QVERIFY(QFile::remove(m_test->path(u" 2026.Cal"_s)));
        QVERIFY(QDir().mkdir(m_test->path(u" 2026.Cal"_s)));
        show();
        type(0, u"8:00"_s, u"Bus"_s);
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
        click("saveDay");
        QVERIFY(asked().isEmpty());
        QVERIFY(said().contains("could not be saved"_L1));

        // Nor does another day take the place of what is on the screen.
        m_test->dialogs.willAnswer(Answer::Yes);
        choose(QDate(2027, 3, 3));
        QCOMPARE(date(), today);
        QCOMPARE(shownRows(), QStringList{u"8:00|Bus"_s});
        QVERIFY(m_window->isModified());

        // Once the disk takes it, the box does not stand above the refusal.
        QVERIFY(QDir().rmdir(m_test->path(u" 2026.Cal"_s)));
        const QSignalSpy lines(m_window->findChild<DayEditor *>(), &DayEditor::said);
        asked();
        click("saveDay");
        QCOMPARE(asked(), {PlannerMessages::daySaved()});
        QVERIFY(!lines.isEmpty() && lines.first().at(0).toString().isEmpty());
    }

    void leavesUntouchedTextsAsTheyAre()
    {
        // Noise with the mark of a saved day: control characters, which no box can show.
        const QByteArray record = QByteArray(840, '\x01') + "Full      " + QByteArray(50, 'x');
        m_test->setBytes(u" 2026.Cal"_s, QByteArray(QByteArray(recordOfToday, '\0') + record));
        show();
        QVERIFY(!m_window->isModified());
        text(0)->setFocus();
        text(0)->selectAll();
        QTest::keyClicks(text(0), u"A"_s);
        click("saveDay");
        const QByteArray saved = m_test->bytes(u" 2026.Cal"_s).mid(recordOfToday);
        QCOMPARE(saved.left(140), QByteArray(140, '\x01'));
        QCOMPARE(saved.mid(850), QByteArray(50, 'x'));
    }

    void keepsTheCalendarOptions()
    {
        auto *first = find<MonthView>("MonthView1");
        auto *second = find<MonthView>("monthViewAfter");
        QCOMPARE(first->firstDayOfWeek(), Qt::Sunday);
        QVERIFY(!second->isVisible());

        trigger("mOCal");
        QCoreApplication::processEvents(); // to be laid out
        for (const char *choice : {"months_1", "weekNumbers_1", "weekStart_3", "today_1"})
            tick(choice);
        QCOMPARE(m_test->bytes(u"SWR2.fil"_s), QByteArray());
        click("calendarOptionsOk");
        QCOMPARE(CalendarOptions::read(m_test->settings), (CalendarOptions{1, 1, 4, 1}));

        QCOMPARE(first->firstDayOfWeek(), Qt::Wednesday);
        QCOMPARE(first->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
        QVERIFY(second->isVisible());
        QCOMPARE(second->monthShown(), 12);
        second->setSelectedDate(QDate(2026, 12, 24));
        QTRY_COMPARE(date(), QDate(2026, 12, 24));
        QCOMPARE(first->monthShown(), 11);
    }

    void opensDaysFromWeekAndMonth()
    {
        writeDay(QDate(2026, 11, 18), dayOf({{u"8:30 AM"_s, u"Market"_s}}));
        show();
        type(0, {}, u"unsaved"_s);
        m_test->dialogs.willAnswer(Answer::No);
        trigger("mVMonth");
        auto *month = find<QTableView>("monthGrid");
        QVERIFY(month->isVisible());
        const QModelIndex wednesday = month->model()->index(2, 3); // the third week, from Sunday
        QVERIFY(wednesday.data(Qt::AccessibleTextRole).toString().contains("8:30 AM Market"_L1));
        QTest::mouseClick(month->viewport(), Qt::LeftButton, {}, month->visualRect(wednesday).center());
        QCOMPARE(date(), QDate(2026, 11, 18));
        QCOMPARE(shownRows(), QStringList{u"8:30 AM|Market"_s});

        trigger("mVWeek");
        auto *week = find<QListView>("weekView");
        QVERIFY(week->isVisible());
        QTest::keyClick(week, Qt::Key_Down);
        QTest::keyClick(week, Qt::Key_PageDown);
        QTest::keyClick(week, Qt::Key_Return);
        QCOMPARE(date(), QDate(2026, 11, 26));
        QVERIFY(!week->isVisible());

        trigger("mVMonth");
        QTest::keyClick(month, Qt::Key_PageUp);
        QCOMPARE(labelText("monthTitle"), u"October 2026"_s);
        QTest::keyClick(month, Qt::Key_Escape);
        QVERIFY(!month->isVisible());
        QVERIFY(isOpen());
    }

    void marksTheViewAndRepeatsInEach()
    {
        writeDay(today, dayOf({{u"8:30 AM"_s, u"Market"_s}}));
        show();
        const auto marked = [this] {
            QStringList names;
            for (const char *name : {"mVDay", "mVWeek", "mVWeek_tool", "mVMonth"}) {
                if (find<QAction>(name)->isChecked())
                    names << QString::fromLatin1(name);
            }
            return names.join(u' ');
        };
        for (const auto &[tool, marks] : {std::pair{"mVMonth_button", u"mVMonth"_s},
                                          {"mVWeek_tool_button", u"mVWeek mVWeek_tool"_s},
                                          {"mVDay_button", u"mVDay"_s},
                                          {"mVDay_button", u"mVDay"_s}}) {
            find<QToolButton>(tool)->click();
            QCOMPARE(marked(), marks);
        }
        type(1, {}, u"unsaved"_s);
        m_test->dialogs.willAnswer(Answer::Cancel);
        find<QToolButton>("mVMonth_button")->click();
        QCOMPARE(marked(), u"mVDay"_s);

        m_test->dialogs.willAnswer(Answer::No);
        find<QToolButton>("mVWeek_tool_button")->click();
        find<QToolButton>("mERec_button")->click(); // the day's one entry
        QVERIFY(isShown("recurrencePanel"));
        QVERIFY(labelText("recurrenceTitle").contains("Market"_L1));
    }

    void opensDaysFromTheSearch()
    {
        writeDay(QDate(2019, 2, 1), dayOf({{u"9:00"_s, u"Piano tuner"_s}}));
        writeDay(QDate(2027, 5, 5), dayOf({{u"8:00"_s, u"Bus"_s}, {u"9:00"_s, u"piano"_s}}));
        show();
        auto *box = find<QLineEdit>("plannerSearch");
        QTest::keyClicks(box, u"violin"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(!isShown("searchHits"));
        QVERIFY(said().contains("violin"_L1));

        QTest::keyClick(box, Qt::Key_Escape);
        QVERIFY(isOpen());
        QTest::keyClicks(box, u"PIANO"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(isShown("searchHits"));
        auto *hits = find<QTableView>("searchHits");
        QCOMPARE(hits->model()->rowCount(), 2);
        // The nearest one to come is chosen.
        QTest::keyClick(hits, Qt::Key_Return);
        QCOMPARE(date(), QDate(2027, 5, 5));
        QCOMPARE(focus(), text(1));
    }

    void importsDatedToDoItems()
    {
        m_test->setBytes(u"TODOActv.FIL"_s, "\"Paint\",\"12/01/2026\",\"\"\r\n\"Old\",\"11/20/2026\",\"\"\r\n"
                                            "\"Someday\",\"\",\"\"\r\n\"Call\",\"Sat 11/21/2026\",\"x\"\r\n");
        show();
        PlannerFiles files(m_test->folder);
        for (int round = 0; round < 2; ++round) {
            m_test->dialogs.willAnswer(Answer::Yes);
            if (round == 0)
                trigger("mVWeek");
            trigger("mUImport");
            QTRY_VERIFY(find<QAction>("mUImport")->isEnabled() && said().contains("To Do"_L1));
            QCOMPARE(asked(), {PlannerMessages::importToDoItems()});
            QCOMPARE(focus(), time(0));
            QCOMPARE(shownRows(), QStringList{u"|Call"_s});
            QCOMPARE(files.peek(QDate(2026, 12, 1)).entryCount(), 1);
            QVERIFY(files.peek(QDate(2026, 11, 20)).isEmpty());
        }
        QCOMPARE(said(), u"0 To Do items entered, 2 there already, 1 dated before this day"_s);
    }

    void tellsWhenNothingCanBeImported()
    {
        QList<Message> expected{PlannerMessages::importToDoItems()};
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            m_test->dialogs.willAnswer(answer);
            trigger("mUImport");
            QCOMPARE(asked(), expected);
            expected << PlannerMessages::nothingToImport();
        }
    }

    void asksOnlyUnguardedFunctionsForNotes()
    {
        FunctionEntry entry;
        QDate from, to;
        entry.dayNotes = [&](const Program &, QDate first, QDate last) {
            from = first;
            to = last;
            return QList<DayNote>{{first.addDays(3), u"Anne Lind turns 48"_s, u"Address Book"_s}};
        };
        m_test->functions.add(Function::AddressBook, entry);
        show();
        auto *list = find<QListView>("comingUp");
        QTRY_COMPARE(list->model()->rowCount(), 1);
        QCOMPARE(from, today);
        QVERIFY(to > today.addDays(6));
        QCOMPARE(list->model()->index(0, 0).data(Qt::ToolTipRole).toString(),
                 u"Anne Lind turns 48 (Address Book, on Tuesday)"_s);
        QCOMPARE(shownRows(), QStringList());
        from = {};
        m_test->state.protectedAreas.setFlag(Area::AddressBookButton, u"YES"_s);
        show();
        QTest::qWait(20);
        QVERIFY(!from.isValid());
        delete m_window; // before what it would ask
    }

    void previewsWhatIsShown()
    {
        type(0, u"8:00"_s, u"Bus"_s);
        trigger("mOPrt");
        QVERIFY(m_window->isPreviewShown());
        // The page keys belong to the preview now.
        QVERIFY(!find<QAction>("mVNext")->isEnabled());
        m_window->closePreview();
        QVERIFY(find<QAction>("mVNext")->isEnabled());
        QCOMPARE(shownRows(), QStringList{u"8:00|Bus"_s});

        m_test->dialogs.willAnswer(Answer::No);
        m_test->dialogs.willRun([](QDialog &dialog) {
            control<QLineEdit>(dialog, "rangeFrom")->setText(u"12/31/2026"_s);
            QTest::mouseClick(control<QPushButton>(dialog, "rangeOk"), Qt::LeftButton);
            return dialog.result();
        });
        trigger("mOPRange");
        QVERIFY(m_window->isPreviewShown());

        // Another view never comes up behind the page.
        for (const char *command : {"mVWeek", "mVMonth", "mOCal", "mEFind", "mVDay"}) {
            trigger("mOPDay");
            QVERIFY(m_window->isPreviewShown());
            trigger(command);
            QVERIFY2(!m_window->isPreviewShown(), command);
        }
    }
};

QTEST_MAIN(TestZcalandar1)
#include "tst_plannerwindow.moc"
