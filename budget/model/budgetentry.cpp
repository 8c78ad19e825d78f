// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetentry.h"

#include "budget/model/amount.h"
#include "budget/model/formula.h"
#include "budget/model/messages.h"

#include <algorithm>

double BudgetEntry::amountOf(QStringView typed)
{
    return Amount::rounded(Formula::is(typed) ? Formula::value(typed).value_or(0) : Amount::typed(typed));
}

bool BudgetEntry::isPartlyRead(QStringView typed)
{
    return !Formula::is(typed) && !Amount::isWholly(typed);
}

BudgetEntry BudgetEntry::ofCell(QStringView typed)
{
    const double amount = amountOf(typed);
    if (amount <= 0)
        return {{}, BudgetMessages::onlyNumbers()};
    if (amount > Amount::mostInCell)
        return {Amount::text(Amount::mostInCell), BudgetMessages::cellLimit()};
    return {Amount::text(amount), {}};
}

BudgetEntry BudgetEntry::ofIncome(QStringView typed)
{
    const double amount = amountOf(typed);
    if (amount > Amount::mostIncome)
        return {Amount::text(Amount::mostIncome), BudgetMessages::incomeLimit()};
    return {amount > 0 ? Amount::text(amount) : QString(), {}};
}

std::optional<Message> whyNoTotals(const BudgetSheet &sheet)
{
    if (sheet.rows.front().isEmpty())
        return BudgetMessages::noFirstRow();
    const bool hasAmount = std::ranges::any_of(sheet.rows, [](const BudgetSheet::Row &row) {
        return std::ranges::any_of(row.amounts,
                                   [](const QString &amount) { return Amount::stored(amount) > 0; });
    });
    const bool hasIncome =
        std::ranges::any_of(sheet.incomes, [](const QString &income) { return Amount::stored(income) > 0; });
    if (!hasAmount || !hasIncome)
        return BudgetMessages::noAmountOrIncome();
    return {};
}
