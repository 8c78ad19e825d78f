// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "todo/model/comingback.h"
#include "todo/model/listactions.h"
#include "todo/model/templates.h"
#include "todo/model/todoactions.h"
#include "todo/model/tododifference.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using ToDoActions::Result;

/// A Sunday.
const QDate today(2026, 11, 22);

const QByteArray house =
    "Quillery To Do 1\n"
    "list\t1\tplain\tHome\n"
    "list\t2\tshopping\tShop\n"
    "mark\tof another program\n"
    "item\t1\t1\t0\t2026-11-10\t\tAnne > Nils\tweek 1 tue\t2026-11-01\tWater the ferns\tGently\n"
    "item\t2\t1\t1\t2026-11-11\t\t\t\t\tFill the can\t\n"
    "item\t3\t2\th\t\t\t\t\t\tDairy\t\n"
    "item\t4\t1\t0\t\t\t\t\t\tPaint\t\n"
    "item\t5\t2\t0\t\t2026-11-20\t\t\t\tMilk\t\n"
    "item\t6\t2\t0\t\t\t\t\t\tButter\t\n"
    "item\t7\t1\t0\t2026-11-21\t\t\t\t\tCall\t\n";

/// Level, text, dates, person and note of the rows of a list.
QStringList rowsOf(const ToDoSheet &sheet, int list = 1)
{
    QStringList rows;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        const ToDoItem item = sheet.item(row);
        const QString level = item.level == ItemLevel::Step      ? u"- "_s
                              : item.level == ItemLevel::Heading ? u"# "_s
                                                                 : QString();
        if (item.list == list)
            rows += level + u"%1|%2|%3|%4|%5"_s.arg(item.text, item.due.toString(Qt::ISODate),
                                                    item.actual.toString(Qt::ISODate), item.who, item.note);
    }
    return rows;
}

const ToDoSheet sheet = ToDoSheet::fromFile(house);

} // namespace

/// What a person does to items and lists, each taken back to the same bytes.
class TestToDoActions : public QObject
{
    Q_OBJECT
private slots:
    void isTakenBackAndMadeAgain_data()
    {
        using Action = Result (*)();
        rows<Action, const char *>({
            {"new items",
             [] {
                 return ToDoActions::newItems(sheet, {.list = 1}, {u"a"_s, u" "_s, u"- b"_s}, 4, today);
             },
             "Added: 2 things"},
            {"a heading", [] { return ToDoActions::newHeading(sheet, 2, u"Bread"_s, 6); }, "Added: Bread"},
            {"a tick",
             [] {
                 return ToDoActions::tick(sheet, {1, 4}, today, today);
             },
             "Done: 2 things"},
            {"another day", [] { return ToDoActions::setActual(sheet, {5}, today, today); }, "Date: Milk"},
            {"not done",
             [] {
                 return ToDoActions::untick(sheet, {5, 6});
             },
             "Not done: Milk"},
            {"a text", [] { return ToDoActions::setText(sheet, 4, u"Paint\nit"_s); }, "Changed: Paint it"},
            {"no text", [] { return ToDoActions::setText(sheet, 1, u" "_s); }, "Deleted: Water the ferns"},
            {"a note", [] { return ToDoActions::setNote(sheet, 4, u"a\tb\nc\\"_s); }, "Note: Paint"},
            {"a date",
             [] {
                 return ToDoActions::setDue(sheet, {3, 4}, today);
             },
             "Date: Paint"},
            {"a person", [] { return ToDoActions::setWho(sheet, {4}, u"Anne"_s); }, "Who: Paint"},
            {"a repeat", [] { return ToDoActions::setRepeat(sheet, {4}, u"day 3"_s); }, "Repeat: Paint"},
            {"overdue things", [] { return ToDoActions::moveOverdue(sheet, 0, today); },
             "Date: 3 things, moved to today"},
            {"deleted", [] { return ToDoActions::remove(sheet, {1}); }, "Deleted: Water the ferns"},
            {"moved", [] { return ToDoActions::move(sheet, {7}, 1, 1); }, "Moved: Call"},
            {"moved to another list", [] { return ToDoActions::move(sheet, {1}, 2, 6); },
             "Moved: Water the ferns"},
            {"a step",
             [] {
                 return ToDoActions::indent(sheet, {1, 4, 7});
             },
             "Step: 2 things"},
            {"no step",
             [] {
                 return ToDoActions::outdent(sheet, {1, 2});
             },
             "No longer a step: Fill the can"},
            {"a list", [] { return ListActions::add(sheet, ListKind::Plain, u"Tax"_s); }, "New list: Tax"},
            {"another name", [] { return ListActions::rename(sheet, 1, u"House"_s); }, "Renamed: House"},
            {"another kind", [] { return ListActions::setKind(sheet, 1, ListKind::Shopping); },
             "Changed: Home"},
            {"lists in another order", [] { return ListActions::move(sheet, 2, 0); }, "Moved: Shop"},
            {"a list deleted", [] { return ListActions::remove(sheet, 1); }, "Deleted: Home"},
            {"a template", [] { return ListActions::saveAsTemplate(sheet, 1, u"T"_s, today); },
             "New list: T"},
            {"a built-in one", [] { return ListActions::fromBuiltIn(sheet, 0, u"Trip"_s, today, today); },
             "New list: Trip"},
        });
    }
    void isTakenBackAndMadeAgain()
    {
        using Action = Result (*)();
        const auto [action, title] = row<Action, const char *>();
        const Result result = action();
        QCOMPARE(result.title, QString::fromLatin1(title));
        QVERIFY(result.isChange() && !(result.sheet == sheet));
        const ToDoDifference difference = ToDoDifference::between(sheet, result.sheet);
        ToDoSheet held = result.sheet;
        QVERIFY(difference.revert(held));
        QCOMPARE(held.toFile("a", "b"), sheet.toFile("a", "b"));
        QVERIFY(!difference.revert(held) || difference.isEmpty());
        QVERIFY(difference.apply(held));
        QCOMPARE(held.toFile("a", "b"), result.sheet.toFile("a", "b"));
        // What nobody here can read is still there.
        QCOMPARE(held.toFile({}, {}).count("mark\tof another program"), 1);
    }

    void doesNothingWhereThereIsNothingToDo()
    {
        for (const Result &result :
             {ToDoActions::newItems(sheet, {.list = 1}, {u" "_s}, 0, today),
              ToDoActions::newItems(sheet, {.list = 9}, {u"a"_s}, 0, today),
              ToDoActions::tick(sheet, {3, 5, 99}, today, today), ToDoActions::untick(sheet, {1}),
              ToDoActions::setText(sheet, 4, u"Paint"_s), ToDoActions::setDue(sheet, {3}, today),
              ToDoActions::remove(sheet, {}), ToDoActions::move(sheet, {1}, 1, 1),
              ToDoActions::indent(sheet, {1}), ToDoActions::outdent(sheet, {4}),
              ListActions::rename(sheet, 9, u"a"_s), ListActions::move(sheet, 1, 0),
              ListActions::remove(sheet, 9)})
            QVERIFY2(!result.isChange() && result.sheet == sheet, qPrintable(result.title));
    }

    void comesBackOnceAndGoesWithTheTick()
    {
        const Result ticked = ToDoActions::tick(sheet, {1}, today, today);
        const QStringList done = {
            u"Water the ferns|2026-11-10|2026-11-22|Anne > Nils|Gently\n1 date was missed"_s,
            u"- Fill the can|2026-11-11|2026-11-22||"_s,
            u"Water the ferns|2026-11-24||Nils > Anne|Gently"_s,
            u"- Fill the can|2026-11-25|||"_s,
            u"Paint||||"_s,
            u"Call|2026-11-21|||"_s};
        QCOMPARE(rowsOf(ticked.sheet), done);
        QVERIFY(ToDoActions::untick(ticked.sheet, {1}).sheet.isOpen(0));
        QCOMPARE(rowsOf(ToDoActions::untick(ticked.sheet, {1}).sheet).front(), rowsOf(sheet).front());
        QCOMPARE(rowsOf(ToDoActions::untick(ticked.sheet, {1}).sheet).size(), 4);

        // Where the next one was changed, it stays, and the former one does not come back again.
        const int next = ticked.sheet.idOf(2);
        const ToDoSheet changed = ToDoActions::setNote(ticked.sheet, next, u"Well"_s).sheet;
        const ToDoSheet opened = ToDoActions::untick(changed, {1}).sheet;
        QCOMPARE(rowsOf(opened).size(), 6);
        QVERIFY(opened.item(0).repeat.isEmpty() && opened.item(2).repeat == u"week 1 tue"_s);

        // It is shown from the day after, at most a week ahead.
        QVERIFY(ComingBack(ticked.sheet, today).isLater(2) && ComingBack(ticked.sheet, today).isLater(3));
        QVERIFY(!ComingBack(ticked.sheet, today.addDays(1)).isLater(2));
        const ToDoSheet far = ToDoActions::setDue(ticked.sheet, {next}, today.addDays(20)).sheet;
        QVERIFY(ComingBack(far, today.addDays(12)).isLater(2));
        QVERIFY(!ComingBack(far, today.addDays(13)).isLater(2));
        QVERIFY(!ComingBack(sheet, today).isLater(0));
        QCOMPARE(Turns::current(u"Nils > Anne"), u"Nils"_s);
    }

    void takesBoughtThingsUpAgain()
    {
        QCOMPARE(ToDoActions::offered(sheet, 2, u"mi"), QStringList{u"Milk"_s});
        QCOMPARE(ToDoActions::offered(sheet, 2, u"butter"), QStringList());
        const Result result =
            ToDoActions::newItems(sheet, {.list = 2}, {u"milk"_s, u"BUTTER"_s, u"* Eggs"_s}, 0, today);
        QCOMPARE(rowsOf(result.sheet, 2),
                 (QStringList{u"# Dairy||||"_s, u"Milk||||"_s, u"Butter||||"_s, u"Eggs||||"_s}));
        QCOMPARE(result.ids, (std::vector{5, 6, 8}));
        QCOMPARE(result.title, u"Added: 2 things"_s);
    }

    void movesItemsWithTheirSteps()
    {
        QCOMPARE(rowsOf(ToDoActions::move(sheet, {1}, 1, 0).sheet).mid(2),
                 (QStringList{rowsOf(sheet)[0], rowsOf(sheet)[1]}));
        QCOMPARE(rowsOf(ToDoActions::move(sheet, {1}, 2, 6).sheet, 2),
                 (QStringList{u"# Dairy||||"_s, u"Milk||2026-11-20||"_s, rowsOf(sheet)[0], rowsOf(sheet)[1],
                              u"Butter||||"_s}));
        QCOMPARE(ToDoActions::withSteps(sheet, 1), (std::vector{1, 2}));
    }

    void countsTheDaysOfATemplate()
    {
        const Result saved = ListActions::saveAsTemplate(sheet, 1, u"Week"_s, QDate(2026, 11, 20));
        const int id = saved.ids.front();
        QVERIFY(saved.sheet.toFile({}, {}).contains(
            "\t0\t-10\t\tAnne > Nils\tweek 1 tue\t\tWater the ferns\tGently"));
        const Result made = ListActions::fromTemplate(saved.sheet, id, u"Next"_s, QDate(2027, 7, 12), today);
        QCOMPARE(rowsOf(made.sheet, made.ids.front()),
                 (QStringList{u"Water the ferns|2027-07-02||Anne > Nils|Gently"_s,
                              u"- Fill the can|2027-07-03|||"_s, u"Paint||||"_s, u"Call|2027-07-13|||"_s}));
        for (int builtIn = 0; builtIn < int(Templates::all().size()); ++builtIn) {
            const Result list = ListActions::fromBuiltIn(sheet, builtIn, u"New"_s, today, today);
            QVERIFY(rowsOf(list.sheet, list.ids.front()).size() > 8);
        }
    }

    void refusesNamesOfLists()
    {
        for (const QString &name : {u" "_s, u"home"_s, QString(61, u'x'), u"\u03a9"_s})
            QVERIFY2(!ListActions::whyNotNamed(sheet, name).isEmpty(), qPrintable(name));
        QVERIFY(ListActions::whyNotNamed(sheet, u"HOME"_s, 1).isEmpty());
        QCOMPARE(ListActions::openTexts(sheet, 2), QStringList{u"Butter"_s});
    }
};

QTEST_GUILESS_MAIN(TestToDoActions)
#include "tst_todoactions.moc"
