// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carrowdelegate.h"

#include "shell/look/theme.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int corner = 6;
constexpr int iconSize = 32;
constexpr int pictureGap = 10;
constexpr int enoughForWords = 150; ///< beside a picture, however long a name is

void paintPicture(QPainter &painter, const QRect &place, const QImage &picture, const Theme &theme)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(place, corner, corner);
    painter.fillPath(shape, theme.field);
    if (picture.isNull()) {
        const qreal ratio = painter.device()->devicePixelRatioF();
        const QRect sign(place.center() - QPoint(iconSize, iconSize) / 2, QSize(iconSize, iconSize));
        painter.drawPixmap(sign, Icons::pixmap("car-log"_L1, theme.scheme, iconSize, ratio));
    } else {
        painter.setClipPath(shape);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QSizeF whole = QSizeF(picture.size()).scaled(place.size(), Qt::KeepAspectRatioByExpanding);
        QRectF target({}, whole);
        target.moveCenter(QRectF(place).center());
        painter.drawImage(target, picture);
        painter.setClipping(false);
    }
    painter.setPen(theme.line);
    painter.drawPath(shape);
    painter.restore();
}

} // namespace

QSize CarRowDelegate::pictureSize()
{
    return {60, 44};
}

/// In a narrow list the names and what is due come before the pictures, in all rows alike.
bool CarRowDelegate::hasPictures(const QRect &row, const QModelIndex &index)
{
    const int room = row.width() - 2 * inset - pictureSize().width() - pictureGap;
    if (!index.isValid() || room >= TypeScale::wide(enoughForWords))
        return true;
    for (int i = 0; i < index.model()->rowCount(); ++i) {
        if (neededWidth(index.siblingAtRow(i)) > room)
            return false;
    }
    return true;
}

QRect CarRowDelegate::linesPlace(const QRect &row, const QModelIndex &index) const
{
    const int picture = hasPictures(row, index) ? pictureSize().width() + pictureGap : 0;
    return row.adjusted(inset + picture, 0, -inset, 0);
}

QSize CarRowDelegate::sizeHint(const QStyleOptionViewItem & /*option*/, const QModelIndex & /*index*/) const
{
    return {pictureSize().width() + 120, std::max(pictureSize().height(), linesHeight()) + 14};
}

void CarRowDelegate::paintBeside(QPainter *painter, const QStyleOptionViewItem &row, const QModelIndex &index,
                                 const QRect & /*title*/) const
{
    if (!hasPictures(row.rect, index))
        return;
    const QRect place({row.rect.left() + inset, row.rect.center().y() - pictureSize().height() / 2 + 1},
                      pictureSize());
    paintPicture(*painter, place, index.data(Qt::DecorationRole).value<QImage>(), Theme::of(row.widget));
}
