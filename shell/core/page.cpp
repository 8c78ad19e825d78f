// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page.h"

#include "shell/core/dates.h"
#include "shell/core/pagegrid.h"

#include <algorithm>
#include <optional>
#include <type_traits>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString textOf(const PageItem::Paragraph &paragraph)
{
    QString text = paragraph.listLevel > 0
                       ? QString(qsizetype(paragraph.listLevel - 1) * 4, u' ') + u"\u2022 "_s
                       : QString();
    for (const PageItem::Run &run : paragraph.runs)
        text += run.text;
    return text;
}

/// The text of one item; nothing for an item that is no text.
std::optional<QString> itemText(const Page::Item &item)
{
    return std::visit(
        [](const auto &value) -> std::optional<QString> {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, PageItem::Line> || std::is_same_v<T, PageItem::PlacedText>)
                return value.text;
            else if constexpr (std::is_same_v<T, PageItem::Paragraph>)
                return textOf(value);
            else if constexpr (std::is_same_v<T, PageItem::Figure>)
                return value.caption.isEmpty() ? std::nullopt : std::optional(value.caption);
            else if constexpr (std::is_same_v<T, PageItem::Grid>)
                return value.grid->text();
            else if constexpr (std::is_same_v<T, PageItem::Row>)
                return value.cells.join(u'\t');
            else if constexpr (std::is_same_v<T, PageItem::Columns>)
                return value.headings.isEmpty() ? std::nullopt : std::optional(value.headings.join(u'\t'));
            else if constexpr (std::is_same_v<T, PageItem::Blank>)
                return value.label;
            else if constexpr (std::is_same_v<T, PageItem::Section>)
                return value.title;
            else if constexpr (std::is_same_v<T, PageItem::Break>)
                return QString();
            else
                return std::nullopt;
        },
        item);
}

/// The headings over the item at this index; empty outside a table.
QStringList headingsOver(const std::vector<Page::Item> &items, std::size_t index)
{
    while (index-- > 0) {
        if (const auto *columns = std::get_if<PageItem::Columns>(&items[index]))
            return columns->headings;
    }
    return {};
}

} // namespace

bool PageItem::Grid::operator==(const Grid &other) const
{
    return grid == other.grid || (grid && other.grid && *grid == *other.grid);
}

Page::Page(QString title, QString headRight)
    : m_title(std::move(title))
    , m_headRight(std::move(headRight))
{}

Page &Page::line(const QString &text, TextRole role)
{
    m_items.emplace_back(PageItem::Line{text, role});
    return *this;
}

Page &Page::paragraph(PageItem::Paragraph paragraph)
{
    m_items.emplace_back(std::move(paragraph));
    return *this;
}

Page &Page::columns(std::vector<double> weights, QStringList headings,
                    std::vector<Qt::AlignmentFlag> alignments)
{
    PageItem::Columns table;
    table.weights = std::move(weights);
    table.headings = std::move(headings);
    table.alignments = std::move(alignments);
    return this->table(std::move(table));
}

Page &Page::table(PageItem::Columns columns)
{
    m_items.emplace_back(std::move(columns));
    return *this;
}

Page &Page::row(QStringList cells, TextRole role)
{
    m_items.emplace_back(PageItem::Row{std::move(cells), role});
    return *this;
}

Page &Page::codeRow(QStringList cells, std::vector<int> codeCells)
{
    m_items.emplace_back(PageItem::Row{std::move(cells), TextRole::Body, false, std::move(codeCells)});
    return *this;
}

Page &Page::rowWithNext(QStringList cells, TextRole role)
{
    m_items.emplace_back(PageItem::Row{std::move(cells), role, true});
    return *this;
}

Page &Page::rowWithSheets(QStringList cells, std::vector<int> marks, TextRole role)
{
    PageItem::Row row{std::move(cells), role};
    row.marks = std::move(marks);
    m_items.emplace_back(std::move(row));
    return *this;
}

Page &Page::blank(const QString &label)
{
    m_items.emplace_back(PageItem::Blank{label});
    return *this;
}

Page &Page::picture(const QString &path, QSizeF inches)
{
    m_items.emplace_back(PageItem::Picture{path, inches});
    return *this;
}

Page &Page::figure(const QString &path, QSizeF within, const QString &caption)
{
    m_items.emplace_back(PageItem::Figure{path, within, caption});
    return *this;
}

Page &Page::squares(QStringList rows, double inches)
{
    m_items.emplace_back(PageItem::Squares{std::move(rows), inches});
    return *this;
}

Page &Page::placeText(const QRectF &inches, const QString &text, TextRole role, Qt::Alignment alignment)
{
    m_items.emplace_back(PageItem::PlacedText{inches, text, role, alignment});
    return *this;
}

Page &Page::placePicture(const QRectF &inches, const QString &path)
{
    m_items.emplace_back(PageItem::PlacedPicture{inches, path});
    return *this;
}

Page &Page::placeRule(const QRectF &inches)
{
    m_items.emplace_back(PageItem::PlacedRule{inches});
    return *this;
}

Page &Page::placeGrid(std::shared_ptr<const PageGrid> grid)
{
    m_items.emplace_back(PageItem::Grid{std::move(grid)});
    return *this;
}

Page &Page::belowPlaced()
{
    m_items.emplace_back(PageItem::BelowPlaced{});
    return *this;
}

Page &Page::rule()
{
    m_items.emplace_back(PageItem::Rule{});
    return *this;
}

Page &Page::breakPage()
{
    m_items.emplace_back(PageItem::Break{});
    return *this;
}

Page &Page::section(const QString &title, int mark)
{
    m_items.emplace_back(PageItem::Section{title, false, mark});
    return *this;
}

Page &Page::numberedSection(const QString &title)
{
    m_items.emplace_back(PageItem::Section{title, true, 0});
    return *this;
}

Page &Page::frameSheets(bool isFramed)
{
    m_hasFrames = isFramed;
    return *this;
}

Page &Page::numberSheets(SheetNumbers numbers)
{
    m_numbers = numbers;
    return *this;
}

Page &Page::setHeads(SheetHeads heads)
{
    m_heads = heads;
    return *this;
}

Page &Page::setMargin(double inches)
{
    m_margin = inches;
    m_start = inches;
    return *this;
}

QString Page::titleOf(int number) const
{
    if (number > 1 && !m_continued.isEmpty())
        return m_title + m_continued;
    return m_numbers == SheetNumbers::Title ? m_title + QString::number(number) : m_title;
}

Page &Page::continueTitle(const QString &words)
{
    m_continued = words;
    return *this;
}

Page &Page::startAt(double inches)
{
    m_start = inches;
    return *this;
}

Page &Page::close(QDate printedOn, DateStyle style)
{
    m_closed = true;
    m_printedLine = u"Printed on "_s + Dates::numbers(printedOn, style);
    return *this;
}

Page &Page::setHeadRight(const QString &text)
{
    m_headRight = text;
    return *this;
}

void Page::fillRow(std::size_t item, QStringList cells)
{
    if (auto *row = item < m_items.size() ? std::get_if<PageItem::Row>(&m_items[item]) : nullptr) {
        row->cells = std::move(cells);
        row->marks.clear();
    }
}

Page Page::withItems(std::vector<Item> items) const
{
    Page page = *this;
    page.m_items = std::move(items);
    return page;
}

QString Page::toText() const
{
    return toText(0, m_items.size() + 1);
}

QString Page::toText(std::size_t first, std::size_t end, const QString &title) const
{
    QStringList lines;
    if (!m_title.isEmpty() || !m_headRight.isEmpty()) {
        const QString head = m_headRight.isEmpty() ? title : title + u'\t' + m_headRight;
        lines << QString() << head << QString();
    }
    const std::size_t itemsEnd = std::min(end, m_items.size());
    const bool isInsideTable = first < itemsEnd && std::holds_alternative<PageItem::Row>(m_items[first]);
    const QStringList headings = isInsideTable ? headingsOver(m_items, first) : QStringList();
    if (!headings.isEmpty())
        lines << headings.join(u'\t');
    const bool isTitle = first < itemsEnd && std::holds_alternative<PageItem::Section>(m_items[first]);
    for (std::size_t i = isTitle ? first + 1 : first; i < itemsEnd; ++i) {
        if (const auto text = itemText(m_items[i]))
            lines << *text;
    }
    if (m_closed && end > m_items.size())
        lines << QString() << productLine() << m_printedLine;
    return lines.join(u'\n');
}
