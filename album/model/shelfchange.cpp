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

} // namespace

ShelfChange::ShelfChange(Order order)
    : m_order(order)
{}

void ShelfChange::writePhoto(int number, const QByteArray &before, const QByteArray &after)
{
    compare(PhotoFile::fields, before, after,
            [&](qsizetype at, const QByteArray &old, const QByteArray &wanted) {
                m_photos.push_back({number, at, old, wanted});
            });
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

bool ShelfChange::isThere(const DataFolder &folder, Side side) const
{
    const auto isAllThere = [&](const Spans &spans, const QString &name, qsizetype recordLength) {
        if (spans.empty())
            return true;
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            return false;
        return std::ranges::all_of(spans, [&](const Span &span) {
            const QByteArray &wanted = span.on(side);
            return bytesAt(file, (span.record - 1) * qint64(recordLength) + span.at, wanted.size()) == wanted;
        });
    };
    return isAllThere(m_photos, PhotoFile::name, PhotoFile::recordLength) &&
           isAllThere(m_places, AlbumFile::name, AlbumFile::recordLength);
}

bool ShelfChange::addTo(ChangeSet &writes, const DataFolder &folder, Side side) const
{
    const RecordFile photos(folder, PhotoFile::name, PhotoFile::recordLength);
    const RecordFile places(folder, AlbumFile::name, AlbumFile::recordLength);
    const auto add = [&](const RecordFile &file, const Spans &spans) {
        for (const Span &span : spans)
            writes.write(file, span.record, span.on(side), span.at);
    };
    // What is taken back goes the other way round.
    const bool arePhotosFirst = (m_order == Order::PhotosFirst) == (side == Side::After);
    add(arePhotosFirst ? photos : places, arePhotosFirst ? m_photos : m_places);
    add(arePhotosFirst ? places : photos, arePhotosFirst ? m_places : m_photos);
    return true;
}
