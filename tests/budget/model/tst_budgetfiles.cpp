// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/amount.h"
#include "budget/model/budgetentry.h"
#include "budget/model/budgetfigures.h"
#include "budget/model/budgetfiles.h"
#include "budget/model/messages.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

/// The year files, and what the sheets in them come to.
class TestBudgetFiles : public QObject
{
    Q_OBJECT
private slots:
    void readsAndAddsUpTheHousehold_data() { rows<int>({{"2025", 2025}, {"2026", 2026}}); }

    void readsAndAddsUpTheHousehold()
    {
        const auto [year] = row<int>();
        const DataFolder folder(householdPath());
        const BudgetFiles files(folder);
        const BudgetFiles::Found found = files.read(year);
        QCOMPARE(found.values, BudgetFiles::valueCount);
        const QJsonObject expected = expectedOf(u"budgets"_s)[QString::number(year)].toObject();
        const BudgetFigures figures = BudgetFigures::of(found.sheet);
        const QJsonObject months = expected[u"months"_s].toObject();
        for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month) {
            const QString name = QLocale::c().monthName(int(month) + 1, QLocale::ShortFormat);
            const QJsonObject shown = months[name].toObject();
            const BudgetFigures::Month &of = figures.months[month];
            QCOMPARE(Amount::text(double(of.expenses)), shown[u"expenses"_s].toString());
            QCOMPARE(shownIncome(found.sheet.incomes[month]), shown[u"income"_s].toString());
            QCOMPARE(Amount::text(double(of.balance)), shown[u"balance"_s].toString());
            QCOMPARE(of.isOverLimit(), shown[u"bills_limit_message"_s].toBool());
        }
        const QJsonObject total = expected[u"year"_s].toObject();
        QCOMPARE(Amount::text(figures.income) + u' ', total[u"income"_s].toString());
        QCOMPARE(Amount::text(figures.expenses) + u' ', total[u"expenses"_s].toString());
        QCOMPARE(Amount::text(figures.balance) + u' ', total[u"balance"_s].toString());
        QJsonArray items;
        for (const BudgetFigures::Item &item : BudgetFigures::items(found.sheet))
            items.append(
                QJsonObject{{u"item"_s, item.item},
                            {u"total"_s, Amount::text(item.total)},
                            {u"percent_of_income"_s, figures.share(item.total, BudgetBasis::Income)},
                            {u"percent_of_expenses"_s, figures.share(item.total, BudgetBasis::Expenses)}});
        QCOMPARE(items, total[u"items"_s].toArray());
    }

    void writesWhatWasRead()
    {
        QFile household(householdPath(u"2026.Fil"_s));
        QVERIFY(household.open(QIODevice::ReadOnly));
        const QByteArray bytes = household.readAll();
        m_test.put(u"2026.Fil"_s, bytes);
        const BudgetFiles files(m_test.folder());
        QVERIFY(files.write(2027, files.read(2026).sheet));
        QCOMPARE(m_test.bytes(u"2027.Fil"_s), bytes);
        QVERIFY(files.copyToNext(2026));
        QCOMPARE(files.years(), (QList<int>{2026, 2027}));
        QVERIFY(!files.copyToNext(2028));
        QVERIFY(!files.has(2029));
    }

    void readsWhatIsThere_data()
    {
        rows<QByteArray, int, int>({{"no value", "", 0, 0},
                                    {"one value", "\"Rent\"\r\n", 1, 0},
                                    {"too many", QByteArray("\"\"\r\n").repeated(665), 665, 3}});
    }

    void readsWhatIsThere()
    {
        const auto [bytes, values, surplus] = row<QByteArray, int, int>();
        m_test.put(u"2031.Fil"_s, bytes);
        const BudgetFiles::Found found = BudgetFiles(m_test.folder()).read(2031);
        QCOMPARE(found.values, values);
        QCOMPARE(found.surplus(), surplus);
        QCOMPARE(found.sheet.rows[0].item, values == 1 ? u"Rent"_s : QString());
        QVERIFY(found.sheet.rows[1].isEmpty());
    }

    void namesTheYearOfADate_data()
    {
        rows<QDate, int>({{"now", QDate(2026, 11, 22), 2026},
                          {"the last", QDate(2089, 1, 1), 2089},
                          {"ninety", QDate(2090, 1, 1), 1990}});
    }

    void namesTheYearOfADate()
    {
        const auto [today, year] = row<QDate, int>();
        QCOMPARE(BudgetFiles::yearOf(today), year);
    }

    void addsInSinglePrecision()
    {
        BudgetSheet sheet;
        for (BudgetSheet::Row &row : sheet.rows)
            row.amounts[0] = u"9999.99"_s;
        // Fifty times 9999.99, rounded to 24 bits at each step.
        QCOMPARE(Amount::text(double(BudgetFigures::of(sheet).months[0].expenses)), u"499999.69"_s);
        QVERIFY(BudgetFigures::of(sheet).share(1, BudgetBasis::Income).isEmpty());
    }

    void movesRows()
    {
        BudgetSheet sheet;
        sheet.rows[0].item = u"Rent"_s;
        sheet.rows[1].item = u"Water"_s;
        const BudgetSheet before = sheet;
        QVERIFY(sheet.insertRow(1));
        QCOMPARE(sheet.rows[2].item, u"Water"_s);
        sheet.removeRow(1);
        QCOMPARE(sheet, before);
        sheet.rows.back().amounts[3] = u"1.00"_s;
        QVERIFY(!sheet.insertRow(0));
    }

    void refusesTotalsOfAnEmptySheet()
    {
        BudgetSheet sheet;
        QCOMPARE(whyNoTotals(sheet), BudgetMessages::noFirstRow());
        sheet.rows[0].item = u"Rent"_s;
        sheet.incomes[0] = u"0.00"_s;
        QCOMPARE(whyNoTotals(sheet), BudgetMessages::noAmountOrIncome());
        sheet.rows[3].amounts[0] = u"1.00"_s;
        sheet.incomes[4] = u"5.00"_s;
        QCOMPARE(whyNoTotals(sheet), std::nullopt);
    }

private:
    TestFolder m_test;
};

QTEST_APPLESS_MAIN(TestBudgetFiles)
#include "tst_budgetfiles.moc"
