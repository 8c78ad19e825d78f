// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/jpeghead.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr uchar startOfScan = 0xDA;
constexpr uchar endOfImage = 0xD9;
constexpr uchar applicationOne = 0xE1;
/// Shapes that differ by less are the same, with a pixel more or less.
constexpr double sameShape = 0.03;
/// A larger file is not read again to find out how it ends.
constexpr qint64 mostToSearch = 128 * 1024 * 1024;

uint bigEndian(QByteArrayView bytes, qsizetype at)
{
    return uint(uchar(bytes[at])) << 8 | uchar(bytes[at + 1]);
}

bool isFrame(uchar marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

/// The marks of a JPEG file up to its first line of pixels, each with what belongs to it. True when that line
/// was reached, whose place `scan` is.
bool walk(QByteArrayView bytes, qsizetype &scan, const std::function<void(uchar, QByteArrayView)> &take)
{
    if (!bytes.startsWith("\xFF\xD8"))
        return false;
    for (qsizetype at = 2; at + 4 <= bytes.size();) {
        if (uchar(bytes[at]) != 0xFF)
            return false;
        const auto marker = uchar(bytes[at + 1]);
        if (marker == 0xFF) { // filling
            ++at;
            continue;
        }
        const qsizetype length = bigEndian(bytes, at + 2);
        if (length < 2)
            return false;
        take(marker, bytes.sliced(at + 4, std::min(length - 2, bytes.size() - at - 4)));
        at += 2 + length;
        scan = at;
        if (marker == startOfScan)
            return true;
    }
    return false;
}

/// The picture without the bars at its edges that bring it into another shape than `shape`.
QImage inShape(const QImage &picture, QSize shape)
{
    if (shape.isEmpty() || picture.isNull())
        return picture;
    const double own = double(picture.width()) / picture.height();
    const double right = double(shape.width()) / shape.height();
    if (std::abs(own / right - 1) < sameShape)
        return picture;
    const QSize inside = shape.scaled(picture.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    const QPoint corner((picture.width() - inside.width()) / 2, (picture.height() - inside.height()) / 2);
    return picture.copy({corner, inside});
}

/// Whether the end is said among what follows the first scan, with the marks of further scans in it.
bool hasEnd(QByteArrayView bytes, qsizetype at)
{
    for (; at + 1 < bytes.size(); ++at) {
        at = bytes.indexOf('\xFF', at);
        if (at < 0 || at + 1 >= bytes.size())
            return false;
        const auto marker = uchar(bytes[at + 1]);
        if (marker == endOfImage)
            return true;
        // A filled-in byte and restarts stand alone, tables between scans have a length.
        const bool isAlone = marker == 0 || marker == 0xFF || (marker >= 0xD0 && marker <= 0xD7);
        if (!isAlone && at + 4 <= bytes.size())
            at += 1 + bigEndian(bytes, at + 2);
    }
    return false;
}

} // namespace

JpegHead JpegHead::of(const QByteArray &first)
{
    JpegHead head;
    qsizetype scan = 0;
    walk(first, scan, [&head](uchar marker, QByteArrayView segment) {
        if (marker == applicationOne && segment.startsWith(QByteArrayView("Exif\0\0", 6))) {
            head.m_exif = ExifBlock::of(segment.sliced(6));
        } else if (isFrame(marker) && segment.size() >= 5) {
            head.m_pixels = QSize(int(bigEndian(segment, 3)), int(bigEndian(segment, 1)));
            head.m_isProgressive = marker % 4 == 2; // 0xC2, 0xC6, 0xCA, 0xCE
        }
    });
    return head;
}

QImage JpegHead::preview() const
{
    const QByteArray &file = m_exif.preview;
    const QImage small = file.isEmpty() ? QImage() : QImage::fromData(file, "JPG");
    return small.isNull() ? small : ExifBlock::upright(inShape(small, m_pixels), m_exif.orientation);
}

bool JpegHead::isCut(QFile &file)
{
    constexpr int tail = 2;
    if (!file.seek(std::max<qint64>(0, file.size() - tail)) || file.read(tail) == "\xFF\xD9")
        return false;
    // Something follows the picture, or it is not all there.
    if (file.size() > mostToSearch || !file.seek(0))
        return false;
    const QByteArray bytes = file.readAll();
    qsizetype scan = 0;
    return walk(bytes, scan, [](uchar, QByteArrayView) {}) && !hasEnd(bytes, scan);
}
