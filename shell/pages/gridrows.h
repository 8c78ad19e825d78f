// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <vector>

/// What a row of a grid needs to show all of its lines, and the least that it is given.
struct RowNeed {
    double whole = 0;
    double least = 0;

    /// What a row that needs little can be given when there is less than the least for all.
    double scant() const { return std::min(whole, least); }
};

/// Heights that fill a grid.
struct RowHeights {
    std::vector<double> heights;
    bool isEnough = true; ///< each row has its whole need
};

/// Shares `height` out: as even as the needs of the rows allow. Where it is not enough for all of them, what
/// is beyond the least goes line by line, each so high, to the lowest row that needs more.
RowHeights sharedOut(const std::vector<RowNeed> &needs, double height, double line);
