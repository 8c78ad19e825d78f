// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"

#include <QList>

/// What a month's percentage is of.
enum class BudgetBasis { Income, Expenses };

/// What a worksheet comes to, month by month and for the year.
struct BudgetFigures {
    struct Month {
        float expenses = 0; ///< the amounts of all rows, those without an item too, added in single precision
        float income = 0;
        float balance = 0; ///< income less expenses, in single precision

        /// Whether the expenses have outgrown the printed page.
        bool isOverLimit() const { return expenses >= 100000; }
    };

    /// An item's total over the year; rows without an item have none.
    struct Item {
        std::size_t row; ///< from 0
        QString item;
        double total;
    };

    /// The figures of `sheet`, in one pass over its cells.
    static BudgetFigures of(const BudgetSheet &sheet);

    std::array<Month, BudgetSheet::monthCount> months;
    /// The year's sums of the months' figures, as these are shown.
    double income = 0;
    double expenses = 0;
    double balance = 0;

    /// The totals of the rows that have an item, in row order.
    static QList<Item> items(const BudgetSheet &sheet);

    /// "12.34%": the share of `amount` in the year's income or expenses; empty when these are 0.
    QString share(double amount, BudgetBasis basis) const;
};

/// What an income label shows: "0.00" in place of no income and of a negative one.
QString shownIncome(const QString &income);
