// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/lines.h"
#include "planner/window/recurrenceform.h"
#include "shell/controls/flowtoolbar.h"
#include "tests/planner/window/openplanner.h"
#include "tests/support/filesizelimit.h"

#include <QCheckBox>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

/// The recurrence panel for "9:00 AM Yoga" of 21 November 2026, a Saturday.
class TestRecurrencePanel : public OpenPlanner
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void asksForAKind()
    {
        openPanel();
        click("recurrenceOk");
        QCOMPARE(asked(), {PlannerMessages::noRecurrenceSelected()});
        QVERIFY(isShown("recurrencePanel"));
        click("recurrenceCancel");
        QVERIFY(!isShown("recurrencePanel"));
        QCOMPARE(m_test->bytes(u" 2026.Cal"_s), QByteArray());
    }

    void showsWhatItWouldDo()
    {
        const PlannerDay full = dayOf(QList<std::pair<QString, QString>>(14, {{}, u"entry"_s}));
        writeDay(QDate(2026, 11, 28), full);
        writeDay(QDate(2027, 3, 6), full);
        writeDay(QDate(2026, 12, 12), dayOf({{u"9:00 AM"_s, u"Yoga"_s}}));
        m_window->resize(1280, 800);
        openPanel();
        QTRY_COMPARE(labelText("outlookRemoval"),
                     u"Remove This Recurrence takes it out of 1 date, Sat Dec 12, 2026"_s);
        QVERIFY(!isShown("outlookDates"));
        tick("kind_2");
        QTRY_COMPARE(labelText("outlookSum"), u"53 dates, Sat Nov 21, 2026 to Sat Nov 20, 2027"_s);
        QCOMPARE(labelText("outlookFull"), u"2 of these days are full: they are left out"_s);
        QCOMPARE(labelText("outlookDates"),
                 u"Sat Nov 21, 2026\nSat Nov 28, 2026 - full, left out\nSat Dec 5, 2026\n"
                 "Sat Dec 12, 2026 - there already\nSat Dec 19, 2026\nSat Dec 26, 2026\n"
                 "Sat Mar 6, 2027 - full, left out\nand 46 more"_s);
        // Where the dates stand below the kinds they take less room, and all of it is in sight.
        m_window->resize(1024, 768);
        QTRY_VERIFY(labelText("outlookDates").contains(u" \u00b7 Sat\u00a0Dec\u00a05,"_s));
        QTRY_COMPARE(find<QScrollArea>("recurrenceScroll")->verticalScrollBar()->maximum(), 0);
        set("endDate", u"11/21/2070"_s); // pulled in to ten years, as the walk is
        QTRY_COMPARE(labelText("outlookSum"), u"522 dates, Sat Nov 21, 2026 to Sat Nov 15, 2036"_s);
        set("endDate", u"soon"_s);
        QTRY_COMPARE(labelText("outlookSum"), PlannerLines::noEnd());
        QVERIFY(!isShown("outlookDates") && !isShown("outlookRemoval"));
        click("recurrenceCancel");
        QVERIFY(!QFile::exists(m_test->path(u" 2030.Cal"_s)));
    }

    void proposesTheKindThatTheDaysAroundHave_data()
    {
        using Dates = QList<QDate>;
        const QDate date(2026, 11, 21);
        rows<Dates, QByteArray, QString>({
            {"nothing tells", {}, {}, {}},
            {"yesterday", {date.addDays(-1)}, "kind_0", u"1"_s},
            {"last week", {date.addDays(-7)}, "kind_2", u"1"_s},
            {"in two weeks", {date.addDays(14)}, "kind_2", u"2"_s},
            {"four weeks ago", {date.addDays(-28)}, "kind_2", u"4"_s},
            {"next month", {date.addMonths(1)}, "kind_3", u"1"_s},
            {"29 days ago", {date.addDays(-29)}, "kind_3", u"1"_s},
            {"a quarter ago", {date.addMonths(-3)}, "kind_3", u"3"_s},
            {"last year", {date.addYears(-1)}, "kind_4", u"1"_s},
            {"last year, the same weekday", {date.addDays(-364)}, "kind_4", u"1"_s},
            {"40 days ago", {date.addDays(-40)}, {}, {}},
        });
    }

    void proposesTheKindThatTheDaysAroundHave()
    {
        const auto [others, kind, interval] = row<QList<QDate>, QByteArray, QString>();
        for (const QDate other : others)
            writeDay(other, dayOf({{u"9:00 AM"_s, u"Yoga"_s}}));
        openPanel();
        QMap<QByteArray, QByteArray> boxes{{"kind_0", "dailyInterval"},
                                           {"kind_1", {}},
                                           {"kind_2", "weeklyInterval"},
                                           {"kind_3", "monthlyInterval"},
                                           {"kind_4", "yearlyInterval"}};
        for (const auto &[id, box] : boxes.asKeyValueRange()) {
            QCOMPARE(find<QRadioButton>(id)->isChecked(), id == kind);
            if (!box.isEmpty())
                QCOMPARE(find<QLineEdit>(box)->text(), id == kind ? interval : u"1"_s);
        }
        QVERIFY(find<QRadioButton>("weekday_6")->isChecked());
    }

    void tabComesToTheBoxesAsTheyStand()
    {
        openPanel();
        QStringList names;
        const QWidget *first = QApplication::focusWidget();
        do {
            names.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && names.size() < 60);
        names.removeIf([](const QString &name) { return name.endsWith("_button"_L1); });
        QCOMPARE(names.join(u' '),
                 u"kind_0 dailyInterval weeklyInterval weekday_6 dayOfMonth monthlyInterval yearlyInterval "
                 "yearDay yearDayInterval recurrenceRemove recurrenceOk recurrenceCancel beginningDate "
                 "endBy_0 endDate "
                 "occurrences calendarSets_0 qt_calendar_calendarview"_s);
    }

    void refusesQuietly_data()
    {
        rows<QByteArray, QByteArray, QString>({
            {"an interval of nothing", "kind_0", "dailyInterval", u"0"_s},
            {"an interval that is no number", "kind_2", "weeklyInterval", u"two"_s},
            {"a day that no month has", "kind_3", "dayOfMonth", u"32"_s},
            {"a date of the year that is none", "kind_5", "yearDay", u"soon"_s},
            {"a beginning that is no date", "kind_1", "beginningDate", u"soon"_s},
            {"an end that is no date", "kind_1", "endDate", u"later"_s},
            {"an end before the beginning", "kind_1", "endDate", u"11/20/2026"_s},
            {"a beginning before the planner's dates", "kind_1", "beginningDate", u"12/31/0999"_s},
            {"no occurrences", "kind_1", "occurrences", u"0"_s},
        });
    }

    void refusesQuietly()
    {
        const auto [kind, box, text] = row<QByteArray, QByteArray, QString>();
        openPanel();
        tick(kind);
        set(box, text);
        click("recurrenceOk");
        QVERIFY(!said().isEmpty());
        QVERIFY(!isRunning());
        QVERIFY(isShown("recurrencePanel"));
        QVERIFY(asked().isEmpty());
        QCOMPARE(m_test->bytes(u" 2026.Cal"_s), QByteArray());
    }

    void insertsEachKind_data()
    {
        rows<QString, QString, QString>({
            {"every third day", u"kind_0"_s, u"dailyInterval=3 occurrences=3"_s,
             u"2026-11-21 2026-11-24 2026-11-27"_s},
            {"weekdays", u"kind_1"_s, u"endDate=11/24/2026"_s, u"2026-11-23 2026-11-24"_s},
            {"every second Tuesday", u"kind_2 weekday_2"_s, u"weeklyInterval=2 occurrences=2"_s,
             u"2026-11-24 2026-12-08"_s},
            {"the last day of every month", u"kind_3"_s, u"dayOfMonth=31 occurrences=4"_s,
             u"2026-11-30 2026-12-31 2027-01-31 2027-02-28"_s},
            {"every year", u"kind_4"_s, u"endDate=11/21/2028"_s, u"2026-11-21 2027-11-21 2028-11-21"_s},
            {"a date of every second year", u"kind_5"_s,
             u"yearDay=2/29/2024 yearDayInterval=2 occurrences=2"_s, u"2027-02-28 2029-02-28"_s},
        });
    }

    void insertsEachKind()
    {
        const auto [choices, boxes, dates] = row<QString, QString, QString>();
        openPanel();
        for (const QString &choice : choices.split(u' '))
            tick(choice.toLatin1());
        for (const QString &box : boxes.split(u' '))
            set(box.section(u'=', 0, 0).toLatin1(), box.section(u'=', 1));
        insert();
        QStringList found;
        PlannerFiles files(m_test->folder);
        for (const auto &[date, day] : files.days(QDate(2026, 1, 1), QDate(2036, 12, 31))) {
            QCOMPARE(day.texts[0], u"Yoga"_s);
            found << date.toString(Qt::ISODate);
        }
        QCOMPARE(found.join(u' '), dates);
        QCOMPARE(asked(), {*PlannerMessages::recurrenceReport(int(found.size()), 0)});
        QVERIFY(!isShown("recurrencePanel"));
    }

    void reportsFullDates_data()
    {
        rows<int, QString>({
            {"one", 1,
             u"There was 1 date that was full and this Appointment\ncould not entered for that date!\n\n"
             "The recurrence option did make 2"_s},
            {"two", 2,
             u"There were 2 dates that were full and this Appointment\ncould not entered for those dates!\n\n"
             "The recurrence option did make 1"_s},
        });
    }

    void reportsFullDates()
    {
        const auto [fullDates, report] = row<int, QString>();
        const PlannerDay fullDay = dayOf(QList<std::pair<QString, QString>>(14, {{}, u"entry"_s}));
        for (int i = 0; i < fullDates; ++i)
            writeDay(QDate(2026, 11, 22).addDays(i), fullDay);
        openPanel();
        tick("kind_0");
        set("occurrences", u"3"_s);
        insert();
        const QString end =
            u" entry(ies).\n[Note: If Appointment already exists it was not entered again!]"_s;
        QCOMPARE(asked(), (QList<Message>{{u"Recurrence Option"_s, report + end}}));
        // The day of the calendar shows its new entry at once.
        QCOMPARE(shownRows(), QStringList{u"9:00 AM|Yoga"_s});
    }

    void removesAfterAQuestion()
    {
        PlannerFiles files(m_test->folder);
        const QDate within(2026, 12, 1), after(2026, 12, 8);
        for (const QDate date : {within, after})
            writeDay(date, dayOf({{u"9:00 AM"_s, u"Yoga"_s}, {u"9:00 AM"_s, u"Stays"_s}}));
        openPanel();
        set("endDate", u"12/5/2026"_s);
        for (const Answer answer : {Answer::No, Answer::Cancel, Answer::Yes}) {
            QCOMPARE(files.peek(within).entryCount(), 2);
            m_test->dialogs.willAnswer(answer);
            click("recurrenceRemove"); // without a kind: each day
            QCOMPARE(asked(), {PlannerMessages::removeRecurrence()});
        }
        finish();
        QCOMPARE(files.peek(within).entryCount(), 1);
        QCOMPARE(files.peek(after).entryCount(), 2);
        QCOMPARE(said(), u"1 entry removed"_s);
    }

    void saysWhenNoDateIsOfTheKind()
    {
        openPanel(); // on a Saturday
        tick("kind_1");
        set("occurrences", u"1"_s);
        insert();
        QVERIFY(asked().isEmpty());
        QVERIFY(isShown("recurrencePanel"));
        QCOMPARE(said(), PlannerLines::noDateInRange());
    }

    void staysWithinTenYears()
    {
        openPanel();
        set("occurrences", u"3652"_s);
        tick("kind_0");
        QVERIFY(asked().isEmpty());
        set("occurrences", u"3653"_s);
        tick("kind_1");
        tick("kind_0");
        QCOMPARE(asked(), {PlannerMessages::tenYearLimit()}); // the weekdays brought it down already
        QCOMPARE(boxText("occurrences"), u"2608"_s);

        set("endDate", u"1/1/2060"_s);
        tick("kind_4");
        QCOMPARE(asked(), {PlannerMessages::tenYearLimit()});
        QCOMPARE(boxText("endDate"), u"Nov-20-2036"_s);
    }

    void setsDatesByTheCalendar()
    {
        openPanel();
        auto *month = find<MonthView>("MonthView2");
        QCOMPARE(month->selectedDate(), QDate(2026, 11, 21));
        month->setSelectedDate(QDate(2026, 11, 25));
        QCOMPARE(boxText("beginningDate"), u"Nov-25-2026"_s);
        tick("endBy_1");
        tick("calendarSets_1");
        QCOMPARE(month->selectedDate(), QDate(2027, 11, 21));
        month->setSelectedDate(QDate(2027, 12, 1));
        QCOMPARE(boxText("endDate"), u"Dec-01-2027"_s);
        QVERIFY(find<QRadioButton>("endBy_0")->isChecked());
    }

    void livesAndStopsDuringAWalk()
    {
        openPanel();
        tick("kind_0");
        set("endDate", u"11/20/2036"_s);
        click("recurrenceOk");
        QVERIFY(isRunning());
        for (const char *name : {"recurrenceOk", "recurrenceRemove", "recurrenceCancel"})
            QVERIFY(!find<QPushButton>(name)->isEnabled());
        QVERIFY(!find<FlowToolBar>("toolbar")->isEnabled());
        QVERIFY(!m_window->close());
        QVERIFY(isRunning());

        // The click comes as soon as the first progress is shown; no date is worked on after it.
        const PlannerFiles files(m_test->folder);
        const auto days = [&files] { return files.days(QDate(2026, 1, 1), QDate(2037, 1, 1)); };
        std::size_t atClick = 0;
        connect(find<QProgressBar>("updateProgress"), &QProgressBar::valueChanged, this, [&] {
            if (atClick > 0)
                return;
            atClick = days().size();
            QTest::mouseClick(find<QCheckBox>("stopUpdating"), Qt::LeftButton);
        });
        finish();
        QVERIFY(atClick > 0 && atClick < 3653);
        QCOMPARE(days().size(), atClick);
        QCOMPARE(asked(),
                 {PlannerMessages::recurrenceStopped(days().rbegin()->first, RecurrenceAction::Insert)});
        QVERIFY(find<QPushButton>("recurrenceOk")->isEnabled());
        QVERIFY(find<FlowToolBar>("toolbar")->isEnabled());
        QVERIFY(isShown("recurrencePanel"));
    }

    void endsWhereTheDiskRefuses()
    {
#ifdef Q_OS_UNIX
        openPanel();
        tick("kind_0");
        set("endDate", u"12/31/2026"_s);
        {
            // Records up to 4 December fit; 5 December is record 405.
            const FileSizeLimit fullDisk(404 * 900);
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
            insert();
        }
        QVERIFY(asked().isEmpty());
        QCOMPARE(said(),
                 u"The disk refused 12/05/2026: the update ended there. Before it, 14 entries made."_s);
#endif
    }

    void opensForTheRowOfTheFocus()
    {
        text(3)->setFocus();
        trigger("mERec");
        QVERIFY(!isShown("recurrencePanel"));

        type(5, {}, u"Later"_s);
        type(3, {}, u"Ferns"_s);
        time(3)->setFocus();
        m_test->dialogs.willAnswer(Answer::Yes); // saved, it stands in another row
        trigger("mERec");
        QVERIFY(labelText("recurrenceTitle").contains("Ferns"_L1));

        // What was dropped is not repeated: the file's text of that row is, or nothing where it has none.
        click("recurrenceCancel");
        for (const auto &[row, title] : {std::pair{0, u"Recurrence Option: “Ferns”"_s}, {4, QString()}}) {
            time(row)->setFocus();
            type(row, {}, u"Never kept"_s);
            time(row)->setFocus();
            m_test->dialogs.willAnswer(Answer::No);
            trigger("mERec");
            QCOMPARE(isShown("recurrencePanel"), !title.isEmpty());
            if (!title.isEmpty())
                QCOMPARE(labelText("recurrenceTitle"), title);
            QVERIFY(!m_window->isModified());
            if (isShown("recurrencePanel"))
                click("recurrenceCancel");
        }
    }

private:
    void openPanel()
    {
        const QByteArray before = m_test->bytes(u" 2026.Cal"_s);
        type(0, u"9:00 AM"_s, u"Yoga"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mERec");
        asked();
        // Only what the panel writes shall be found.
        if (before.isEmpty())
            QFile::remove(m_test->path(u" 2026.Cal"_s));
        else
            m_test->setBytes(u" 2026.Cal"_s, before);
    }
    bool isRunning() const
    {
        return isShown("progressPanel");
    }
    void insert() const
    {
        click("recurrenceOk");
        finish();
    }
    void finish() const
    {
        QTRY_VERIFY_WITH_TIMEOUT(!isRunning(), 20000);
    }
    QString boxText(const char *name) const
    {
        return find<QLineEdit>(name)->text();
    }
};

QTEST_MAIN(TestRecurrencePanel)
#include "tst_recurrencepanel.moc"
