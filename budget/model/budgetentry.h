// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"
#include "shell/core/message.h"

#include <optional>

/// What becomes of an amount that is typed into the worksheet, as a number or as a formula ("=3*42.50"), and
/// what is said about it.
struct BudgetEntry {
    QString text; ///< as it is shown and stored
    std::optional<Message> notice;

    /// For a month's cell: a positive amount below 10,000, or nothing.
    static BudgetEntry ofCell(QStringView typed);
    /// For a month's income: an amount below 100,000.
    static BudgetEntry ofIncome(QStringView typed);
    /// What is typed in the place of an amount, to the nearest cent; 0 for a formula with something wrong in
    /// it.
    static double amountOf(QStringView typed);
    /// Whether only a number at the start of `typed` counts: "85,50" is 85.
    static bool isPartlyRead(QStringView typed);

    bool operator==(const BudgetEntry &) const = default;
};

/// Why the totals of a sheet cannot be viewed; nothing where they can.
std::optional<Message> whyNoTotals(const BudgetSheet &sheet);
