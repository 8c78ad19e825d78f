// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"
#include "storage/trash.h"

#include <utility>
#include <vector>

class ChangeSet;

/// How taking a change back, or making it again, went.
enum class ChangeResult {
    Done,
    Outdated, ///< a place holds something else since: nothing was written
    Refused   ///< the disk refused: nothing was written, and it can be tried again
};

/// What one action of a person changed in files: each place as it was and as it became, which a derived class
/// knows. It can be taken back and made again as long as none of the places holds anything else since.
class FileChange
{
public:
    virtual ~FileChange() = default;

    /// Adds: `item` goes into the trash with the change, and comes out when it is taken back.
    void throwAway(Trash::Item item) { m_thrownAway.push_back(std::move(item)); }
    /// Adds: `item` comes out of the trash with the change, and goes in again when it is taken back.
    void bringBack(Trash::Item item) { m_broughtBack.push_back(std::move(item)); }
    /// How the trash took that the last time; never a reason to refuse the change.
    Trash::State trashState() const { return m_trashState; }

    /// Makes the change: all of it or, where the disk refuses, nothing.
    [[nodiscard]] bool commit(const DataFolder &folder);
    /// Takes the change back, all of it or nothing.
    [[nodiscard]] ChangeResult undo(const DataFolder &folder);
    /// Makes the change once more, all of it or nothing.
    [[nodiscard]] ChangeResult redo(const DataFolder &folder);

protected:
    /// What the places held, or what they hold after the change.
    enum class Side { Before, After };

    FileChange() = default;
    FileChange(const FileChange &) = default;
    FileChange(FileChange &&) = default;
    FileChange &operator=(const FileChange &) = default;
    FileChange &operator=(FileChange &&) = default;

    /// Whether every place holds what it has on `side`.
    virtual bool isThere(const DataFolder &folder, Side side) const = 0;
    /// Adds the writes after which it does. False: it is not to be written.
    virtual bool addTo(ChangeSet &writes, const DataFolder &folder, Side side) const = 0;

    /// Adds what `later` does to the trash.
    void addTrash(const FileChange &later);

private:
    ChangeResult exchange(const DataFolder &folder, Side held, Side wanted);
    bool write(const DataFolder &folder, Side wanted);

    std::vector<Trash::Item> m_thrownAway;
    std::vector<Trash::Item> m_broughtBack;
    Trash::State m_trashState = Trash::State::Whole;
    bool m_isBegun = false; ///< refused in the middle the last time
};
