// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>

/// The worksheet of one year: up to 50 items with an amount for each month, and each month's income. All are
/// texts as they are shown and stored: an amount is ".50", "125.00" or empty.
struct BudgetSheet {
    static constexpr std::size_t rowCount = 50;
    static constexpr std::size_t monthCount = 12;

    struct Row {
        QString item;
        std::array<QString, monthCount> amounts; ///< January first

        /// Whether nothing stands in it. Rows without an item may have amounts.
        bool isEmpty() const;
        bool operator==(const Row &) const = default;
    };

    std::array<Row, rowCount> rows;
    std::array<QString, monthCount> incomes; ///< January first

    /// Takes `row` away (from 0): those below it move up, and an empty one comes at the end.
    void removeRow(std::size_t row);
    /// Puts an empty row in front of `row`; false, with nothing changed, when the last row is in use.
    bool insertRow(std::size_t row);

    bool operator==(const BudgetSheet &) const = default;
};
