// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/gridwalk.h"

namespace {

using GridWalk::Grid;

bool mayStop(int place, const Grid &grid)
{
    return place >= 0 && place < grid.count && grid.isUsable(place);
}

/// The first usable place from `from` on, in steps of 1 or -1.
std::optional<int> along(int from, int step, const Grid &grid)
{
    for (int place = from; place >= 0 && place < grid.count; place += step) {
        if (grid.isUsable(place))
            return place;
    }
    return {};
}

/// Row by row; in each the nearest place to the column that we come from.
std::optional<int> across(int at, int step, const Grid &grid)
{
    const int from = at % grid.columns;
    for (int row = at / grid.columns + step; row >= 0 && row * grid.columns < grid.count; row += step) {
        for (int away = 0; away < grid.columns; ++away) {
            for (const int column : {from - away, from + away}) {
                if (column >= 0 && column < grid.columns && mayStop(row * grid.columns + column, grid))
                    return row * grid.columns + column;
            }
        }
    }
    return {};
}

} // namespace

std::optional<int> GridWalk::placeFrom(int at, int key, const Grid &grid)
{
    switch (key) {
    case Qt::Key_Left:
        return along(at - 1, -1, grid);
    case Qt::Key_Right:
        return along(at + 1, 1, grid);
    case Qt::Key_Up:
        return across(at, -1, grid);
    case Qt::Key_Down:
        return across(at, 1, grid);
    case Qt::Key_Home:
        return along(0, 1, grid);
    case Qt::Key_End:
        return along(grid.count - 1, -1, grid);
    default:
        return {};
    }
}
