// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"
#include "shell/core/message.h"

#include <optional>

/// What becomes of an amount that is typed into the worksheet, and what is said about it.
struct BudgetEntry {
    QString text; ///< as it is shown and stored
    std::optional<Message> notice;

    /// For a month's cell: a positive amount below 10,000, or nothing.
    static BudgetEntry ofCell(QStringView typed);
    /// For a month's income: an amount below 100,000.
    static BudgetEntry ofIncome(QStringView typed);

    bool operator==(const BudgetEntry &) const = default;
};

/// Why the totals of a sheet cannot be viewed; nothing where they can.
std::optional<Message> whyNoTotals(const BudgetSheet &sheet);
