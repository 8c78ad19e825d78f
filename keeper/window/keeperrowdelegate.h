// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/twolinedelegate.h"

/// A row of the keeper's list: the title, below it what tells the entry from others, a star at the right for
/// a favourite.
class KeeperRowDelegate final : public TwoLineDelegate
{
    Q_OBJECT
public:
    using TwoLineDelegate::TwoLineDelegate;

protected:
    int besideTitle(const QModelIndex &index) const override;
    void paintBeside(QPainter *painter, const QStyleOptionViewItem &row, const QModelIndex &index,
                     const QRect &title) const override;
};
