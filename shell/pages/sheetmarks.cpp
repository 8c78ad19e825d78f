// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/sheetmarks.h"

#include "shell/pages/pagelayout.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar upTo(u'\u2013');

int markOf(const Page::Item &item)
{
    if (const auto *paragraph = std::get_if<PageItem::Paragraph>(&item))
        return paragraph->mark;
    const auto *section = std::get_if<PageItem::Section>(&item);
    return section ? section->mark : 0;
}

/// The number of the sheet on which item `item` begins.
int sheetOf(std::size_t item, const std::vector<SheetStart> &starts)
{
    const auto begun = std::ranges::partition_point(starts, [item](const SheetStart &start) {
        return start.item < item || (start.item == item && start.line == 0);
    });
    return std::max(1, int(begun - starts.begin()));
}

} // namespace

SheetMarks::SheetMarks(const std::vector<Page::Item> &items)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (const int mark = markOf(items[i]))
            m_items.insert(mark, i);
    }
}

PageItem::Row SheetMarks::withNumbers(PageItem::Row row, const std::vector<SheetStart> &starts) const
{
    if (row.marks.empty() || row.cells.isEmpty())
        return row;
    const QString numbers = numbersOf(row.marks, starts);
    row.cells.last() += row.cells.constLast().isEmpty() ? numbers : u"  "_s + numbers;
    return row;
}

/// "3, 17, 40\u201343".
QString SheetMarks::numbersOf(const std::vector<int> &marks, const std::vector<SheetStart> &starts) const
{
    std::vector<int> sheets;
    sheets.reserve(marks.size());
    for (const int mark : marks) {
        if (const auto item = m_items.constFind(mark); item != m_items.cend())
            sheets.push_back(sheetOf(*item, starts));
    }
    std::ranges::sort(sheets);
    sheets.erase(std::unique(sheets.begin(), sheets.end()), sheets.end());
    QStringList numbers;
    for (auto first = sheets.begin(); first != sheets.end();) {
        auto last = first;
        while (last + 1 != sheets.end() && *(last + 1) == *last + 1)
            ++last;
        if (last - first < 2)
            last = first;
        numbers << QString::number(*first);
        if (last != first)
            numbers.last() += upTo + QString::number(*last);
        first = last + 1;
    }
    return numbers.join(u", "_s);
}
