// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/filechange.h"

#include "storage/changeset.h"

bool FileChange::commit(const DataFolder &folder)
{
    return write(folder, Side::After);
}

ChangeResult FileChange::undo(const DataFolder &folder)
{
    return exchange(folder, Side::After, Side::Before);
}

ChangeResult FileChange::redo(const DataFolder &folder)
{
    return exchange(folder, Side::Before, Side::After);
}

void FileChange::addTrash(const FileChange &later)
{
    m_thrownAway.insert(m_thrownAway.end(), later.m_thrownAway.begin(), later.m_thrownAway.end());
    m_broughtBack.insert(m_broughtBack.end(), later.m_broughtBack.begin(), later.m_broughtBack.end());
    m_trashState = later.m_trashState;
}

ChangeResult FileChange::exchange(const DataFolder &folder, Side held, Side wanted)
{
    // What was refused in the middle is finished first, and it may have been this.
    if (ChangeSet::isPending(folder) && !ChangeSet::recover(folder))
        return ChangeResult::Refused;
    if (std::exchange(m_isBegun, false) && isThere(folder, wanted))
        return ChangeResult::Done;
    if (!isThere(folder, held))
        return ChangeResult::Outdated;
    if (write(folder, wanted))
        return ChangeResult::Done;
    m_isBegun = ChangeSet::isPending(folder);
    return ChangeResult::Refused;
}

bool FileChange::write(const DataFolder &folder, Side wanted)
{
    ChangeSet writes(folder);
    if (!addTo(writes, folder, wanted))
        return false;
    if (!m_thrownAway.empty() || !m_broughtBack.empty()) {
        const bool isDone = wanted == Side::After;
        Trash trash(folder);
        for (const Trash::Item &item : isDone ? m_thrownAway : m_broughtBack)
            trash.put(item);
        for (const Trash::Item &item : isDone ? m_broughtBack : m_thrownAway)
            trash.take(item);
        trash.addTo(writes);
        m_trashState = trash.state();
    }
    return writes.commit();
}
