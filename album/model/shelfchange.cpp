// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/shelfchange.h"

#include "album/model/albumfile.h"
#include "album/model/photofile.h"
#include "storage/changeset.h"
#include "storage/recordfile.h"

#include <QFile>

#include <algorithm>
#include <span>

namespace {

/// How many bytes there are before the zeros that both end with.
qsizetype usedLength(QByteArrayView before, QByteArrayView after)
{
    qsizetype length = after.size();
    while (length > 0 && before[length - 1] == '\0' && after[length - 1] == '\0')
        --length;
    return length;
}

/// Visits the fields in which the two records differ.
template <typename Visit>
void compare(std::span<const qsizetype> fields, const QByteArray &before, const QByteArray &after,
             const Visit &visit)
{
    if (before.size() < after.size()) { // new at the end of the file, which then has the whole record
        visit(0, before.leftJustified(after.size(), '\0'), after);
        return;
    }
    for (std::size_t i = 0; i + 1 < fields.size(); ++i) {
        const qsizetype length = fields[i + 1] - fields[i];
        const QByteArrayView old = QByteArrayView(before).sliced(fields[i], length);
        const QByteArrayView wanted = QByteArrayView(after).sliced(fields[i], length);
        if (old == wanted)
            continue;
        const qsizetype used = usedLength(old, wanted);
        visit(fields[i], old.first(used).toByteArray(), wanted.first(used).toByteArray());
    }
}

/// What the file has at a place; zeros behind its end.
QByteArray bytesAt(QFile &file, qint64 offset, qsizetype length)
{
    const QByteArray bytes = file.isOpen() && file.seek(offset) ? file.read(length) : QByteArray();
    return bytes.leftJustified(length, '\0');
}

/// Of the bits of a picture, those that tell of its file.
constexpr quint8 factBits = Photo::TextsInFile | Photo::NotThere;

QByteArray photoBytesAt(QFile &file, int record, qsizetype at, qsizetype length)
{
    return bytesAt(file, (record - 1) * qint64(PhotoFile::recordLength) + at, length);
}

/// Opened for reading, where it is there.
void openIfThere(QFile &file)
{
    if (file.exists())
        file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

} // namespace

ShelfChange::ShelfChange(Order order)
    : m_order(order)
{}

void ShelfChange::writePhoto(int number, const QByteArray &before, const QByteArray &after)
{
    if (!before.startsWith(PhotoFile::mark) || !after.startsWith(PhotoFile::mark)) {
        // It comes or goes as a whole, with what is learnt of its file meanwhile.
        m_photos.push_back({number, 0, before.leftJustified(after.size(), '\0'), after});
        return;
    }
    compare(PhotoFile::fields, before, after,
            [&](qsizetype at, const QByteArray &old, const QByteArray &wanted) {
                m_photos.push_back({number, at, old, wanted});
            });
}

void ShelfChange::add(const ShelfChange &later)
{
    m_photos.insert(m_photos.end(), later.m_photos.begin(), later.m_photos.end());
    m_places.insert(m_places.end(), later.m_places.begin(), later.m_places.end());
}

void ShelfChange::writePlace(int number, const QByteArray &before, const QByteArray &after)
{
    compare(AlbumFile::fields, before, after,
            [&](qsizetype at, const QByteArray &old, const QByteArray &wanted) {
                m_places.push_back({number, at, old, wanted});
            });
}

QList<int> ShelfChange::recordsOf(const Spans &spans)
{
    QList<int> records;
    for (const Span &span : spans) {
        if (records.isEmpty() || records.constLast() != span.record)
            records.append(span.record);
    }
    return records;
}

bool ShelfChange::isBits(const Span &span)
{
    return span.at == PhotoFile::bitsAt && span.after.size() == 1;
}

bool ShelfChange::isPhotoThere(QByteArray there, const Span &span, Side side)
{
    QByteArray wanted = span.on(side);
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        const qsizetype at = span.at + i;
        if (at >= PhotoFile::factsAt && at < PhotoFile::factsEnd)
            there[i] = wanted[i];
        else if (at == PhotoFile::bitsAt)
            there[i] = char((quint8(there[i]) & ~factBits) | (quint8(wanted[i]) & factBits));
    }
    return there == wanted;
}

bool ShelfChange::isThere(const DataFolder &folder, Side side) const
{
    QFile photos(folder.filePath(PhotoFile::name));
    QFile places(folder.filePath(AlbumFile::name));
    openIfThere(photos);
    openIfThere(places);
    return (m_photos.empty() || photos.isOpen()) && (m_places.empty() || places.isOpen()) &&
           std::ranges::all_of(m_photos,
                               [&](const Span &span) {
                                   return isPhotoThere(
                                       photoBytesAt(photos, span.record, span.at, span.on(side).size()), span,
                                       side);
                               }) &&
           std::ranges::all_of(m_places, [&](const Span &span) {
               const qint64 at = (span.record - 1) * qint64(AlbumFile::recordLength) + span.at;
               return bytesAt(places, at, span.on(side).size()) == span.on(side);
           });
}

bool ShelfChange::addTo(ChangeSet &writes, const DataFolder &folder, Side side) const
{
    const RecordFile photos(folder, PhotoFile::name, PhotoFile::recordLength);
    const RecordFile places(folder, AlbumFile::name, AlbumFile::recordLength);
    QFile file(photos.path());
    openIfThere(file);
    const auto add = [&](const RecordFile &target, const Spans &spans) {
        for (const Span &span : spans) {
            QByteArray bytes = span.on(side);
            if (&target == &photos && isBits(span)) { // those that did not change stay as they are now
                const auto changed = quint8(span.before[0] ^ span.after[0]);
                const auto now = quint8(photoBytesAt(file, span.record, span.at, 1)[0]);
                bytes[0] = char((now & ~changed) | (quint8(bytes[0]) & changed));
            }
            writes.write(target, span.record, bytes, span.at);
        }
    };
    // What is taken back goes the other way round.
    const bool arePhotosFirst = (m_order == Order::PhotosFirst) == (side == Side::After);
    add(arePhotosFirst ? photos : places, arePhotosFirst ? m_photos : m_places);
    add(arePhotosFirst ? places : photos, arePhotosFirst ? m_places : m_photos);
    return true;
}
