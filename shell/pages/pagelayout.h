// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"
#include "shell/pages/gridlayout.h"
#include "shell/pages/pagefont.h"
#include "shell/pages/pagetype.h"
#include "shell/pages/runlines.h"
#include "shell/pages/sheetmarks.h"

#include <map>
#include <vector>

class QPainter;

/// Where a sheet begins.
struct SheetStart {
    std::size_t item =
        0;        ///< the first item of the sheet; one past the last when only the closing lines are left
    int line = 0; ///< the first line of that item, when the sheet before holds its beginning
    const PageItem::Columns *columns = nullptr; ///< the table in force, started on this sheet or before
};

/// A page cut into sheets. Only the sheets' beginnings are kept: drawing one walks its items once more, so
/// that a list of fifty thousand names takes no more room than its text.
class PageLayout
{
public:
    PageLayout(const Page &page, const PageSetup &setup, const PageFont &font);

    int sheetCount() const { return int(m_starts.size()); }
    /// Draws a sheet, in points from its top left corner; nothing for an index that is no sheet.
    void paint(QPainter &painter, int index) const;
    /// Draws "Page 2 of 5" or the like at the foot, where the page has its numbers there.
    void paintNumber(QPainter &painter, int number, int count) const;
    /// The sheet's text as it is read.
    QString text(int index) const;

    const Page &page() const { return m_page; }
    const PageSetup &setup() const { return m_setup; }
    const PageTypes &types() const { return m_types; }
    const PageFont &font() const { return m_font; }
    /// Those of a table, which may be smaller; null: of no table.
    const PageTypes &typesOf(const PageItem::Columns *columns) const;
    /// Whether a table of numbers was too wide for the sheet and goes on as a second one.
    bool isTableCut() const { return m_isTableCut; }

    /// The title of sheet `number`, from 1; and how it is set.
    QString titleOf(int number) const;
    QString headOf(int number) const;
    /// Whether the sheet has the title of a section, and whether it is the first of it.
    bool isInSection(int number) const { return sectionOf(number) != nullptr; }
    bool beginsSection(int number) const;

    /// How many rows follow one another from `item` on, or behind it where it begins their table.
    qsizetype rowsFrom(std::size_t item) const;
    /// Whether a row, or the rule below it, is never parted from the next item.
    bool staysWithNext(std::size_t item) const;

    /// The sheet and the part of it that the flow fills, in points.
    QSizeF sheet() const;
    QRectF body() const;
    double margin() const;
    /// Where the blanks of a worksheet begin: behind the longest label, in points from the left margin.
    double blankIndent() const { return m_blankIndent; }

    /// The lines of the paragraph that is item `item`. A paragraph over several sheets is cut up once for
    /// all.
    QStringList linesOf(std::size_t item, const PageItem::Line &line) const;
    /// The lines of the paragraph of runs that is item `item`, cut up once for all.
    const std::vector<RunLine> &linesOf(std::size_t item, const PageItem::Paragraph &paragraph) const;

    /// The sheets of days that are item `item`, laid out once for all.
    const GridLayout &gridOf(std::size_t item, const PageItem::Grid &grid) const;

    /// The row with the numbers of the sheets that it tells.
    PageItem::Row withNumbers(const PageItem::Row &row) const { return m_marks.withNumbers(row, m_starts); }

private:
    void paintFrame(QPainter &painter) const;
    const PageItem::Section *sectionOf(int number) const;
    void fitTables(const PageFont &font);
    void cutIntoSheets();
    bool cut(std::size_t mostSheets);
    SheetStart withItsTable(const SheetStart &next, const SheetStart &before) const;
    /// `next`, or the heading before it; `before` is where the sheet before it begins.
    SheetStart withItsHeading(const SheetStart &next, const SheetStart &before) const;
    void keepClosingInCompany();
    void fillNumbers();
    /// The end of the items of a sheet; the closing lines count as one item behind the last.
    std::size_t endOf(int index) const;

    Page m_page;
    PageSetup m_setup;
    PageFont m_font;
    PageTypes m_types;
    SheetMarks m_marks;
    std::map<double, PageTypes> m_tableTypes; ///< by size
    bool m_isTableCut = false;
    double m_footHeight = 0; ///< room for "Page n of m", once there is more than one sheet
    double m_blankIndent;
    std::vector<SheetStart> m_starts;
    std::vector<std::size_t> m_sections; ///< which items are sections
    mutable std::size_t m_longItem = 0;
    mutable QStringList m_longLines;
    mutable std::map<std::size_t, std::vector<RunLine>> m_runLines; ///< by item
    mutable std::map<std::size_t, GridLayout> m_grids;              ///< by item
};
