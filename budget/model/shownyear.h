// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What a cell of the grid shows: what is planned, or what was spent.
enum class SheetLayer { Planned, Spent };

/// A year as it is shown or printed: its plan, or what was spent in it.
struct ShownYear {
    // A year alone is its plan.
    ShownYear(int ofYear, SheetLayer ofLayer = SheetLayer::Planned)
        : year(ofYear)
        , layer(ofLayer)
    {}

    bool isSpent() const { return layer == SheetLayer::Spent; }
    bool operator==(const ShownYear &) const = default;

    int year;
    SheetLayer layer;
};
