// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridbars.h"
#include "shell/pages/gridblocks.h"
#include "shell/pages/gridentries.h"

#include <algorithm>
#include <utility>

namespace {

constexpr double leastRow = 1.25; ///< sizes of the numbers
constexpr double mostRow = 0.8;   ///< of a column's width
constexpr double rowsOfMonth = 6;
constexpr double notesGap = 5;
constexpr double leadGap = 4;
constexpr double columnGap = 8;
constexpr double narrowest = 76; ///< column of notes
constexpr double gap = 1;
constexpr double hanging = 0.6;   ///< sizes of the letters, where a day goes on
constexpr double besideGap = 1.3; ///< sizes of the letters, between two side by side

double leadWidth(const GridFrame &frame)
{
    const PageType &type = frame.types().line(frame.points(), GridTypes::Strong);
    double width = 0;
    for (const GridLine &note : frame.block().notes)
        width = std::max(width, type.width(note.lead));
    return width > 0 ? width + leadGap : 0;
}

/// The notes in columns beside one another; those that have no room are left.
struct Notes {
    std::vector<LaidLine> laid{};
    double height = 0;
    bool areAll = true;
};

Notes notesIn(const GridFrame &frame, const QRectF &place, int across)
{
    Notes notes;
    const double width = (place.width() - (across - 1) * columnGap) / across;
    const double lead = leadWidth(frame);
    double y = place.top();
    int column = 0;
    for (const GridLine &note : frame.block().notes) {
        LaidLine line = GridEntries::wrapped(frame, note, width - lead);
        const double height = GridEntries::heightOf(frame, line);
        if (y + height > place.bottom() + 0.05 && ++column < across)
            y = place.top();
        if (column >= across || y + height > place.bottom() + 0.05) {
            notes.areAll = false;
            break;
        }
        line.lead += lead;
        line.rect = QRectF(place.left() + column * (width + columnGap), y, width, height);
        y += height + gap;
        notes.height = std::max(notes.height, y - place.top());
        notes.laid.push_back(std::move(line));
    }
    return notes;
}

/// Side by side in the whole width, each day behind its number.
Notes runningNotes(const GridFrame &frame, const QRectF &place)
{
    const PageType &strong = frame.types().line(frame.points(), GridTypes::Strong);
    const double apart = besideGap * frame.points();
    const double inset = hanging * frame.points();
    Notes notes;
    QPointF next = place.topLeft();
    const GridLine *last = nullptr;
    for (const GridLine &note : frame.block().notes) {
        const bool isSameDay = last && last->lead == note.lead;
        const double lead = isSameDay ? 0 : strong.width(note.lead) + leadGap;
        LaidLine line = GridEntries::wrapped(frame, note, place.width() - std::max(lead, inset));
        const double width = std::min(place.width(), lead + line.lead + GridEntries::widthOf(frame, line));
        const double before = next.x() > place.left() ? apart : 0;
        const bool isBeside = line.words.size() == 1 && next.x() + before + width <= place.right();
        if (isBeside)
            next.rx() += before;
        else if (next.x() > place.left())
            next = {place.left(), next.y() + frame.pitch() + gap};
        if (isSameDay && next.x() == place.left())
            next.rx() += inset;
        line.hasLead = !isSameDay;
        line.isBesideLast = isSameDay && isBeside && before > 0;
        line.lead += lead;
        const double height = GridEntries::heightOf(frame, line);
        if (next.y() + height > place.bottom() + 0.05) {
            notes.areAll = false;
            break;
        }
        line.rect = QRectF(next, QSizeF(line.words.size() == 1 ? width : place.width(), height));
        next =
            line.words.size() == 1 ? line.rect.topRight() : QPointF(place.left(), line.rect.bottom() + gap);
        notes.height = line.rect.bottom() + gap - place.top();
        notes.laid.push_back(std::move(line));
        last = &note;
    }
    return notes;
}

/// In as few columns as hold the most of them, or side by side where that holds more.
Notes bestNotes(const GridFrame &frame, const QRectF &place, NotesPlace how)
{
    if (how == NotesPlace::InList)
        return {};
    const int most = std::max(1, int((place.width() + columnGap) / (narrowest + columnGap)));
    Notes best = notesIn(frame, place, 1);
    for (int across = 2; across <= most && !best.areAll; ++across) {
        Notes notes = notesIn(frame, place, across);
        if (notes.laid.size() > best.laid.size())
            best = std::move(notes);
    }
    if (!best.areAll && how == NotesPlace::Running) {
        if (Notes notes = runningNotes(frame, place); notes.laid.size() > best.laid.size())
            best = std::move(notes);
    }
    return best;
}

/// A row of numbers: bars that touch it stand below them.
struct NumberRow {
    GridBars bars;
    double least;
};

std::vector<NumberRow> rowsOf(const GridFrame &frame)
{
    std::vector<NumberRow> rows;
    rows.reserve(std::size_t(frame.rowCount()));
    for (int row = 0; row < frame.rowCount(); ++row) {
        GridBars bars = GridBars::alongRow(frame, row);
        const double depth = bars.wholeDepth();
        rows.push_back({std::move(bars), frame.numberPoints() * leastRow + depth});
    }
    return rows;
}

void placeRow(const GridFrame &frame, const GridBars &bars, int row, LaidBlock &block)
{
    const QRectF &line = block.rows[std::size_t(row)];
    for (const GridBars::Bar &bar : bars.bars()) {
        const double left = frame.columnLeft(bar.first) + (bar.span->beginsHere ? 1 : 0);
        const double right = frame.columnLeft(bar.last + 1) - (bar.span->endsHere ? 1 : 0);
        const double thickness = bars.thickness(bar.lane);
        const double top = line.bottom() - bars.depth(bar.lane) - thickness - GridBars::gap;
        block.spans.push_back({bar.span, QRectF(left, top, right - left, thickness), {}});
    }
    for (int column = 0; column < frame.columnCount(); ++column) {
        LaidCell laid{&frame.block(), &frame.cell(row, column), row, column};
        laid.rect = QRectF(frame.columnLeft(column), line.top(), frame.columnWidth(), line.height());
        laid.number = laid.rect.adjusted(0, 0, 0, -bars.wholeDepth());
        laid.text = laid.rect;
        block.cells.push_back(std::move(laid));
    }
}

} // namespace

LaidBlock GridBlocks::numbers(const GridFrame &frame, NotesPlace place)
{
    const QRectF body = frame.body();
    const std::vector<NumberRow> rows = rowsOf(frame);
    LaidBlock block;
    block.least = body.top() - frame.rect().top();
    double least = 0;
    for (const NumberRow &row : rows)
        least += row.least;
    block.least += least;
    QRectF below = frame.rect();
    below.setTop(body.top() + least + notesGap);
    const Notes needed = bestNotes(frame, below, place);
    const double free = body.height() - (needed.laid.empty() ? 0 : needed.height + notesGap);
    // As if it were six weeks, so that the rows of months beside one another are as high.
    const double even = std::min(free / rowsOfMonth, frame.columnWidth() * mostRow);
    double top = body.top();
    for (int row = 0; row < frame.rowCount(); ++row) {
        const double height = std::max(rows[std::size_t(row)].least, even);
        block.rows.emplace_back(body.left(), top, body.width(), height);
        placeRow(frame, rows[std::size_t(row)].bars, row, block);
        top += height;
    }
    below.setTop(std::min(top, body.bottom()) + notesGap);
    Notes notes = bestNotes(frame, below, place);
    const QList<GridLine> &all = frame.block().notes;
    for (qsizetype i = qsizetype(notes.laid.size()); i < all.size(); ++i)
        block.left.push_back({nullptr, all[i]});
    block.notes = std::move(notes.laid);
    return block;
}
