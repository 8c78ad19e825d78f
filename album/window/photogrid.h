// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturegrid.h"

class PhotoTiles;

/// The pictures of what is shown, which are dragged into albums and, in an album that is ordered by hand, to
/// another place.
class PhotoGrid final : public PictureGrid
{
    Q_OBJECT
public:
    PhotoGrid(PictureQueue &queue, PhotoTiles *tiles, QWidget *parent = nullptr);

    /// Whether they can be dragged to another place among one another.
    void setArrangeable(bool isArrangeable) { m_isArrangeable = isArrangeable; }
    QList<int> chosenRecords() const;

signals:
    /// Pictures were dragged before another one; 0: behind the last.
    void arranged(const QList<int> &records, int before);
    /// Files or folders were dropped from outside.
    void filesDropped(const QStringList &paths);
    /// They were dragged where they have an order of their own already.
    void refused();

protected:
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isOwn(const QDropEvent *event) const;
    int placeAt(QPoint point) const;
    void setPlace(int place);

    PhotoTiles *m_photos;
    bool m_isArrangeable = false;
    int m_place = -1; ///< before which row something dragged would go; -1: nowhere
};
