// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/wavyline.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

void drawWavyLine(QPainter &painter, qreal left, qreal right, qreal top, const QColor &color)
{
    constexpr qreal half = 2; // of a wave, in width and in height
    QPainterPath wave(QPointF(left, top));
    bool isDown = true;
    for (qreal x = left; x < right; isDown = !isDown) {
        x = std::min(x + half, right);
        wave.lineTo(x, isDown ? top + half : top);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.2));
    painter.drawPath(wave);
    painter.restore();
}
