// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/cardground.h"

#include "shell/look/theme.h"

#include <QPainter>
#include <QPixmapCache>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

QPixmap CardGround::of(const QWidget &widget, const QColor &fill)
{
    const Theme &theme = Theme::of(&widget);
    const qreal ratio = widget.devicePixelRatioF();
    const QString key = u"card %1x%2 %3 %4 %5"_s.arg(widget.width())
                            .arg(widget.height())
                            .arg(ratio)
                            .arg(fill.rgba())
                            .arg(widget.isEnabled());
    QPixmap ground;
    if (QPixmapCache::find(key, &ground))
        return ground;
    ground = QPixmap(widget.size() * ratio);
    ground.setDevicePixelRatio(ratio);
    ground.fill(Qt::transparent);
    QPainter painter(&ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF card = widget.rect().adjusted(margin, margin, -margin, -margin);
    // A soft shadow: three rims, each a little wider and fainter, the whole of them a little lower than the
    // card.
    for (const int spread : {3, 2, 1}) {
        painter.setBrush(QColor(0, 0, 0, widget.isEnabled() ? 16 : 8));
        painter.drawRoundedRect(card.adjusted(-spread, 2 - spread, spread, 1 + spread), corner + spread,
                                corner + spread);
    }
    painter.setBrush(fill);
    painter.setPen(QPen(theme.line, 1));
    painter.drawRoundedRect(card.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.end();
    QPixmapCache::insert(key, ground);
    return ground;
}
