// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/keeperrowdelegate.h"

#include "keeper/window/keeperlistmodel.h"

using namespace Qt::Literals::StringLiterals;

int KeeperRowDelegate::besideTitle(const QModelIndex &index) const
{
    return index.data(KeeperListModel::FavouriteRole).toBool() ? signSize + signGap : 0;
}

void KeeperRowDelegate::paintBeside(QPainter *painter, const QStyleOptionViewItem &row,
                                    const QModelIndex &index, const QRect &title) const
{
    if (besideTitle(index) == 0)
        return;
    const QRect star(title.right() + signGap, title.top() + (title.height() - signSize) / 2, signSize,
                     signSize);
    paintSign(painter, "favourite"_L1, star, row);
}
