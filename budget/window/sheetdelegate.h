// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/celldelegate.h"

/// Draws a cell of the worksheet: an amount over its plan is marked, and squeezed where it has little room.
class SheetDelegate final : public CellDelegate
{
    Q_OBJECT
public:
    using CellDelegate::CellDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    int insetOf(const QModelIndex &index) const override;
    QLineEdit *makeBox(QWidget *parent, const QModelIndex &index) const override;
};
