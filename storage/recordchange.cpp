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
    m_thrownAway.insert(m_thrownAway.end(), later.m_thrownAway.begin(), later.m_thrownAway.end());
    m_broughtBack.insert(m_broughtBack.end(), later.m_broughtBack.begin(), later.m_broughtBack.end());
    m_trashState = later.m_trashState;
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

bool RecordChange::commit(const DataFolder &folder)
{
    return write(folder, &Place::after);
}

ChangeResult RecordChange::undo(const DataFolder &folder)
{
    return exchange(folder, &Place::after, &Place::before);
}

ChangeResult RecordChange::redo(const DataFolder &folder)
{
    return exchange(folder, &Place::before, &Place::after);
}

ChangeResult RecordChange::exchange(const DataFolder &folder, Bytes held, Bytes wanted)
{
    // What was refused in the middle is finished first, and it may have been this.
    if (ChangeSet::isPending(folder) && !ChangeSet::recover(folder))
        return ChangeResult::Refused;
    const auto isThere = [&](Bytes bytes) {
        return std::ranges::all_of(m_places, [&](const auto &item) {
            const auto &[where, place] = item;
            return RecordFile(folder, where.first, place.recordLength)
                .read(where.second)
                .startsWith(place.*bytes);
        });
    };
    if (std::exchange(m_isBegun, false) && isThere(wanted))
        return ChangeResult::Done;
    if (!isThere(held))
        return ChangeResult::Outdated;
    if (write(folder, wanted))
        return ChangeResult::Done;
    m_isBegun = ChangeSet::isPending(folder);
    return ChangeResult::Refused;
}

bool RecordChange::write(const DataFolder &folder, Bytes wanted)
{
    ChangeSet change(folder);
    for (const auto &[where, place] : m_places)
        change.write(RecordFile(folder, where.first, place.recordLength), where.second, place.*wanted);
    if (!m_thrownAway.empty() || !m_broughtBack.empty()) {
        const bool isDone = wanted == &Place::after;
        Trash trash(folder);
        for (const Trash::Item &item : isDone ? m_thrownAway : m_broughtBack)
            trash.put(item);
        for (const Trash::Item &item : isDone ? m_broughtBack : m_thrownAway)
            trash.take(item);
        trash.addTo(change);
        m_trashState = trash.state();
    }
    return change.commit();
}
