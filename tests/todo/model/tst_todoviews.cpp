// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "todo/model/todocounts.h"
#include "todo/model/todosearch.h"
#include "todo/model/todoviews.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A Sunday.
const QDate today(2026, 11, 22);

const ToDoSheet sheet = ToDoSheet::fromFile(
    "Quillery To Do 1\n"
    "list\t1\tplain\tHome\n"
    "list\t2\tshopping\tShop\n"
    "list\t3\ttemplate\tTrip\n"
    "item\t1\t1\t0\t2026-11-24\t\tnils\t\t\tPaint\t\n"
    "item\t2\t1\t1\t2026-11-22\t\t\t\t\tBuy paint\t\n"
    "item\t3\t1\t1\t\t2026-11-21\t\t\t\tSand\t\n"
    "item\t4\t1\t0\t2026-11-10\t\tAnne > Nils\tweek 1 tue\t\tWater the ferns\tGently\n"
    "item\t5\t1\t0\t2026-11-17\t2026-11-20\tAnne\tday 7\t\tTake the bins out\tAn \xC3\x84pfel bag\n"
    "item\t6\t1\t0\t2026-12-06\t\tAnne\tday 7\t\tTake the bins out\t\n"
    "item\t7\t1\t1\t\t\t\t\t\tWash them\t\n"
    "item\t8\t2\th\t\t\t\t\t\tDairy\t\n"
    "item\t9\t2\t0\t\t2026-11-21\t\t\t\tMilk\t\n"
    "item\t10\t2\t0\t2026-12-05\t\tNils\t\t\tButter\t\n"
    "item\t11\t3\t0\t-3\t\tAnne\t\t\tPack\t\n");

QStringList words(const std::vector<ToDoRow> &rows)
{
    QStringList words;
    for (const ToDoRow &row : rows) {
        switch (row.kind) {
        case ToDoRow::Group:
        case ToDoRow::Later:
            words << u"= "_s + row.words;
            break;
        case ToDoRow::Note:
            words << u"(note)"_s;
            break;
        default:
            words << sheet.item(sheet.rowOf(row.id)).text;
        }
    }
    return words;
}

} // namespace

/// Which rows a view has, on 22 November 2026.
class TestToDoViews : public QObject
{
    Q_OBJECT
private slots:
    void hasTheseRows_data()
    {
        using Order = ToDoViews::Order;
        using Wanted = ToDoViews::Wanted;
        const auto of = [](const Shown &shown) {
            return Wanted{.shown = shown, .today = today, .style = style};
        };
        const auto list = [&of](Order order, bool isBackwards) {
            Wanted wanted = of({Shown::List, 1, {}});
            wanted.order = order;
            wanted.isBackwards = isBackwards;
            return wanted;
        };
        Wanted unfolded = of({Shown::List, 1, {}});
        unfolded.isLaterShown = true;
        unfolded.openNote = 4;
        Wanted ticked = of({Shown::List, 2, {}});
        ticked.ticked = {9};
        const auto search = [&of](const QString &text) { return of({Shown::Search, 0, text}); };
        rows<Wanted, QStringList>({
            {"today",
             of({Shown::Today, 0, {}}),
             {u"= Overdue"_s, u"Water the ferns"_s, u"= Today, Sunday, November 22, 2026"_s, u"Buy paint"_s}},
            {"coming, from today on for fourteen days",
             of({Shown::Coming, 0, {}}),
             {u"= Today, Sunday, November 22, 2026"_s, u"Buy paint"_s, u"= Tuesday, November 24, 2026"_s,
              u"Paint"_s, u"= Saturday, December 5, 2026"_s, u"Butter"_s}},
            {"by person, whose turn it is",
             of({Shown::ByPerson, 0, {}}),
             {u"= Anne"_s, u"Water the ferns"_s, u"Take the bins out"_s, u"= nils"_s, u"Paint"_s,
              u"Butter"_s}},
            {"done, the latest first",
             of({Shown::Done, 0, {}}),
             {u"= Yesterday, Saturday, November 21, 2026"_s, u"Sand"_s, u"Milk"_s,
              u"= Friday, November 20, 2026"_s, u"Take the bins out"_s}},
            {"a list",
             of({Shown::List, 1, {}}),
             {u"Paint"_s, u"Buy paint"_s, u"Sand"_s, u"Water the ferns"_s, u"= 1 later"_s}},
            {"what comes later and a note, unfolded",
             unfolded,
             {u"Paint"_s, u"Buy paint"_s, u"Sand"_s, u"Water the ferns"_s, u"(note)"_s,
              u"= 1 later, shown below"_s, u"Take the bins out"_s, u"Wash them"_s}},
            {"by date, with the steps",
             list(Order::ByDue, false),
             {u"Water the ferns"_s, u"Paint"_s, u"Buy paint"_s, u"Sand"_s, u"= 1 later"_s}},
            {"by date backwards",
             list(Order::ByDue, true),
             {u"Paint"_s, u"Buy paint"_s, u"Sand"_s, u"Water the ferns"_s, u"= 1 later"_s}},
            {"a shopping list", of({Shown::List, 2, {}}), {u"Dairy"_s, u"Butter"_s}},
            {"with what was ticked in it", ticked, {u"Dairy"_s, u"Milk"_s, u"Butter"_s}},
            {"a template", of({Shown::List, 3, {}}), {u"Pack"_s}},
            {"all words of a search, in texts and notes",
             search(u"water gent"_s),
             {u"= Home"_s, u"Water the ferns"_s}},
            {"a search finds done things behind the others",
             search(u"BINS"_s),
             {u"= Home"_s, u"Take the bins out"_s, u"Take the bins out"_s}},
            {"and letters beyond the plain ones",
             search(u"\u00e4pf"_s),
             {u"= Home"_s, u"Take the bins out"_s}},
            {"and a list by its name", search(u"sho"_s), {u"= Shop"_s}},
            {"and nothing of a template", search(u"pack"_s), {}},
        });
    }

    void hasTheseRows()
    {
        const auto [wanted, expected] = row<ToDoViews::Wanted, QStringList>();
        QCOMPARE(words(ToDoViews::rows(sheet, wanted)), expected);
    }

    void countsWhatIsOpen()
    {
        const ToDoCounts counts = ToDoCounts::of(sheet, today);
        QCOMPARE(counts.lists.value(1).open, 3);
        QVERIFY(counts.lists.value(1).isOverdue);
        QCOMPARE(counts.lists.value(2).open, 1);
        QVERIFY(!counts.lists.value(2).isOverdue);
        QCOMPARE(counts.today, 2);
        QCOMPARE(counts.overdue, 1);
    }

private:
    static constexpr DateStyle style = DateStyle::Usa;
};

QTEST_APPLESS_MAIN(TestToDoViews)
#include "tst_todoviews.moc"
