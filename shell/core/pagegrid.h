// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

/// One entry of a cell, wrapped to it with a hanging indent.
struct GridLine {
    QString text;
    QString lead{}; ///< in a column of its own before it: the day, in a list below a grid of numbers
    int index = -1; ///< which one it is to whoever made the grid; -1: none
    int tone = 0;   ///< of a square before it; 0: none
    bool isStrong = false;
    QString name{};           ///< of a note in the list of what found no room: "25 Jul to 5 Sep"
    bool isContinued = false; ///< a note that has been told in an earlier grid: the list leaves it out

    bool operator==(const GridLine &) const = default;
};

/// The place of one day.
struct GridCell {
    QDate date{};
    QString number{};
    QString name{};        ///< in the list of what found no room: "Sat 14"
    bool isStrong = false; ///< the number
    bool isQuiet = false;  ///< of another month
    bool isTinted = false; ///< on a light tone
    bool hasDot = false;   ///< below its number, where the lines stand elsewhere
    QList<GridLine> lines{};
    qsizetype beside = 0; ///< so many of the first lines stand beside the number, where they have room there

    bool operator==(const GridCell &) const = default;
};

/// A bar over cells that follow one another: along a row, or down a column.
struct GridSpan {
    int row = 0;
    int column = 0;
    int length = 1; ///< in cells
    int tone = 1;
    QString text{};
    int index = -1;           ///< which one it is to whoever made the grid
    bool beginsHere = true;   ///< it does not come from a row or sheet before
    bool endsHere = true;     ///< nor does it go on
    bool isContinued = false; ///< its beginning stands in this grid

    bool operator==(const GridSpan &) const = default;
};

/// What stands over a column or before a row.
struct GridHead {
    QString text{};
    QString note{}; ///< over a column: the same in short; before a row: the name of the day
    QString week{}; ///< number of the week that begins here
    bool isStrong = false;
    bool isTinted = false;
    bool beginsWeek = false;

    bool operator==(const GridHead &) const = default;
};

/// How the days of a grid stand.
enum class GridForm {
    Weeks,  ///< a row a week, each day's lines below its number
    Days,   ///< a row a day, its number before it, its lines across
    Numbers ///< a row a week, numbers only; lines in a list below
};

/// One grid of cells: a month.
struct GridBlock {
    GridForm form = GridForm::Weeks;
    QRectF share{0, 0, 1, 1}; ///< of the room for grids
    QSizeF padding{0, 0};     ///< at its sides, above and below, in inches
    QString title{};
    QList<GridHead> columns{};
    QList<GridHead> rows{};  ///< none: there are no heads before the rows
    QList<GridCell> cells{}; ///< row by row
    QList<GridSpan> spans{};
    QList<GridLine> notes{}; ///< below the grid

    qsizetype rowCount() const { return columns.isEmpty() ? 0 : cells.size() / columns.size(); }
    bool operator==(const GridBlock &) const = default;
};

/// A picture beside or above the grids. Where the file cannot be read there is a frame with its name, and
/// without a path an empty place.
struct GridPhoto {
    enum Side { Above, Left };

    Side side = Above;
    double share = 0.45; ///< of the sheet's height or width
    QString path{};
    QString caption{};

    bool operator==(const GridPhoto &) const = default;
};

/// How a grid is drawn.
enum class GridStyle {
    Thin, ///< hairlines
    Open, ///< no lines, large numbers
    Band  ///< the heads of the columns as a band
};

/// A sheet that is filled by grids of days, described before anything is measured: which lines find room in
/// their cell is decided where fonts are known.
struct PageGrid {
    static constexpr int tones = 6;

    QRectF place{}; ///< inches from the sheet's upper left corner
    GridStyle style = GridStyle::Thin;
    QString family{};  ///< empty: the page font's
    double points = 0; ///< of the lines; 0: what suits the grid
    QString title{};
    QString titleLight{};          ///< behind it, in a lighter weight: the year
    QList<GridBlock> smallGrids{}; ///< at the right of the title
    bool hasPhoto = false;
    GridPhoto photo{};
    QList<GridBlock> blocks{};
    bool hasCutMarks = false; ///< between the blocks
    QString restTitle{};      ///< of the list of what found no room: "Also this month"
    QRectF foot{};            ///< the place of one small line, in inches
    QString footLeft{};
    QString footRight{};

    /// As it is read: a line an entry, behind its day.
    QString text() const;

    bool operator==(const PageGrid &) const = default;
};
