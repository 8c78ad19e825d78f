// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/amount.h"
#include "budget/model/budgetfiles.h"
#include "budget/model/spendingfiles.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QComboBox>
#include <QFile>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int year = 2026;

/// A household that comes out even: most is paid every month, some of it now and then.
struct Plan {
    QLatin1StringView item;
    double amount;
    int every; ///< months
    int first; ///< from 0
};

constexpr std::array<Plan, 15> plans{{{"Rent"_L1, 980, 1, 0},
                                      {"Electricity"_L1, 64.5, 1, 0},
                                      {"Water"_L1, 38, 2, 1},
                                      {"Heating"_L1, 112, 1, 0},
                                      {"Internet & telephone"_L1, 49.9, 1, 0},
                                      {"Groceries"_L1, 460, 1, 0},
                                      {"Car insurance"_L1, 387.2, 12, 0},
                                      {"Fuel"_L1, 95, 1, 0},
                                      {"Violin lessons"_L1, 80, 1, 0},
                                      {"Choir & book club"_L1, 15, 3, 2},
                                      {"Clothing"_L1, 60, 1, 0},
                                      {"Holidays by the lake"_L1, 1250, 12, 6},
                                      {"Gifts"_L1, 140, 6, 5},
                                      {"Dentist"_L1, 75, 6, 2},
                                      {"Donations"_L1, 25, 1, 0}}};

BudgetSheet household()
{
    BudgetSheet sheet;
    for (std::size_t row = 0; row < plans.size(); ++row) {
        sheet.rows[row].item = plans[row].item;
        for (auto month = std::size_t(plans[row].first); month < BudgetSheet::monthCount;
             month += std::size_t(plans[row].every))
            sheet.rows[row].amounts[month] = Amount::text(plans[row].amount);
    }
    sheet.incomes.fill(u"2450.00"_s);
    sheet.incomes[11] = u"3100.00"_s;
    return sheet;
}

/// Every cell in use.
BudgetSheet full()
{
    BudgetSheet sheet = household();
    for (std::size_t row = plans.size(); row < sheet.rows.size(); ++row) {
        sheet.rows[row].item = u"Item %1 of a long list"_s.arg(row + 1);
        for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month)
            sheet.rows[row].amounts[month] = Amount::text(8.5 + double(row * 7 + month * 3));
    }
    return sheet;
}

void open(PictureSession &session, const BudgetSheet &sheet)
{
    const DataFolder &folder = session.program().folder;
    QFile::remove(folder.filePath(BudgetFiles::fileName(year)));
    if (sheet != BudgetSheet() && !BudgetFiles(folder).write(year, sheet))
        qFatal("the budget's file cannot be written");
    session.open(Function::Budget);
}

/// What was spent until the day of the pictures, and what is due on which day.
void spend(const DataFolder &folder)
{
    Spending spending;
    for (std::size_t row = 0; row < plans.size(); ++row) {
        const Plan &plan = plans[row];
        for (int month = plan.first; month < 11; month += plan.every) {
            const double factor = 1 + 0.04 * double((int(row) * 7 + month * 5) % 6 - 3);
            spending.amounts.append({QDate(year, month + 1, 3 + int(row)),
                                     qRound64(plan.amount * (row == 0 ? 1 : factor) * 100),
                                     plan.item,
                                     {}});
        }
    }
    spending.amounts.append({QDate(year, 11, 7), 8640, u"Groceries"_s, u"Farmers' market, with Oskar"_s});
    spending.amounts.append({QDate(year, 11, 12), 5210, u"Groceries"_s, u"Corner shop"_s});
    spending.dueDays = {
        {u"Rent"_s, 3}, {u"Electricity"_s, 15}, {u"Heating"_s, 15}, {u"Internet & telephone"_s, 28}};
    QFile file(folder.filePath(SpendingFiles::fileName(year)));
    if (!file.open(QIODevice::WriteOnly) || file.write(SpendingFiles::encode(spending)) < 1)
        qFatal("what was spent cannot be written");
}

/// A bank's file in the preview, with a rule for some of its lines.
void takeBankFile(PictureSession &session)
{
    const QString path = session.program().folder.filePath(u"account.csv"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("Date;Payee;Amount\n"
                                                       "02.11.2026;Lakeside Housing;-980,00\n"
                                                       "04.11.2026;Corner shop 12;-23,45\n"
                                                       "06.11.2026;Farmers' market;-86,40\n"
                                                       "07.11.2026;Northern Light & Power;-64,50\n"
                                                       "10.11.2026;Corner shop 12;-18,90\n"
                                                       "12.11.2026;Corner shop 9;-52,10\n"
                                                       "12.11.2026;Corner shop 9;-52,10\n"
                                                       "15.11.2026;Employer;2450,00\n"
                                                       "18.11.2026;Corner shop 12;many\n"
                                                       "30.12.2025;Corner shop 12;-9,80\n") < 1)
        qFatal("the bank's file cannot be written");
    file.close();
    session.box([&] { session.trigger("mUBank"); },
                [&] {
                    session.fill("fileNameEdit", path);
                    session.key(Qt::Key_Return);
                });
    session.clickRow("importList", 1);
    session.find<QComboBox>("ruleItem").setCurrentText(u"Groceries"_s);
    session.click("ruleAdd");
    session.take("budget-bank");
    session.click("importClose");
}

void takeLayers(PictureSession &session)
{
    session.trigger("mVSpent");
    session.take("budget-spent");
    session.trigger("mVTotals");
    session.take("budget-totals-spent");
    session.key(Qt::Key_Escape);
    session.trigger("mOPTotals");
    session.takePage("budget-page-totals-spent");
    session.key(Qt::Key_Escape);
    session.clickRow("VSGd1", 5, 11);
    session.trigger("mVAmounts");
    session.take("budget-amounts");
    session.key(Qt::Key_Escape);
    session.trigger("mVDue");
    session.take("budget-due");
    session.key(Qt::Key_Escape);
    session.trigger("mOPDiscuss");
    session.takePage("budget-page-discuss-spent");
    session.key(Qt::Key_Escape);
    session.trigger("mVPlanned");
    takeBankFile(session);
}

/// The year before: somewhat cheaper, without violin lessons.
BudgetSheet yearBefore()
{
    BudgetSheet sheet = household();
    sheet.removeRow(8);
    for (BudgetSheet::Row &row : sheet.rows) {
        for (QString &amount : row.amounts) {
            if (!amount.isEmpty())
                amount = Amount::text(0.95 * Amount::stored(amount));
        }
    }
    sheet.incomes.fill(u"2400.00"_s);
    return sheet;
}

void takeTotals(PictureSession &session)
{
    session.trigger("mVTotals");
    session.take("budget-totals");
    session.click("Command12");
    session.take("budget-totals-of-expenses");
    session.key(Qt::Key_Escape);
    session.trigger("mVYears");
    session.take("budget-years");
    session.key(Qt::Key_Escape);
}

void takeSheet(PictureSession &session)
{
    session.take("budget-sheet");
    session.type(u"995"_s);
    session.key(Qt::Key_Return);
    session.box([&] { session.trigger("mECY"); },
                [&] {
                    session.take("message-budget-copy-year");
                    session.click("answerCancel");
                });
}

void takePages(PictureSession &session)
{
    session.trigger("mOPrt");
    session.take("budget-preview");
    session.takePage("budget-page");
    session.click("SSCommand80_1");
    session.takePage("budget-page-turned");
    session.key(Qt::Key_Escape);
    session.trigger("mOPTotals");
    session.takePage("budget-page-totals");
    session.click("SSCommand80_1");
    session.takePage("budget-page-totals-landscape");
    session.click("SSCommand80_1");
    session.trigger("mOPDiscuss");
    session.takePage("budget-page-discuss");
    session.key(Qt::Key_Escape);
    session.box([&] { session.trigger("mUExcel"); },
                [&] {
                    session.fill("exportFolder", u"/home/anne/Documents"_s); // not where the tests run
                    session.take("budget-export");
                    session.click("exportCancel");
                });
}

} // namespace

void Albums::budget(const Camera &camera)
{
    {
        PictureSession session(camera);
        open(session, {});
        session.take("budget-empty");
    }
    {
        PictureSession session(camera);
        open(session, full());
        session.take("budget-full");
        session.trigger("mOPrt");
        session.takePage("budget-page-full");
        session.click("nextPage");
        session.takePage("budget-page-continued");
        session.trigger("mOPTotals");
        session.takePage("budget-page-totals-full");
        session.click("SSCommand80_1");
        session.takePage("budget-page-totals-full-landscape");
        session.click("nextPage");
        session.takePage("budget-page-totals-continued");
        session.key(Qt::Key_Escape);
        session.trigger("mVTotals");
        session.take("budget-totals-full");
    }
    {
        PictureSession session(camera);
        spend(session.program().folder);
        open(session, household());
        takeLayers(session);
    }
    PictureSession session(camera);
    if (!BudgetFiles(session.program().folder).write(year - 1, yearBefore()))
        qFatal("the budget's file cannot be written");
    open(session, household());
    takePages(session);
    takeTotals(session);
    takeSheet(session);
}
