// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagegrid.h"
#include "shell/pages/gridtypes.h"

#include <QRectF>

/// The frame of one grid of days: where its title, the heads of its columns and its cells stand, in points,
/// and the sizes that go with lines of a given one.
class GridFrame
{
public:
    /// How the lines of a day stand in a row of days.
    enum class Lines {
        Stacked,
        Running ///< short ones side by side
    };

    GridFrame(const GridBlock &block, const QRectF &rect, GridStyle style, const GridTypes &types,
              double points, Lines lines = Lines::Stacked);

    const GridBlock &block() const { return *m_block; }
    GridStyle style() const { return m_style; }
    const GridTypes &types() const { return *m_types; }

    bool isRunning() const { return m_lines == Lines::Running && m_block->form == GridForm::Days; }

    int columnCount() const { return int(m_block->columns.size()); }
    int rowCount() const { return int(m_block->rowCount()); }
    const GridCell &cell(int row, int column) const;

    /// Sizes of letters: of lines, numbers, the heads of columns, the title.
    double points() const { return m_points; }
    double numberPoints() const { return m_numberPoints; }
    double headPoints() const { return m_headPoints; }
    double titlePoints() const { return m_titlePoints; }
    double pitch() const { return GridTypes::pitch(m_points); }

    QRectF rect() const { return m_rect; }
    QRectF title() const { return m_title; }
    QRectF heads() const { return m_heads; }
    /// The cells without the heads of their rows, which stand in the gutter at the left.
    QRectF body() const { return m_body; }
    double gutter() const { return m_gutter; }
    /// Of the gutter, for the numbers of weeks.
    double weekGutter() const { return m_weekGutter; }

    double columnWidth() const;
    double columnLeft(int column) const { return m_body.left() + column * columnWidth(); }
    /// Between the edge of a cell and what stands in it.
    double inset() const { return m_style == GridStyle::Open ? 4 : 3.5; }

    /// Above and below the lines of a row of days.
    double dayInset() const { return isRunning() ? 0.5 : 1.2; }

    double numberHeight() const { return m_numberPoints * 1.15; }
    /// Of the widest number.
    double numberWidth() const;

    /// How wide a column is where the block takes `width` points, about: for the choice of a first size.
    static double columnWidth(const GridBlock &block, double width);

private:
    void setSizes();
    void placeTitle();
    void placeHeads();

    const GridBlock *m_block;
    GridStyle m_style;
    const GridTypes *m_types;
    double m_points;
    Lines m_lines;
    double m_numberPoints = 0;
    double m_headPoints = 0;
    double m_titlePoints = 0;
    double m_gutter = 0;
    double m_weekGutter = 0;
    QRectF m_rect;
    QRectF m_title;
    QRectF m_heads;
    QRectF m_body;
};
