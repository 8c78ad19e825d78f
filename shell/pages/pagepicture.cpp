// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagepicture.h"

#include "shell/core/page.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

/// What a printer can show; a screen asks for fewer.
constexpr double maximumDotsPerPoint = 300 / PageMetrics::pointsPerInch;
constexpr QColor rimColor(0xDD, 0xDD, 0xDD);

QSize pixelsOf(const QPainter &painter, QSizeF points)
{
    const QTransform transform = painter.combinedTransform();
    const double dots = std::hypot(transform.m11(), transform.m12());
    return (points * std::clamp(dots, 0.1, maximumDotsPerPoint)).toSize().expandedTo({1, 1});
}

/// Opening a pipe or a device would wait for it.
bool isFile(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isFile();
}

bool isTurned(const QImageReader &reader)
{
    return reader.transformation() & QImageIOHandler::TransformationRotate90;
}

} // namespace

QSizeF PagePicture::shapeOf(const QString &path)
{
    if (!isFile(path))
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize stored = reader.size();
    if (stored.isEmpty())
        return {};
    return isTurned(reader) ? stored.transposed() : stored;
}

PagePicture PagePicture::read(const QString &path, QSize pixels)
{
    if (!isFile(path))
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const bool turned = isTurned(reader);
    const QSize stored = turned ? reader.size().transposed() : reader.size();
    const QSize wanted = stored.scaled(pixels, Qt::KeepAspectRatio).expandedTo({1, 1});
    const bool shrinks = stored.isValid() && wanted.width() < stored.width();
    if (shrinks)
        reader.setScaledSize(turned ? wanted.transposed() : wanted);
    const QImage image = reader.read();
    return {image, stored.isValid() ? stored : image.size()};
}

void drawPagePicture(QPainter &painter, const QRectF &place, const QString &path)
{
    if (!place.isValid())
        return;
    const PagePicture picture = PagePicture::read(path, pixelsOf(painter, place.size()));
    painter.save();
    if (picture.image.isNull()) {
        painter.setPen(QPen(rimColor, 0.5));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(place.adjusted(0.25, 0.25, -0.25, -0.25));
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QSizeF size = picture.shape.scaled(place.size(), Qt::KeepAspectRatio);
        painter.drawImage(QRectF(place.topLeft(), size), picture.image);
    }
    painter.restore();
}
