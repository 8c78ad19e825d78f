// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"
#include "storage/datafolder.h"

#include <QDate>
#include <QList>

/// The year files of the budget, "2026.Fil": 662 texts in quotes, one a line, rewritten whole at each save.
/// First the 50 rows, each its item and its twelve amounts, then the twelve incomes.
class BudgetFiles
{
public:
    static constexpr int firstYear = 1990;
    static constexpr int lastYear = 2089;
    static constexpr int valueCount =
        int(BudgetSheet::rowCount * (1 + BudgetSheet::monthCount) + BudgetSheet::monthCount);

    /// What a year file holds.
    struct Found {
        BudgetSheet sheet;
        int values = 0; ///< how many: fewer than `valueCount` where the file ends early, 0 without a file

        /// Values that no sheet has room for; a save would drop them.
        int surplus() const { return values > valueCount ? values - valueCount : 0; }
    };

    explicit BudgetFiles(const DataFolder &folder)
        : m_folder(folder)
    {}

    static QString fileName(int year);
    /// The year of `today` as the files have it: the two last digits, 90 and above of the nineteen-hundreds.
    static int yearOf(QDate today);

    /// What the bytes of a year file say.
    static Found decode(QByteArrayView bytes);

    /// The sheet of `year`; empty when its file is missing or empty, with the rest blank when it ends early.
    Found read(int year) const;

    /// Writes all values of `year`. False, with the old file untouched, when the disk refuses.
    [[nodiscard]] bool write(int year, const BudgetSheet &sheet) const;

    /// The bytes of a file that holds `sheet`.
    static QByteArray encode(const BudgetSheet &sheet);

    /// Whether the year's file is there and holds anything.
    bool has(int year) const;

    /// Makes the file of the year after `year` a copy of its own, byte for byte. False, with the other file
    /// untouched, when there is nothing to copy or the disk refuses.
    [[nodiscard]] bool copyToNext(int year) const;

    /// The years that have a file, in order.
    QList<int> years() const;

private:
    const DataFolder &m_folder;
};
