// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/cellgrid.h"

class ItemsModel;

/// A grid whose rows are put into another order with the mouse. A line shows where they would go.
class OrderedGrid : public CellGrid
{
    Q_OBJECT
public:
    explicit OrderedGrid(ItemsModel &model, QWidget *parent = nullptr);

protected:
    /// Whether the mouse that is moved now may take the chosen rows along.
    virtual bool mayDrag() = 0;

    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    int endOfRows() const;

    ItemsModel &m_model;
    int m_dropLine = -1; ///< where what is dragged would go; -1: nowhere
};
