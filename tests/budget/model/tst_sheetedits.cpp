// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetentry.h"
#include "budget/model/messages.h"
#include "budget/model/sheetedits.h"
#include "budget/model/yearcopy.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The amounts of a row, months apart by '|'.
QString amounts(const BudgetSheet &sheet, int row)
{
    QStringList texts;
    for (const QString &amount : sheet.rows[std::size_t(row)].amounts)
        texts << amount;
    return texts.join(u'|');
}

BudgetSheet sheetWith(const QString &item, int month, const QString &amount)
{
    BudgetSheet sheet;
    sheet.rows[0].item = item;
    sheet.rows[0].amounts[std::size_t(month)] = amount;
    return sheet;
}

} // namespace

/// What is done to many cells at once.
class TestSheetEdits : public QObject
{
    Q_OBJECT
private slots:
    void calculates_data()
    {
        rows<QString, double>({{"a product", u"=3*42.50"_s, 127.5},
                               {"order of operations", u"=1+2*3-4/2"_s, 5},
                               {"brackets and signs", u" = -( 2 - 10 ) * +2"_s, 16},
                               {"thousands", u"=1,250*2"_s, 2500},
                               {"cents", u"=10/3"_s, 3.33},
                               {"by nothing", u"=5/0"_s, 0},
                               {"open bracket", u"=(1+2"_s, 0},
                               {"no number", u"=3*"_s, 0},
                               {"words behind", u"=3 kg"_s, 0},
                               {"two points", u"=1.2.3"_s, 0},
                               {"a decimal comma", u"=1,5*2"_s, 0},
                               {"a point alone", u"=."_s, 0},
                               {"noise", u"="_s + QString(100000, u'('), 0},
                               {"no formula", u"3*4"_s, 3}});
    }

    void calculates()
    {
        const auto [typed, amount] = row<QString, double>();
        QCOMPARE(BudgetEntry::amountOf(typed), amount);
        QCOMPARE(BudgetEntry::ofCell(typed).notice.has_value(), amount == 0);
    }

    void readsWhatSpreadsheetsCopy_data()
    {
        using Rows = GridText::Rows;
        rows<QString, Rows>(
            {{"nothing", {}, {}},
             {"a cell", u"12"_s, {{u"12"_s}}},
             {"rows", u"Rent\t1\r\nGas\t\r\n"_s, {{u"Rent"_s, u"1"_s}, {u"Gas"_s, {}}}},
             {"rows of other lengths", u"a\tb\n\nc"_s, {{u"a"_s, u"b"_s}, {QString()}, {u"c"_s}}},
             {"a line end in quotes",
              u"\"two\nlines \"\"here\"\"\"\t5\n"_s,
              {{u"two\nlines \"here\""_s, u"5"_s}}},
             {"quotes that are text", u"\"Oak\" desk\t\"Elm\"\n"_s, {{u"\"Oak\" desk"_s, u"\"Elm\""_s}}},
             {"a quote that stays open", u"\"Oak\t1"_s, {{u"\"Oak"_s, u"1"_s}}}});
    }

    void readsWhatSpreadsheetsCopy()
    {
        const auto [text, cells] = row<QString, GridText::Rows>();
        QCOMPARE(GridText::decode(text), cells);
        QCOMPARE(GridText::decode(GridText::encode(cells)), cells);
    }

    void pastesThroughTheEntryCheck()
    {
        const auto cells =
            GridText::decode(u"Caf\u00e9 \u2603\t12\tabc\t\n\"Two\nlines\"\t10000\t=2*3\t-1\n");
        BudgetSheet sheet = sheetWith(u"Rent"_s, 2, u"5.00"_s);
        const auto pasted = SheetEdits::pasted(sheet, {0, 0, 0, 0}, cells);
        QCOMPARE(pasted.sheet.rows[0].item, u"Caf\u00e9 "_s);
        QCOMPARE(pasted.foreign, u"\u2603"_s);
        QCOMPARE(amounts(pasted.sheet, 0).left(8), u"12.00|||"_s);
        QCOMPARE(pasted.sheet.rows[1].item, u"Two\nlines"_s);
        QCOMPARE(amounts(pasted.sheet, 1).left(14), u"9999.99|6.00||"_s);
        QCOMPARE(pasted.range, (SheetRange{0, 0, 1, 3}));
        QCOMPARE(pasted.notice()->title, u"Invalid Cell Entry"_s);
        QCOMPARE(pasted.notice()->text,
                 u"Cell entries must be numbers only!\n"
                 "2 of 8 pasted cells held no number above 0 and are empty now.\n"
                 "1 of 8 pasted cells held more than 9,999.99, which they hold now."_s);
        QCOMPARE(SheetEdits::pasted(sheet, {0, 1, 0, 1}, {{u"0"_s}}).notice(), BudgetMessages::onlyNumbers());
        QCOMPARE(SheetEdits::pasted(sheet, {0, 1, 0, 1}, {{u"1"_s}}).notice(), std::nullopt);
        QCOMPARE(pasted.partly, 0);
        const QStringList money{u"$9.99"_s, u" 12 \u20AC"_s, u"$"_s, u" "_s};
        const BudgetSheet withMoney = SheetEdits::pasted(sheet, {0, 1, 0, 1}, {money}).sheet;
        QCOMPARE(amounts(withMoney, 0).left(12), u"9.99|12.00||"_s);
        QCOMPARE(SheetEdits::pasted(sheet, {0, 0, 0, 0}, {{u"1,2"_s, u"85,50"_s, u"1,250.5"_s}}).partly, 1);
    }

    void pastesWhatFits()
    {
        const BudgetSheet sheet;
        const auto cut = SheetEdits::pasted(sheet, {49, 12, 49, 12}, {{u"1"_s, u"2"_s}, {u"3"_s, u"4"_s}});
        QCOMPARE(cut.leftOut, 3);
        QCOMPARE(cut.cells, 1);
        QCOMPARE(cut.sheet.rows[49].amounts[11], u"1.00"_s);
        // One cell fills all that is chosen.
        const auto filled = SheetEdits::pasted(sheet, {0, 1, 1, 12}, {{u"7"_s}});
        QCOMPARE(filled.cells, 24);
        QCOMPARE(filled.sheet.rows[1].amounts[11], u"7.00"_s);
        QCOMPARE(SheetEdits::pasted(sheet, {0, 0, 0, 0}, {}).cells, 0);
    }

    void repeatsAnAmount_data()
    {
        const SheetRange march{0, 3, 0, 3};
        rows<SheetRange, int, QString>(
            {{"to the end", march, 1, u"||5.00|5.00|5.00|5.00|5.00|5.00|5.00|5.00|5.00|5.00"_s},
             {"within a range", {0, 3, 1, 5}, 1, u"||5.00|5.00|5.00|||||||"_s},
             {"every second month", march, 2, u"||5.00||5.00||5.00||5.00||5.00|"_s},
             {"every third month", march, 3, u"||5.00|||5.00|||5.00|||5.00"_s},
             {"nothing", {0, 4, 0, 4}, 1, u"||5.00|||||||||"_s}});
    }

    void repeatsAnAmount()
    {
        const auto [range, step, expected] = row<SheetRange, int, QString>();
        BudgetSheet sheet = sheetWith(u"Rent"_s, 2, u"5.00"_s);
        SheetEdits::repeatToTheRight(sheet, range, step);
        QCOMPARE(amounts(sheet, 0), expected);
        QCOMPARE(amounts(sheet, 1), QString(11, u'|'));
    }

    void spreadsASum()
    {
        BudgetSheet sheet;
        QVERIFY(SheetEdits::spread(sheet, {0, 0, 0, 0}, 100));
        QCOMPARE(amounts(sheet, 0), u"8.34|8.34|8.34|8.34|8.33|8.33|8.33|8.33|8.33|8.33|8.33|8.33"_s);
        QVERIFY(SheetEdits::spread(sheet, {1, 0, 1, 3}, 0.02));
        QCOMPARE(amounts(sheet, 1), u".01|.01||||||||||"_s);
        QVERIFY(SheetEdits::spread(sheet, {2, 5, 2, 5}, 119999.88));
        QVERIFY(!SheetEdits::spread(sheet, {2, 5, 2, 5}, 119999.89));
    }

    void movesRows()
    {
        BudgetSheet sheet;
        sheet.rows[0].item = u"Rent"_s;
        sheet.rows[1].item = u"Gas"_s;
        sheet.rows[2].item = u"Water"_s;
        QVERIFY(!SheetEdits::moveRows(sheet, {0, 0, 1, 0}, -1));
        QVERIFY(SheetEdits::moveRows(sheet, {0, 0, 1, 0}, 1));
        QCOMPARE(sheet.rows[0].item + sheet.rows[1].item, u"WaterRent"_s);
        QVERIFY(SheetEdits::moveRows(sheet, {1, 0, 2, 0}, -1));
        QCOMPARE(sheet.rows[0].item + sheet.rows[2].item, u"RentWater"_s);
        QVERIFY(!SheetEdits::moveRows(sheet, {49, 0, 49, 0}, 1));
    }

    void bringsBackTheYearThatWasCopiedOver_data() { rows<bool>({{"a file", true}, {"no file", false}}); }

    void bringsBackTheYearThatWasCopiedOver()
    {
        const auto [isThere] = row<bool>();
        const TestFolder test;
        QVERIFY(!YearCopy::of(test.folder(), 2089));
        test.put(u"2089.Fil"_s, "\"Rent\"\r\n");
        if (isThere)
            test.put(u"2090.Fil"_s, "old");
        const auto copy = YearCopy::of(test.folder(), 2089);
        QVERIFY(copy && copy->commit(test.folder()));
        QCOMPARE(test.bytes(u"2090.Fil"_s), "\"Rent\"\r\n");
        QCOMPARE(copy->undo(test.folder()), ChangeResult::Done);
        QCOMPARE(QFile::exists(test.path(u"2090.Fil"_s)), isThere);
        QCOMPARE(test.bytes(u"2090.Fil"_s), isThere ? "old" : "");
        QCOMPARE(copy->redo(test.folder()), ChangeResult::Done);
        test.put(u"2090.Fil"_s, "new");
        QCOMPARE(copy->undo(test.folder()), ChangeResult::Outdated);
    }
};

QTEST_APPLESS_MAIN(TestSheetEdits)
#include "tst_sheetedits.moc"
