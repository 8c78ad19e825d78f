// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfigures.h"
#include "budget/model/shownyear.h"

/// The year's totals as they are shown.
struct BudgetTotals {
    struct Row {
        QString item;
        double total = 0;
        QString share; ///< empty where there is nothing to divide by
    };

    /// Income, expenses or balance of the year.
    struct Sum {
        QString amount; ///< "29400.00 "
        QString share;
        bool isNegative = false;
    };

    static BudgetTotals of(const BudgetSheet &sheet, BudgetBasis basis);

    QList<Row> rows; ///< those with an item, in the order of the sheet
    Sum income, expenses, balance;
};

/// What the totals say.
namespace TotalsLines {

QString heading(ShownYear shown);
QStringList columns();
/// "$11,760": whole dollars.
QString dollars(double amount);
/// What the chart's shares are of.
QString percentageOf(BudgetBasis basis);
/// What the button with the basis does.
QString switchBasis(BudgetBasis basis);
/// The question that the chart answers.
QString chartTitle(ShownYear shown);
/// The bar for `count` items that have none of their own.
QString others(int count);

} // namespace TotalsLines
