// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/sheetflow.h"

#include "shell/pages/gridlayout.h"
#include "shell/pages/pagefigure.h"
#include "shell/pages/pagepicture.h"
#include "shell/pages/pagesquares.h"
#include "shell/pages/sharpline.h"
#include "shell/pages/sheethead.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::pointsPerInch;

namespace {

constexpr double thin = 0.5;
constexpr double rule = 0.75;
constexpr double ruleGap = 9;
constexpr double pictureGap = 6;
constexpr double figureGap = 9;
constexpr double headingGap = 3;       ///< below the heading of text
constexpr double bookBlank = 0.6;      ///< of a line, where a book has an empty one
constexpr qsizetype linesTogether = 2; ///< of a paragraph, on either side of a sheet's end
constexpr double blankFactor = 1.6;    ///< room to write by hand
constexpr QColor ruleColor(0x9A, 0x9A, 0x9A);
constexpr QColor rowColor(0xDD, 0xDD, 0xDD);
constexpr QColor gridColor(0xB0, 0xB0, 0xB0);

QRectF inPoints(const QRectF &inches)
{
    return {inches.topLeft() * pointsPerInch, inches.size() * pointsPerInch};
}

} // namespace

SheetFlow::SheetFlow(const PageLayout &layout, int number, QPainter *painter)
    : m_layout(layout)
    , m_number(number)
    , m_painter(painter)
    , m_body(layout.body())
    , m_y(m_body.top())
    , m_bottom(m_body.bottom())
    , m_table(layout.types(), m_body)
{}

std::optional<SheetStart> SheetFlow::fill(SheetStart start, std::size_t end)
{
    const auto &items = m_layout.page().items();
    m_at = start;
    m_firstItem = start.item;
    m_isFirst = start.item == 0 && start.line == 0;
    startTable(start.columns);
    m_y = SheetHead(m_layout, m_number).place(m_painter);
    for (; m_at.item < std::min(end, items.size()); m_at = {m_at.item + 1, 0, nullptr}) {
        if (!std::visit([this](const auto &item) { return place(item); }, items[m_at.item]))
            return SheetStart{m_at.item, m_at.line, m_table.columns()};
    }
    if (end <= items.size() || !m_layout.page().isClosed() || placeClosing())
        return std::nullopt;
    return SheetStart{items.size(), 0, m_table.columns()};
}

void SheetFlow::drawCells(const std::vector<SheetCell> &cells, const PageType &type, double top,
                          qsizetype count) const
{
    for (const SheetCell &cell : cells) {
        const qsizetype end = std::min(m_at.line + count, cell.lines.size());
        const PageType &own = cell.type ? *cell.type : type;
        const double drop = type.baseline() - own.baseline();
        for (qsizetype i = m_at.line; m_painter && i < end; ++i) {
            const QPointF place(cell.left, top + drop + double(i - m_at.line) * type.lineHeight());
            own.draw(*m_painter, place, cell.width, cell.alignment, cell.lines[i]);
        }
    }
}

bool SheetFlow::placeCells(const std::vector<SheetCell> &cells, const PageType &type, double gap, Split split)
{
    const qsizetype left = SheetTable::lineCount(cells) - m_at.line;
    const double fitting = std::clamp((room() - gap + 0.01) / type.lineHeight(), 0.0, double(left));
    qsizetype count = qsizetype(fitting);
    // Only what is taller than a whole sheet is cut against its will; a fresh sheet always takes something.
    if (count < left && split == Split::Never && !m_isFresh)
        count = 0;
    if (m_isFresh)
        count = std::max<qsizetype>(count, 1);
    if (count == 0)
        return false;
    drawCells(cells, type, m_y + gap / 2, count);
    m_y += gap + double(count) * type.lineHeight();
    m_at.line += int(count);
    m_isFresh = false;
    return count == left;
}

void SheetFlow::startTable(const PageItem::Columns *columns)
{
    m_y = m_table.leaveColumns(m_y);
    const bool isCounted = columns && columns->endsEven;
    m_table.start(columns, m_layout.typesOf(columns), isCounted ? m_layout.rowsFrom(m_at.item) : 0);
    m_rowAbove = false;
}

bool SheetFlow::nextColumn()
{
    const std::optional<double> top = m_table.nextColumn(m_y);
    if (!top)
        return false;
    m_y = *top;
    m_rowAbove = false;
    return true;
}

void SheetFlow::placeHeadings(const std::vector<SheetCell> &headings)
{
    m_table.beginRows(m_y, types().body.lineHeight() + closingHeight());
    if (headings.empty())
        return;
    const int line = std::exchange(m_at.line, 0);
    drawCells(headings, m_table.types().strong, m_y, SheetTable::lineCount(headings));
    m_at.line = line;
    m_y += m_table.headingHeight(headings);
    const QRectF body = m_table.columnBody();
    fillLine({body.left(), m_y - rule - 1, body.width(), rule}, Qt::black);
}

bool SheetFlow::place(const PageItem::Columns &columns)
{
    startTable(&columns);
    const std::vector<SheetCell> headings = m_table.headings();
    // Headings never stand alone at the foot of a sheet.
    if (!m_isFresh &&
        room() < m_table.headingHeight(headings) + m_table.rowGap() + m_table.types().body.lineHeight())
        return false;
    placeHeadings(headings);
    return true;
}

bool SheetFlow::place(const PageItem::Row &row)
{
    const PageType &type = m_table.types().of(row.role);
    const PageItem::Row told = m_layout.withNumbers(row);
    std::vector<SheetCell> cells = m_table.cellsOf(told);
    std::vector<SheetCell> headings = m_table.headings();
    const double height = m_table.rowGap() + double(SheetTable::lineCount(cells)) * type.lineHeight() +
                          closingReserve() + heightOfCompany();
    const bool isFull = m_table.hasItsShare() || room() < m_table.headingHeight(headings) + height;
    if (!m_isFresh && m_at.line == 0 && isFull) {
        if (!nextColumn())
            return false;
        cells = m_table.cellsOf(told);
        headings = m_table.headings();
    }
    placeHeadings(headings);
    m_table.countRow();
    const double top = m_y;
    const QRectF body = m_table.columnBody();
    if (m_rowAbove && m_table.has(TableLines::Rows))
        fillLine({body.left(), top, body.width(), thin}, rowColor);
    m_rowAbove = true;
    const bool isWhole = placeCells(cells, type, m_table.rowGap(), Split::Never);
    if (m_painter && m_table.has(TableLines::Grid)) {
        for (const QRectF &line : m_table.grid(top, m_y, thin))
            fillLine(line, gridColor);
    }
    return isWhole;
}

/// Rows that run down several columns fill the first to the foot even on the last sheet, so room for the
/// closing lines is left on each.
double SheetFlow::closingReserve() const
{
    const bool isNeeded = m_table.runsAcross() && m_table.mayEndHere() && m_layout.page().isClosed();
    return isNeeded ? types().body.lineHeight() + closingHeight() : 0;
}

double SheetFlow::heightOfCompany() const
{
    const double most = m_body.height() / 2; // what is higher may as well be cut
    double height = 0;
    for (std::size_t at = m_at.item; m_layout.staysWithNext(at); ++at) {
        const auto *row = std::get_if<PageItem::Row>(&m_layout.page().items()[at + 1]);
        const PageType &type = m_table.types().of(row ? row->role : TextRole::Body);
        const auto lines =
            double(row ? SheetTable::lineCount(m_table.cellsOf(m_layout.withNumbers(*row))) : 0);
        height += row ? m_table.rowGap() + lines * type.lineHeight() : ruleGap;
        if (height > most)
            return 0;
    }
    return height;
}

bool SheetFlow::place(const PageItem::Line &line)
{
    const PageType &type = types().of(line.role);
    m_y = m_table.leaveColumns(m_y); // a line stands below the longest of them
    m_rowAbove = false;
    if (line.text.isEmpty()) {
        // A blank line separates two texts; at the top or the foot of a sheet there is nothing to separate.
        if (!m_isFresh || m_isFirst)
            m_y += blankHeight(line);
        return true;
    }
    const SheetCell cell{m_body.left(), m_body.width(), Qt::AlignLeft, m_layout.linesOf(m_at.item, line), {}};
    return placeCells({cell}, type, 0, Split::AtLines);
}

qsizetype SheetFlow::linesHere(qsizetype left, double lineHeight) const
{
    const auto fitting = qsizetype(std::max(0.0, (room() + 0.01) / lineHeight));
    if (left <= fitting)
        return left;
    if (m_isFresh)
        return std::max<qsizetype>(fitting, 1);
    const qsizetype count = std::min(fitting, left - linesTogether);
    return count < linesTogether ? 0 : count;
}

/// What must stand on the same sheet as the end of this paragraph.
double SheetFlow::heightOfNext() const
{
    const auto &items = m_layout.page().items();
    double height = 0;
    for (std::size_t at = m_at.item + 1; at < items.size(); ++at) {
        const auto *line = std::get_if<PageItem::Line>(&items[at]);
        const auto *next = std::get_if<PageItem::Paragraph>(&items[at]);
        if (line && line->text.isEmpty())
            height += blankHeight(*line);
        else if (next)
            height += double(m_layout.linesOf(at, *next).size()) * types().of(next->role).lineHeight();
        if (!line || !line->text.isEmpty())
            break;
    }
    return height;
}

double SheetFlow::blankHeight(const PageItem::Line &line) const
{
    return types().of(line.role).lineHeight() *
           (m_layout.page().heads() == SheetHeads::Running ? bookBlank : 1);
}

bool SheetFlow::place(const PageItem::Paragraph &paragraph)
{
    m_y = m_table.leaveColumns(m_y);
    m_rowAbove = false;
    const PageType &type = types().of(paragraph.role);
    const std::vector<RunLine> &lines = m_layout.linesOf(m_at.item, paragraph);
    const qsizetype left = qsizetype(lines.size()) - m_at.line;
    qsizetype count = linesHere(left, type.lineHeight());
    // A long one gives its last lines to what it stays with; a short one goes there as a whole.
    if (paragraph.staysWithNext && count == left && left >= 2 * linesTogether &&
        room() + 0.01 < double(left) * type.lineHeight() + heightOfNext())
        count -= linesTogether;
    const double indent = RunLines::indentOf(paragraph);
    for (qsizetype i = 0; m_painter && i < count; ++i) {
        const QPointF top(m_body.left() + indent, m_y + double(i) * type.lineHeight());
        if (indent > 0 && m_at.line + i == 0)
            RunLines::drawDot(*m_painter, top, type);
        RunLines::draw(*m_painter, top, lines[std::size_t(m_at.line + i)]);
    }
    if (count == 0)
        return false;
    m_y += double(count) * type.lineHeight();
    m_at.line += int(count);
    if (paragraph.role == TextRole::Heading && count == left)
        m_y += headingGap;
    m_isFresh = false;
    return count == left;
}

bool SheetFlow::place(const PageItem::Figure &figure)
{
    m_y = m_table.leaveColumns(m_y);
    m_rowAbove = false;
    const double gap = m_isFresh ? 0 : figureGap;
    PageFigure picture(figure, types(), m_body.size());
    if (!picture.giveWay(room() - gap) && !m_isFresh)
        return false;
    if (m_painter)
        picture.draw(*m_painter, {m_body.left(), m_y + gap});
    m_y += gap + picture.height() + figureGap;
    m_isFresh = false;
    return true;
}

bool SheetFlow::place(const PageItem::Blank &blank)
{
    const PageType &type = types().body;
    const double height = blankFactor * type.lineHeight();
    if (!m_isFresh && room() < height)
        return false;
    m_rowAbove = false;
    m_isFresh = false;
    const double indent = blank.label.isEmpty() ? 0 : m_layout.blankIndent();
    if (m_painter) {
        const QPointF place(m_body.left(), m_y + height - type.lineHeight());
        type.draw(*m_painter, place, type.elided(blank.label, indent));
    }
    drawRule(m_y + height - type.lineHeight() + type.baseline() + 2, thin, Qt::black, indent);
    m_y += height;
    return true;
}

bool SheetFlow::place(const PageItem::Picture &picture)
{
    const QSizeF size = (picture.size * pointsPerInch).boundedTo(m_body.size());
    if (!size.isValid())
        return true;
    const auto place = takePlace(size);
    if (m_painter && place)
        drawPagePicture(*m_painter, *place, picture.path);
    return place.has_value();
}

bool SheetFlow::place(const PageItem::Squares &squares)
{
    const double side = std::min({squares.size * pointsPerInch, m_body.width(), m_body.height()});
    if (!(side > 0) || squares.rows.isEmpty())
        return true;
    const auto place = takePlace({side, side});
    if (m_painter && place)
        drawPageSquares(*m_painter, *place, squares.rows);
    return place.has_value();
}

std::optional<QRectF> SheetFlow::takePlace(QSizeF size)
{
    const double gap = m_isFresh ? 0 : pictureGap;
    if (!m_isFresh && room() < gap + size.height())
        return {};
    m_y += gap;
    const QRectF place({m_body.left(), m_y}, QSizeF(size.width(), std::min(size.height(), room())));
    m_y = place.bottom() + pictureGap;
    m_rowAbove = false;
    m_isFresh = false;
    return place;
}

bool SheetFlow::place(const PageItem::PlacedText &text)
{
    const PageType &type = types().of(text.role);
    const QRectF place = inPoints(text.place);
    // A rectangle as high as a line on paper may be a hair lower than the line height.
    const auto most = std::max<qsizetype>(1, qsizetype(place.height() / type.lineHeight() + 0.1));
    const QStringList lines = type.shortened(type.wrapped(text.text, place.width()), most, place.width());
    const double height = double(lines.size()) * type.lineHeight();
    double top = place.top();
    if (text.alignment & Qt::AlignBottom)
        top = place.bottom() - height;
    else if (text.alignment & Qt::AlignVCenter)
        top = place.center().y() - height / 2;
    m_isFresh = false;
    m_lowestPlaced = std::max(m_lowestPlaced, top + height);
    for (qsizetype i = 0; m_painter && i < lines.size(); ++i) {
        const QPointF at(place.left(), top + double(i) * type.lineHeight());
        type.draw(*m_painter, at, place.width(), text.alignment, lines[i]);
    }
    return true;
}

bool SheetFlow::place(const PageItem::PlacedPicture &picture)
{
    const QRectF place = inPoints(picture.place);
    m_isFresh = false;
    m_lowestPlaced = std::max(m_lowestPlaced, place.bottom());
    if (m_painter)
        drawPagePicture(*m_painter, place, picture.path);
    return true;
}

bool SheetFlow::place(const PageItem::PlacedRule &rule)
{
    const QRectF place = inPoints(rule.place);
    m_isFresh = false;
    m_lowestPlaced = std::max(m_lowestPlaced, place.bottom());
    if (m_painter) {
        m_painter->setPen(QPen(ruleColor, thin));
        m_painter->setBrush(Qt::NoBrush);
        if (place.width() > 0 && place.height() > 0)
            m_painter->drawRect(place);
        else
            m_painter->drawLine(place.topLeft(), place.bottomRight());
    }
    return true;
}

bool SheetFlow::place(const PageItem::Grid &grid)
{
    if (!m_isFresh)
        return false;
    const GridLayout &layout = m_layout.gridOf(m_at.item, grid);
    if (m_painter)
        layout.paint(*m_painter, m_at.line);
    m_isFresh = false;
    m_lowestPlaced = std::max(m_lowestPlaced, inPoints(grid.grid->place).bottom());
    ++m_at.line;
    return m_at.line >= layout.partCount();
}

bool SheetFlow::place(const PageItem::BelowPlaced &)
{
    if (m_lowestPlaced > m_y)
        m_y = m_lowestPlaced + pictureGap;
    m_rowAbove = false;
    return true;
}

bool SheetFlow::place(const PageItem::Rule &)
{
    if (room() < ruleGap)
        return true; // the edge of the sheet separates the texts as well
    drawRule(m_y + ruleGap / 2, thin, ruleColor);
    m_y += ruleGap;
    m_rowAbove = false;
    m_isFresh = false;
    return true;
}

bool SheetFlow::place(const PageItem::Break &)
{
    const bool isLast = m_at.item + 1 == m_layout.page().items().size();
    if (m_isFresh || isLast)
        return true;
    m_at = {m_at.item + 1, 0, nullptr};
    return false;
}

/// The title of a sheet is that of the section that it begins with, so a section begins a sheet.
bool SheetFlow::place(const PageItem::Section &)
{
    if (m_at.item != m_firstItem)
        return false;
    startTable(nullptr);
    return true;
}

double SheetFlow::closingHeight() const
{
    return ruleGap + 2 * types().foot.lineHeight();
}

bool SheetFlow::placeClosing()
{
    const PageType &type = types().foot;
    m_y = m_table.leaveColumns(m_y);
    const double top = std::max(m_y, m_lowestPlaced);
    // Placed items may reach below the margin; a quarter of an inch every printer can print on.
    const double margin = m_layout.margin();
    const double lowest = m_layout.sheet().height() - (m_lowestPlaced > 0 ? margin / 2 : margin);
    double gap = types().body.lineHeight();
    if (top + gap + closingHeight() > m_bottom)
        gap = 0;
    if (!m_isFresh && top + gap + closingHeight() > lowest)
        return false;
    m_y = top + gap;
    // In a book they would seem to belong to what stands above them.
    if (m_layout.page().sheetNumbers() == SheetNumbers::Book)
        m_y = std::max(m_y, m_bottom - closingHeight());
    drawRule(m_y + ruleGap / 2, thin, ruleColor);
    m_y += ruleGap;
    if (m_painter) {
        type.draw(*m_painter, {m_body.left(), m_y}, Page::productLine());
        type.draw(*m_painter, {m_body.left(), m_y + type.lineHeight()}, m_layout.page().printedLine());
    }
    return true;
}

void SheetFlow::drawRule(double y, double thickness, const QColor &color, double indent) const
{
    fillLine({m_body.left() + indent, y, m_body.width() - indent, thickness}, color);
}

void SheetFlow::fillLine(const QRectF &line, const QColor &color) const
{
    if (m_painter)
        fillSharpLine(*m_painter, line, color);
}
