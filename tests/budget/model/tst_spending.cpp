// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/amount.h"
#include "budget/model/budgetfigures.h"
#include "budget/model/spending.h"
#include "budget/model/spendingfiles.h"
#include "shell/core/reservednames.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

BudgetSheet sheetOf(const QStringList &items)
{
    BudgetSheet sheet;
    for (qsizetype row = 0; row < items.size(); ++row)
        sheet.rows[std::size_t(row)].item = items[row];
    return sheet;
}

SpentAmount spent(const QString &item, qint64 cents, int month = 3)
{
    return {QDate(2026, month, 14), cents, item, {}};
}

} // namespace

/// What was spent: the file, and which row of the worksheet it belongs to.
class TestSpending : public QObject
{
    Q_OBJECT
private slots:
    void keepsEveryLine()
    {
        const QByteArray bytes = "Quillery spent amounts 1\n"
                                 "due\t31\tRent\n"
                                 "rule\tGroceries\tCORNER SHOP\n"
                                 "paid\t3\t850.00\tRent\n"
                                 "spent\t2026-03-01\t850.00\tRent\tPaid\n"
                                 "spent\t2026-03-14\t-0.50\tCaf\xC3\xA9\ta\\ttab, a \\\\ and\\na line\n"
                                 "spent\t2026-03-14\t1.5\tno cents\t\n"
                                 "spent\t2026-02-29\t1.50\tno such day\t\n"
                                 "spent\t2025-03-14\t1.50\tanother year\t\n"
                                 "spent\t2026-03-14\t1.50\tno note\n"
                                 "spent\t2026-03-14\t1.50\t\xFF\t\n"
                                 "spent\t2026-03-14\t9999999999999.00\ttoo much\t\n"
                                 "due\t32\tRent\n"
                                 "later\tsomething new\r\n";
        const SpendingFiles::Found found = SpendingFiles::decode(bytes, 2026);
        QCOMPARE(found.state, SpendingFiles::State::Whole);
        QCOMPARE(found.spending.amounts,
                 (QList<SpentAmount>{{QDate(2026, 3, 1), 85000, u"Rent"_s, u"Paid"_s},
                                     {QDate(2026, 3, 14), -50, u"Café"_s, u"a\ttab, a \\ and\na line"_s}}));
        QCOMPARE(found.spending.dueDays, (QList<DueDay>{{u"Rent"_s, 31}}));
        QCOMPARE(found.spending.paid, (QList<PaidMark>{{3, u"Rent"_s, 85000}}));
        QCOMPARE(found.spending.rules, (QList<ImportRule>{{u"CORNER SHOP"_s, u"Groceries"_s}}));
        QCOMPARE(found.spending.kept.size(), 8);
        QCOMPARE(SpendingFiles::encode(found.spending), bytes);
    }

    void readsWhatItCan_data()
    {
        using State = SpendingFiles::State;
        rows<QByteArray, State, int, int>(
            {{"an empty file", "", State::Whole, 0, 0},
             {"line ends of another system",
              "Quillery spent amounts 1\r\nspent\t2026-01-01\t1.00\tRent\t\r\n", State::Whole, 1, 0},
             {"no last line end", "Quillery spent amounts 1\nspent\t2026-01-01\t1.00\tRent\t", State::Whole,
              1, 0},
             {"no first line", "spent\t2026-01-01\t1.00\tRent\t\n", State::Whole, 1, 0},
             {"noise", QByteArray("\0\xFF\t\t\t\t\t\t\nspent\n\\\n", 17), State::Whole, 0, 3},
             {"a later version", "Quillery spent amounts 2\nspent\t2026-01-01\t1.00\tRent\t\n", State::Newer,
              1, 0}});
    }

    void readsWhatItCan()
    {
        const auto [bytes, state, amounts, kept] = row<QByteArray, SpendingFiles::State, int, int>();
        const SpendingFiles::Found found = SpendingFiles::decode(bytes, 2026);
        QCOMPARE(found.state, state);
        QCOMPARE(found.mayBeWritten(), state == SpendingFiles::State::Whole);
        QCOMPARE(found.spending.amounts.size(), amounts);
        QCOMPARE(found.spending.kept.size(), kept);
    }

    void beginsAYearLikeTheOneBefore()
    {
        TestFolder test;
        const SpendingFiles files(test.folder());
        QCOMPARE(files.read(2026).state, SpendingFiles::State::Missing);
        test.put(u"Quillery.spent-2026"_s,
                 "due\t5\tRent\nrule\tFuel\tPUMP\nspent\t2026-01-01\t1.00\tRent\t\n");
        const SpendingFiles::Found next = files.read(2027);
        QCOMPARE(next.state, SpendingFiles::State::Missing);
        QCOMPARE(next.spending.dueDay(u"Rent"_s), 5);
        QCOMPARE(next.spending.rules.size(), 1);
        QVERIFY(next.spending.amounts.isEmpty());
        QVERIFY(files.read(2028).spending.dueDays.isEmpty());
        QCOMPARE(files.years(), QList<int>{2026});
        QVERIFY(ReservedNames::isReserved(u"quillery.SPENT-2026"_s));
        QVERIFY(!ReservedNames::isReserved(u"Quill Ery"_s));
        QVERIFY(QDir(test.folder().path()).mkpath(u"Quillery.spent-2030"_s));
        QVERIFY(!files.read(2030).mayBeWritten());
    }

    void belongsToTheRowOfItsItem()
    {
        const QList<SpentAmount> amounts{spent(u"Rent"_s, 100), spent(u"Rent"_s, 11), spent(u"Fuel"_s, 7, 4),
                                         spent(u"Gone"_s, 5), spent({}, 3)};
        const SpentSums sums = SpentSums::of(sheetOf({u"Fuel"_s, {}, u" Rent "_s, u"Rent"_s}), amounts);
        QCOMPARE(sums.rows[2][2], 111);
        QCOMPARE(sums.rows[3][2], 0);
        QCOMPARE(sums.rows[0][3], 7);
        QCOMPARE(sums.noRow[2], 8);
        QCOMPARE(sums.months[2], 119);
        QVERIFY(sums.hasAny(2) && !sums.hasAny(0));
    }

    void standsInThePlaceOfThePlan_data()
    {
        const QStringList full(50, u"Fuel"_s);
        const auto with = [](QStringList items, int row, const QString &item) {
            items[row] = item;
            return items;
        };
        rows<QStringList, int, QString>(
            {{"below the items", {u"Fuel"_s, {}, u"Rent"_s}, 3, u"No row|Mar 0.08"_s},
             {"an empty sheet", {}, 0, u"No row|Mar 1.19"_s},
             {"the last row is free", with(full, 49, {}), 49, u"No row|Mar 1.19"_s},
             {"no row is free", with(full, 49, u"Rent"_s), 48, u"No row|Mar 0.08"_s}});
    }

    /// Also what has no row.
    void standsInThePlaceOfThePlan()
    {
        const auto [items, row, text] = ::row<QStringList, int, QString>();
        const BudgetSheet sheet = SpentSums::of(sheetOf(items), {spent(u"Rent"_s, 111), spent(u"Gone"_s, 8)})
                                      .asSheet(sheetOf(items));
        QCOMPARE(sheet.rows[std::size_t(row)].item + u"|Mar "_s + sheet.rows[std::size_t(row)].amounts[2],
                 text);
        const float march = BudgetFigures::of(sheet).months[2].expenses;
        QCOMPARE(Amount::text(double(march)), u"1.19"_s);
    }

    void followsTheWorksheet_data()
    {
        const QString rent = u"Rent"_s;
        const QString flat = u"Flat"_s;
        const QString fuel = u"Fuel"_s;
        rows<QStringList, QStringList, QString>(
            {{"renamed", {rent, fuel}, {flat, fuel}, flat},
             {"renamed into one that is there", {rent, fuel}, {fuel, fuel}, fuel},
             {"moved", {rent, fuel}, {fuel, rent}, rent},
             {"deleted", {rent, fuel}, {fuel}, rent},
             {"emptied", {rent, fuel}, {{}, fuel}, rent},
             {"typed into an empty row", {{}, rent}, {fuel, rent}, rent},
             {"the second of two renamed", {rent, rent}, {rent, flat}, rent},
             {"the first of two renamed", {rent, rent}, {flat, rent}, flat},
             {"several pasted over", {rent, fuel}, {flat, u"Car"_s}, flat}});
    }

    void followsTheWorksheet()
    {
        const auto [before, after, owner] = row<QStringList, QStringList, QString>();
        Spending spending;
        spending.tick(u"Rent"_s, QDate(2026, 3, 1), 100);
        spending.setDueDay(u"Rent"_s, 7);
        spending.rules = {{u"LANDLORD"_s, u"Rent"_s}};
        // Of two rows of one item only the first has it.
        if (before == QStringList{u"Rent"_s, u"Rent"_s} && after.last() == u"Flat"_s)
            QCOMPARE(BudgetItems(sheetOf(before)).owned(sheetOf(before), 1), QString());
        spending.follow(sheetOf(before), sheetOf(after));
        QCOMPARE(spending.amounts.first().item, owner);
        QVERIFY(spending.isPaid(owner, 3));
        QCOMPARE(spending.dueDay(owner), 7);
        QCOMPARE(spending.rules.first().item, owner);
    }

    void keepsOneMarkOfTwoItemsThatBecomeOne()
    {
        Spending spending;
        spending.tick(u"Rent"_s, QDate(2026, 3, 1), 100);
        spending.tick(u"Flat"_s, QDate(2026, 3, 1), 200);
        spending.rename(u"Rent"_s, u"Flat"_s);
        QCOMPARE(spending.paid.size(), 1);
        QCOMPARE(spending.spent(u"Flat"_s, 3), 300);
    }

    void ticksWhatIsPaid()
    {
        Spending spending;
        spending.amounts = {spent(u"Rent"_s, 30)};
        const Spending before = spending;
        spending.tick(u"Rent"_s, QDate(2026, 3, 2), 100);
        spending.tick(u"Rent"_s, QDate(2026, 3, 9), 100); // is ticked already
        QCOMPARE(spending.spent(u"Rent"_s, 3), 100);
        QCOMPARE(spending.amounts.last(), (SpentAmount{QDate(2026, 3, 2), 70, u"Rent"_s, u"Paid"_s}));
        spending.untick(u"Rent"_s, 3);
        QCOMPARE(spending, before);
        spending.tick(u"Rent"_s, QDate(2026, 3, 2), 20);
        QCOMPARE(spending.amounts, before.amounts);
    }

    void showsCents_data()
    {
        rows<qint64, QString>(
            {{"nothing", 0, u"0.00"_s}, {"a cent", -1, u"-0.01"_s}, {"more", 123456, u"1234.56"_s}});
    }

    void showsCents()
    {
        const auto [cents, text] = row<qint64, QString>();
        QCOMPARE(centsText(cents), text);
        QCOMPARE(centsOf(u"1,250.05"_s), 125005);
    }
};

QTEST_APPLESS_MAIN(TestSpending)
#include "tst_spending.moc"
