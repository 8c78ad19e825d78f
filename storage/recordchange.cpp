// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordchange.h"

#include "storage/changeset.h"

#include <QFileInfo>

#include <algorithm>

void RecordChange::write(const RecordFile &file, int number, QByteArrayView after)
{
    const QByteArray former = file.read(number);
    m_isUnknown = m_isUnknown || (former.isEmpty() && file.recordCount() >= number);
    write(file, number, after, former);
}

void RecordChange::write(const RecordFile &file, int number, QByteArrayView after, QByteArrayView before)
{
    add({QFileInfo(file.path()).fileName(), number}, file.recordLength(), after, before);
}

void RecordChange::add(const RecordChange &later)
{
    for (const auto &[where, place] : later.m_places)
        add(where, place.recordLength, place.after, place.before);
    m_isUnknown = m_isUnknown || later.m_isUnknown;
    addTrash(later);
}

void RecordChange::add(const Places::key_type &where, qsizetype recordLength, QByteArrayView after,
                       QByteArrayView before)
{
    Place &place = m_places[where];
    place.recordLength = recordLength;
    // What an earlier write of the same action did not reach still stands as it was.
    const qsizetype known = place.after.size();
    if (after.size() > known) {
        const qsizetype end = std::min(before.size(), after.size());
        place.before += before.first(end).sliced(std::min(known, end));
        place.before.resize(after.size(), '\0');
    }
    place.after = after.toByteArray() + place.after.sliced(std::min(after.size(), known));
}

bool RecordChange::isEmpty() const
{
    return m_isUnknown || std::ranges::all_of(m_places, [](const auto &item) {
               return item.second.before == item.second.after;
           });
}

bool RecordChange::isThere(const DataFolder &folder, Side side) const
{
    return std::ranges::all_of(m_places, [&](const auto &item) {
        const auto &[where, place] = item;
        return RecordFile(folder, where.first, place.recordLength)
            .read(where.second)
            .startsWith(place.on(side));
    });
}

bool RecordChange::addTo(ChangeSet &writes, const DataFolder &folder, Side side) const
{
    for (const auto &[where, place] : m_places)
        writes.write(RecordFile(folder, where.first, place.recordLength), where.second, place.on(side));
    return true;
}
