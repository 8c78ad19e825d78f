// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemcolumns.h"

#include "shell/look/theme.h"
#include "todo/window/itemsmodel.h"

#include <QHeaderView>
#include <QTableView>

#include <algorithm>
#include <array>

namespace {

/// What the columns get beside the text of the items, in the font that they were drawn for.
struct Width {
    ItemsModel::Column column;
    int least;
    int usual;
};
constexpr std::array widths{Width{ItemsModel::Due, 154, 168}, Width{ItemsModel::Actual, 108, 116},
                            Width{ItemsModel::Who, 100, 150}, Width{ItemsModel::Repeat, 150, 270},
                            Width{ItemsModel::List, 112, 150}};
constexpr int leastText = 200;
constexpr int usualText = 290; ///< from here on the others grow

} // namespace

void ItemColumns::shareWidth(QTableView &grid)
{
    int usual = tickWidth;
    int least = tickWidth;
    for (const Width &width : widths) {
        if (grid.isColumnHidden(width.column))
            continue;
        usual += TypeScale::wide(width.usual);
        least += TypeScale::wide(width.least);
    }
    const int room = grid.viewport()->width();
    const double share =
        std::clamp(double(room - TypeScale::wide(usualText) - least) / (usual - least), 0., 1.);
    int taken = tickWidth;
    for (const Width &width : widths) {
        const int wide = TypeScale::wide(width.least + int((width.usual - width.least) * share));
        grid.horizontalHeader()->resizeSection(width.column, wide);
        taken += grid.isColumnHidden(width.column) ? 0 : wide;
    }
    grid.horizontalHeader()->resizeSection(ItemsModel::Tick, tickWidth);
    grid.horizontalHeader()->resizeSection(ItemsModel::Text,
                                           std::max(TypeScale::wide(leastText), room - taken));
}
