// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridbars.h"
#include "shell/pages/gridblocks.h"
#include "shell/pages/gridentries.h"
#include "shell/pages/gridrows.h"

#include <algorithm>

namespace {

constexpr double leastLines = 3;  ///< of a row that gives way to others
constexpr double narrowest = 4.5; ///< sizes of the letters, for what stands beside a number
constexpr double besideGap = 4;
constexpr double besideLines = 2; ///< at least, whatever the size of the number

/// Below the lines of a day: where no line separates the weeks, they stand farther apart.
double footGap(const GridFrame &frame)
{
    return frame.style() == GridStyle::Open ? 6 : 2;
}

/// A day with its text wrapped: some lines beside its number, the others below it.
struct DayText {
    std::vector<LaidLine> beside;
    double head = 0; ///< down to the end of number and what stands beside it
    GridEntries below;
};

/// Whether a word of it is wider than that.
bool isTorn(const GridFrame &frame, const GridLine &line, double width)
{
    const PageType &type =
        frame.types().line(frame.points(), line.isStrong ? GridTypes::Strong : GridTypes::Normal);
    const QStringList words = line.text.split(u' ');
    return std::ranges::any_of(words, [&](const QString &word) { return type.width(word) > width; });
}

DayText textOf(const GridFrame &frame, const GridCell &cell)
{
    const double left = frame.inset() + frame.numberWidth() + besideGap;
    const double width = frame.columnWidth() - left - frame.inset();
    const double most = std::max(frame.numberHeight(), besideLines * frame.pitch()) + 0.01;
    std::vector<LaidLine> beside;
    double height = 0;
    const qsizetype count = width < narrowest * frame.points() ? 0 : cell.beside;
    for (qsizetype i = 0; i < std::min(count, cell.lines.size()); ++i) {
        if (isTorn(frame, cell.lines[i], width))
            break; // below the number it is wider
        LaidLine line = GridEntries::wrapped(frame, cell.lines[i], width, GridEntries::Further::Level);
        const double more = GridEntries::heightOf(frame, line);
        if (height + more > most)
            break;
        line.rect = QRectF(left, height, width, more);
        height += more;
        beside.push_back(std::move(line));
    }
    const double drop = std::max(0.0, (frame.numberHeight() - height) / 2);
    for (LaidLine &line : beside)
        line.rect.translate(0, drop);
    const auto first = qsizetype(beside.size());
    const double head = frame.inset() / 2 + std::max(frame.numberHeight(), height);
    return {std::move(beside), head,
            GridEntries(frame, cell.lines, first, frame.columnWidth() - 2 * frame.inset())};
}

/// A row of days before its height is known.
struct Week {
    std::vector<DayText> days;
    GridBars bars;
    double barTop = 0;

    /// Where the lines of a day begin.
    double top(int column) const
    {
        const DayText &day = days[std::size_t(column)];
        return bars.covers(column) ? barTop + bars.depth(bars.lanesOver(column)) : day.head;
    }
};

Week weekOf(const GridFrame &frame, int row)
{
    Week week{{}, GridBars::alongRow(frame, row), 0};
    week.days.reserve(std::size_t(frame.columnCount()));
    for (int column = 0; column < frame.columnCount(); ++column) {
        week.days.push_back(textOf(frame, frame.cell(row, column)));
        if (week.bars.covers(column))
            week.barTop = std::max(week.barTop, week.days.back().head);
    }
    return week;
}

RowNeed needOf(const GridFrame &frame, const Week &week)
{
    RowNeed need;
    for (int column = 0; column < frame.columnCount(); ++column) {
        const double top = week.top(column);
        need.whole =
            std::max(need.whole, top + week.days[std::size_t(column)].below.height() + footGap(frame));
        need.least = std::max(need.least, top + leastLines * frame.pitch() + footGap(frame));
    }
    return need;
}

void placeBars(const GridFrame &frame, const Week &week, int row, LaidBlock &block)
{
    const QRectF &rect = block.rows[std::size_t(row)];
    for (const GridBars::Bar &bar : week.bars.bars()) {
        const double left = frame.columnLeft(bar.first) + (bar.span->beginsHere ? 1.5 : 0);
        const double right = frame.columnLeft(bar.last + 1) - (bar.span->endsHere ? 1.5 : 0);
        const double top = rect.top() + week.barTop + week.bars.depth(bar.lane);
        block.spans.push_back(
            {bar.span, QRectF(left, top, right - left, week.bars.thickness(bar.lane)), bar.words});
    }
    for (const GridSpan *span : week.bars.left())
        block.left.push_back({&frame.cell(row, span->column), GridLine{.text = span->text}});
}

void placeDay(const GridFrame &frame, const Week &week, int row, int column, LaidBlock &block)
{
    const QRectF &line = block.rows[std::size_t(row)];
    const DayText &day = week.days[std::size_t(column)];
    LaidCell laid{&frame.block(), &frame.cell(row, column), row, column};
    laid.rect = QRectF(frame.columnLeft(column), line.top(), frame.columnWidth(), line.height());
    const QPointF corner = laid.rect.topLeft() + QPointF(frame.inset(), frame.inset() / 2);
    laid.number = QRectF(corner, QSizeF(frame.numberWidth(), frame.numberHeight()));
    for (LaidLine beside : day.beside) {
        beside.rect.translate(laid.rect.left(), corner.y());
        laid.lines.push_back(std::move(beside));
    }
    laid.text = laid.rect.adjusted(frame.inset(), week.top(column), -frame.inset(), -footGap(frame));
    const QList<GridLine> &lines = laid.cell->lines;
    for (qsizetype i = day.below.place(laid.text, laid.lines); i < lines.size(); ++i)
        block.left.push_back({laid.cell, lines[i]});
    laid.left = int(lines.size() - qsizetype(laid.lines.size()));
    block.cells.push_back(std::move(laid));
}

} // namespace

LaidBlock GridBlocks::weeks(const GridFrame &frame)
{
    std::vector<Week> weeks;
    std::vector<RowNeed> needs;
    weeks.reserve(std::size_t(frame.rowCount()));
    needs.reserve(std::size_t(frame.rowCount()));
    for (int row = 0; row < frame.rowCount(); ++row) {
        weeks.push_back(weekOf(frame, row));
        needs.push_back(needOf(frame, weeks.back()));
    }
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
    for (int row = 0; row < frame.rowCount(); ++row) {
        const Week &week = weeks[std::size_t(row)];
        placeBars(frame, week, row, block);
        for (int column = 0; column < frame.columnCount(); ++column)
            placeDay(frame, week, row, column, block);
    }
    return block;
}

LaidBlock GridBlocks::laidOut(const GridFrame &frame, NotesPlace notes)
{
    switch (frame.block().form) {
    case GridForm::Weeks:
        return weeks(frame);
    case GridForm::Days:
        return days(frame);
    case GridForm::Numbers:
        break;
    }
    return numbers(frame, notes);
}
