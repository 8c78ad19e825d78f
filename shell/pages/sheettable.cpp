// SPDX-License-Identifier: GPL-3.0-or-later
// Tables on a sheet: their columns, headings and rows.

#include "shell/pages/sheetflow.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double thin = 0.5;
constexpr double rule = 0.75;
constexpr double columnGap = 10;
constexpr double acrossGap = 24; ///< between the columns that rows run down
constexpr double gridInset = 5;
constexpr double rowGap = 4.5;
constexpr double headingGap = 4.5;
constexpr QColor rowColor(0xDD, 0xDD, 0xDD);
constexpr QColor gridColor(0xB0, 0xB0, 0xB0);

} // namespace

void SheetFlow::startTable(const PageItem::Columns *columns)
{
    leaveColumns();
    m_columns = columns;
    m_headingsShown = false;
    m_rowAbove = false;
    m_boxes.clear();
    if (!columns)
        return;
    const auto weight = [](double value) { return std::isfinite(value) && value > 0 ? value : 0; };
    double sum = 0;
    for (const double value : columns->weights)
        sum += weight(value);
    const QRectF body = columnBody();
    const double inset = columns->lines == TableLines::Grid ? gridInset : 0;
    const double usable = body.width() - 2 * inset - columnGap * (double(columns->weights.size()) - 1);
    double left = body.left() + inset;
    for (std::size_t i = 0; i < columns->weights.size() && sum > 0; ++i) {
        const double width = usable * weight(columns->weights[i]) / sum;
        const auto alignment = i < columns->alignments.size() ? columns->alignments[i] : Qt::AlignLeft;
        m_boxes.push_back({left, width, alignment, {}});
        left += width + columnGap;
    }
}

/// The part of the sheet that rows are placed in now; only its left and right edges count.
QRectF SheetFlow::columnBody() const
{
    const int across = m_columns ? std::clamp(m_columns->across, 1, PageItem::Columns::mostAcross) : 1;
    const double width = (m_body.width() - acrossGap * (across - 1)) / across;
    return {m_body.left() + m_column * (width + acrossGap), m_body.top(), width, m_body.height()};
}

bool SheetFlow::nextColumn()
{
    if (!m_columns || m_column + 1 >= std::min(m_columns->across, PageItem::Columns::mostAcross))
        return false;
    m_columnBottom = std::max(m_columnBottom, m_y);
    const double left = columnBody().left();
    ++m_column;
    for (Cell &box : m_boxes)
        box.left += columnBody().left() - left;
    m_y = m_columnTop;
    m_headingsShown = false;
    m_rowAbove = false;
    return true;
}

void SheetFlow::leaveColumns()
{
    m_y = std::max(m_y, m_columnBottom);
    m_column = 0;
    m_columnBottom = 0;
}

/// Rows that run down several columns fill the first to the foot even on the last sheet, so room for the
/// closing lines is left on each.
double SheetFlow::closingReserve() const
{
    const bool isNeeded = m_columns && m_columns->across > 1 && m_layout.page().isClosed();
    return isNeeded ? types().body.lineHeight() + closingHeight() : 0;
}

std::vector<SheetFlow::Cell> SheetFlow::cellsOf(const QStringList &texts, const PageType &type) const
{
    std::vector<Cell> cells = m_boxes;
    if (cells.empty()) { // a row outside a table: equal columns
        const double width = m_body.width() / double(std::max<qsizetype>(1, texts.size()));
        for (qsizetype i = 0; i < texts.size(); ++i)
            cells.push_back({m_body.left() + double(i) * width, width - columnGap, Qt::AlignLeft, {}});
    }
    for (std::size_t i = 0; i < cells.size() && qsizetype(i) < texts.size(); ++i) {
        const bool isLast = i + 1 == cells.size();
        // Texts beyond the last column join it, so that nothing is lost.
        const QString text = isLast ? texts.mid(qsizetype(i)).join("  "_L1) : texts[qsizetype(i)];
        cells[i].lines = type.wrapped(text, cells[i].width);
    }
    return cells;
}

std::vector<SheetFlow::Cell> SheetFlow::headingCells() const
{
    if (m_headingsShown || !m_columns || m_columns->headings.isEmpty())
        return {};
    std::vector<Cell> cells = cellsOf(m_columns->headings, types().strong);
    // They come again on every sheet: whatever the font, most of it stays for the rows.
    const auto most = std::max<qsizetype>(1, qsizetype(m_body.height() / 3 / types().strong.lineHeight()));
    for (Cell &cell : cells)
        cell.lines = shortened(std::move(cell.lines), most, types().strong, cell.width);
    return cells;
}

double SheetFlow::headingHeight(const std::vector<Cell> &cells) const
{
    return cells.empty() ? 0 : double(lineCount(cells)) * types().strong.lineHeight() + headingGap;
}

void SheetFlow::placeHeadings(const std::vector<Cell> &cells)
{
    if (!m_headingsShown && m_column == 0)
        m_columnTop = m_y;
    if (std::exchange(m_headingsShown, true) || cells.empty())
        return;
    const int line = std::exchange(m_at.line, 0);
    drawCells(cells, types().strong, m_y, lineCount(cells));
    m_at.line = line;
    m_y += headingHeight(cells);
    const QRectF body = columnBody();
    fillLine({body.left(), m_y - rule - 1, body.width(), rule}, Qt::black);
}

bool SheetFlow::place(const PageItem::Columns &columns)
{
    startTable(&columns);
    const std::vector<Cell> headings = headingCells();
    // Headings never stand alone at the foot of a sheet.
    if (!m_isFresh && room() < headingHeight(headings) + rowGap + types().body.lineHeight())
        return false;
    placeHeadings(headings);
    return true;
}

bool SheetFlow::place(const PageItem::Row &row)
{
    const PageType &type = types().of(row.role);
    std::vector<Cell> cells = cellsOf(row.cells, type);
    std::vector<Cell> headings = headingCells();
    const double height = rowGap + double(lineCount(cells)) * type.lineHeight() + closingReserve();
    if (!m_isFresh && m_at.line == 0 && room() < headingHeight(headings) + height) {
        if (!nextColumn())
            return false;
        cells = cellsOf(row.cells, type);
        headings = headingCells();
    }
    placeHeadings(headings);
    const double top = m_y;
    if (m_rowAbove && m_columns && m_columns->lines == TableLines::Rows)
        fillLine({columnBody().left(), top, columnBody().width(), thin}, rowColor);
    m_rowAbove = true;
    const bool isWhole = placeCells(cells, type, rowGap, Split::Never);
    if (m_columns && m_columns->lines == TableLines::Grid)
        drawGrid(top);
    return isWhole;
}

/// The lines around the cells of a row that begins at `top`.
void SheetFlow::drawGrid(double top) const
{
    const QRectF body = columnBody();
    fillLine({body.left(), m_y, body.width(), thin}, gridColor);
    fillLine({body.left(), top, thin, m_y - top}, gridColor);
    for (std::size_t i = 1; i < m_boxes.size(); ++i)
        fillLine({m_boxes[i].left - columnGap / 2, top, thin, m_y - top}, gridColor);
    fillLine({body.right() - thin, top, thin, m_y - top}, gridColor);
}
