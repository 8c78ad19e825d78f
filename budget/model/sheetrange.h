// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"

#include <QStringList>

/// Columns of the worksheet: the item, then the months from January on.
namespace SheetColumn {

inline constexpr int item = 0;
inline constexpr int firstMonth = 1;
inline constexpr int count = 1 + int(BudgetSheet::monthCount);

/// "Item", "Jan" to "Dec".
const QStringList &headings();

} // namespace SheetColumn

/// A block of cells of the worksheet, from one corner to the other; rows and columns count from 0.
struct SheetRange {
    int top = 0;
    int left = 0;
    int bottom = -1;
    int right = -1;

    bool isEmpty() const { return bottom < top || right < left; }
    int height() const { return bottom - top + 1; }
    int width() const { return right - left + 1; }
    bool operator==(const SheetRange &) const = default;

    /// The smallest block that holds every cell in which the two sheets differ; incomes do not count.
    static SheetRange ofDifference(const BudgetSheet &one, const BudgetSheet &other);
};

/// The text of a cell of `sheet`.
QString &cellText(BudgetSheet &sheet, int row, int column);
const QString &cellText(const BudgetSheet &sheet, int row, int column);

/// `text` as it is shown in one line: a blank for each line end or tab.
QString inOneLine(QString text);
