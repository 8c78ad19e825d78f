// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QRectF>

#include <vector>

/// Where the days of a sheet, their lines and its bars stand, in points from its top left corner.
struct SheetPlan {
    struct Line {
        QRectF place;
        int line = 0; ///< of the day, as the calendar counts them
        bool operator==(const Line &) const = default;
    };
    struct Cell {
        QDate date;
        int person = 0; ///< the column of a sheet for several persons
        int row = 0;    ///< over all grids of the sheet
        int column = 0;
        bool isOutside = false; ///< a day of another month
        QRectF place;
        QRectF content;          ///< below the number
        std::vector<Line> lines; ///< in their places
        QList<int> all;          ///< with those that have no room here, in their order
        bool operator==(const Cell &) const = default;
    };
    /// A line that has no room in its day, in the list at the foot.
    struct Listed {
        QRectF place;
        QDate date;
        int line = 0;
        bool operator==(const Listed &) const = default;
    };
    /// A day of a small month beside the title, or such a month as a whole, as its first.
    struct SmallDay {
        QRectF place;
        QDate date;
        bool operator==(const SmallDay &) const = default;
    };
    struct Bar {
        QRectF place;
        int span = 0;
        bool operator==(const Bar &) const = default;
    };

    QSizeF sheet;
    bool isByPerson = false; ///< days go down, persons across
    int rows = 0;
    int columns = 0;
    std::vector<Cell> cells;
    std::vector<Bar> bars;
    std::vector<Listed> listed;
    std::vector<SmallDay> smallDays;

    /// The place of a day among `cells`, in its own month where it stands in two; -1 where it is not here.
    int find(QDate date, int person = 0) const;
    int cellAt(QPointF point) const;
    /// The line of a cell that stands at `point`, as the calendar counts them; -1 for none.
    int lineAt(int cell, QPointF point) const;
    /// The bar that stands there; -1 for none.
    int spanAt(QPointF point) const;
    /// The line of the list at the foot that stands there; null for none.
    const Listed *listedAt(QPointF point) const;
    /// The place in that list of a line of a day; empty where it is not there.
    QRectF listedPlace(QDate date, int line) const;
    /// The person's column in which a line stands, or would.
    int personOf(QDate date, int line) const;
    /// The day of a small month that stands there, none where there is none.
    QDate smallDayAt(QPointF point) const;
    /// Whether both have the same days at the same places of the table.
    bool hasSameDays(const SheetPlan &other) const;
};
