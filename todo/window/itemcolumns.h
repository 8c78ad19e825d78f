// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QTableView;

/// How the columns of the things to do share the width of their grid.
namespace ItemColumns {

inline constexpr int tickWidth = 36;

/// Each column gets what its rows need, and the text what is left; where that is little, the others give way,
/// and at last the grid scrolls.
void shareWidth(QTableView &grid);

} // namespace ItemColumns
