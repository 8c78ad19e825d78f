// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmainmenu.h"

#include "shell/mainmenu/functioncard.h"
#include "shell/mainmenu/todaylist.h"
#include "shell/mainmenu/todaymodel.h"
#include "shell/mainmenu/todaypanel.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);

DayNote noteOf(int daysAhead, QTime time, const QString &text, const Place &place = {})
{
    return {today.addDays(daysAhead), text, u"Daily Planner"_s, NoteKind::Appointment, time, place};
}

} // namespace

class TestTodayPanel : public OpenMainMenu
{
    Q_OBJECT
private slots:
    void init()
    {
        make();
        m_shown.clear();
    }
    void cleanup() { close(); }

    /// Days ahead of the notes, and of the lines that they become: "+3" are three more.
    void cutsWhatHasNoRoom_data()
    {
        rows<QList<int>, int, QString>({
            {"room for all", {0, 0, 1, 7}, 4, u"0 0 1 7"_s},
            {"today alone", {0, 0, 0, 0, 0}, 3, u"0 0 0+3"_s},
            {"today has half", {0, 0, 0, 0, 1, 2, 3, 4}, 6, u"0 0 0+2 1 2 3+2"_s},
            {"today takes what the others leave", {0, 0, 0, 0, 0, 1}, 5, u"0 0 0 0+2 1"_s},
            {"long days are cut alike", {1, 1, 1, 1, 2, 3, 3, 3}, 7, u"1 1 1+2 2 3 3 3"_s},
            {"too many days", {1, 2, 3, 4, 5}, 3, u"1 2 3+3"_s},
            {"one line", {0, 1}, 1, u"0"_s},
            {"nothing", {}, 3, {}},
        });
    }

    void cutsWhatHasNoRoom()
    {
        const auto [days, room, expected] = row<QList<int>, int, QString>();
        QList<TodayNotes::Note> notes;
        for (const int day : days)
            notes.append({noteOf(day, {}, u"Bus"_s), Function::Planner, false});
        QStringList lines;
        for (const TodayModel::Line &line : TodayModel::fit(notes, today, room)) {
            const QString day = QString::number(today.daysTo(line.day));
            lines << (line.more > 0 ? day + u'+' + QString::number(line.more) : day);
        }
        QCOMPARE(lines.join(u' '), expected);
    }

    void letsWhatIsOverGiveWay()
    {
        QList<DayNote> day;
        for (const int hour : {8, 9, 11, 12, 13})
            day << noteOf(0, {hour, 0}, QString::number(hour));
        add(Function::Planner, day); // it is 10:24
        TodayNotes notes(m_test->program);
        QVERIFY(notes.refresh());
        const auto shown = [&](int room) {
            QStringList texts;
            for (const TodayModel::Line &line : TodayModel::fit(notes.notes(), today, room))
                texts << (line.more > 0 ? u"+%1"_s.arg(line.more) : line.note.note.text);
            return texts.join(u' ');
        };
        QCOMPARE(shown(5), u"8 9 11 12 13"_s);
        QCOMPARE(shown(4), u"11 12 13 +2"_s);
        QCOMPARE(shown(3), u"11 12 +3"_s);
        QCOMPARE(shown(2), u"11 +4"_s);
        m_test->clock.time.setTime({11, 0});
        QVERIFY(!notes.refresh());
        m_test->clock.time.setTime({11, 1});
        QVERIFY(notes.refresh());
        QCOMPARE(shown(3), u"12 13 +3"_s);
    }

    void showsTheWeekInOrder()
    {
        DayNote asTyped = noteOf(0, {8, 0}, u"Choir"_s); // in the evening, perhaps
        asTyped.timeText = u"8:00"_s;
        add(Function::AddressBook, {{today, u"Anne Lind turns 48"_s, u"Address Book"_s, NoteKind::Birthday}});
        add(Function::Planner, {noteOf(0, {11, 30}, u"Dentist"_s), noteOf(0, {8, 30}, u"Market"_s),
                                noteOf(1, {}, u"Ferns"_s), noteOf(4, {9, 0}, u"Bus"_s), asTyped});
        show();
        QTRY_VERIFY(find<TodayPanel>("todayPanel")->isVisible());
        QStringList lines;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            lines << list().model()->index(row, 0).data(Qt::AccessibleTextRole).toString();
        QCOMPARE(lines,
                 (QStringList{
                     u"Today, Anne Lind turns 48, Address Book"_s, u"Today, 8:00, Choir, Daily Planner"_s,
                     u"Today, 8:30 AM, Market, Daily Planner"_s, u"Today, 11:30 AM, Dentist, Daily Planner"_s,
                     u"Tomorrow, Ferns, Daily Planner"_s, u"Wed, Nov 25, 9:00 AM, Bus, Daily Planner"_s}));
        QVERIFY(!list().model()->index(1, 0).data(TodayModel::IsOverRole).toBool());
        QVERIFY(list().model()->index(2, 0).data(TodayModel::IsOverRole).toBool());
        QVERIFY(!list().visualRect(list().model()->index(5, 0)).isEmpty());
        QVERIFY(list().viewport()->rect().contains(list().visualRect(list().model()->index(5, 0))));
    }

    void saysWhatStandsInALineOfSeveral_data()
    {
        rows<QList<int>, int, QString>(
            {{"of one day", {0, 0, 1, 1, 1}, 4, u"Tomorrow, and 2 more"_s},
             {"of several days", {1, 2, 3}, 2, u"Later, and 2 more until Tue, Nov 24"_s},
             {"over, and not at the cost of what is to come", {-1, -1, 3, 4}, 3, u"Wed, Nov 25, Bus"_s}});
    }

    /// A day before today stands for what is over today.
    void saysWhatStandsInALineOfSeveral()
    {
        const auto [days, room, last] = row<QList<int>, int, QString>();
        QList<DayNote> given;
        for (const int day : days)
            given << noteOf(std::max(0, day), day < 0 ? QTime(8, 0) : QTime(), u"Bus"_s);
        add(Function::Planner, given);
        TodayNotes notes(m_test->program);
        QVERIFY(notes.refresh());
        TodayModel model;
        model.setRoom(room);
        model.show(notes, DateStyle::Usa);
        const auto line = [&](int row) {
            return model.index(row, 0).data(Qt::AccessibleTextRole).toString();
        };
        QVERIFY2(line(model.rowCount() - 1).startsWith(last), qPrintable(line(model.rowCount() - 1)));
        if (days.first() < 0)
            QCOMPARE(line(0), u"Today, 2 earlier"_s);
    }

    void saysOnceWhatStandsInThePlannerToo()
    {
        const QString longText = u"Call the chimney sweep about the stove in the old kitchen"_s;
        const auto toDo = [](int daysAhead, const QString &text) {
            return DayNote{today.addDays(daysAhead), text, u"To Do List"_s, NoteKind::ToDo};
        };
        add(Function::Planner,
            {noteOf(1, {}, longText.left(50)), noteOf(1, {9, 0}, u"paint"_s), noteOf(2, {}, u"Wash"_s)});
        add(Function::ToDoList,
            {toDo(1, longText), toDo(1, u"Paint"_s), toDo(1, u"Wash"_s), toDo(2, u"Washing"_s)});
        TodayNotes notes(m_test->program);
        QVERIFY(notes.refresh());
        QStringList left;
        for (const TodayNotes::Note &note : notes.notes()) {
            if (note.function == Function::ToDoList)
                left << note.note.text;
        }
        QCOMPARE(left, (QStringList{u"Wash"_s, u"Washing"_s}));
    }

    void readsOnlyWhatIsNewAndOpen()
    {
        int read = 0;
        m_test->setBytes(u"one.Fil"_s, "one");
        FunctionEntry entry;
        entry.liveFiles = QStringList{u"one.Fil"_s};
        entry.dayNotes = [&](const Program &, QDate from, QDate to) {
            ++read;
            return from.daysTo(to) == 7 ? QList<DayNote>{noteOf(0, {}, u"Bus"_s)} : QList<DayNote>();
        };
        m_test->functions.add(Function::Planner, entry);
        TodayNotes notes(m_test->program);
        QVERIFY(notes.refresh());
        QVERIFY(!notes.refresh());
        m_test->setBytes(u"one.Fil"_s, "another");
        QVERIFY(notes.refresh());
        QCOMPARE(read, 2);
        protectAll();
        QVERIFY(notes.refresh());
        QVERIFY(notes.notes().isEmpty() && !notes.isWhole());
        QCOMPARE(read, 2);
        m_test->clock.time = m_test->clock.time.addDays(1);
        QVERIFY(notes.refresh());
    }

    void isQuietWhenThereIsNothing()
    {
        add(Function::Planner, {});
        show();
        auto *panel = find<TodayPanel>("todayPanel");
        QTRY_VERIFY(panel->isVisible());
        QCOMPARE(panel->findChild<QLabel *>()->text(), u"Nothing today or in the next seven days"_s);
        // Of a guarded household it would not be true.
        protectAll();
        QWidget other;
        showActive(other);
        showActive(*m_window);
        QTRY_VERIFY(!panel->isVisible());
    }

    void opensItsPlacesThroughTheGate()
    {
        const Place dentist{.date = today, .row = 3};
        add(Function::Planner, {noteOf(0, {8, 30}, u"Market"_s), noteOf(0, {11, 30}, u"Dentist"_s, dentist)});
        show();
        QTRY_VERIFY(find<TodayPanel>("todayPanel")->isVisible());
        m_window->resize(1280, 800);
        QTest::keyClick(find<FunctionCard>("card_planner"), Qt::Key_Tab);
        QCOMPARE(m_window->focusWidget(), &list());
        QTest::keyClick(&list(), Qt::Key_Tab);
        QCOMPARE(m_window->focusWidget()->objectName(), u"StatusBar1_RestoreSide"_s);
        QTest::keyClick(find<FunctionCard>("card_planner"), Qt::Key_Down);
        QCOMPARE(m_window->focusWidget(), &list());
        QTest::keyClick(&list(), Qt::Key_Down);
        m_test->clock.time.setTime({11, 31}); // the dentist is over, and the line is drawn anew
        QWidget other;
        showActive(other);
        showActive(*m_window);
        QTest::keyClick(&list(), Qt::Key_Return);
        QCOMPARE(m_shown, QList<Place>{dentist});
        QCOMPARE(m_done.guards, QList<int>());
        m_given.verdict = PasswordGateResult::Refused;
        m_test->state.protectedAreas.setFlag(Area::Planner, u"YES"_s);
        QTest::keyClick(&list(), Qt::Key_Return);
        QCOMPARE(m_done.guards, QList<int>{Area::Planner});
        QCOMPARE(m_shown.size(), 1);
        m_test->state.protectedAreas.setFlag(Area::Planner, {});
        const QRect second = list().visualRect(list().model()->index(1, 0));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, second.center());
        QCOMPARE(m_shown.size(), 2);
        QTest::keyClick(&list(), Qt::Key_Up);
        QTest::keyClick(&list(), Qt::Key_Up);
        QCOMPARE(m_window->focusWidget(), find<FunctionCard>("card_planner"));
    }

    void leadsFromADateToThePlanner()
    {
        add(Function::Planner, {noteOf(2, {}, u"Ferns"_s, {.date = today.addDays(2), .row = 0})});
        show();
        QTRY_VERIFY(find<TodayPanel>("todayPanel")->isVisible());
        QTRY_VERIFY(list().indexAt({10, 10}).isValid());
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, {10, 10});
        QTest::mouseClick(find<QLabel>("dateLabel"), Qt::LeftButton);
        const Place first{.date = today.addDays(2)}, second{.date = today};
        QCOMPARE(m_shown, (QList<Place>{first, second}));
        // The window is open: a click brings it back as it was, the key leads to today.
        QTest::mouseClick(find<FunctionCard>("card_planner"), Qt::LeftButton);
        QCOMPARE(m_shown.size(), 2);
        QTest::keyClick(find<FunctionCard>("card_planner"), Qt::Key_Return);
        QCOMPARE(m_shown.size(), 3);
        QCOMPARE(m_shown.last(), second);
    }

private:
    /// A function with these notes, which keeps the places that it is to show.
    void add(Function function, const QList<DayNote> &notes)
    {
        addFunction(function);
        FunctionEntry entry = *m_test->functions.entry(function);
        entry.dayNotes = [notes](const Program &, QDate, QDate) { return notes; };
        entry.show = [this](QWidget &, const Place &place) { m_shown << place; };
        m_test->functions.add(function, entry);
    }
    TodayList &list() const { return *find<TodayList>("todayList"); }

    QList<Place> m_shown;
};

QTEST_MAIN(TestTodayPanel)
#include "tst_todaypanel.moc"
