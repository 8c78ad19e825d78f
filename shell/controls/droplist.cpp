// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/droplist.h"

#include "shell/controls/itemdrag.h"
#include "shell/controls/panerows.h"
#include "shell/look/theme.h"

#include <QDragMoveEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

DropList::DropList(QString itemFormat, QWidget *parent)
    : QListView(parent)
    , m_itemFormat(std::move(itemFormat))
{
    setAcceptDrops(true);
    setDragEnabled(true);
}

void DropList::setRows(PaneRows *rows)
{
    m_rows = rows;
    setModel(rows);
}

bool DropList::takes(const QModelIndex &row) const
{
    return row.isValid() && row.flags().testFlag(Qt::ItemIsDropEnabled);
}

bool DropList::isDraggable(const QModelIndex &row) const
{
    return row.flags().testFlag(Qt::ItemIsDragEnabled);
}

int DropList::firstDraggable() const
{
    int row = 0;
    while (row < m_rows->rowCount() && !isDraggable(m_rows->index(row)))
        ++row;
    return row;
}

int DropList::lastDraggable() const
{
    int row = m_rows->rowCount() - 1;
    while (row >= 0 && !isDraggable(m_rows->index(row)))
        --row;
    return row;
}

/// Before which row something dropped at `point` would stand.
int DropList::placeAt(QPoint point) const
{
    const QModelIndex row = indexAt(point);
    const int behind = lastDraggable() + 1;
    if (!row.isValid())
        return behind;
    const bool isBelow = point.y() > visualRect(row).center().y();
    return std::clamp(row.row() + (isBelow ? 1 : 0), firstDraggable(), behind);
}

void DropList::mark(const QModelIndex &target, int place)
{
    m_target = target;
    m_place = place;
    viewport()->update();
}

void DropList::startDrag(Qt::DropActions actions)
{
    QListView::startDrag(actions);
    mark({}, -1);
    emit released();
}

void DropList::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(ItemDrag::isOne(m_itemFormat, event->mimeData()) || m_rows->isRow(event->mimeData()));
}

void DropList::dragMoveEvent(QDragMoveEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (m_rows->isRow(event->mimeData())) {
        mark({}, placeAt(point));
        event->accept();
        return;
    }
    const QModelIndex row = indexAt(point);
    const bool isTaken = ItemDrag::isOne(m_itemFormat, event->mimeData()) && takes(row);
    mark(isTaken ? row : QModelIndex(), -1);
    event->setAccepted(isTaken);
}

void DropList::dragLeaveEvent(QDragLeaveEvent *event)
{
    QListView::dragLeaveEvent(event);
    mark({}, -1);
}

void DropList::dropEvent(QDropEvent *event)
{
    mark({}, -1);
    const QPoint point = event->position().toPoint();
    if (m_rows->isRow(event->mimeData())) {
        const int place = placeAt(point);
        const QModelIndex before = place <= lastDraggable() ? m_rows->index(place) : QModelIndex();
        event->setDropAction(Qt::CopyAction); // the rows move with the lists, not by the view
        event->accept();
        emit ordered(m_rows->keyOf(*event->mimeData()), before.data(PaneRows::keyRole).toInt());
        return;
    }
    const QModelIndex row = indexAt(point);
    if (!takes(row))
        return;
    event->accept();
    emit dropped(row.data(PaneRows::keyRole).toInt(), ItemDrag::itemsOf(m_itemFormat, event->mimeData()));
}

/// The row onto which something is about to be dropped bears a rim; between two rows there is a line.
void DropList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    QPainter painter(viewport());
    if (m_target.isValid()) {
        painter.setPen(QPen(Theme::of(this).accent, 2));
        painter.drawRect(visualRect(m_target).adjusted(1, 1, -1, -1));
    }
    if (m_place < 0 || m_rows->rowCount() == 0)
        return;
    const int rows = m_rows->rowCount();
    const QRect row = visualRect(m_rows->index(std::min(m_place, rows - 1)));
    const int line = std::max(1, m_place < rows ? row.top() : row.bottom());
    painter.setPen(QPen(Theme::of(this).accent, 3));
    painter.drawLine(0, line, viewport()->width(), line);
}
