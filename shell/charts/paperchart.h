// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/charts/barchart.h"
#include "shell/charts/linechart.h"

#include <QImage>
#include <QSizeF>

/// Charts as pictures for a printed page.
namespace PaperChart {

/// How many bars can be read in a frame of this size in inches.
int mostBars(QSizeF inches);

/// `chart` in such a frame, for a page that is printed at 300 points to the inch; what is written begins
/// `inset` inches from the left.
QImage draw(const BarChart &chart, QSizeF inches, double inset = 0);
QImage draw(const LineChart &chart, QSizeF inches, double inset = 0);

} // namespace PaperChart
