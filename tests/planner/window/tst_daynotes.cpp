// SPDX-License-Identifier: GPL-3.0-or-later
#include "openplanner.h"

#include "planner/window/comingup.h"
#include "planner/window/daysmodel.h"
#include "shell/core/area.h"

#include <QAbstractItemView>
#include <QMenu>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);
constexpr Place anne{.record = 7};
constexpr Place tom{.record = 9};

} // namespace

/// What other functions have for the days of the planner.
class TestDayNotes : public OpenPlanner
{
    Q_OBJECT

private slots:
    void init()
    {
        open();
        FunctionEntry book;
        book.dayNotes = [this](const Program &, QDate from, QDate to) {
            m_asked << std::pair(from, to);
            QList<DayNote> notes;
            const auto add = [&](QDate date, const QString &text, NoteKind kind, const Place &place = {}) {
                if (date >= from && date <= to)
                    notes.append({date, text, u"Address Book"_s, kind, {}, place});
            };
            add(today.addDays(-1), u"Pay the gas"_s, NoteKind::Overdue);
            add(today, u"Anne Lind turns 48"_s, NoteKind::Birthday, anne);
            add(today.addDays(1), u"Pay the rent"_s, NoteKind::Due);
            add(today.addDays(2), u"Tom Lind turns 12"_s, NoteKind::Birthday, tom);
            add(today.addDays(2), u"The Linds: anniversary"_s, NoteKind::Anniversary, anne);
            return notes;
        };
        m_test->functions.add(Function::AddressBook, book);
        FunctionEntry planner;
        planner.dayNotes = [](const Program &, QDate from, QDate) {
            return QList<DayNote>{{from, u"Its own"_s, u"Daily Planner"_s, NoteKind::Birthday}};
        };
        m_test->functions.add(Function::Planner, planner);
        show();
    }
    void cleanup() { close(); }

    void standAboveTheRowsOfTheirDay()
    {
        QSignalSpy wanted(&m_test->changes, &ProgramSignals::placeRequested);
        auto *line = find<QAbstractButton>("dayNotes");
        QTRY_VERIFY(line->isVisible());
        QCOMPARE(line->text(), u"Anne Lind turns 48"_s);
        QCOMPARE(shownRows(), QStringList());
        QTest::mouseClick(line, Qt::LeftButton);
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(wanted.first().at(0).value<Function>(), Function::AddressBook);
        QCOMPARE(wanted.first().at(1).value<Place>(), anne);

        choose(today.addDays(1)); // neither what is due there nor the planner's own
        QTRY_VERIFY(!line->isVisible());
        choose(today.addDays(2));
        QTRY_COMPARE(line->toolTip(), u"Tom Lind turns 12; The Linds: anniversary"_s);
        QTest::mouseClick(line, Qt::LeftButton);
        auto *menu = find<QMenu>("noteMenu");
        QCOMPARE(menu->actions().size(), 2);
        menu->actions().first()->trigger();
        QCOMPARE(wanted.last().at(1).value<Place>(), tom);
        menu->close();
    }

    void standInTheWeekAndTheMonth_data()
    {
        rows<QByteArray, QByteArray>({{"week", "mVWeek", "weekView"}, {"month", "mVMonth", "monthGrid"}});
    }
    void standInTheWeekAndTheMonth()
    {
        const auto [command, name] = row<QByteArray, QByteArray>();
        trigger(command);
        auto *view = find<QAbstractItemView>(name);
        const QModelIndex day = view->currentIndex();
        m_asked.clear();
        QTRY_COMPARE(HouseholdNotes::joined(DaysModel::notesOf(day)), u"Anne Lind turns 48"_s);
        QVERIFY(m_asked.size() <= 2); // the view, and what is coming up
        QVERIFY(day.data(Qt::ToolTipRole).toString().contains(u"2026\nAnne Lind turns 48"_s));
        const auto *days = qobject_cast<const DaysModel *>(view->model());
        QCOMPARE(HouseholdNotes::joined(days->notes(today.addDays(-1))), u"Pay the gas"_s);

        QSignalSpy wanted(&m_test->changes, &ProgramSignals::placeRequested);
        const QRect cell = view->visualRect(day);
        const QPoint note = name == "weekView" ? QPoint(cell.left() + 170, cell.top() + 14)
                                               : QPoint(cell.left() + 40, cell.top() + 34);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, note);
        QCOMPARE(wanted.size(), 1);
        QVERIFY(view->isVisible());
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell.bottomRight() - QPoint(5, 5));
        QVERIFY(!view->isVisible());
        QCOMPARE(wanted.size(), 1);
    }

    void keepTheAgeWhereAllHasNoRoom_data()
    {
        const auto birthday = NoteKind::Birthday;
        const QString walter = u"Walter Lindqvist turns 70"_s;
        const QString tires = u"Northern Lights: tires, oil change overdue since Sep 2"_s;
        const QString power = u"Northern Lights: 64.50, due"_s;
        rows<QString, NoteKind, QString>(
            {{"as many as have room", walter, birthday, walter + u"; "_s + walter + u"; 1 more"_s},
             {"one of them", walter, birthday, u"Walter Lindqvist turns 70; 2 more"_s},
             {"a narrow month", walter, birthday, u"Walter L. 70; 2 more"_s},
             {"the narrowest", walter, birthday, u"Walter 70 +2"_s},
             {"narrower still", walter, birthday, u"Wal\u2026 70"_s},
             {"to be paid", power, NoteKind::Due, u"Northern Lights: 64.50; 2 more"_s},
             {"in a narrow month", power, NoteKind::Overdue, u"Northern Lights +2"_s},
             {"to be done", tires, NoteKind::Overdue, u"Northern Lights: tires; 2 more"_s},
             {"in a narrow month, too", tires, NoteKind::Due, u"North\u2026: tires +2"_s},
             {"for a part of its name", power, NoteKind::Due, u"Northern\u2026"_s}});
    }
    void keepTheAgeWhereAllHasNoRoom()
    {
        const auto [text, kind, expected] = row<QString, NoteKind, QString>();
        DayNote first{today, text, {}, kind};
        first.nameLength = kind == NoteKind::Birthday ? 16 : 15;
        const QFontMetrics metrics(m_window->font());
        QCOMPARE(HouseholdNotes::cut(QList<HouseholdNote>(3, {first, {}}), metrics,
                                     metrics.horizontalAdvance(expected) + 2),
                 expected);
    }

    void areNeverSaved()
    {
        type(0, u"8:00"_s, u"Bus"_s);
        click("saveDay");
        QCOMPARE(asked(), {PlannerMessages::daySaved()});
        QCOMPARE(PlannerFiles(m_test->folder).read(today).entryCount(), 1);
        QVERIFY(!m_test->bytes(u" 2026.Cal"_s).contains("turns"));
    }

    void leadFromWhatIsComingUp()
    {
        QSignalSpy wanted(&m_test->changes, &ProgramSignals::placeRequested);
        auto *list = find<QAbstractItemView>("comingUp");
        QTRY_COMPARE(list->model()->rowCount(), 4);
        choose(today.addDays(-1)); // overdue as a word, too
        const auto source = [list] {
            return list->model()->index(0, 0).data(ComingUpModel::SourceRole).toString();
        };
        QTRY_VERIFY(source().startsWith(u"Overdue, Address Book, "_s));
        choose(today);
        QTRY_COMPARE(list->model()->rowCount(), 4);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(2, 0)).center());
        QCOMPARE(wanted.size(), 1);
        QCOMPARE(wanted.first().at(1).value<Place>(), tom);
    }

    /// The planner's rows are 50 characters long.
    void leaveOutWhatIsDoneOrStandsInItsDay()
    {
        const QString longText = u"Call the chimney sweep about the stove in the old kitchen"_s;
        FunctionEntry toDo;
        QString known = u"Paint"_s;
        toDo.dayNotes = [&](const Program &, QDate, QDate) {
            return QList<DayNote>{{today, u"Wash, done"_s, {}, NoteKind::Done},
                                  {today, longText, {}, NoteKind::ToDo},
                                  {today.addDays(1), known, {}, NoteKind::ToDo}};
        };
        m_test->functions.add(Function::AddressBook, toDo);
        const auto *notes = find<QAbstractItemView>("comingUp")->model();
        const auto texts = [&] {
            QStringList texts;
            for (int row = 0; row < notes->rowCount(); ++row)
                texts << notes->index(row, 0).data().toString();
            return texts;
        };
        choose(today.addDays(1));
        choose(today);
        QTRY_COMPARE(texts(), (QStringList{longText, u"Paint"_s}));
        type(0, u"8:00"_s, longText.left(50));
        click("saveDay");
        QTRY_COMPARE(texts(), QStringList{u"Paint"_s});
        known = u"Paint the fence"_s; // in another window
        QEvent activated(QEvent::WindowActivate);
        QCoreApplication::sendEvent(m_window, &activated);
        QTRY_COMPARE(texts(), QStringList{known});
        delete m_window; // before what it would ask
    }

    void areNotAskedForWhileGuarded()
    {
        m_test->state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
        m_asked.clear();
        show();
        QTest::qWait(20);
        trigger("mVMonth");
        QTest::qWait(20);
        trigger("mOPDay");
        QVERIFY(m_asked.isEmpty());
    }

private:
    QList<std::pair<QDate, QDate>> m_asked;
};

QTEST_MAIN(TestDayNotes)
#include "tst_daynotes.moc"
