// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/droplist.h"

#include "shell/look/theme.h"
#include "todo/window/itemdrag.h"
#include "todo/window/panerows.h"

#include <QDragMoveEvent>
#include <QPainter>

#include <algorithm>

DropList::DropList(QWidget *parent)
    : QListView(parent)
{
    setAcceptDrops(true);
    setDragEnabled(true);
}

bool DropList::isDraggable(const QModelIndex &row) const
{
    return row.flags().testFlag(Qt::ItemIsDragEnabled);
}

int DropList::lastDraggable() const
{
    int row = model()->rowCount() - 1;
    while (row >= 0 && !isDraggable(model()->index(row, 0)))
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
    return std::min(row.row() + (isBelow ? 1 : 0), behind);
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
    event->setAccepted(ItemDrag::isOne(event->mimeData()) || PaneRows::isRow(event->mimeData()));
}

void DropList::dragMoveEvent(QDragMoveEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (PaneRows::isRow(event->mimeData())) {
        mark({}, placeAt(point));
        event->accept();
        return;
    }
    const QModelIndex row = indexAt(point);
    mark(row, -1);
    event->setAccepted(ItemDrag::isOne(event->mimeData()) && row.isValid());
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
    if (PaneRows::isRow(event->mimeData())) {
        const int place = placeAt(point);
        const QModelIndex before = place <= lastDraggable() ? model()->index(place, 0) : QModelIndex();
        event->setDropAction(Qt::CopyAction); // the rows move with the lists, not by the view
        event->accept();
        emit ordered(PaneRows::keyOf(*event->mimeData()), before.data(PaneRows::keyRole).toInt());
        return;
    }
    const QModelIndex row = indexAt(point);
    if (!row.isValid())
        return;
    event->accept();
    emit dropped(row.data(PaneRows::keyRole).toInt(), ItemDrag::itemsOf(event->mimeData()));
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
    if (m_place < 0 || model()->rowCount() == 0)
        return;
    const int rows = model()->rowCount();
    const QRect row = visualRect(model()->index(std::min(m_place, rows - 1), 0));
    const int line = std::max(1, m_place < rows ? row.top() : row.bottom());
    painter.setPen(QPen(Theme::of(this).accent, 3));
    painter.drawLine(0, line, viewport()->width(), line);
}
