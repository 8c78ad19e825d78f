// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/sheettable.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double wideGap = 10;
constexpr double plainRowGap = 4.5;
constexpr double writingFactor = 0.5; ///< room to write by hand, beside a line of text
constexpr double acrossGap = 24;      ///< between the columns that rows run down
constexpr double gridInset = 5;
constexpr double headingGap = 4.5;

} // namespace

SheetTable::SheetTable(const PageTypes &types, const QRectF &body)
    : m_types(&types)
    , m_body(body)
{}

double SheetTable::numberGap(double points)
{
    return 0.7 * points;
}

double SheetTable::columnGap() const
{
    const bool isNarrow = m_columns && m_columns->widths == TableWidths::ForNumbers;
    return isNarrow ? numberGap(m_types->points) : wideGap;
}

double SheetTable::rowGap() const
{
    const bool isHigh = m_columns && m_columns->isToWriteIn;
    return isHigh ? plainRowGap + writingFactor * m_types->body.lineHeight() : plainRowGap;
}

void SheetTable::start(const PageItem::Columns *columns, const PageTypes &types, qsizetype rows)
{
    m_columns = columns;
    m_types = &types;
    m_rows = rows;
    m_rowsInColumn = 0;
    m_share = (rows + across() - 1) / across();
    m_headingsShown = false;
    m_boxes.clear();
    if (!columns)
        return;
    const auto weight = [](double value) { return std::isfinite(value) && value > 0 ? value : 0; };
    double sum = 0;
    for (const double value : columns->weights)
        sum += weight(value);
    const QRectF body = columnBody();
    const double inset = columns->lines == TableLines::Grid ? gridInset : 0;
    const double usable = body.width() - 2 * inset - columnGap() * (double(columns->weights.size()) - 1);
    double left = body.left() + inset;
    for (std::size_t i = 0; i < columns->weights.size() && sum > 0; ++i) {
        const double width = usable * weight(columns->weights[i]) / sum;
        const auto alignment = i < columns->alignments.size() ? columns->alignments[i] : Qt::AlignLeft;
        m_boxes.push_back({left, width, alignment, {}, {}});
        left += width + columnGap();
    }
}

qsizetype SheetTable::lineCount(const std::vector<SheetCell> &cells)
{
    qsizetype most = 1;
    for (const SheetCell &cell : cells)
        most = std::max(most, cell.lines.size());
    return most;
}

std::vector<SheetCell> SheetTable::cellsOf(const QStringList &texts, const PageType &type) const
{
    std::vector<SheetCell> cells = m_boxes;
    if (cells.empty()) { // a row outside a table: equal columns
        const double width = m_body.width() / double(std::max<qsizetype>(1, texts.size()));
        for (qsizetype i = 0; i < texts.size(); ++i)
            cells.push_back({m_body.left() + double(i) * width, width - columnGap(), Qt::AlignLeft, {}, {}});
    }
    for (std::size_t i = 0; i < cells.size() && qsizetype(i) < texts.size(); ++i) {
        const bool isLast = i + 1 == cells.size();
        // Texts beyond the last column join it, so that nothing is lost.
        const QString text = isLast ? texts.mid(qsizetype(i)).join("  "_L1) : texts[qsizetype(i)];
        cells[i].lines = type.wrapped(text, cells[i].width);
    }
    return cells;
}

std::vector<SheetCell> SheetTable::cellsOf(const PageItem::Row &row) const
{
    std::vector<SheetCell> cells = cellsOf(row.cells, m_types->of(row.role));
    for (const int code : row.codeCells) {
        if (code >= row.cells.size() || std::size_t(code) >= cells.size())
            continue;
        SheetCell &cell = cells[std::size_t(code)];
        cell.type = &m_types->code;
        cell.lines = cell.type->wrapped(row.cells[code], cell.width);
    }
    return cells;
}

std::vector<SheetCell> SheetTable::headings() const
{
    if (m_headingsShown || !m_columns || m_columns->headings.isEmpty())
        return {};
    std::vector<SheetCell> cells = cellsOf(m_columns->headings, m_types->strong);
    // They come again on every sheet: whatever the font, most of it stays for the rows.
    const auto most = std::max<qsizetype>(1, qsizetype(m_body.height() / 3 / m_types->strong.lineHeight()));
    for (SheetCell &cell : cells)
        cell.lines = m_types->strong.shortened(std::move(cell.lines), most, cell.width);
    return cells;
}

double SheetTable::headingHeight(const std::vector<SheetCell> &headings) const
{
    return headings.empty() ? 0 : double(lineCount(headings)) * m_types->strong.lineHeight() + headingGap;
}

int SheetTable::across() const
{
    return m_columns ? std::clamp(m_columns->across, 1, PageItem::Columns::mostAcross) : 1;
}

QRectF SheetTable::columnBody() const
{
    const double width = (m_body.width() - acrossGap * (across() - 1)) / across();
    return {m_body.left() + m_column * (width + acrossGap), m_body.top(), width, m_body.height()};
}

std::vector<QRectF> SheetTable::grid(double top, double bottom, double thickness) const
{
    const QRectF body = columnBody();
    const double height = bottom - top;
    std::vector<QRectF> lines{{body.left(), bottom, body.width(), thickness},
                              {body.left(), top, thickness, height}};
    for (std::size_t i = 1; i < m_boxes.size(); ++i)
        lines.emplace_back(m_boxes[i].left - columnGap() / 2, top, thickness, height);
    lines.emplace_back(body.right() - thickness, top, thickness, height);
    return lines;
}

void SheetTable::beginRows(double y, double closing)
{
    if (!m_headingsShown && m_column == 0) {
        m_columnTop = y;
        // Rows of one line each are reckoned with; a sheet more is no harm.
        const double room = m_body.bottom() - y - headingHeight(headings()) - closing;
        const double fitting = std::floor(room / (rowGap() + m_types->body.lineHeight()));
        m_endsHere = !m_columns || !m_columns->endsEven || double(m_rows) <= fitting * across();
    }
    m_headingsShown = true;
}

void SheetTable::countRow()
{
    ++m_rowsInColumn;
}

bool SheetTable::hasItsShare() const
{
    return m_columns && m_columns->endsEven && m_rowsInColumn >= m_share && m_column + 1 < across();
}

std::optional<double> SheetTable::nextColumn(double y)
{
    if (m_column + 1 >= across())
        return {};
    m_rowsInColumn = 0;
    m_columnBottom = std::max(m_columnBottom, y);
    const double left = columnBody().left();
    ++m_column;
    for (SheetCell &box : m_boxes)
        box.left += columnBody().left() - left;
    m_headingsShown = false;
    return m_columnTop;
}

double SheetTable::leaveColumns(double y)
{
    m_column = 0;
    return std::max(y, std::exchange(m_columnBottom, 0));
}
