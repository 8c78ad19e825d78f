// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagegrid.h"
#include "shell/pages/gridframe.h"
#include "shell/pages/laidgrid.h"

class QImage;
class QPainter;

/// Draws what stands on a sheet of days, in its style.
class GridPainter
{
public:
    GridPainter(QPainter &painter, const PageGrid &grid, const GridTypes &types);
    ~GridPainter();
    GridPainter(const GridPainter &) = delete;
    GridPainter &operator=(const GridPainter &) = delete;

    /// Size of the sheet's title where it is so wide.
    static double titlePoints(const PageGrid &grid, double width);

    void paintBlock(const GridFrame &frame, const LaidBlock &block) const;
    void paintTitle(const QRectF &head) const;
    /// The picture with its caption below it.
    void paintPhoto(const QRectF &place) const;
    /// The same with a picture of so many dots that has been read; only the caption where it is null.
    void paintPhoto(const QRectF &place, const QImage &picture, QSizeF dots) const;
    void paintCutMarks(const QRectF &body) const;
    /// The one small line below all, on the last sheet with its right part.
    void paintFoot(bool isLast) const;

private:
    void paintTints(const GridFrame &frame, const LaidBlock &block) const;
    void paintSpans(const GridFrame &frame, const LaidBlock &block) const;
    void paintBar(const GridFrame &frame, const LaidSpan &span) const;
    void paintLines(const GridFrame &frame, const LaidBlock &block) const;
    void paintHeads(const GridFrame &frame) const;
    void paintRowHead(const GridFrame &frame, const GridHead &head, const QRectF &row) const;
    void paintCell(const GridFrame &frame, const LaidCell &cell) const;
    void paintLeft(const GridFrame &frame, const LaidCell &cell) const;
    void paintNumber(const GridFrame &frame, const LaidCell &cell) const;
    void paintEntry(const GridFrame &frame, const LaidLine &line) const;
    void paintCaption(const QRectF &place, double bottom) const;
    void fill(const QRectF &line, const QColor &color) const;
    void round(const QRectF &rect, double corner, const QColor &color) const;

    QPainter &m_painter;
    const PageGrid &m_grid;
    const GridTypes &m_types;
};
