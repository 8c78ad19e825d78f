// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagegrid.h"
#include "shell/pages/gridblocks.h"
#include "shell/pages/gridframe.h"
#include "shell/pages/gridrest.h"
#include "shell/pages/gridtypes.h"
#include "shell/pages/laidgrid.h"
#include "shell/pages/pagefont.h"

#include <algorithm>
#include <memory>
#include <vector>

class GridPainter;
class QImage;
class QPainter;

/// A sheet of days laid out, in points from the sheet's upper left corner. Rows that hold more grow at the
/// cost of the others, down to three lines each; then the letters shrink down to 8 points; what still has no
/// room is listed at the foot. A window shows, and is clicked on, what will be printed.
class GridLayout
{
public:
    /// A grid with what stands in it.
    struct Block {
        GridFrame frame;
        LaidBlock laid;
    };

    GridLayout(std::shared_ptr<const PageGrid> grid, const PageFont &font);

    const PageGrid &grid() const { return *m_grid; }
    const std::vector<Block> &blocks() const { return m_blocks; }
    /// The grids beside the title.
    const std::vector<Block> &smallGrids() const { return m_smallGrids; }

    /// The cell at a point of the sheet; null where there is none.
    const LaidCell *cellAt(QPointF point) const;
    /// The first cell of a date, one of its own month before one of a neighbour's; null where there is none.
    const LaidCell *cellOf(QDate date) const;
    /// The line of a cell at a point of the sheet; null where there is none.
    static const LaidLine *lineAt(const LaidCell &cell, QPointF point);
    const LaidSpan *spanAt(QPointF point) const;

    /// The letters that lines are set in, and their size.
    const PageType &lineType() const { return m_types->line(m_points); }
    double points() const { return m_points; }
    /// The place of the picture; empty where the sheet has none.
    QRectF photoRect() const { return m_photo; }

    /// How many lines found no room in their cells.
    int restCount() const { return m_restCount; }
    /// Those of them that are listed on the first sheet, in their places.
    std::vector<GridRest::Entry> listed() const;

    /// How many sheets it takes: more than one where the list of those does not find room below the grids.
    int partCount() const { return std::max(1, int(m_lists.size())); }

    void paint(QPainter &painter, int part = 0) const;
    /// The first sheet with a picture of so many dots as a window has read it already, smaller perhaps;
    /// without one where it is null.
    void paint(QPainter &painter, const QImage &photo, QSizeF dots) const;

private:
    void placeAround();
    double firstPoints() const;
    bool layOut(double restHeight);
    bool shrink();
    bool run();
    std::vector<GridRest::Entry> leftLines() const;
    std::vector<GridRest::Entry> leftBelowPhoto();
    double mostRest() const;
    void layOutWithRest();
    bool lowerPhoto();
    void paintGrids(const GridPainter &grid) const;
    void paintAround(const GridPainter &grid, QPainter &painter, int part) const;
    bool settle();
    bool settleWithin(double most);
    void chooseLeastLeft(double most);
    void listTheOthers();

    std::shared_ptr<const PageGrid> m_grid;
    std::shared_ptr<const GridTypes> m_types;
    double m_points = GridTypes::smallestPoints;
    double m_photoShare = 0; ///< of the height that is its own
    QRectF m_photo;
    QRectF m_photoColumn; ///< where it stands beside the grids
    QRectF m_margins;     ///< what lies within them
    QRectF m_head;
    QRectF m_body; ///< for the blocks and the list
    std::vector<Block> m_smallGrids;
    std::vector<Block> m_blocks;
    GridFrame::Lines m_lines = GridFrame::Lines::Stacked;
    NotesPlace m_notes = NotesPlace::Below;
    GridRest::Form m_listForm = GridRest::Form::Columns;
    GridRest m_beside;             ///< below the photo
    std::vector<GridRest> m_lists; ///< one a sheet
    int m_restCount = 0;
};
