// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridbars.h"
#include "shell/pages/gridblocks.h"
#include "shell/pages/gridentries.h"
#include "shell/pages/gridrows.h"

#include <algorithm>

namespace {

constexpr double leftMark = 13; ///< for "+3" where a day may have more than its row holds

/// The columns with their bars and their wrapped lines.
struct Column {
    GridBars bars;
    std::vector<GridEntries> days;
};

double leftOf(const GridFrame &frame, const GridBars &bars, int row)
{
    return frame.inset() + bars.depth(bars.lanesOver(row));
}

Column columnOf(const GridFrame &frame, int column)
{
    Column laid{GridBars::downColumn(frame, column), {}};
    laid.days.reserve(std::size_t(frame.rowCount()));
    for (int row = 0; row < frame.rowCount(); ++row) {
        const double right = frame.inset() + (frame.isRunning() ? leftMark : 0);
        const double width = frame.columnWidth() - leftOf(frame, laid.bars, row) - right;
        laid.days.emplace_back(frame, frame.cell(row, column).lines, 0, width);
    }
    return laid;
}

std::vector<RowNeed> needsOf(const GridFrame &frame, const std::vector<Column> &columns)
{
    const double head = std::max(frame.pitch(), frame.numberPoints() * 1.15);
    std::vector<RowNeed> needs(std::size_t(frame.rowCount()),
                               RowNeed{head + 2 * frame.dayInset(), head + 2 * frame.dayInset()});
    for (std::size_t row = 0; row < needs.size(); ++row) {
        for (const Column &column : columns)
            needs[row].whole = std::max(needs[row].whole, column.days[row].height() + 2 * frame.dayInset());
    }
    return needs;
}

void placeBars(const GridFrame &frame, const GridBars &bars, int column, LaidBlock &block)
{
    for (const GridBars::Bar &bar : bars.bars()) {
        const double top = block.rows[std::size_t(bar.first)].top() + (bar.span->beginsHere ? 1 : 0);
        const double bottom = block.rows[std::size_t(bar.last)].bottom() - (bar.span->endsHere ? 1 : 0);
        const double left = frame.columnLeft(column) + 2 + bars.depth(bar.lane);
        block.spans.push_back(
            {bar.span, QRectF(left, top, bars.thickness(bar.lane), std::max(1.0, bottom - top)), {}});
    }
}

void placeDay(const GridFrame &frame, const Column &column, int row, int number, LaidBlock &block)
{
    const QRectF &line = block.rows[std::size_t(row)];
    LaidCell laid{&frame.block(), &frame.cell(row, number), row, number};
    laid.rect = QRectF(frame.columnLeft(number), line.top(), frame.columnWidth(), line.height());
    laid.text = laid.rect.adjusted(leftOf(frame, column.bars, row), frame.dayInset(), -frame.inset(),
                                   -frame.dayInset());
    const QList<GridLine> &lines = laid.cell->lines;
    const qsizetype first = column.days[std::size_t(row)].place(laid.text, laid.lines);
    for (qsizetype i = first; i < lines.size(); ++i)
        block.left.push_back({laid.cell, lines[i]});
    laid.left = int(lines.size() - qsizetype(laid.lines.size()));
    block.cells.push_back(std::move(laid));
}

} // namespace

LaidBlock GridBlocks::days(const GridFrame &frame)
{
    std::vector<Column> columns;
    columns.reserve(std::size_t(frame.columnCount()));
    for (int column = 0; column < frame.columnCount(); ++column)
        columns.push_back(columnOf(frame, column));
    const std::vector<RowNeed> needs = needsOf(frame, columns);
    LaidBlock block;
    block.least = frame.body().top() - frame.rect().top();
    for (const RowNeed &need : needs)
        block.least += need.scant();
    double top = frame.body().top();
    for (const double height :
         sharedOut(needs, frame.body().height(), GridEntries::lineHeight(frame)).heights) {
        block.rows.emplace_back(frame.body().left(), top, frame.body().width(), height);
        top += height;
    }
    for (int column = 0; column < frame.columnCount(); ++column)
        placeBars(frame, columns[std::size_t(column)].bars, column, block);
    for (int row = 0; row < frame.rowCount(); ++row) {
        for (int column = 0; column < frame.columnCount(); ++column)
            placeDay(frame, columns[std::size_t(column)], row, column, block);
    }
    return block;
}
