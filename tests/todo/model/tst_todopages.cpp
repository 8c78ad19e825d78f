// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "todo/model/todoexport.h"
#include "todo/model/todopages.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using ToDoPages::Options;

const ToDoSheet sheet = ToDoSheet::fromFile(
    "Quillery To Do 1\n"
    "list\t1\tplain\tHome\n"
    "list\t2\tshopping\tCON\n"
    "list\t3\ttemplate\tTrip\n"
    "item\t1\t1\t0\t2026-11-17\t\tAnne > Nils\tday 3 after\t\tWater the ferns\tGently,\\nplease\n"
    "item\t2\t1\t1\t\t\tNils\t\t\tFill the can\t\n"
    "item\t3\t1\t0\t2026-11-18\t2026-11-20\tKarin\t\t\tCall Jos\xC3\xA9\t\n"
    "item\t4\t2\th\t\t\t\t\t\tDairy\t\n"
    "item\t5\t2\t0\t\t\t\t\t\tMilk\t\n"
    "item\t6\t2\th\t\t\t\t\t\tBakery\t\n"
    "item\t7\t3\t0\t-3\t\tAnne\t\t\tPack\t\n");

Options of(Options::What what, bool isPlain = false)
{
    Options options;
    options.what = what;
    options.list = what == Options::List ? 1 : 0;
    options.from = QDate(2026, 11, 1);
    options.to = QDate(2026, 11, 22);
    options.hasBoxes = options.hasDates = options.hasNotes = !isPlain;
    return options;
}

Options shopping()
{
    Options options = of(Options::List);
    options.list = 2;
    return options;
}

} // namespace

/// What is printed and exported of the lists, on 22 November 2026.
class TestToDoPages : public QObject
{
    Q_OBJECT
private slots:
    void printsThis_data()
    {
        rows<Options, QStringList>({
            {"a list",
             of(Options::List),
             {u"Home\tNovember 22, 2026"_s, u"\u2610\tWater the ferns\tNov 17, overdue\tAnne"_s,
              u"\tGently,"_s, u"please\t\t"_s, u"\u2610\t\u2013 Fill the can\t\tNils"_s}},
            {"without boxes, dates and notes",
             of(Options::List, true),
             {u"Home\tNovember 22, 2026"_s, u"Water the ferns\tAnne"_s, u"\u2013 Fill the can\tNils"_s}},
            {"a shopping list, under its headings",
             shopping(),
             {u"CON\tNovember 22, 2026"_s, u"Dairy"_s, u"\u2610\tMilk"_s}},
            {"today",
             of(Options::Today),
             {u"To Do Today\tNovember 22, 2026"_s, u"\tOverdue\t\t"_s,
              u"\u2610\tWater the ferns\tNov 17, overdue\tAnne"_s, u"\tGently,"_s, u"please\t\t"_s}},
            {"every person's sheet",
             of(Options::Persons, true),
             {u"To Do by Person\tNovember 22, 2026"_s, u"Water the ferns"_s, u"Nils"_s,
              u"\u2013 Fill the can"_s}},
            {"what was done",
             of(Options::Done),
             {u"Done, November 1 to 22, 2026\tNovember 22, 2026"_s,
              u"\u2611\tCall Jos\u00e9\tNov 20\tKarin"_s}},
        });
    }

    void printsThis()
    {
        const auto [options, expected] = row<Options, QStringList>();
        const Page page =
            ToDoPages::printout(sheet, options, {.style = DateStyle::Usa, .today = QDate(2026, 11, 22)});
        QStringList lines = page.toText().split(u'\n', Qt::SkipEmptyParts);
        lines = lines.first(lines.size() - 2); // behind them stands what ends every page
        QCOMPARE(lines, expected);
    }

    void exportsAListInTheCodePage()
    {
        QCOMPARE(
            ToDoExport::file(sheet, 1),
            "To Do Item\tTo Do Date\tActual Date\tWho\tRepeat\tNote\r\n"
            "Water the ferns\t2026-11-17\t\tAnne > Nils\tevery 3 days after it is done\tGently, please\r\n"
            "Fill the can\t\t\tNils\t\t\r\n"
            "Call Jos\xE9\t2026-11-18\t2026-11-20\tKarin\t\t\r\n"_ba);
    }

    void namesTheFileAfterTheList_data()
    {
        rows<QString, QString>({{"a name", u"Home"_s, u"Home.xls"_s},
                                {"what no path holds", u"In/out: \"all\""_s, u"In-out- -all-.xls"_s},
                                {"a device", u"con"_s, u"con-.xls"_s},
                                {"a device with a dot", u"LPT1.old"_s, u"LPT1-.old.xls"_s}});
    }

    void namesTheFileAfterTheList()
    {
        const auto [list, expected] = row<QString, QString>();
        QCOMPARE(ToDoExport::fileName(list), expected);
    }
};

QTEST_APPLESS_MAIN(TestToDoPages)
#include "tst_todopages.moc"
