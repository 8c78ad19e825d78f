// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"

#include <QList>

#include <array>
#include <optional>

/// What is compared: the items over the year, or the months' figures.
enum class Compared { Items, Expenses, Income, Balance };

/// A year's budget beside that of the year before. Items are recognised by their names; rows of one item are
/// added up, and what stands in rows without an item is told behind the others.
class YearComparison
{
public:
    struct Line {
        QString what;                     ///< an item or a month
        std::optional<double> now;        ///< nothing where this year lacks the item
        std::optional<double> before;     ///< nothing where last year lacks it, or has no budget at all
        std::optional<double> difference; ///< nothing without a budget of last year

        bool operator==(const Line &) const = default;
    };

    struct Table {
        QList<Line> lines; ///< the items in this year's order, then those of last year alone; or the months
        Line sum;
    };

    YearComparison() = default;
    /// `before` is nothing where last year has no budget.
    YearComparison(const BudgetSheet &now, const std::optional<BudgetSheet> &before);

    bool hasBefore() const { return m_hasBefore; }
    const Table &table(Compared what) const { return m_tables[std::size_t(what)]; }

    /// Whether the year is the worse for the difference: more expenses, less income, a smaller balance.
    static bool isWorse(Compared what, const Line &line);

private:
    bool m_hasBefore = false;
    std::array<Table, 4> m_tables;
};
