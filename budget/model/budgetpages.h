// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfigures.h"
#include "budget/model/shownyear.h"
#include "shell/core/pagecontext.h"

#include <QRectF>

#include <optional>

/// What the budget prints.
namespace BudgetPages {

/// The worksheet down to its last row in use, and what each month comes to.
Page sheet(ShownYear shown, const BudgetSheet &sheet, const PageContext &context);

/// Where the chart stands on the totals page, in inches from the corner of the sheet as it lies.
QRectF chartFrame(PageSetup::Orientation orientation);

/// The year's totals: the chart in its frame, unless `chartPicture` (a path) is empty, the three sums and the
/// items with what they cost in the year and their share by `basis`.
Page totals(ShownYear shown, const BudgetSheet &sheet, BudgetBasis basis, const QString &chartPicture,
            const PageContext &context);

/// What was spent on each row in the year; empty while nothing was.
using Spent = std::optional<std::array<double, BudgetSheet::rowCount>>;

/// The items with what they cost, as planned and as spent, beside empty columns and above empty rows to write
/// on.
Page discussion(int year, const BudgetSheet &sheet, const Spent &spent, const PageContext &context);

/// "% = Item Totals divided by Total Income" or "... Total Expenses".
QString basisCaption(BudgetBasis basis);

} // namespace BudgetPages
