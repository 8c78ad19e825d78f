// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/celldelegate.h"

class Writing;

/// Draws things to do: the box for the tick, steps further in than their items, what is done struck through,
/// headings in strong letters.
class ItemCells final : public CellDelegate
{
    Q_OBJECT
public:
    ItemCells(CellGrid *grid, Writing &writing);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

protected:
    int insetOf(const QModelIndex &index) const override;
    QString cut(const QModelIndex &index, const QFontMetrics &metrics, int width) const override;
    QLineEdit *makeBox(QWidget *parent, const QModelIndex &index) const override;

private:
    void paintTick(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;

    Writing &m_writing;
};
