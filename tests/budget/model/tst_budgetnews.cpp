// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetfiles.h"
#include "budget/model/budgetnews.h"
#include "budget/model/budgetsource.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class FixedClock final : public Clock
{
public:
    QDateTime now() const override { return {QDate(2026, 3, 20), QTime(9, 0)}; }
};

} // namespace

/// What the budget says to the rest of the house.
class TestBudgetNews : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestFolder>();
        BudgetSheet sheet;
        sheet.rows[0] = {u"Rent"_s, {}};
        sheet.rows[1] = {u"Café"_s, {}};
        sheet.rows[0].amounts[1] = sheet.rows[0].amounts[2] = sheet.rows[0].amounts[3] = u"850.00"_s;
        sheet.rows[1].amounts[2] = u"37.60"_s;
        sheet.incomes[2] = u"1100.00"_s;
        QVERIFY(BudgetFiles(m_test->folder()).write(2026, sheet));
    }

    void tellsWhatIsLeft_data()
    {
        rows<QDate, QByteArray, QString, LiveLine::Urgency>(
            {{"of the plan", QDate(2026, 3, 20), "", u"March: 212.40 left"_s, LiveLine::Plain},
             {"with spending inside the plan", QDate(2026, 3, 20), "spent\t2026-03-01\t850.00\tRent\t\n",
              u"March: 212.40 left"_s, LiveLine::Plain},
             {"with more spent than planned", QDate(2026, 3, 20),
              "spent\t2026-03-01\t50.00\tCaf\xC3\xA9\t\nspent\t2026-03-01\t235.00\tGone\t\n",
              u"March: 35.00 over"_s, LiveLine::Overdue},
             {"of nothing", QDate(2026, 6, 20), "", {}, LiveLine::Plain},
             {"nothing yet", QDate(2026, 11, 30), "", {}, LiveLine::Plain},
             {"next year's is missing", QDate(2026, 12, 1), "", u"No budget for 2027 yet"_s,
              LiveLine::Plain}});
    }

    void tellsWhatIsLeft()
    {
        const auto [today, spent, text, urgency] = row<QDate, QByteArray, QString, LiveLine::Urgency>();
        m_test->put(u"Quillery.spent-2026"_s, spent);
        const std::optional<LiveLine> line = BudgetNews::liveLine(m_test->folder(), today);
        QCOMPARE(line.value_or(LiveLine()).text, text);
        QCOMPARE(line.value_or(LiveLine()).urgency, urgency);
        if (text.startsWith(u"March"))
            QCOMPARE(line->shorter, (QStringList{u"Mar"_s + text.sliced(5), text.sliced(7)}));
    }

    void notesWhatIsDue_data()
    {
        const QDate first(2026, 3, 1);
        const QDate due(2026, 3, 31);
        const QString rent = u"Rent: 850.00"_s;
        rows<QByteArray, QDate, QDate, QDate, QDate, NoteKind, QString>(
            {{"due", "", first, due, first, due, NoteKind::Due, rent + u", due"_s},
             {"ticked", "paid\t3\t0.00\tRent\n", first, due, first, due, NoteKind::Done, rent + u", paid"_s},
             {"spent", "spent\t2026-03-01\t850.00\tRent\t\n", first, due, first, due, NoteKind::Done,
              rent + u", paid"_s},
             {"spent in part", "spent\t2026-03-01\t99.50\tRent\t\n", first, due, first, due, NoteKind::Due,
              u"Rent: 750.50, due"_s},
             {"a shorter month", "", QDate(2026, 2, 1), QDate(2026, 2, 28), QDate(2026, 2, 3),
              QDate(2026, 2, 28), NoteKind::Due, rent + u", due"_s},
             {"overdue on its day", "", first, QDate(2026, 4, 4), QDate(2026, 4, 4), due, NoteKind::Overdue,
              rent + u", overdue"_s},
             {"overdue today", "", QDate(2026, 4, 4), QDate(2026, 4, 11), QDate(2026, 4, 4),
              QDate(2026, 4, 4), NoteKind::Overdue, rent + u", overdue since Mar 31"_s},
             {"long overdue", "", first, due, QDate(2026, 5, 4), {}, NoteKind::Other, {}},
             {"not planned", "", QDate(2026, 5, 1), QDate(2026, 5, 31), QDate(2026, 5, 31),
              QDate(2026, 5, 31), NoteKind::Overdue, rent + u", overdue since Apr 30"_s}});
    }

    void notesWhatIsDue()
    {
        const auto [spent, from, to, today, date, kind, text] =
            row<QByteArray, QDate, QDate, QDate, QDate, NoteKind, QString>();
        m_test->put(u"Quillery.spent-2026"_s, "due\t31\tRent\ndue\t1\tGone\n" + spent);
        const QList<DayNote> notes = BudgetNews::dayNotes(m_test->folder(), DateStyle::Usa, from, to, today);
        if (!date.isValid()) {
            QVERIFY(notes.isEmpty());
            return;
        }
        QVERIFY(!notes.isEmpty());
        QCOMPARE(notes.last().date, date);
        QCOMPARE(notes.last().kind, kind);
        QCOMPARE(notes.last().text, text);
        QCOMPARE(notes.last().place.row, 0);
    }

    void findsItemsAndNotes()
    {
        m_test->put(u"Quillery.spent-2026"_s, "spent\t2026-03-14\t42.50\tCaf\xC3\xA9\tBirthday cake\n"
                                              "spent\t2026-03-15\t1.00\tGone\t\n");
        const FixedClock clock;
        BudgetSource source(m_test->folder(), clock, DateStyle::Usa);
        while (source.prepare()) {}
        QCOMPARE(source.matches(u"cafe", 9),
                 (QList<SearchHit>{{u"Café"_s, u"Budget of 2026, 37.60"_s, {.record = 2026, .row = 1}},
                                   {u"Birthday cake"_s,
                                    u"Café, Mar 14, 2026, 42.50"_s,
                                    {.record = 2026, .date = QDate(2026, 3, 14), .row = 1}}}));
        QCOMPARE(source.matches(u"gone", 9).size(), 1);
        QCOMPARE(source.matches(u"gone", 9).first().place.row, -1);
        QVERIFY(source.matches(u" ", 9).isEmpty());
        QCOMPARE(BudgetNews::files(m_test->folder()), (QStringList{u"2026.Fil"_s, u"Quillery.spent-2026"_s}));
    }

private:
    std::unique_ptr<TestFolder> m_test;
};

QTEST_APPLESS_MAIN(TestBudgetNews)
#include "tst_budgetnews.moc"
