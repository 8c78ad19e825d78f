// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>

class QPainter;

/// A picture file read for printing: no larger than it will be seen, turned as its camera was held.
struct PagePicture {
    QImage image; ///< null when the file cannot be read
    QSizeF shape; ///< width and height of the whole picture, to keep its aspect

    /// Reads the file scaled down to fit `pixels`; never scales up. A missing file, a folder, a file that is
    /// no picture or one that would take more memory than Qt's reader allows gives a null image.
    static PagePicture read(const QString &path, QSize pixels);

    /// Width and height in dots, from the beginning of the file; empty where that cannot be told.
    static QSizeF shapeOf(const QString &path);
};

/// Draws the picture as large as fits `place` (in points), at its top left corner. Where it cannot be read
/// the place stays empty inside a thin rim.
void drawPagePicture(QPainter &painter, const QRectF &place, const QString &path);
