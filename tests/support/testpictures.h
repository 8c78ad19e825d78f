// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QTest>

/// Saves a picture in one color at `path` and returns the path.
inline QString makePicture(const QString &path, QSize size, const QColor &color = Qt::darkGreen)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    if (!image.save(path))
        QTest::qFail("no picture", __FILE__, __LINE__);
    return path;
}
