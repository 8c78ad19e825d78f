// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/pagetype.h"

class QPainter;

/// A picture with its caption, as it stands on a sheet.
class PageFigure
{
public:
    /// In a flow as large as `body`, in points.
    PageFigure(const PageItem::Figure &figure, const PageTypes &types, QSizeF body);

    double height() const { return m_picture.height() + captionHeight(); }
    /// Makes the picture smaller, by a third at most, until all is no higher than `height`. False where that
    /// is not enough.
    bool giveWay(double height);
    /// Draws it in the middle of the flow that begins at `top`.
    void draw(QPainter &painter, QPointF top) const;

    /// Where a picture of so many dots stands alone in `place`, as `drawIn` draws it.
    static QRectF placeIn(const QRectF &place, QSizeF dots);
    /// Draws a picture alone in the middle of `place`, as large as fits and is good for its dots. Where it
    /// cannot be read there is a frame with its name. Gives the lower edge of what was drawn.
    static double drawIn(QPainter &painter, const QRectF &place, const QString &path, const PageType &type);

private:
    double captionHeight() const;
    void drawCaption(QPainter &painter, QPointF top) const;

    const PageItem::Figure &m_figure;
    const PageType &m_type;
    QSizeF m_body;
    QSizeF m_picture;
    bool m_isThere;
    QStringList m_caption;
};
