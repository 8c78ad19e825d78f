// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/yearslines.h"
#include "budget/model/yearspages.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

struct Planned {
    QString item;
    QList<int> months; ///< from 1
    QString amount;
};

BudgetSheet sheetOf(const QList<Planned> &plans, const QString &income = {})
{
    BudgetSheet sheet;
    std::size_t row = 0;
    for (const Planned &plan : plans) {
        sheet.rows[row].item = plan.item;
        for (const int month : plan.months)
            sheet.rows[row].amounts[std::size_t(month - 1)] = plan.amount;
        ++row;
    }
    sheet.incomes[0] = income;
    return sheet;
}

QStringList texts(const YearComparison::Table &table)
{
    QStringList lines;
    for (const YearComparison::Line &line : table.lines)
        lines << YearsLines::cells(line).join(u'|');
    return lines << YearsLines::cells(table.sum).join(u'|');
}

} // namespace

/// A year beside the year before, and what to lay aside.
class TestYears : public QObject
{
    Q_OBJECT
private slots:
    void comparesItems()
    {
        const BudgetSheet now = sheetOf({{u"Rent"_s, {1, 2}, u"1,250.00"_s},
                                         {u"Gifts"_s, {12}, u".50"_s},
                                         {u" rent"_s, {1}, u"9.00"_s},
                                         {u"Rent "_s, {3}, u"10.00"_s},
                                         {{}, {6}, u"3.00"_s}});
        const BudgetSheet before = sheetOf({{u"Choir"_s, {5}, u"15.00"_s}, {u"Rent"_s, {1}, u"2500.00"_s}});
        const QStringList compared{u"Rent|2510.00|2500.00|+10.00"_s,
                                   u"Gifts|.50||+.50"_s,
                                   u"rent|9.00||+9.00"_s,
                                   u"Choir||15.00|-15.00"_s,
                                   u"Without an item|3.00||+3.00"_s,
                                   u"Total Expenses|2522.50|2515.00|+7.50"_s};
        const YearComparison comparison(now, before);
        QCOMPARE(texts(comparison.table(Compared::Items)), compared);
        QCOMPARE(YearsLines::headline(2026, comparison), u"2026: 7.50 more than in 2025"_s);
        QCOMPARE(YearsLines::headline(2026, YearComparison(before, now)), u"2026: 7.50 less than in 2025"_s);
        QCOMPARE(YearsLines::headline(2026, YearComparison(now, now)), u"2026: as much as in 2025"_s);

        const YearComparison alone(before, {});
        QCOMPARE(texts(alone.table(Compared::Items)),
                 (QStringList{u"Choir|15.00||"_s, u"Rent|2500.00||"_s, u"Total Expenses|2515.00||"_s}));
        QCOMPARE(YearsLines::headline(2026, alone), u"2026: 2515.00 planned"_s);
    }

    void comparesMonths_data()
    {
        rows<Compared, QString, QString, bool>(
            {{"expenses", Compared::Expenses, u"January|100.00|80.00|+20.00"_s,
              u"Total Expenses|200.00|160.00|+40.00"_s, true},
             {"income", Compared::Income, u"January|1000.00|900.00|+100.00"_s,
              u"Total Income|1000.00|900.00|+100.00"_s, false},
             {"balance", Compared::Balance, u"January|900.00|820.00|+80.00"_s,
              u"Balance|800.00|740.00|+60.00"_s, false}});
    }

    void comparesMonths()
    {
        const auto [what, january, sum, isWorse] = row<Compared, QString, QString, bool>();
        const YearComparison comparison(sheetOf({{u"Rent"_s, {1, 2}, u"100.00"_s}}, u"1000.00"_s),
                                        sheetOf({{u"Rent"_s, {1, 3}, u"80.00"_s}}, u"900.00"_s));
        const QStringList lines = texts(comparison.table(what));
        QCOMPARE(lines.size(), 13);
        QCOMPARE(lines.first(), january);
        QCOMPARE(lines.last(), sum);
        QCOMPARE(YearComparison::isWorse(what, comparison.table(what).lines[0]), isWorse);
    }

    void printsBoth()
    {
        const BudgetSheet sheet = sheetOf({{u"Insurance"_s, {1}, u"90.00"_s}});
        const auto text = [&](const YearComparison &comparison, const LayAside &aside) {
            const PageContext context{.today = QDate(2026, 11, 21)};
            return YearsPages::comparison(2026, comparison, Compared::Items, aside, context).toText();
        };
        const LayAside aside = LayAside::of(2026, sheet, {}, QDate(2026, 11, 21));
        const QString both = text({sheet, BudgetSheet()}, aside);
        QVERIFY(both.contains(u"Budgets of 2026 and 2025"_s));
        QVERIFY(both.contains(u"Item\t2026\t2025\tDifference\nInsurance\t90.00\t\t+90.00\n"_s));
        QVERIFY(both.contains(u"Insurance\tJan 2027\t90.00\t45.00\nTogether\t\t\t45.00\n"_s));
        const QString alone = text({sheet, {}}, {});
        QVERIFY(alone.contains(u"There is no budget of 2025"_s));
        QVERIFY(!alone.contains(u"lay aside"_s));
    }

    void laysAside_data()
    {
        const QString insurance = u"Insurance|Jan 2027|1000.00|500.00"_s;
        rows<QList<int>, QDate, int, QString>(
            {{"once a year", {1}, QDate(2026, 11, 30), 2026, insurance},
             {"next month", {12}, QDate(2026, 11, 1), 2026, u"Insurance|Dec 2026|1000.00|1000.00"_s},
             {"next after this month", {11}, QDate(2026, 11, 1), 2026, u"Insurance|Nov 2027|1000.00|83.34"_s},
             {"three times", {1, 5, 9}, QDate(2026, 6, 15), 2026, u"Insurance|Sep 2026|1000.00|333.34"_s},
             {"four times", {1, 4, 7, 10}, QDate(2026, 6, 15), 2026, {}},
             {"never", {}, QDate(2026, 6, 15), 2026, {}},
             {"in a year to come", {3}, QDate(2026, 11, 30), 2028, u"Insurance|Mar 2028|1000.00|62.50"_s},
             {"of a year gone by", {1}, QDate(2026, 11, 30), 2025, insurance}});
    }

    void laysAside()
    {
        const auto [months, today, year, line] = row<QList<int>, QDate, int, QString>();
        const BudgetSheet sheet = sheetOf({{u"Insurance"_s, months, u"1000.00"_s}, {{}, {1}, u"5.00"_s}});
        QStringList lines;
        for (const LayAside::Item &item : LayAside::of(year, sheet, {}, today).items)
            lines << YearsLines::asideCells(item).join(u'|');
        QCOMPARE(lines.join(u'/'), line);
    }

    void laysAsideForNextYearsBudget()
    {
        const BudgetSheet now = sheetOf({{u"Gone"_s, {3}, u"90.00"_s}, {u"Later"_s, {11}, u"20.00"_s}});
        const BudgetSheet next = sheetOf({{u"Later"_s, {12}, u"26.00"_s}, {u"New"_s, {1}, u"40.00"_s}});
        const LayAside aside = LayAside::of(2026, now, next, QDate(2026, 11, 21));
        const QList<LayAside::Item> items{{u"New"_s, QDate(2027, 1, 1), 4000, 2000},
                                          {u"Later"_s, QDate(2027, 12, 1), 2600, 200}};
        QCOMPARE(aside.items, items);
        QCOMPARE(aside.monthly, 2200);
    }
};

QTEST_APPLESS_MAIN(TestYears)
#include "tst_years.moc"
