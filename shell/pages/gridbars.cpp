// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridbars.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t mostLanes = 4;
constexpr double aroundWords = 2.5;
constexpr double thinBar = 5;
constexpr double thinnestBar = 2.5; ///< under a number

double thinBarOf(const GridFrame &frame)
{
    return frame.block().form == GridForm::Numbers ? thinnestBar : thinBar;
}

} // namespace

GridBars GridBars::alongRow(const GridFrame &frame, int row)
{
    GridBars bars;
    const bool hasWords = frame.block().form == GridForm::Weeks;
    const PageType &type = frame.types().line(frame.points());
    for (const GridSpan &span : frame.block().spans) {
        if (span.row != row || span.column >= frame.columnCount())
            continue;
        const int last = std::min(span.column + std::max(1, span.length), frame.columnCount()) - 1;
        const double width = (last - span.column + 1) * frame.columnWidth() - 2 * wordInset - 2;
        const QStringList words = hasWords ? type.wrappedFast(span.text, width) : QStringList();
        const double thickness =
            hasWords ? double(words.size()) * frame.pitch() + aroundWords : thinBarOf(frame);
        bars.add(span, span.column, last, words, thickness);
    }
    return bars;
}

GridBars GridBars::downColumn(const GridFrame &frame, int column)
{
    GridBars bars;
    for (const GridSpan &span : frame.block().spans) {
        if (span.column != column || span.row >= frame.rowCount())
            continue;
        const int last = std::min(span.row + std::max(1, span.length), frame.rowCount()) - 1;
        bars.add(span, span.row, last, {}, thinBarOf(frame));
    }
    return bars;
}

void GridBars::add(const GridSpan &span, int first, int last, QStringList words, double thickness)
{
    std::size_t lane = 0;
    const auto meets = [&](const Bar &bar) {
        return bar.lane == lane && bar.first <= last && first <= bar.last;
    };
    while (std::ranges::any_of(m_bars, meets))
        ++lane;
    if (lane >= mostLanes) {
        m_left.push_back(&span);
        return;
    }
    if (lane >= m_lanes.size())
        m_lanes.resize(lane + 1, 0);
    m_lanes[lane] = std::max(m_lanes[lane], thickness + gap);
    m_bars.push_back({&span, first, last, lane, std::move(words)});
}

std::size_t GridBars::lanesOver(int cell) const
{
    std::size_t lanes = 0;
    for (const Bar &bar : m_bars) {
        if (bar.first <= cell && cell <= bar.last)
            lanes = std::max(lanes, bar.lane + 1);
    }
    return lanes;
}

double GridBars::depth(std::size_t lanes) const
{
    double depth = 0;
    for (std::size_t i = 0; i < std::min(lanes, m_lanes.size()); ++i)
        depth += m_lanes[i];
    return depth;
}
