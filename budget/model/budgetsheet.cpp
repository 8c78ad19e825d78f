// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetsheet.h"

#include <algorithm>

bool BudgetSheet::Row::isEmpty() const
{
    return item.isEmpty() &&
           std::ranges::all_of(amounts, [](const QString &amount) { return amount.isEmpty(); });
}

void BudgetSheet::removeRow(std::size_t row)
{
    std::move(rows.begin() + std::ptrdiff_t(row) + 1, rows.end(), rows.begin() + std::ptrdiff_t(row));
    rows.back() = {};
}

bool BudgetSheet::insertRow(std::size_t row)
{
    if (!rows.back().isEmpty())
        return false;
    std::move_backward(rows.begin() + std::ptrdiff_t(row), rows.end() - 1, rows.end());
    rows[row] = {};
    return true;
}
