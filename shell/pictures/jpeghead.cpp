// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/jpeghead.h"

#include <QFile>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr uchar startOfScan = 0xDA;
constexpr uchar endOfImage = 0xD9;
constexpr uchar applicationOne = 0xE1;
constexpr int tagOrientation = 0x0112;
constexpr int tagPreviewStart = 0x0201;
constexpr int tagPreviewLength = 0x0202;
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

/// Numbers in the tables of a TIFF header, in either order of bytes; what lies outside is 0.
class Tables
{
public:
    explicit Tables(QByteArrayView bytes)
        : m_bytes(bytes)
        , m_isLittle(bytes.startsWith("II"))
    {}

    bool isOne() const
    {
        return (m_bytes.startsWith("II") || m_bytes.startsWith("MM")) && number(2, 2) == 42;
    }
    quint32 number(qint64 at, int width) const
    {
        if (at < 0 || at + width > m_bytes.size())
            return 0;
        quint32 value = 0;
        for (int i = 0; i < width; ++i)
            value = value << 8 | uchar(m_bytes[at + (m_isLittle ? width - 1 - i : i)]);
        return value;
    }
    /// What the table at `start` has for `tag`; 0 when it has none.
    quint32 value(qint64 start, int tag) const
    {
        const int count = int(number(start, 2));
        for (int i = 0; i < count; ++i) {
            const qint64 entry = start + 2 + 12LL * i;
            if (int(number(entry, 2)) == tag)
                return number(entry + 8, number(entry + 2, 2) == 3 ? 2 : 4);
        }
        return 0;
    }
    qint64 next(qint64 start) const { return number(start + 2 + 12LL * number(start, 2), 4); }

private:
    QByteArrayView m_bytes;
    bool m_isLittle;
};

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

/// What stands in the file as `orientation` says, upright.
QImage upright(const QImage &picture, int orientation)
{
    switch (orientation) {
    case 2:
        return picture.mirrored(true, false);
    case 3:
        return picture.mirrored(true, true);
    case 4:
        return picture.mirrored(false, true);
    case 5:
        return picture.mirrored(true, false).transformed(QTransform().rotate(270));
    case 6:
        return picture.transformed(QTransform().rotate(90));
    case 7:
        return picture.mirrored(true, false).transformed(QTransform().rotate(90));
    case 8:
        return picture.transformed(QTransform().rotate(270));
    default:
        return picture;
    }
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
            head.readExif(segment.sliced(6));
        } else if (isFrame(marker) && segment.size() >= 5) {
            head.m_pixels = QSize(int(bigEndian(segment, 3)), int(bigEndian(segment, 1)));
            head.m_isProgressive = marker % 4 == 2; // 0xC2, 0xC6, 0xCA, 0xCE
        }
    });
    return head;
}

void JpegHead::readExif(QByteArrayView tiff)
{
    const Tables tables(tiff);
    if (!tables.isOne())
        return;
    const qint64 first = tables.number(4, 4);
    const quint32 orientation = tables.value(first, tagOrientation);
    m_orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
    const qint64 second = tables.next(first);
    const qint64 start = second > 0 ? tables.value(second, tagPreviewStart) : 0;
    const qint64 length = second > 0 ? tables.value(second, tagPreviewLength) : 0;
    if (start > 0 && length > 0 && start + length <= tiff.size())
        m_preview = tiff.sliced(start, length).toByteArray();
}

QImage JpegHead::preview() const
{
    const QImage small = m_preview.isEmpty() ? QImage() : QImage::fromData(m_preview, "JPG");
    return small.isNull() ? small : upright(inShape(small, m_pixels), m_orientation);
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
