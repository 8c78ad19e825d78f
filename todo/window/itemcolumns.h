// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QTableView;

/// How the columns of the things to do share the width of their grid.
namespace ItemColumns {

inline constexpr int tickWidth = 36;

/// The text takes what the others leave; where that is little, they give way, and at last the grid scrolls.
void shareWidth(QTableView &grid);

} // namespace ItemColumns
