// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagelayout.h"

#include "shell/pages/sheetflow.h"
#include "shell/pages/tablefit.h"

#include <QPainter>

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::pointsPerInch;

namespace {

/// The narrowest and the widest sheet that is laid out, in inches: a damaged paper size must not end in no
/// room at all.
constexpr double smallestSheet = 2;
constexpr double largestSheet = 60;
constexpr double blankGap = 8;
constexpr double frame = 0.3 * pointsPerInch; ///< from the edges of the sheet
constexpr double frameWidth = 0.75;
constexpr qsizetype manyLines = 20;
constexpr std::size_t mostRowsKept = 5; ///< with the rules between them, on one sheet

/// Whether the item leads what follows it.
bool isLeading(const Page::Item &item)
{
    if (const auto *line = std::get_if<PageItem::Line>(&item))
        return line->role == TextRole::Heading;
    const auto *paragraph = std::get_if<PageItem::Paragraph>(&item);
    return paragraph && (paragraph->staysWithNext || paragraph->role == TextRole::Heading);
}

double usable(double inches)
{
    return std::clamp(inches, smallestSheet, largestSheet) * pointsPerInch;
}

/// The widest label of a worksheet's blanks, at most 45 % of the line.
double longestLabel(const Page &page, const PageType &type, double lineWidth)
{
    double longest = 0;
    for (const Page::Item &item : page.items()) {
        if (const auto *blank = std::get_if<PageItem::Blank>(&item))
            longest = std::max(longest, type.width(blank->label) + blankGap);
    }
    return std::min(longest, 0.45 * lineWidth);
}

/// "Page No. 1" behind the title is never parted.
QString withUnbrokenNumber(QString title)
{
    const qsizetype at = title.lastIndexOf(u" - "_s) + 3;
    if (at < 3)
        return title;
    return title.replace(at, title.size() - at, title.mid(at).replace(u' ', QChar::Nbsp));
}

} // namespace

PageLayout::PageLayout(const Page &page, const PageSetup &setup, const PageFont &font)
    : m_page(page)
    , m_setup(setup)
    , m_font(font)
    , m_types(font)
    , m_marks({})
    , m_blankIndent(longestLabel(m_page, m_types.body, body().width()))
{
    fitTables(font);
    const auto &items = m_page.items();
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (std::holds_alternative<PageItem::Section>(items[i]))
            m_sections.push_back(i);
    }
    m_longItem = items.size();
    m_marks = SheetMarks(items);
    cutIntoSheets();
    fillNumbers();
}

void PageLayout::fitTables(const PageFont &font)
{
    TableFit fit(m_types, body().size());
    m_page = fit.fitted(m_page);
    m_isTableCut = fit.isCut();
    for (const Page::Item &item : m_page.items()) {
        const auto *columns = std::get_if<PageItem::Columns>(&item);
        if (columns && columns->points > 0)
            m_tableTypes.try_emplace(columns->points, font, columns->points);
    }
}

const PageTypes &PageLayout::typesOf(const PageItem::Columns *columns) const
{
    const auto own = columns ? m_tableTypes.find(columns->points) : m_tableTypes.end();
    return own != m_tableTypes.end() ? own->second : m_types;
}

QSizeF PageLayout::sheet() const
{
    const QSizeF inches = m_setup.sheet();
    return {usable(inches.width()), usable(inches.height())};
}

QRectF PageLayout::body() const
{
    const double top = std::clamp(m_page.start(), 0.0, 1.0) * pointsPerInch;
    const double margin = this->margin();
    return QRectF({}, sheet()).adjusted(margin, top, -margin, -margin - m_footHeight);
}

double PageLayout::margin() const
{
    return std::clamp(m_page.margin() * pointsPerInch, 0.0, sheet().width() / 4);
}

QStringList PageLayout::linesOf(std::size_t item, const PageItem::Line &line) const
{
    if (item == m_longItem)
        return m_longLines;
    QStringList lines = m_types.of(line.role).wrapped(line.text, body().width());
    if (lines.size() >= manyLines) {
        m_longItem = item;
        m_longLines = lines;
    }
    return lines;
}

const std::vector<RunLine> &PageLayout::linesOf(std::size_t item, const PageItem::Paragraph &paragraph) const
{
    auto found = m_runLines.find(item);
    if (found == m_runLines.end())
        found = m_runLines.emplace(item, RunLines::of(paragraph, m_types, body().width())).first;
    return found->second;
}

const GridLayout &PageLayout::gridOf(std::size_t item, const PageItem::Grid &grid) const
{
    auto found = m_grids.find(item);
    if (found == m_grids.end())
        found = m_grids.emplace(item, GridLayout(grid.grid, m_font)).first;
    return found->second;
}

void PageLayout::fillNumbers()
{
    for (std::size_t i = 0; i < m_page.items().size(); ++i) {
        const auto *row = std::get_if<PageItem::Row>(&m_page.items()[i]);
        if (row && !row->marks.empty())
            m_page.fillRow(i, withNumbers(*row).cells);
    }
}

void PageLayout::cutIntoSheets()
{
    if (cut(1))
        return;
    // The page number takes a line at the foot, so the first sheet is cut once more.
    if (m_page.sheetNumbers() == SheetNumbers::Foot)
        m_footHeight = m_types.foot.lineHeight() + 3;
    else if (m_page.sheetNumbers() == SheetNumbers::Book) // a line apart from the text, which it stands under
        m_footHeight = 2 * m_types.foot.lineHeight() + 3;
    cut(std::numeric_limits<std::size_t>::max());
    keepClosingInCompany();
}

/// The section that the sheet belongs to; null before the first.
const PageItem::Section *PageLayout::sectionOf(int number) const
{
    const auto behind = std::ranges::upper_bound(m_sections, m_starts[std::size_t(number - 1)].item);
    return behind == m_sections.begin() ? nullptr
                                        : std::get_if<PageItem::Section>(&m_page.items()[*(behind - 1)]);
}

bool PageLayout::beginsSection(int number) const
{
    const SheetStart &start = m_starts[std::size_t(number - 1)];
    return start.line == 0 && start.item < m_page.items().size() &&
           std::holds_alternative<PageItem::Section>(m_page.items()[start.item]);
}

QString PageLayout::titleOf(int number) const
{
    const PageItem::Section *section = sectionOf(number);
    if (!section || !section->isNumbered)
        return section ? section->title : m_page.titleOf(number);
    int first = number;
    while (first > 1 && sectionOf(first - 1) == section)
        --first;
    return section->title + QString::number(number - first + 1);
}

QString PageLayout::headOf(int number) const
{
    const PageItem::Section *section = sectionOf(number);
    const bool isNumbered = section ? section->isNumbered : m_page.sheetNumbers() == SheetNumbers::Title;
    const QString title = titleOf(number).trimmed(); // a blank before it would not stand over the rule
    return isNumbered ? withUnbrokenNumber(title) : title;
}

qsizetype PageLayout::rowsFrom(std::size_t item) const
{
    const auto &items = m_page.items();
    const auto isRow = [](const Page::Item &one) { return std::holds_alternative<PageItem::Row>(one); };
    const bool isTable = item < items.size() && std::holds_alternative<PageItem::Columns>(items[item]);
    const auto begin = items.begin() + std::ptrdiff_t(std::min(isTable ? item + 1 : item, items.size()));
    return std::find_if_not(begin, items.end(), isRow) - begin;
}

/// A rule between two rows belongs to the upper one.
bool PageLayout::staysWithNext(std::size_t item) const
{
    const auto &items = m_page.items();
    if (item + 1 >= items.size())
        return false;
    const bool isRule = std::holds_alternative<PageItem::Rule>(items[item]);
    const auto *row = std::get_if<PageItem::Row>(&items[isRule && item > 0 ? item - 1 : item]);
    const bool leadsToRow = std::holds_alternative<PageItem::Row>(items[item + 1]) ||
                            std::holds_alternative<PageItem::Rule>(items[item + 1]);
    return row && row->staysWithNext && leadsToRow;
}

bool PageLayout::cut(std::size_t mostSheets)
{
    m_starts.assign(1, {});
    while (const auto next = SheetFlow(*this, int(m_starts.size())).fill(m_starts.back())) {
        if (m_starts.size() == mostSheets)
            return false;
        m_starts.push_back(withItsHeading(withItsTable(*next, m_starts.back()), m_starts.back()));
    }
    return true;
}

/// A small table is not parted: where a sheet would begin within one, it begins with it.
SheetStart PageLayout::withItsTable(const SheetStart &next, const SheetStart &before) const
{
    const auto &items = m_page.items();
    const auto isOfTable = [&items](std::size_t item) {
        return item < items.size() && (std::holds_alternative<PageItem::Row>(items[item]) ||
                                       std::holds_alternative<PageItem::Rule>(items[item]));
    };
    std::size_t first = next.item;
    std::size_t end = next.item;
    while (first > 0 && end - first <= mostRowsKept && isOfTable(first - 1))
        --first;
    while (end - first <= mostRowsKept && isOfTable(end))
        ++end;
    const bool isParted = next.line == 0 && first < next.item && next.item < end;
    const bool isSmall = end - first <= mostRowsKept && first > before.item + 1;
    if (!isParted || !isSmall)
        return next;
    const auto *columns = std::get_if<PageItem::Columns>(&items[first - 1]);
    return columns && columns->across == 1 ? SheetStart{.item = first - 1} : next;
}

/// A heading never stands alone at the foot of a sheet: it goes along with the line, table or picture that
/// it leads.
SheetStart PageLayout::withItsHeading(const SheetStart &next, const SheetStart &before) const
{
    const auto &items = m_page.items();
    SheetStart moved = next;
    const PageItem::Columns *columns = next.columns;
    for (std::size_t at = next.item; next.line == 0 && at > before.item + 1;) {
        const Page::Item &item = items[--at];
        const auto *line = std::get_if<PageItem::Line>(&item);
        const bool isHeading = isLeading(item);
        if (std::holds_alternative<PageItem::Columns>(item))
            columns = nullptr; // it begins anew
        else if (!isHeading && !(line && line->text.isEmpty()))
            break;
        if (isHeading)
            moved = {at, 0, columns};
    }
    return moved;
}

/// A last sheet with nothing but the closing lines looks like a mistake: the last row moves along.
void PageLayout::keepClosingInCompany()
{
    const std::size_t count = m_page.items().size();
    if (m_starts.size() < 2 || m_starts.back().item != count)
        return;
    const bool isText = std::holds_alternative<PageItem::Row>(m_page.items().back()) ||
                        std::holds_alternative<PageItem::Line>(m_page.items().back());
    std::size_t first = count - 1;
    while (first > 0 && staysWithNext(first - 1))
        --first;
    const SheetStart &before = m_starts[m_starts.size() - 2];
    if (!isText || before.item + 1 >= first)
        return;
    m_starts.back().item = first;
    m_starts.back() = withItsHeading(withItsTable(m_starts.back(), before), before);
}

void PageLayout::paint(QPainter &painter, int index) const
{
    if (index < 0 || index >= sheetCount())
        return;
    if (m_page.hasFrames())
        paintFrame(painter);
    SheetFlow(*this, index + 1, &painter).fill(m_starts[std::size_t(index)], endOf(index));
    paintNumber(painter, index + 1, sheetCount());
}

void PageLayout::paintFrame(QPainter &painter) const
{
    painter.setPen(QPen(Qt::black, frameWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF({}, sheet()).adjusted(frame, frame, -frame, -frame));
}

void PageLayout::paintNumber(QPainter &painter, int number, int count) const
{
    const PageType &type = m_types.foot;
    const QPointF foot(margin(), sheet().height() - margin() - type.lineHeight());
    const QString words = QString::number(number);
    if (count > 1 && m_page.sheetNumbers() == SheetNumbers::Foot)
        type.draw(painter, foot, body().width(), Qt::AlignRight,
                  u"Page "_s + words + u" of "_s + QString::number(count));
    else if (number > 1 && m_page.sheetNumbers() == SheetNumbers::Book)
        type.draw(painter, foot, body().width(), Qt::AlignHCenter, words);
}

QString PageLayout::text(int index) const
{
    if (index < 0 || index >= sheetCount())
        return {};
    return m_page.toText(m_starts[std::size_t(index)].item, endOf(index), titleOf(index + 1));
}

std::size_t PageLayout::endOf(int index) const
{
    if (index + 1 == sheetCount())
        return m_page.items().size() + 1;
    const SheetStart next = m_starts[std::size_t(index) + 1];
    // An item that goes on there has its beginning here.
    return next.line > 0 ? next.item + 1 : next.item;
}
