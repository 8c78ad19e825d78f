// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetfiles.h"
#include "budget/model/budgetpages.h"
#include "budget/model/sheetlines.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 22);

BudgetSheet small()
{
    BudgetSheet sheet;
    sheet.rows[0] = {u"Rent"_s, {u"980.00"_s, u"980.00"_s}};
    sheet.rows[2] = {u"Car\tand\nfuel"_s, {u"1,250.00"_s}};
    sheet.rows[3].amounts[11] = u".50"_s; // without an item
    sheet.incomes = {u"2000.00"_s, u"0.00"_s};
    return sheet;
}

PageContext paper(PageSetup::Orientation orientation)
{
    return {{PageMetrics::letter, orientation}, DateStyle::Usa, today, u"Miller"_s};
}

/// `cell` for each of the months but those given, from January on.
QString months(QStringList cells, const QString &cell = {})
{
    while (cells.size() < 12)
        cells << cell;
    return u'\t' + cells.join(u'\t');
}

const QString headings = u"Item\tJan\tFeb\tMar\tApr\tMay\tJun\tJul\tAug\tSep\tOct\tNov\tDec"_s;

template <typename T>
const T &only(const Page &page)
{
    static const T none{};
    for (const Page::Item &item : page.items()) {
        if (const auto *found = std::get_if<T>(&item))
            return *found;
    }
    return none;
}

} // namespace

/// What the budget prints, copies and exports.
class TestBudgetPages final : public QObject
{
    Q_OBJECT
private slots:
    void printsTheSheetDownToItsLastRow()
    {
        const Page page = BudgetPages::sheet(2026, small(), paper(PageSetup::Portrait));
        QCOMPARE(page.titleOf(1), u" Personal Budget For 2026"_s);
        QCOMPARE(page.titleOf(2), u" Personal Budget For 2026 (Continued)"_s);
        QCOMPARE(page.headRight(), u"Printed: Sunday, November 22, 2026"_s);
        const QStringList lines = page.toText().split(u'\n');
        QCOMPARE(lines[3], headings);
        QCOMPARE(lines[4], u"Rent"_s + months({u"980.00"_s, u"980.00"_s}));
        QCOMPARE(lines[5], months({})); // the gap that somebody left
        QCOMPARE(lines.mid(6, 2).join(u' '), u"Car\tand fuel"_s + months({u"1250.00"_s}));
        QCOMPARE(lines[8], months(QStringList(11, QString()) << u".50"_s));
        QCOMPARE(lines[9], u"Total Expenses:\t2230.00\t980.00"_s + u"\t.00"_s.repeated(9) + u"\t.50"_s);
        QCOMPARE(lines[10], u"Total Income:"_s + months({u"2000.00"_s}, u".00"_s));
        QCOMPARE(lines[11], u"Balance:\t-230.00\t-980.00"_s + u"\t.00"_s.repeated(9) + u"\t-.50"_s);
        QCOMPARE(lines.mid(12), (QStringList{{}, u"Quillery"_s, u"Printed on 11/22/2026"_s}));
        const QString spent =
            BudgetPages::sheet({2026, SheetLayer::Spent}, small(), paper(PageSetup::Portrait)).toText();
        QVERIFY(spent.contains(u" Spent In 2026"_s));
        QVERIFY(spent.contains(u"\nTotal Spent:\t2230.00\t"_s) &&
                spent.contains(u"\nNot Spent Yet:\t-230.00\t"_s));
    }

    void printsTheTotals_data()
    {
        rows<PageSetup::Orientation, BudgetBasis, QRectF, QString, QString>({
            {"portrait, of income",
             PageSetup::Portrait,
             BudgetBasis::Income,
             {0.36, 0.84, 7.3, 4.15},
             u"Rent\t1960.00\t98.00%"_s,
             u"% = Item Totals divided by Total Income"_s},
            {"landscape, of expenses",
             PageSetup::Landscape,
             BudgetBasis::Expenses,
             {0.31, 0.7, 9.9, 4.4},
             u"Rent\t1960.00\t61.05%"_s,
             u"% = Item Totals divided by Total Expenses"_s},
        });
    }

    void printsTheTotals()
    {
        const auto [orientation, basis, frame, rent, caption] =
            row<PageSetup::Orientation, BudgetBasis, QRectF, QString, QString>();
        const Page page = BudgetPages::totals(2026, small(), basis, u"/x/Chartxxx.jpg"_s, paper(orientation));
        QCOMPARE(page.titleOf(1), u"BUDGET TOTALS FOR 2026"_s);
        QCOMPARE(page.titleOf(3), u"BUDGET TOTALS FOR 2026 (Continued)"_s);
        QCOMPARE(page.headRight(), u"Printed: Sunday, November 22, 2026"_s);
        QCOMPARE(only<PageItem::PlacedPicture>(page).place, frame);
        QVERIFY(page.start() < frame.top() - 0.3);
        const QString text = page.toText();
        QVERIFY2(text.contains(u"\nItem\tTotal\tPercentage\n"_s + rent + u"\nCar"_s), qPrintable(text));
        QVERIFY(text.contains(u"What is planned, in the whole year. "_s + caption));
        QVERIFY(!text.contains(u".50\t"_s)); // a row without an item counts in the months alone

        const QString spent =
            BudgetPages::totals({2026, SheetLayer::Spent}, small(), basis, {}, paper(orientation)).toText();
        QVERIFY(spent.contains(u"TOTALS SPENT IN 2026"_s));
        QVERIFY(spent.contains(u"What was spent, in the whole year. "_s + caption));

        const Page plain = BudgetPages::totals(2026, small(), basis, {}, paper(orientation));
        QVERIFY(only<PageItem::PlacedPicture>(plain).path.isEmpty());
        QCOMPARE(plain.toText(), text);
    }

    void leavesRoomToWriteOn()
    {
        const Page page = BudgetPages::discussion(2026, small(), {}, paper(PageSetup::Portrait));
        QVERIFY(only<PageItem::Columns>(page).isToWriteIn);
        const QString text = page.toText();
        QVERIFY2(text.contains(u"\nRent\t163.33\t1960.00\t\t\n"_s), qPrintable(text));
        QVERIFY(text.contains(u"\n\t\t\t\t\n\t\t\t\t\n"_s));
        QVERIFY(text.contains(u"\nBalance:\t-100.88\t-1210.50\t\t\n"_s));

        std::array<double, 50> rows{1000, 0, 99.5};
        const QString both =
            BudgetPages::discussion(2026, small(), rows, paper(PageSetup::Portrait)).toText();
        QVERIFY2(both.contains(u"\nRent\t163.33\t1960.00\t1000.00\t\t\n"_s), qPrintable(both));
        QVERIFY(both.contains(u"\nTotal Expenses:\t267.54\t3210.50\t1099.50\t\t\n"_s));
    }

    void copiesTheBudget()
    {
        const QStringList lines = SheetLines::clipboardText(2026, small()).split(u'\n');
        QCOMPARE(lines, (QStringList{
                            u" Budget\t2026"_s,
                            headings,
                            u"Rent"_s + months({u"980.00"_s, u"980.00"_s}),
                            u"Car and fuel"_s + months({u"1250.00"_s}),
                            months(QStringList(11, QString()) << u".50"_s),
                            u"Total Expenses:\t2230.00\t980.00"_s + u"\t.00"_s.repeated(9) + u"\t.50"_s,
                            u"Total Income:      \t2000.00"_s + u"\t.00"_s.repeated(11),
                            u"Balance:          \t-230.00\t-980.00"_s + u"\t.00"_s.repeated(9) + u"\t-.50"_s,
                            {}}));
    }

    void exportsHeadingsAndRowsInUse()
    {
        BudgetSheet sheet = small();
        sheet.rows[0].item = u"Café €"_s;
        QCOMPARE(SheetLines::exportText(sheet),
                 "Item\tJan\tFeb\tMar\tApr\tMay\tJun\tJul\tAug\tSep\tOct\tNov\tDec\r\n"
                 "Caf\xE9 \x80\t980.00\t980.00\t\t\t\t\t\t\t\t\t\t\r\n"
                 "Car and fuel\t1250.00\t\t\t\t\t\t\t\t\t\t\t\r\n"
                 "\t\t\t\t\t\t\t\t\t\t\t\t.50\r\n"_ba);
        const DataFolder folder(householdPath());
        QCOMPARE(SheetLines::exportText(BudgetFiles(folder).read(2026).sheet).count("\r\n"),
                 1 + int(SheetLines::usedRows(BudgetFiles(folder).read(2026).sheet)));
    }

    void isWorthExportingWithAnItemAmongTheFirstTwentyRows_data()
    {
        rows<int, QString, bool>({{"nothing", 0, {}, false},
                                  {"blanks", 0, u"  "_s, false},
                                  {"the first", 0, u"Rent"_s, true},
                                  {"the last", 19, u"Rent"_s, true},
                                  {"one below", 20, u"Rent"_s, false}});
    }

    void isWorthExportingWithAnItemAmongTheFirstTwentyRows()
    {
        const auto [at, item, isWorth] = row<int, QString, bool>();
        BudgetSheet sheet;
        sheet.rows[std::size_t(at)].item = item;
        QCOMPARE(SheetLines::isWorthExporting(sheet), isWorth);
    }

    void namesTheFile_data()
    {
        rows<QString, bool, QString>({
            {"as proposed", SheetLines::exportName(2026, false), false, u"Budget2026.xls"_s},
            {"elsewhere", SheetLines::exportName(2026, true), true, u"Budget2026.XLS"_s},
            {"turned into the other", u"Budget2026.xls"_s, true, u"Budget2026.XLS"_s},
            {"without its end", u" Money "_s, false, u"Money.xls"_s},
            {"never another file", u"2026.Fil"_s, false, u"2026.Fil.xls"_s},
            {"nothing", u"  "_s, false, {}},
            {"only its end", u".xls"_s, false, {}},
            {"hidden", u".budget"_s, false, {}},
            {"a path", u"../Budget"_s, true, {}},
            {"a device", u"A:Budget"_s, true, {}},
            {"a question", u"Budget?"_s, true, {}},
            {"endless", QString(500, u'x'), true, {}},
        });
    }

    void namesTheFile()
    {
        const auto [typed, isFolderChosen, name] = row<QString, bool, QString>();
        QCOMPARE(SheetLines::exportFile(typed, isFolderChosen).value_or(QString()), name);
    }
};

QTEST_APPLESS_MAIN(TestBudgetPages)
#include "tst_budgetpages.moc"
