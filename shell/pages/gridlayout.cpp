// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridlayout.h"

#include "shell/pages/gridblocks.h"
#include "shell/pages/gridpainter.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::pointsPerInch;

namespace {

constexpr double photoGap = 14;
constexpr double captionHeight = 14;
constexpr double headGap = 6;
constexpr double mostOfBody = 0.6;    ///< for the list at the foot
constexpr double mostInColumns = 0.3; ///< for one in columns
constexpr double leastPhoto =
    0.25; ///< of the sheet's height, or of its own column, when lists take its place
constexpr double photoStep = 0.05;
constexpr double photoBeside = 0.6; ///< of its column, that a list leaves to it at first
constexpr int mostRounds = 12;
constexpr int heightsTried = 5;
constexpr QSizeF smallGrid{88, 72};
constexpr double smallGap = 14;
constexpr double cardMargin = 36; ///< of a list behind a sheet of cards

QRectF inPoints(const QRectF &inches)
{
    return {inches.topLeft() * pointsPerInch, inches.size() * pointsPerInch};
}

QRectF shareOf(const QRectF &room, const QRectF &share)
{
    return {room.left() + share.left() * room.width(), room.top() + share.top() * room.height(),
            share.width() * room.width(), share.height() * room.height()};
}

} // namespace

GridLayout::GridLayout(std::shared_ptr<const PageGrid> grid, const PageFont &font)
    : m_grid(std::move(grid))
    , m_types(std::make_shared<GridTypes>(*m_grid, font))
{
    const bool isBeside = m_grid->photo.side == GridPhoto::Left;
    m_photoShare = isBeside ? photoBeside : m_grid->photo.share;
    placeAround();
    m_points = firstPoints();
    if (!layOut(0) && !shrink() && !run())
        layOutWithRest();
}

/// The same with lines side by side, where that is of use.
bool GridLayout::run()
{
    const auto isDays = [](const GridBlock &block) { return block.form == GridForm::Days; };
    if (std::ranges::none_of(m_grid->blocks, isDays))
        return false;
    m_lines = GridFrame::Lines::Running;
    m_points = firstPoints();
    return layOut(0) || shrink();
}

/// The largest size at which all lines find room; false where even the smallest is too large.
bool GridLayout::shrink()
{
    double most = m_points;
    m_points = GridTypes::smallestPoints;
    if (most <= m_points || !layOut(0))
        return false;
    double fitting = m_points;
    while (most - fitting > GridTypes::step) {
        m_points = fitting + std::floor((most - fitting) / 2 / GridTypes::step) * GridTypes::step;
        (layOut(0) ? fitting : most) = m_points;
    }
    if (m_points > fitting) {
        m_points = fitting;
        layOut(0);
    }
    return true;
}

/// The picture, the head with its small grids, and what is left.
void GridLayout::placeAround()
{
    m_body = inPoints(m_grid->place);
    m_smallGrids.clear();
    const double margin = m_grid->hasCutMarks ? cardMargin : 0;
    m_margins = m_body.adjusted(margin, margin, -margin, -margin);
    if (m_grid->hasPhoto) {
        const GridPhoto &photo = m_grid->photo;
        m_photo = m_body;
        if (photo.side == GridPhoto::Above) {
            m_photo.setHeight(m_body.height() * m_photoShare - photoGap);
            m_body.setTop(m_photo.bottom() + photoGap);
        } else {
            m_photo.setWidth(m_body.width() * photo.share - photoGap);
            m_photoColumn = m_photo;
            m_body.setLeft(m_photo.right() + photoGap);
        }
        if (!photo.caption.isEmpty())
            m_photo.setBottom(m_photo.bottom() - captionHeight);
    }
    if (m_grid->title.isEmpty())
        return;
    const bool hasSmall = !m_grid->smallGrids.isEmpty();
    const double height = GridPainter::titlePoints(*m_grid, m_body.width()) * PageMetrics::lineFactor;
    m_head = m_body;
    m_head.setHeight(hasSmall ? std::max(height, smallGrid.height()) : height);
    m_body.setTop(m_head.bottom() + headGap);
    double right = m_head.right();
    for (qsizetype i = m_grid->smallGrids.size(); i-- > 0;) {
        const QRectF place({right - smallGrid.width(), m_head.top()}, smallGrid);
        const GridFrame frame(m_grid->smallGrids[i], place, m_grid->style, *m_types,
                              GridTypes::smallestPoints);
        m_smallGrids.push_back({frame, GridBlocks::laidOut(frame)});
        right = place.left() - smallGap;
    }
}

double GridLayout::firstPoints() const
{
    double points = m_types->firstPoints(m_body.width());
    for (const GridBlock &block : m_grid->blocks)
        points = std::min(points, m_types->firstPoints(GridFrame::columnWidth(block, m_body.width())));
    return points;
}

/// Lays the grids out above a list so high. False where some line found no room.
bool GridLayout::layOut(double restHeight)
{
    m_blocks.clear();
    m_blocks.reserve(std::size_t(m_grid->blocks.size()));
    const QRectF room = m_body.adjusted(0, 0, 0, -restHeight);
    bool isEnough = true;
    for (const GridBlock &block : m_grid->blocks) {
        const GridFrame frame(block, shareOf(room, block.share), m_grid->style, *m_types, m_points, m_lines);
        m_blocks.push_back({frame, GridBlocks::laidOut(frame, m_notes)});
        isEnough = isEnough && m_blocks.back().laid.left.empty();
    }
    return isEnough;
}

std::vector<GridRest::Entry> GridLayout::leftLines() const
{
    std::vector<GridRest::Entry> entries;
    for (const Block &block : m_blocks) {
        for (const LeftLine &left : block.laid.left) {
            if (left.line.isContinued)
                continue;
            const QString &name = left.cell ? left.cell->name : left.line.name;
            entries.push_back({.date = left.cell ? left.cell->date : QDate(),
                               .name = name,
                               .text = left.line.text,
                               .index = left.line.index,
                               .tone = left.line.tone});
        }
    }
    return entries;
}

/// Gives a part of the photo's height to lists and grids; false where it has none to give.
bool GridLayout::lowerPhoto()
{
    if (!m_grid->hasPhoto || m_photoShare - photoStep < leastPhoto)
        return false;
    m_photoShare -= photoStep;
    placeAround();
    layOut(0);
    return true;
}

/// What the place below a photo beside the grids does not take.
std::vector<GridRest::Entry> GridLayout::leftBelowPhoto()
{
    if (m_photoColumn.isEmpty())
        return leftLines();
    m_beside = GridRest(*m_types, m_grid->restTitle, leftLines(), m_photoColumn.width(),
                        m_photoColumn.height() * (1 - m_photoShare), m_listForm);
    return m_beside.takeLeftOut();
}

/// How high the list at the foot may be: the grids keep what they need at least.
double GridLayout::mostRest() const
{
    if (m_grid->hasCutMarks)
        return 0;
    double least = 0;
    for (const Block &block : m_blocks)
        least = std::max(least, block.laid.least / std::max(0.01, block.frame.block().share.height()));
    return std::clamp(m_body.height() - least, 0.0, m_body.height() * mostOfBody);
}

void GridLayout::layOutWithRest()
{
    // All of them stand in one place, below their grids or in the list.
    m_notes = m_grid->hasCutMarks ? NotesPlace::Running : NotesPlace::InList;
    layOut(0);
    while (!settle()) {
        if (!lowerPhoto()) {
            chooseLeastLeft(mostRest());
            break;
        }
    }
    GridRest &list = m_lists.front();
    list.moveTo({m_body.left(), m_body.bottom() - list.height()});
    m_restCount = int(leftLines().size());
    if (m_beside.height() > 0) {
        m_beside.moveTo({m_photoColumn.left(), m_photoColumn.bottom() - m_beside.height()});
        m_photo.setBottom(m_photo.bottom() - m_beside.height());
    }
    listTheOthers();
}

/// A list in columns, which is read most easily, as long as that leaves the grids their room; else one in
/// which lines stand side by side.
bool GridLayout::settle()
{
    const double most = mostRest();
    m_listForm = GridRest::Form::Columns;
    if (settleWithin(std::min(most, m_body.height() * mostInColumns)))
        return true;
    m_listForm = GridRest::Form::Running;
    layOut(0);
    return settleWithin(most);
}

/// Gives the list the height that it needs, which takes room from the grids, so that it needs more. False
/// where it would need too much.
bool GridLayout::settleWithin(double most)
{
    double given = 0;
    for (int round = 0; round < mostRounds; ++round) {
        m_lists.assign(
            1, GridRest(*m_types, m_grid->restTitle, leftBelowPhoto(), m_body.width(), most, m_listForm));
        if (m_lists.front().leftOut() > 0)
            return false;
        if (m_lists.front().height() <= given + 0.05)
            return true;
        given = m_lists.front().height();
        layOut(given);
    }
    return false;
}

/// The height of the list at which the sheet holds the most.
void GridLayout::chooseLeastLeft(double most)
{
    double best = 0;
    int fewest = std::numeric_limits<int>::max();
    const auto tryHeight = [&](double height) {
        layOut(height);
        m_lists.assign(
            1, GridRest(*m_types, m_grid->restTitle, leftBelowPhoto(), m_body.width(), height, m_listForm));
        return m_lists.front().leftOut();
    };
    for (int i = 0; i <= heightsTried; ++i) {
        const double height = most * i / heightsTried;
        if (const int left = tryHeight(height); left < fewest) {
            fewest = left;
            best = height;
        }
    }
    tryHeight(best);
}

/// What the first list has no room for goes on sheets of its own.
void GridLayout::listTheOthers()
{
    while (m_lists.back().leftOut() > 0) {
        const double top = m_margins.top() + m_head.height();
        const double height = m_margins.bottom() - top;
        const std::vector<GridRest::Entry> left = m_lists.back().takeLeftOut();
        GridRest next(*m_types, m_grid->restTitle, left, m_margins.width(), height);
        if (next.leftOut() > 0)
            next = GridRest(*m_types, m_grid->restTitle, left, m_margins.width(), height,
                            GridRest::Form::Running);
        if (next.height() <= 0)
            break; // a sheet too small for any line
        next.moveTo({m_margins.left(), top});
        m_lists.push_back(std::move(next));
    }
}

std::vector<GridRest::Entry> GridLayout::listed() const
{
    std::vector<GridRest::Entry> entries = m_beside.entries();
    if (!m_lists.empty())
        entries.insert(entries.end(), m_lists.front().entries().begin(), m_lists.front().entries().end());
    return entries;
}

const LaidCell *GridLayout::cellAt(QPointF point) const
{
    for (const Block &block : m_blocks) {
        for (const LaidCell &cell : block.laid.cells) {
            if (cell.rect.contains(point))
                return &cell;
        }
    }
    return nullptr;
}

const LaidCell *GridLayout::cellOf(QDate date) const
{
    const LaidCell *found = nullptr;
    for (const Block &block : m_blocks) {
        for (const LaidCell &cell : block.laid.cells) {
            if (cell.cell->date == date && (!found || (found->cell->isQuiet && !cell.cell->isQuiet)))
                found = &cell;
        }
    }
    return found;
}

const LaidLine *GridLayout::lineAt(const LaidCell &cell, QPointF point)
{
    const auto found =
        std::ranges::find_if(cell.lines, [point](const LaidLine &line) { return line.rect.contains(point); });
    return found == cell.lines.end() ? nullptr : &*found;
}

const LaidSpan *GridLayout::spanAt(QPointF point) const
{
    for (const Block &block : m_blocks) {
        for (const LaidSpan &span : block.laid.spans) {
            if (span.rect.contains(point))
                return &span;
        }
    }
    return nullptr;
}

void GridLayout::paint(QPainter &painter, int part) const
{
    const GridPainter grid(painter, *m_grid, *m_types);
    if (part == 0) {
        if (m_grid->hasPhoto)
            grid.paintPhoto(m_photo);
        paintGrids(grid);
    }
    paintAround(grid, painter, part);
}

void GridLayout::paint(QPainter &painter, const QImage &photo, QSizeF dots) const
{
    const GridPainter grid(painter, *m_grid, *m_types);
    if (m_grid->hasPhoto)
        grid.paintPhoto(m_photo, photo, dots);
    paintGrids(grid);
    paintAround(grid, painter, 0);
}

void GridLayout::paintGrids(const GridPainter &grid) const
{
    for (const Block &block : m_smallGrids)
        grid.paintBlock(block.frame, block.laid);
    for (const Block &block : m_blocks)
        grid.paintBlock(block.frame, block.laid);
    if (m_grid->hasCutMarks)
        grid.paintCutMarks(m_body);
}

/// Title, list and foot.
void GridLayout::paintAround(const GridPainter &grid, QPainter &painter, int part) const
{
    if (!m_grid->title.isEmpty())
        grid.paintTitle(part == 0 ? m_head : QRectF(m_margins.topLeft(), m_head.size()));
    if (part == 0)
        m_beside.paint(painter, *m_types);
    if (part < int(m_lists.size()))
        m_lists[std::size_t(part)].paint(painter, *m_types);
    grid.paintFoot(part + 1 == partCount());
}
