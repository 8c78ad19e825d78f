// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/sharpline.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

void fillSharpLine(QPainter &painter, QRectF line, const QColor &color)
{
    const QTransform transform = painter.combinedTransform();
    if (transform.type() <= QTransform::TxScale) {
        const QRectF dots = transform.mapRect(line);
        const bool isLevel = dots.width() > dots.height();
        const double thickness = std::max(1.0, std::round(std::min(dots.width(), dots.height())));
        const QRectF sharp = isLevel ? QRectF(dots.left(), std::round(dots.top()), dots.width(), thickness)
                                     : QRectF(std::round(dots.left()), dots.top(), thickness, dots.height());
        line = transform.inverted().mapRect(sharp);
    }
    painter.fillRect(line, color);
}
