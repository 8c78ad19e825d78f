// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/exifblock.h"

#include <QFile>
#include <QTransform>

#include <algorithm>

namespace {

constexpr int tagOrientation = 0x0112;
constexpr int tagPreviewStart = 0x0201;
constexpr int tagPreviewLength = 0x0202;
/// A block is no larger, and a file with more chunks before it has none.
constexpr qint64 mostBytes = 64 * 1024;
constexpr int mostChunks = 10'000;

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

/// Four bytes as a number.
qint64 lengthIn(const QByteArray &bytes, qsizetype at, bool isLittle)
{
    qint64 length = 0;
    for (int i = 0; i < 4; ++i)
        length = length << 8 | uchar(bytes[at + (isLittle ? 3 - i : i)]);
    return length;
}

/// What the first chunk of the kind `kind` holds; the file stands at a chunk. In WebP the kind comes before
/// the length, and chunks have an even length; in PNG it comes behind, and four bytes follow each.
QByteArray chunk(QFile &file, QByteArrayView kind, bool isWebP)
{
    for (int i = 0; i < mostChunks; ++i) {
        const QByteArray head = file.read(8);
        if (head.size() < 8)
            return {};
        const qint64 length = lengthIn(head, isWebP ? 4 : 0, isWebP);
        if (head.sliced(isWebP ? 0 : 4, 4) == kind)
            return file.read(std::min(length, mostBytes));
        if (!file.seek(file.pos() + length + (isWebP ? length % 2 : 4)))
            return {};
    }
    return {};
}

} // namespace

ExifBlock ExifBlock::of(QByteArrayView tiff)
{
    ExifBlock block;
    const Tables tables(tiff);
    if (!tables.isOne())
        return block;
    const qint64 first = tables.number(4, 4);
    const quint32 orientation = tables.value(first, tagOrientation);
    block.orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
    const qint64 second = tables.next(first);
    const qint64 start = second > 0 ? tables.value(second, tagPreviewStart) : 0;
    const qint64 length = second > 0 ? tables.value(second, tagPreviewLength) : 0;
    if (start > 0 && length > 0 && start + length <= tiff.size())
        block.preview = tiff.sliced(start, length).toByteArray();
    return block;
}

ExifBlock ExifBlock::ofChunks(QFile &file)
{
    const QByteArray first = file.seek(0) ? file.read(12) : QByteArray();
    const bool isWebP = first.startsWith("RIFF") && first.endsWith("WEBP");
    if (!isWebP && !(first.startsWith("\x89PNG") && file.seek(8)))
        return {};
    const QByteArray bytes = chunk(file, isWebP ? "EXIF" : "eXIf", isWebP);
    const QByteArrayView block = bytes;
    return of(block.startsWith("Exif") ? block.sliced(std::min<qsizetype>(6, block.size())) : block);
}

QImage ExifBlock::upright(const QImage &picture, int orientation)
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
