// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemcolumns.h"

#include "shell/controls/cellgrid.h"
#include "shell/look/theme.h"
#include "todo/window/itemsmodel.h"

#include <QHeaderView>
#include <QTableView>

#include <algorithm>
#include <array>

namespace {

/// Between what the column takes in any case, and what it never exceeds, in the font that it was drawn for.
struct Width {
    ItemsModel::Column column;
    int least;
    int most;
};
constexpr std::array widths{Width{ItemsModel::Text, 170, 240},  Width{ItemsModel::Due, 110, 190},
                            Width{ItemsModel::Actual, 98, 140}, Width{ItemsModel::Who, 64, 190},
                            Width{ItemsModel::Repeat, 90, 330}, Width{ItemsModel::List, 64, 180}};
constexpr int stepWidth = 48; ///< on both sides
constexpr int signWidth = 20;
/// More rows are not asked for what they need: their texts would have to be decoded.
constexpr int mostRows = 100;

/// What its heading and the rows of the view need, as far as there is any sense in it.
int neededWidth(const QTableView &grid, const Width &width)
{
    const QAbstractItemModel &model = *grid.model();
    const QFontMetrics metrics(TypeScale::body());
    int needed = metrics.horizontalAdvance(model.headerData(width.column, Qt::Horizontal).toString());
    for (int row = 0; row < std::min(model.rowCount(), mostRows); ++row) {
        const QModelIndex cell = model.index(row, width.column);
        const bool hasSign = !cell.data(GridCell::signRole).toString().isEmpty();
        needed =
            std::max(needed, metrics.horizontalAdvance(cell.data().toString()) + (hasSign ? signWidth : 0) +
                                 (cell.data(ItemsModel::stepRole).toBool() && width.column == ItemsModel::Text
                                      ? stepWidth
                                      : 0));
    }
    return std::clamp(needed + 2 * CellGrid::inset + 2, TypeScale::wide(width.least),
                      TypeScale::wide(width.most));
}

/// The date is never cut: "overdue" stands behind it.
int leastOf(const Width &width, int needed)
{
    return width.column == ItemsModel::Due ? needed : TypeScale::wide(width.least);
}

} // namespace

/// What is left over goes to the text, which asks for little itself: one long text would make all others
/// short. What is missing is missing in all columns alike.
void ItemColumns::shareWidth(QTableView &grid)
{
    QHeaderView &heading = *grid.horizontalHeader();
    std::array<int, widths.size()> needed{};
    int least = tickWidth;
    int all = tickWidth;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (grid.isColumnHidden(widths[i].column))
            continue;
        needed[i] = neededWidth(grid, widths[i]);
        least += leastOf(widths[i], needed[i]);
        all += needed[i];
    }
    const int room = grid.viewport()->width();
    const double share = all > least ? std::clamp(double(room - least) / (all - least), 0., 1.) : 1.;
    int taken = tickWidth;
    for (std::size_t i = widths.size(); i-- > 1;) {
        if (grid.isColumnHidden(widths[i].column))
            continue;
        const int narrow = leastOf(widths[i], needed[i]);
        const int width = narrow + int((needed[i] - narrow) * share);
        heading.resizeSection(widths[i].column, width);
        taken += width;
    }
    heading.resizeSection(ItemsModel::Tick, tickWidth);
    heading.resizeSection(ItemsModel::Text, std::max(TypeScale::wide(widths[0].least), room - taken));
}
