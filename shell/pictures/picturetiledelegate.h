// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

class PictureGrid;

/// Draws a tile of a `PictureGrid`: the picture as far as it has been read, its name, quiet words.
class PictureTileDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit PictureTileDelegate(PictureGrid *grid);

    /// How large a tile is whose picture has this side, in the grid's font.
    static QSize tileSize(int side);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintPicture(QPainter &painter, const QRect &room, int row) const;
    void paintEmpty(QPainter &painter, const QRect &room, const QString &reason) const;
    void paintSign(QPainter &painter, const QRect &picture, QLatin1StringView icon) const;

    const PictureGrid &m_grid;
};
