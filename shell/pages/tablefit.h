// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"
#include "shell/pages/pagetype.h"

#include <QSizeF>

#include <optional>
#include <vector>

/// Makes room for the tables of numbers on a sheet: gives their columns widths in points and their letters a
/// size, and cuts one that is too wide even in the smallest letters into tables that follow one another.
class TableFit
{
public:
    /// `body` is the part of the sheet that is filled, in points.
    TableFit(const PageTypes &types, QSizeF body);

    /// The page with tables that fit; one without tables of numbers as it is.
    Page fitted(const Page &page);
    /// Whether a table had to be cut.
    bool isCut() const { return m_isCut; }

private:
    using Items = std::vector<Page::Item>;

    /// A table of numbers with what it takes in the page font's own size.
    struct Table {
        PageItem::Columns columns;
        Items rows; ///< rules between them too
        double words = 0;
        std::vector<double> numbers;
    };

    /// The letters' size and the widths of the columns, both in points.
    struct Fit {
        double points;
        std::vector<double> widths;
    };

    Table measured(const PageItem::Columns &columns, Items rows) const;
    std::optional<Fit> fit(double words, const std::vector<double> &numbers) const;
    std::optional<Fit> fitIn(double points, double words, const std::vector<double> &numbers) const;
    void place(const Table &table, Items &items);
    bool areOnOneSheet(const Table &table, std::size_t parts, double points) const;

    const PageTypes &m_types;
    QSizeF m_body;
    bool m_isCut = false;
};
