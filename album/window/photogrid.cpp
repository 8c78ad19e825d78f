// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/photogrid.h"

#include "album/window/phototiles.h"
#include "shell/controls/itemdrag.h"
#include "shell/look/theme.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

#include <algorithm>

namespace {

QStringList filesOf(const QMimeData *data)
{
    QStringList paths;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

PhotoGrid::PhotoGrid(PictureQueue &queue, PhotoTiles *tiles, QWidget *parent)
    : PictureGrid(queue, parent)
    , m_photos(tiles)
{
    setTiles(tiles);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
}

QList<int> PhotoGrid::chosenRecords() const
{
    QList<int> records;
    for (const int row : chosenRows())
        records.append(m_photos->recordAt(row));
    return records;
}

/// The usual drag would draw all of them, however many they are.
void PhotoGrid::startDrag(Qt::DropActions)
{
    QModelIndexList rows = selectionModel()->selectedIndexes();
    if (rows.isEmpty())
        return;
    std::ranges::sort(rows, {}, &QModelIndex::row);
    auto *drag = new QDrag(this);
    drag->setMimeData(m_photos->mimeData(rows));
    const QImage first = kept(rows.first().row()).image;
    if (!first.isNull()) {
        drag->setPixmap(QPixmap::fromImage(first.scaled(leastSide, leastSide, Qt::KeepAspectRatio)));
        drag->setHotSpot({leastSide / 4, leastSide / 4});
    }
    drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::CopyAction);
    setPlace(-1);
}

bool PhotoGrid::isOwn(const QDropEvent *event) const
{
    return ItemDrag::isOne(PhotoTiles::dragFormat(), event->mimeData());
}

void PhotoGrid::dragEnterEvent(QDragEnterEvent *event)
{
    event->setAccepted(isOwn(event) || event->mimeData()->hasUrls());
}

void PhotoGrid::dragMoveEvent(QDragMoveEvent *event)
{
    PictureGrid::dragMoveEvent(event); // scrolls at the edges
    const bool isPlaced = isOwn(event) && m_isArrangeable;
    setPlace(isPlaced ? placeAt(event->position().toPoint()) : -1);
    event->setAccepted(isOwn(event) || event->mimeData()->hasUrls());
}

void PhotoGrid::dragLeaveEvent(QDragLeaveEvent *event)
{
    PictureGrid::dragLeaveEvent(event);
    setPlace(-1);
}

void PhotoGrid::dropEvent(QDropEvent *event)
{
    setPlace(-1);
    event->setDropAction(Qt::CopyAction); // the pictures are moved by the album, not by the view
    event->accept();
    if (!isOwn(event)) {
        if (const QStringList paths = filesOf(event->mimeData()); !paths.isEmpty())
            emit filesDropped(paths);
        return;
    }
    if (!m_isArrangeable) {
        emit refused();
        return;
    }
    const std::vector<int> dragged = ItemDrag::itemsOf(PhotoTiles::dragFormat(), event->mimeData());
    int place = placeAt(event->position().toPoint());
    while (place < m_photos->rowCount() && std::ranges::count(dragged, m_photos->recordAt(place)) > 0)
        ++place; // before one that stays
    emit arranged(QList<int>(dragged.begin(), dragged.end()), m_photos->recordAt(place));
}

/// Before which row something dropped at `point` would stand.
int PhotoGrid::placeAt(QPoint point) const
{
    const QModelIndex row = indexAt(point);
    if (row.isValid())
        return row.row() + (point.x() > visualRect(row).center().x() ? 1 : 0);
    // Beside the last one of its line, or below all of them.
    const QModelIndex first = indexAt({1, point.y()});
    return first.isValid() ? std::min(first.row() + columns(), m_photos->rowCount()) : m_photos->rowCount();
}

void PhotoGrid::setPlace(int place)
{
    if (place == m_place)
        return;
    m_place = place;
    viewport()->update();
}

/// A line stands where something dragged would go.
void PhotoGrid::paintEvent(QPaintEvent *event)
{
    PictureGrid::paintEvent(event);
    const int count = m_photos->rowCount();
    if (m_place < 0 || count == 0)
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(Theme::of(this).accent, 3));
    const QRect tile = visualRect(m_photos->index(std::min(m_place, count - 1)));
    const int x = std::max(2, m_place < count ? tile.left() : tile.right());
    painter.drawLine(x, tile.top() + 8, x, tile.bottom() - 8);
}
