// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

class QFile;

/// What cameras write into the files of pictures, as far as showing them needs it.
struct ExifBlock {
    int orientation = 1;  ///< how the camera was held: 1 (upright) to 8
    QByteArray preview{}; ///< a small JPEG file; empty where there is none

    /// Reads the block from its byte order on; it may be any bytes.
    static ExifBlock of(QByteArrayView tiff);
    /// The block of a PNG or WebP file, which Qt does not look for.
    static ExifBlock ofChunks(QFile &file);

    /// What lies in a file as `orientation` says, upright.
    static QImage upright(const QImage &picture, int orientation);
    /// Whether such a picture lies on its side in its file.
    static bool isOnItsSide(int orientation) { return orientation >= 5; }
};
