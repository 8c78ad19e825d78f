// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetfigures.h"
#include "budget/model/shownyear.h"
#include "shell/charts/barchart.h"

#include <QImage>
#include <QSizeF>

/// The chart of what the items cost in a year, the dearest first.
namespace TotalsChart {

/// With more than `most` items, the cheapest are one bar at the end.
BarChart of(ShownYear year, const BudgetSheet &sheet, BudgetBasis basis, int most = BudgetSheet::rowCount);

/// For the printed page, in a frame of this size in inches.
QImage onPaper(ShownYear year, const BudgetSheet &sheet, BudgetBasis basis, QSizeF inches);

} // namespace TotalsChart
