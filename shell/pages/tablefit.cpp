// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/tablefit.h"

#include "shell/pages/sheettable.h"

#include <algorithm>
#include <numeric>
#include <utility>

using PageMetrics::pointsPerInch;
using PageMetrics::smallestPoints;

namespace {

constexpr double step = 0.5;
/// Words may be broken where they leave the numbers no room; larger letters are not worth it.
constexpr double leastWords = 0.9 * pointsPerInch;
constexpr double readableWords = 1.6 * pointsPerInch;
/// What title and closing lines take of a sheet.
constexpr double frameOfSheet = 1.4 * pointsPerInch;

/// The first column and those from `first` on, `count` of them.
QStringList part(const QStringList &cells, std::size_t first, std::size_t count)
{
    return cells.mid(0, 1) + cells.mid(qsizetype(first) + 1, qsizetype(count));
}

/// A table with its rows, behind everything that is placed already.
void append(std::vector<Page::Item> &items, const PageItem::Columns &columns,
            const std::vector<Page::Item> &rows, std::size_t first, std::size_t count)
{
    items.emplace_back(columns);
    for (const Page::Item &item : rows) {
        if (const auto *row = std::get_if<PageItem::Row>(&item)) {
            PageItem::Row narrow = *row;
            narrow.cells = part(row->cells, first, count);
            items.emplace_back(std::move(narrow));
        } else {
            items.push_back(item);
        }
    }
}

} // namespace

TableFit::TableFit(const PageTypes &types, QSizeF body)
    : m_types(types)
    , m_body(body)
{}

Page TableFit::fitted(const Page &page)
{
    const auto isNumbers = [](const Page::Item &item) {
        const auto *columns = std::get_if<PageItem::Columns>(&item);
        return columns && columns->widths == TableWidths::ForNumbers && columns->headings.size() > 1;
    };
    const auto isOfTable = [](const Page::Item &item) {
        return std::holds_alternative<PageItem::Row>(item) || std::holds_alternative<PageItem::Rule>(item);
    };
    if (std::none_of(page.items().begin(), page.items().end(), isNumbers))
        return page;
    Items items;
    for (auto item = page.items().begin(); item != page.items().end();) {
        if (!isNumbers(*item)) {
            items.push_back(*item++);
            continue;
        }
        const auto end = std::find_if_not(item + 1, page.items().end(), isOfTable);
        place(measured(std::get<PageItem::Columns>(*item), Items(item + 1, end)), items);
        item = end;
    }
    return page.withItems(std::move(items));
}

TableFit::Table TableFit::measured(const PageItem::Columns &columns, Items rows) const
{
    Table table{columns, std::move(rows), 0, {}};
    table.numbers.resize(std::size_t(columns.headings.size()) - 1);
    const auto measure = [&table](const QStringList &cells, const PageType &type) {
        table.words = std::max(table.words, type.width(cells.value(0)));
        for (std::size_t i = 0; i < table.numbers.size(); ++i)
            table.numbers[i] = std::max(table.numbers[i], type.width(cells.value(qsizetype(i) + 1)));
    };
    measure(columns.headings, m_types.strong);
    for (const Page::Item &item : table.rows) {
        if (const auto *row = std::get_if<PageItem::Row>(&item))
            measure(row->cells, m_types.of(row->role));
    }
    return table;
}

std::optional<TableFit::Fit> TableFit::fit(double words, const std::vector<double> &numbers) const
{
    for (double points = m_types.points; points > smallestPoints; points -= step) {
        if (auto fit = fitIn(points, words, numbers))
            return fit;
    }
    return fitIn(std::min(smallestPoints, m_types.points), words, numbers);
}

std::optional<TableFit::Fit> TableFit::fitIn(double points, double words,
                                             const std::vector<double> &numbers) const
{
    constexpr double breath = 1; // a number as wide as its column is not broken
    const double scale = points / m_types.points;
    const auto count = double(numbers.size());
    const double room = m_body.width() - count * SheetTable::numberGap(points);
    const double wanted = words * scale + breath;
    const double readable = std::min(wanted, readableWords);
    const double least = points > smallestPoints ? readable : std::min(wanted, leastWords);
    std::vector<double> widths;
    widths.reserve(numbers.size() + 1);
    for (const double number : numbers)
        widths.push_back(number * scale + breath);
    // Equal columns look better, but not beside broken words.
    const double widest = *std::max_element(widths.begin(), widths.end());
    if (room - count * widest >= readable)
        std::fill(widths.begin(), widths.end(), widest);
    const double left = room - std::accumulate(widths.begin(), widths.end(), 0.0);
    if (left < least)
        return std::nullopt;
    const double first = std::min(left, wanted);
    for (double &width : widths)
        width += (left - first) / count;
    widths.insert(widths.begin(), first);
    return Fit{points, std::move(widths)};
}

void TableFit::place(const Table &table, Items &items)
{
    const std::size_t all = table.numbers.size();
    for (std::size_t parts = 1; parts <= all; ++parts) {
        const std::size_t most = (all + parts - 1) / parts;
        std::vector<Fit> fits;
        for (std::size_t first = 0; first < all; first += most) {
            const auto begin = table.numbers.begin() + std::ptrdiff_t(first);
            const auto end = begin + std::ptrdiff_t(std::min(most, all - first));
            auto found = fit(table.words, std::vector<double>(begin, end));
            if (!found)
                break;
            fits.push_back(std::move(*found));
        }
        if (fits.size() * most < all)
            continue;
        m_isCut = m_isCut || parts > 1;
        const bool areTogether = areOnOneSheet(table, fits.size(), fits.front().points);
        for (std::size_t i = 0; i < fits.size(); ++i) {
            if (i > 0 && areTogether)
                items.emplace_back(PageItem::Line{});
            else if (i > 0)
                items.emplace_back(PageItem::Break{});
            PageItem::Columns columns = table.columns;
            columns.headings = part(columns.headings, i * most, most);
            columns.weights = fits[i].widths;
            columns.alignments.assign(fits[i].widths.size(), Qt::AlignRight);
            columns.alignments.front() = Qt::AlignLeft;
            columns.points = fits[i].points;
            append(items, columns, table.rows, i * most, most);
        }
        return;
    }
    // No sheet is so narrow; what is left of one shows what it can.
    append(items, table.columns, table.rows, 0, all);
}

bool TableFit::areOnOneSheet(const Table &table, std::size_t parts, double points) const
{
    const double line = m_types.body.lineHeight() * points / m_types.points;
    const double rows = double(table.rows.size()) + 2;
    return double(parts) * rows * (line + line / 3) < m_body.height() - frameOfSheet;
}
