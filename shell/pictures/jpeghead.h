// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/exifblock.h"

class QFile;

/// What the beginning of a JPEG file says: cameras put a small preview there, which is read in no time.
class JpegHead
{
public:
    /// In this many bytes from the beginning nearly every camera has said all of it.
    static constexpr qint64 usualBytes = 65'536;

    /// Reads the first bytes of a file; they may be any.
    static JpegHead of(const QByteArray &first);

    /// How the camera was held, as the files count it: 1 (upright) to 8.
    int orientation() const { return m_exif.orientation; }
    /// Of the whole picture as it lies in the file; empty where that is not among the first bytes.
    QSize pixels() const { return m_pixels; }
    /// Whether its lines come out only when all of it has been read.
    bool isProgressive() const { return m_isProgressive; }
    /// The preview, upright and in the shape of the picture; null where there is none.
    QImage preview() const;

    /// Whether the picture ends before its end was said.
    static bool isCut(QFile &file);

private:
    ExifBlock m_exif;
    QSize m_pixels;
    bool m_isProgressive = false;
};
