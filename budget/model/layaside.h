// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"

#include <QDate>
#include <QList>

#include <optional>

/// What should be laid aside each month for items that come a few times a year, so that the money is there
/// when they fall due.
struct LayAside {
    /// An item that has amounts in more months of the year is paid from what comes in.
    static constexpr int mostMonths = 3;

    struct Item {
        QString item;
        QDate due;          ///< the first of the month
        qint64 amount = 0;  ///< in cents
        qint64 monthly = 0; ///< from the month of today to the one before it falls due, rounded up

        bool operator==(const Item &) const = default;
    };

    /// What is due after the month of `today`, soonest first. `sheet` is the budget of `year`; without one of
    /// the year after (`next`) that is taken to be the same.
    static LayAside of(int year, const BudgetSheet &sheet, const std::optional<BudgetSheet> &next,
                       QDate today);

    QList<Item> items;
    qint64 monthly = 0; ///< of all items
};
