// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/gridframe.h"
#include "shell/pages/laidgrid.h"

#include <vector>

/// The bars of one row of a grid, or of one column where they run down: those that meet stand in lanes beside
/// one another.
class GridBars
{
public:
    /// Along `row`, with their words.
    static GridBars alongRow(const GridFrame &frame, int row);
    /// Down `column`.
    static GridBars downColumn(const GridFrame &frame, int column);

    struct Bar {
        const GridSpan *span;
        int first;
        int last; ///< cell
        std::size_t lane;
        QStringList words;
    };

    const std::vector<Bar> &bars() const { return m_bars; }
    bool isEmpty() const { return m_bars.empty(); }
    /// Whether a bar covers the cell.
    bool covers(int cell) const { return lanesOver(cell) > 0; }
    /// How many lanes there are down to the last bar that covers the cell.
    std::size_t lanesOver(int cell) const;
    /// The extent of so many lanes with their gaps.
    double depth(std::size_t lanes) const;
    double wholeDepth() const { return depth(m_lanes.size()); }
    /// Of the bar itself.
    double thickness(std::size_t lane) const { return m_lanes[lane] - gap; }
    /// Those that have no lane because there are too many.
    const std::vector<const GridSpan *> &left() const { return m_left; }

    static constexpr double gap = 1.5;
    static constexpr double wordInset = 4;

private:
    void add(const GridSpan &span, int first, int last, QStringList words, double thickness);

    std::vector<Bar> m_bars;
    std::vector<double> m_lanes; ///< how thick each is
    std::vector<const GridSpan *> m_left;
};
