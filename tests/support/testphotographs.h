// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTest>

/// Pictures that differ from one another as photographs do, and their files with what cameras put into them.
namespace TestPhotographs {

inline QImage draw(QSize size, int which)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor::fromHsv(which * 47 % 360, 90, 200));
    QPainter painter(&image);
    painter.scale(size.width() / 100.0, size.height() / 100.0);
    for (int i = 0; i < 12; ++i) {
        const int step = which * 31 + i * i * 17;
        painter.fillRect(step * 7 % 90, step * 13 % 90, 14 + i % 3 * 9, 10 + i % 4 * 8,
                         QColor::fromHsv(step % 360, 160, 40 + step % 210));
    }
    return image;
}

inline QByteArray jpeg(const QImage &image, int quality = 90)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!image.save(&buffer, "JPG", quality))
        QTest::qFail("no picture", __FILE__, __LINE__);
    return bytes;
}

/// The file of a camera that was held as `orientation` says, 1 to 8, with a preview unless it is null.
inline QByteArray photograph(const QImage &stored, int orientation, const QImage &preview = {})
{
    const QByteArray small = preview.isNull() ? QByteArray() : jpeg(preview, 70);
    QByteArray tiff("II*\0\x08\0\0\0", 8);
    tiff += QByteArray("\x01\0\x12\x01\x03\0\x01\0\0\0", 10) + char(orientation) + QByteArray("\0\0\0", 3);
    tiff += small.isEmpty() ? QByteArray(4, '\0') : QByteArray("\x1a\0\0\0", 4);
    if (!small.isEmpty()) {
        const auto length = quint32(small.size());
        tiff += QByteArray("\x02\0\x01\x02\x04\0\x01\0\0\0\x38\0\0\0\x02\x02\x04\0\x01\0\0\0", 22);
        for (int i = 0; i < 4; ++i)
            tiff += char(length >> 8 * i & 0xFF);
        tiff += QByteArray(4, '\0') + small;
    }
    const QByteArray exif = QByteArray("Exif\0\0", 6) + tiff;
    const auto length = quint32(exif.size() + 2);
    const QByteArray head = QByteArray("\xFF\xE1") + char(length >> 8) + char(length & 0xFF) + exif;
    return jpeg(stored).insert(2, head);
}

inline QString save(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        QTest::qFail("no file", __FILE__, __LINE__);
    return path;
}

} // namespace TestPhotographs
