// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/backdrop.h"

#include "shell/look/theme.h"

#include <QImageReader>
#include <QPainter>

namespace {

/// What a picture is multiplied by on a dark desktop, and how much of the ground then lies over it: light
/// text is readable on any picture so treated.
constexpr QColor darkTint(0x46, 0x55, 0x5C);
constexpr qreal darkGround = 0.3;

/// The size to decode a picture of size `full` at, for an area of `area`. JPEG pictures are halved, once or
/// more, while they are decoded: that costs nothing, while any other size is scaled in a second, slow step.
/// The painter does the rest.
QSize decodingSize(QSize full, QSize area)
{
    const QSize cover = full.scaled(area.boundedTo(Backdrop::largest), Qt::KeepAspectRatioByExpanding);
    for (const int denominator : {8, 4, 2, 1}) {
        const QSize part((full.width() + denominator - 1) / denominator,
                         (full.height() + denominator - 1) / denominator);
        if (part.width() >= cover.width() && part.height() >= cover.height() &&
            part.boundedTo(Backdrop::largest) == part)
            return part;
    }
    return full.boundedTo(Backdrop::largest) == full ? full : cover;
}

void darken(QImage &image, const Theme &theme)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(image.rect(), darkTint);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setOpacity(darkGround);
    painter.fillRect(image.rect(), theme.ground);
}

} // namespace

void Backdrop::setFile(const QString &path)
{
    if (path == m_path)
        return;
    m_path = path;
    m_isFitted = false;
    m_image = {};
}

void Backdrop::fit(QSize size, const Theme &theme)
{
    m_isFitted = true;
    if (m_path.isEmpty() || size.isEmpty())
        return;
    QImageReader reader(m_path);
    const QSize full = reader.size();
    const QSize wanted = full.isEmpty() ? QSize() : decodingSize(full, size);
    if (wanted == m_image.size())
        return;
    m_image = {}; // never two of them at once
    reader.setScaledSize(wanted);
    m_image = reader.read();
    m_image.convertTo(QImage::Format_RGB32);
    if (hasPicture() && theme.scheme == Icons::Scheme::Dark)
        darken(m_image, theme);
}

void Backdrop::paint(QPainter &painter, const QRect &area, const Theme &theme) const
{
    if (!hasPicture()) {
        painter.fillRect(area, theme.ground);
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(area), m_image, sourceOf(area));
}

QColor Backdrop::meanColor(const QRect &part, const QRect &area, const Theme &theme) const
{
    if (!hasPicture() || area.isEmpty())
        return theme.ground;
    const QRectF source = sourceOf(area);
    const qreal scale = source.width() / area.width();
    constexpr int step = 4;
    qint64 red = 0, green = 0, blue = 0, count = 0;
    for (int y = part.top(); y <= part.bottom(); y += step) {
        for (int x = part.left(); x <= part.right(); x += step) {
            const QPoint at(int(source.x() + (x - area.x()) * scale),
                            int(source.y() + (y - area.y()) * scale));
            if (!m_image.rect().contains(at))
                continue;
            const QRgb pixel = m_image.pixel(at);
            red += qRed(pixel);
            green += qGreen(pixel);
            blue += qBlue(pixel);
            ++count;
        }
    }
    return count == 0 ? theme.ground : QColor(int(red / count), int(green / count), int(blue / count));
}

/// The part of the picture that covers `area`: all of its width or of its height, cut evenly at the sides or
/// at the top.
QRectF Backdrop::sourceOf(const QRect &area) const
{
    const QSizeF part = QSizeF(area.size()).scaled(m_image.size(), Qt::KeepAspectRatio);
    return {QPointF((m_image.width() - part.width()) / 2, m_image.height() - part.height()), part};
}
