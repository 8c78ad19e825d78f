// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/pagelayout.h"
#include "shell/pages/sheettable.h"

#include <limits>
#include <optional>
#include <vector>

class QPainter;

/// Fills one sheet with items until it is full. The same walk measures (without a painter) and draws, so that
/// what is drawn is what was measured.
class SheetFlow
{
public:
    /// `number` is the sheet's, from 1.
    SheetFlow(const PageLayout &layout, int number, QPainter *painter = nullptr);

    static constexpr std::size_t toTheEnd = std::numeric_limits<std::size_t>::max();

    /// Fills the sheet that begins at `start`, with items before `end` only. Gives the beginning of the next
    /// one, or nothing after the last.
    std::optional<SheetStart> fill(SheetStart start, std::size_t end = toTheEnd);

private:
    enum class Split { Never, AtLines };

    /// Each places one item at the current height, or as much of it as fits. False: the rest goes to the next
    /// sheet.
    bool place(const PageItem::Line &line);
    bool place(const PageItem::Paragraph &paragraph);
    bool place(const PageItem::Columns &columns);
    bool place(const PageItem::Row &row);
    bool place(const PageItem::Blank &blank);
    bool place(const PageItem::Picture &picture);
    bool place(const PageItem::Figure &figure);
    bool place(const PageItem::Squares &squares);
    bool place(const PageItem::PlacedText &text);
    bool place(const PageItem::PlacedPicture &picture);
    bool place(const PageItem::PlacedRule &rule);
    bool place(const PageItem::Grid &grid);
    bool place(const PageItem::BelowPlaced &);
    bool place(const PageItem::Rule &);
    bool place(const PageItem::Break &);
    bool place(const PageItem::Section &);
    bool placeClosing();

    /// How many of the `left` lines of a paragraph stand here.
    qsizetype linesHere(qsizetype left, double lineHeight) const;
    /// A place in the flow for what is no larger than a sheet; nothing where it belongs on the next one.
    std::optional<QRectF> takePlace(QSizeF points);
    void placeHeadings(const std::vector<SheetCell> &headings);
    /// Draws `count` lines of each cell, from the item's current line on.
    void drawCells(const std::vector<SheetCell> &cells, const PageType &type, double top,
                   qsizetype count) const;
    bool placeCells(const std::vector<SheetCell> &cells, const PageType &type, double gap, Split split);
    void startTable(const PageItem::Columns *columns);
    /// Goes on at the top of the table's next column of rows; false when this was the last.
    bool nextColumn();
    double closingReserve() const;
    /// Of the rows that stay with the current one, which is placed in `cells`; 0 for most.
    double heightOfCompany() const;
    double heightOfNext() const;
    double blankHeight(const PageItem::Line &line) const;
    /// Of the closing lines with the rule above them.
    double closingHeight() const;
    void drawRule(double y, double thickness, const QColor &color, double indent = 0) const;
    void fillLine(const QRectF &line, const QColor &color) const;

    double room() const { return m_bottom - m_y; }
    const PageTypes &types() const { return m_layout.types(); }

    const PageLayout &m_layout;
    int m_number;
    QPainter *m_painter;
    QRectF m_body;
    SheetStart m_at;
    double m_y;
    double m_bottom;
    std::size_t m_firstItem = 0;
    bool m_isFirst = true;
    double m_lowestPlaced = 0;
    bool m_isFresh = true; ///< nothing but title and headings stands on the sheet yet

    SheetTable m_table;
    bool m_rowAbove = false;
};
