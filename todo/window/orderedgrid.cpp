// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/orderedgrid.h"

#include "shell/look/theme.h"
#include "todo/window/itemsmodel.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>

#include <algorithm>

OrderedGrid::OrderedGrid(ItemsModel &model, QWidget *parent)
    : CellGrid(parent)
    , m_model(model)
{
    setDragDropMode(DragDrop);
    setDragDropOverwriteMode(false);
    setDropIndicatorShown(false);
    setDefaultDropAction(Qt::MoveAction);
}

void OrderedGrid::dragMoveEvent(QDragMoveEvent *event)
{
    CellGrid::dragMoveEvent(event);
    const bool isTaken = m_model.canDropMimeData(event->mimeData(), Qt::MoveAction, 0, 0, {});
    const QModelIndex row = indexAt(event->position().toPoint());
    const QRect place = visualRect(row);
    m_dropLine = !isTaken                                               ? -1
                 : !row.isValid()                                       ? endOfRows()
                 : event->position().toPoint().y() > place.center().y() ? place.bottom()
                                                                        : place.top();
    event->setAccepted(isTaken);
    viewport()->update();
}

void OrderedGrid::dragLeaveEvent(QDragLeaveEvent *event)
{
    CellGrid::dragLeaveEvent(event);
    m_dropLine = -1;
    viewport()->update();
}

int OrderedGrid::endOfRows() const
{
    return m_model.rowCount() == 0 ? 0 : visualRect(m_model.index(m_model.rowCount() - 1, 0)).bottom();
}

/// Where what is dragged would go.
void OrderedGrid::paintEvent(QPaintEvent *event)
{
    CellGrid::paintEvent(event);
    if (m_dropLine < 0)
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(Theme::of(this).accent, 3));
    painter.drawLine(0, m_dropLine, viewport()->width(), m_dropLine);
}

/// The rows are moved by the lists: the view shall remove none.
void OrderedGrid::dropEvent(QDropEvent *event)
{
    m_dropLine = -1;
    viewport()->update();
    const QPoint point = event->position().toPoint();
    const QModelIndex row = indexAt(point);
    const bool isBelow = row.isValid() && point.y() > visualRect(row).center().y();
    m_model.dropMimeData(event->mimeData(), Qt::MoveAction,
                         row.isValid() ? row.row() + (isBelow ? 1 : 0) : -1, 0, {});
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void OrderedGrid::startDrag(Qt::DropActions)
{
    if (!mayDrag())
        return;
    QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    std::ranges::sort(rows, {}, &QModelIndex::row);
    auto *drag = new QDrag(this);
    drag->setMimeData(m_model.mimeData(rows));
    drag->exec(Qt::MoveAction);
    viewport()->update();
}
