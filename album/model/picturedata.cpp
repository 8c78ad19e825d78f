// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/picturedata.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

using PictureData::Kind;
using Parts = std::vector<QByteArray>;

/// What is said of a picture is left alone beyond this.
constexpr qsizetype mostSaid = 16 << 20;
/// Where picture and texts lie among each other, files are read whole, up to this.
constexpr qint64 mostWhole = 64 << 20;

constexpr QByteArrayView pngBegin("\x89PNG\r\n\x1a\n", 8);

quint32 bigAt(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.data() + at);
}

quint32 littleAt(QByteArrayView bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.data() + at);
}

bool hasAt(QByteArrayView bytes, qsizetype at, QByteArrayView what)
{
    return bytes.size() - at >= what.size() && bytes.sliced(at, what.size()) == what;
}

// JPEG: segments, each with a mark and its length, up to the one behind which the picture begins.

constexpr uchar startOfScan = 0xda;
constexpr uchar endOfImage = 0xd9;

struct Segment {
    uchar mark = 0;
    qsizetype at = 0;
    qsizetype size = 0; ///< with mark and length; 0 where there is none
};

Segment segmentAt(QByteArrayView file, qsizetype at)
{
    qsizetype mark = at;
    while (mark + 1 < file.size() && uchar(file[mark]) == 0xff && uchar(file[mark + 1]) == 0xff)
        ++mark; // any number of these may stand before a mark
    if (file.size() - mark < 4 || uchar(file[mark]) != 0xff)
        return {};
    const qsizetype length = qFromBigEndian<quint16>(file.data() + mark + 2);
    if (length < 2)
        return {};
    return {uchar(file[mark + 1]), mark, length + 2};
}

/// Whether the segment says something of the picture that may be written anew.
bool isSaid(QByteArrayView file, const Segment &segment)
{
    const QByteArrayView content = file.sliced(segment.at + 4, segment.size - 4);
    return segment.mark == 0xfe ||
           (segment.mark == 0xe1 &&
            (content.startsWith("Exif") || content.startsWith("http://ns.adobe.com/xap/1.0/"))) ||
           (segment.mark == 0xed && content.startsWith("Photoshop 3.0"));
}

/// A piece of the colour profile, behind its name and its number; empty for any other segment.
QByteArrayView profilePiece(QByteArrayView file, const Segment &segment)
{
    constexpr QByteArrayView name("ICC_PROFILE", 12);
    const QByteArrayView content = file.sliced(segment.at + 4, segment.size - 4);
    const bool isPiece = segment.mark == 0xe2 && content.startsWith(name) && content.size() > name.size() + 2;
    return isPiece ? content.sliced(name.size() + 2) : QByteArrayView();
}

/// Without a copy.
QByteArray raw(QByteArrayView bytes)
{
    return QByteArray::fromRawData(bytes.data(), bytes.size());
}

std::optional<Parts> jpegParts(QByteArrayView file)
{
    Parts parts;
    QByteArray profile;
    qsizetype at = 2;
    while (true) {
        const Segment segment = segmentAt(file, at);
        if (segment.size == 0 || segment.size > file.size() - segment.at)
            return {};
        if (segment.mark == startOfScan) {
            parts.push_back(raw(file.sliced(segment.at)));
            parts.push_back(profile);
            return parts;
        }
        if (const QByteArrayView piece = profilePiece(file, segment); !piece.isEmpty())
            profile.append(piece);
        else if (!isSaid(file, segment))
            parts.push_back(raw(file.sliced(segment.at, segment.size)));
        at = segment.at + segment.size;
    }
}

QByteArray jpegWithoutPicture(QIODevice &file)
{
    QByteArray head = file.read(64 << 10);
    qsizetype at = 2;
    while (head.size() <= mostSaid) {
        const Segment segment = segmentAt(head, at);
        const qsizetype end = segment.at + segment.size;
        if (segment.size == 0 || end > head.size()) {
            const QByteArray more = file.read(64 << 10);
            if (more.isEmpty())
                return head; // a cut picture may say something still
            head.append(more);
            continue;
        }
        if (segment.mark == startOfScan || segment.mark == endOfImage) {
            head.truncate(end);
            return head.append("\xff\xd9", 2);
        }
        at = end;
    }
    return {};
}

// PNG: chunks, each with its length, a name of four letters and a sum.

bool isSaidInPng(QByteArrayView name)
{
    return name == "tEXt" || name == "zTXt" || name == "iTXt" || name == "eXIf" || name == "tIME";
}

/// The chunks of a file; nothing where it ends within one.
std::optional<std::vector<QByteArrayView>> pngChunks(QByteArrayView file)
{
    std::vector<QByteArrayView> chunks;
    for (qsizetype at = pngBegin.size(); file.size() - at >= 12;) {
        const qsizetype size = qsizetype(bigAt(file, at)) + 12;
        if (size > file.size() - at)
            return {};
        chunks.push_back(file.sliced(at, size));
        if (hasAt(file, at + 4, "IEND"))
            return chunks;
        at += size;
    }
    return {};
}

std::optional<Parts> pngParts(QByteArrayView file)
{
    const auto chunks = pngChunks(file);
    if (!chunks)
        return {};
    Parts parts;
    for (const QByteArrayView chunk : *chunks) {
        if (!isSaidInPng(chunk.sliced(4, 4)))
            parts.push_back(raw(chunk));
    }
    return parts;
}

QByteArrayView profileChunk(QByteArrayView file)
{
    const auto chunks = pngChunks(file);
    if (!chunks)
        return {};
    const auto found =
        std::ranges::find_if(*chunks, [](QByteArrayView chunk) { return hasAt(chunk, 4, "iCCP"); });
    return found == chunks->end() ? QByteArrayView() : *found;
}

QByteArray pngWithoutPicture(QIODevice &file)
{
    QByteArray head = file.read(pngBegin.size());
    while (true) {
        const QByteArray begin = file.peek(8);
        if (begin.size() < 8)
            return head;
        const qint64 size = qint64(bigAt(begin, 0)) + 12;
        if (hasAt(begin, 4, "IDAT")) {
            if (!file.seek(file.pos() + size))
                return head;
            continue;
        }
        if (head.size() + size > mostSaid)
            return {};
        head.append(file.read(size));
        if (hasAt(begin, 4, "IEND"))
            return head;
    }
}

// WebP: chunks, each with a name and its length, padded to an even one.

std::optional<Parts> webPParts(QByteArrayView file)
{
    Parts parts;
    qsizetype at = 12;
    while (file.size() - at >= 8) {
        const QByteArrayView name = file.sliced(at, 4);
        const qsizetype size = qsizetype(littleAt(file, at + 4)) + 8;
        if (size > file.size() - at)
            return {};
        if (name != "VP8X" && name != "EXIF" && name != "XMP ")
            parts.push_back(raw(file.sliced(at, size)));
        at += size + size % 2;
    }
    return parts;
}

// TIFF: directories of fields, some of which say where strips and tiles of the picture lie.

class Tiff
{
public:
    explicit Tiff(QByteArrayView file)
        : m_file(file)
        , m_isBig(file.startsWith("MM"))
    {}

    std::optional<Parts> parts()
    {
        if (m_file.size() < 8)
            return {};
        m_waiting = {long32(4)};
        for (int count = 0; !m_waiting.empty(); ++count) {
            const quint32 at = m_waiting.back();
            m_waiting.pop_back();
            if (count == mostDirectories || !takeDirectory(at))
                return {};
        }
        return m_parts;
    }

private:
    static constexpr int mostDirectories = 1000;
    static constexpr qint64 mostNumbers = 4'000'000;

    struct Field {
        quint16 tag = 0;
        quint16 type = 0;
        quint32 count = 0;
        qint64 at = 0; ///< where its values stand
    };

    quint16 short16(qint64 at) const
    {
        const char *from = m_file.data() + at;
        return m_isBig ? qFromBigEndian<quint16>(from) : qFromLittleEndian<quint16>(from);
    }
    quint32 long32(qint64 at) const
    {
        const char *from = m_file.data() + at;
        return m_isBig ? qFromBigEndian<quint32>(from) : qFromLittleEndian<quint32>(from);
    }

    Field fieldAt(qint64 at) const
    {
        Field field{short16(at), short16(at + 2), long32(at + 4), at + 8};
        const qint64 width = field.type == 3 ? 2 : 4;
        if (field.count * width > 4)
            field.at = long32(at + 8);
        return field;
    }

    /// Numbers of 2 or 4 bytes; none where they are not in the file, or where all fields together have more
    /// of them than any picture.
    std::vector<quint32> numbers(const Field &field)
    {
        const qint64 width = field.type == 3 ? 2 : 4;
        std::vector<quint32> values;
        m_numbers += field.count;
        if (m_numbers > mostNumbers || field.at + field.count * width > m_file.size())
            return values;
        values.reserve(field.count);
        for (quint32 i = 0; i < field.count; ++i)
            values.push_back(width == 2 ? short16(field.at + 2 * qint64(i))
                                        : long32(field.at + 4 * qint64(i)));
        return values;
    }

    bool takeDirectory(quint32 at)
    {
        if (at + qint64(2) > m_file.size())
            return false;
        const qint64 count = short16(at);
        const qint64 end = at + 2 + 12 * count;
        if (end + 4 > m_file.size())
            return false;
        std::vector<quint32> offsets;
        std::vector<quint32> sizes;
        for (qint64 i = 0; i < count; ++i) {
            const Field field = fieldAt(at + 2 + 12 * i);
            if (field.tag == 273 || field.tag == 324 || field.tag == 513) // strips, tiles, a small JPEG
                offsets = numbers(field);
            else if (field.tag == 279 || field.tag == 325 || field.tag == 514)
                sizes = numbers(field);
            else if (field.tag == 330) // further directories
                std::ranges::copy(numbers(field), std::back_inserter(m_waiting));
        }
        if (const quint32 next = long32(end); next != 0)
            m_waiting.push_back(next);
        return m_numbers <= mostNumbers && takeStrips(offsets, sizes);
    }

    bool takeStrips(const std::vector<quint32> &offsets, const std::vector<quint32> &sizes)
    {
        if (offsets.size() != sizes.size())
            return false;
        for (std::size_t i = 0; i < offsets.size(); ++i) {
            if (qint64(offsets[i]) + sizes[i] > m_file.size())
                return false;
            m_parts.push_back(raw(m_file.sliced(offsets[i], sizes[i])));
        }
        return true;
    }

    QByteArrayView m_file;
    bool m_isBig;
    qint64 m_numbers = 0;
    std::vector<quint32> m_waiting;
    Parts m_parts;
};

} // namespace

Kind PictureData::kindOf(QByteArrayView bytes)
{
    if (hasAt(bytes, 0, "\xff\xd8\xff"))
        return Kind::Jpeg;
    if (hasAt(bytes, 0, pngBegin))
        return Kind::Png;
    if (hasAt(bytes, 0, "RIFF") && hasAt(bytes, 8, "WEBP"))
        return Kind::WebP;
    if (hasAt(bytes, 0, QByteArrayView("II*\0", 4)) || hasAt(bytes, 0, QByteArrayView("MM\0*", 4)))
        return Kind::Tiff;
    return hasAt(bytes, 4, "ftyp") ? Kind::Heif : Kind::Other;
}

std::optional<Parts> PictureData::parts(QByteArrayView file)
{
    switch (kindOf(file)) {
    case Kind::Jpeg:
        return jpegParts(file);
    case Kind::Png:
        return pngParts(file);
    case Kind::WebP:
        return webPParts(file);
    case Kind::Tiff:
        return Tiff(file).parts();
    case Kind::Heif:
    case Kind::Other:
        break;
    }
    return {};
}

bool PictureData::isSame(QByteArrayView one, QByteArrayView other)
{
    const auto parts = PictureData::parts(one);
    return parts && !parts->empty() && parts == PictureData::parts(other);
}

QByteArray PictureData::withProfileOf(QByteArrayView before, const QByteArray &now)
{
    if (kindOf(before) != Kind::Png || kindOf(now) != Kind::Png)
        return now;
    const QByteArrayView former = profileChunk(before);
    const QByteArrayView packed = profileChunk(now);
    if (former.isEmpty() || packed.isEmpty())
        return now;
    const qsizetype at = packed.data() - now.constData();
    QByteArray result = now.first(at);
    result.append(former);
    return result.append(QByteArrayView(now).sliced(at + packed.size()));
}

QByteArray PictureData::withoutPicture(QIODevice &file)
{
    switch (kindOf(file.peek(16))) {
    case Kind::Jpeg:
        return jpegWithoutPicture(file);
    case Kind::Png:
        return pngWithoutPicture(file);
    case Kind::WebP:
    case Kind::Tiff:
    case Kind::Heif:
        return file.size() <= mostWhole ? file.read(mostWhole) : QByteArray();
    case Kind::Other:
        break;
    }
    return {};
}
