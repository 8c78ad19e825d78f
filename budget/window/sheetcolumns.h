// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"

class SheetModel;

/// How wide the columns of the sheet are, and how many months find room beside the items.
struct SheetColumns {
    using Widths = std::array<int, BudgetSheet::monthCount>;

    int item = 0;
    Widths months{};
    int inView = 0;

    /// What each month must have for its amounts and sums to stand in it whole.
    static Widths needed(const SheetModel &model);
    /// What the items must have for the words beside the sums.
    static int neededByItems();
    /// Divides `room` pixels. The months are of one width; where twelve would have no room beside the items,
    /// a wide amount widens its own month only, and where that is not enough either, some are left out of
    /// view.
    static SheetColumns in(int room, int leastItem, const Widths &needed);
};
