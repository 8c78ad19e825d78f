// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"
#include "shell/pages/pagetype.h"

#include <QRectF>

#include <optional>
#include <vector>

/// A text between two edges of a sheet, cut into lines.
struct SheetCell {
    double left = 0;
    double width = 0;
    Qt::Alignment alignment = Qt::AlignLeft;
    QStringList lines;
    const PageType *type = nullptr; ///< where it is another than the row's
};

/// The table in force on a sheet: where its columns, headings and cells stand. It measures and draws nothing.
class SheetTable
{
public:
    /// Between the edges of `body`, in points. The page's types must outlive the table.
    SheetTable(const PageTypes &types, const QRectF &body);

    /// Rows from here on stand in these columns, in `types`; null: outside a table, in columns of equal
    /// width. `rows` of them are to come.
    void start(const PageItem::Columns *columns, const PageTypes &types, qsizetype rows = 0);
    const PageItem::Columns *columns() const { return m_columns; }
    const PageTypes &types() const { return *m_types; }
    /// What a row takes beside the lines of its text.
    double rowGap() const;
    /// Between the columns of a table of numbers in letters of this size.
    static double numberGap(double points);
    bool has(TableLines lines) const { return m_columns && m_columns->lines == lines; }

    /// Lines of the highest cell, at least one.
    static qsizetype lineCount(const std::vector<SheetCell> &cells);
    std::vector<SheetCell> cellsOf(const QStringList &texts, const PageType &type) const;
    std::vector<SheetCell> cellsOf(const PageItem::Row &row) const;
    /// None once `beginRows` was called.
    std::vector<SheetCell> headings() const;
    double headingHeight(const std::vector<SheetCell> &headings) const;
    /// The part of the sheet that rows are placed in now; only its left and right edges count.
    QRectF columnBody() const;
    /// The lines around the cells of a row from `top` to `bottom`.
    std::vector<QRectF> grid(double top, double bottom, double thickness) const;

    /// The headings of this column of rows stand at `y`, and rows follow; `closing` is what the page's end
    /// takes.
    void beginRows(double y, double closing);
    void countRow();
    /// Whether the rows run down several columns.
    bool runsAcross() const { return m_columns && m_columns->across > 1; }
    /// Whether this column of rows has its share of those that are left.
    bool hasItsShare() const;
    /// Whether all its rows may find room on the sheet where they begin.
    bool mayEndHere() const { return m_endsHere; }
    /// Goes on in the next column of rows, since the one that ends at `y` is full: gives the top of it, or
    /// nothing when this was the last.
    std::optional<double> nextColumn(double y);
    /// Leaves a table whose last row ends at `y`: gives the end of the longest column of rows.
    double leaveColumns(double y);

private:
    double columnGap() const;
    int across() const;

    const PageTypes *m_types;
    QRectF m_body;
    const PageItem::Columns *m_columns = nullptr;
    std::vector<SheetCell> m_boxes; ///< the table's columns, without lines
    bool m_headingsShown = false;
    int m_column = 0; ///< of those that the rows run down
    bool m_endsHere = true;
    qsizetype m_rows = 0;
    qsizetype m_rowsInColumn = 0;
    qsizetype m_share = 0; ///< the rows of a column where all of them end on the sheet
    double m_columnTop = 0;
    double m_columnBottom = 0; ///< of the longest so far
};
