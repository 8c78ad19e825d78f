// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/sheetrange.h"
#include "shell/core/gridtext.h"
#include "shell/core/message.h"

#include <optional>

/// What is done to a sheet in one go. Amounts go through the entry check of a cell; ranges lie within the
/// sheet.
namespace SheetEdits {

/// What pasting came to.
struct Pasted {
    BudgetSheet sheet;
    SheetRange range; ///< that was filled
    int cells = 0;
    int noNumbers = 0; ///< cells that are empty now
    int limited = 0;   ///< cells that hold the most a cell may
    int leftOut = 0;   ///< cells beyond the last row or month
    int partly = 0;    ///< cells of which only the number at the start was read
    QString foreign;   ///< characters of items that the files cannot hold, each once

    /// All that must be said about it, in one box; nothing where all was taken.
    std::optional<Message> notice() const;
};

/// The cells of `range`.
GridText::Rows cells(const BudgetSheet &sheet, const SheetRange &range);

/// Puts `cells` at the first cell of `range`. Where they fit into it several times, they fill it.
Pasted pasted(const BudgetSheet &sheet, const SheetRange &range, const GridText::Rows &cells);

void clear(BudgetSheet &sheet, const SheetRange &range);

/// Gives the first month of `range` to every `step`th month after it: within the range or, where that is one
/// month wide, to the end of the year. Rows whose first amount is empty stay as they are.
void repeatToTheRight(BudgetSheet &sheet, const SheetRange &range, int step);

/// Spreads `amount` evenly over the months of `range`, or over the year where that is no wider than one
/// column, in each of its rows; the cents that are left go to the first months. False, with nothing changed,
/// where a month would get too much.
bool spread(BudgetSheet &sheet, const SheetRange &range, double amount);

/// How many months `spread` fills, and what stands in them in the first row of `range`.
int monthsToSpread(const SheetRange &range);
double sumToSpread(const BudgetSheet &sheet, const SheetRange &range);

/// Moves the rows of `range` by one, up (-1) or down (1). False where there is no room.
bool moveRows(BudgetSheet &sheet, const SheetRange &range, int by);

} // namespace SheetEdits
