// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"

#include <QHash>

#include <vector>

struct SheetStart;

/// The marks of a page, and the numbers of the sheets that they stand on.
class SheetMarks
{
public:
    explicit SheetMarks(const std::vector<Page::Item> &items);

    /// `row` with the numbers of its marks behind the last cell, as far as the sheets that begin at `starts`
    /// reach.
    PageItem::Row withNumbers(PageItem::Row row, const std::vector<SheetStart> &starts) const;

private:
    QString numbersOf(const std::vector<int> &marks, const std::vector<SheetStart> &starts) const;

    QHash<int, std::size_t> m_items; ///< by mark
};
