// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"
#include "storage/recordchange.h"
#include "storage/trash.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

/// What one action of a person changed in the files of the cars: each file as it was and as it became. It can
/// be taken back and made again as long as none of them holds anything else since.
class CarChange
{
public:
    /// Adds: the file `name` holds `after`. A file that is not there yet comes back as an emptied one.
    void replace(const DataFolder &folder, const QString &name, const QByteArray &after);
    /// Adds: `slot` of the list bears `name`; an empty one frees it.
    void setName(const DataFolder &folder, int slot, const QString &name);
    /// Adds: `item` goes into the trash with the change, and comes out when it is taken back.
    void throwAway(Trash::Item item) { m_thrownAway = std::move(item); }
    /// Adds: `item` comes out of the trash with the change, and goes in again when it is taken back.
    void bringBack(Trash::Item item) { m_broughtBack = std::move(item); }

    /// How the trash took that the last time; never a reason to refuse the change.
    Trash::State trashState() const { return m_trashState; }

    /// Whether nothing would change.
    bool isEmpty() const;

    /// Makes the change: all of it or, where the disk refuses, nothing.
    [[nodiscard]] bool commit(const DataFolder &folder);
    /// Takes the change back, all of it or nothing.
    [[nodiscard]] ChangeResult undo(const DataFolder &folder);
    /// Makes the change once more, all of it or nothing.
    [[nodiscard]] ChangeResult redo(const DataFolder &folder);

private:
    struct File {
        QString name;
        QByteArray before;
        QByteArray after;
        bool isUnknown = false; ///< what it holds cannot be read, and is not overwritten
    };
    struct Slot {
        int number = 0;
        QByteArray before;
        QByteArray after;
    };

    ChangeResult exchange(const DataFolder &folder, bool isUndo);
    bool write(const DataFolder &folder, bool isUndo);
    bool isThere(const DataFolder &folder, bool isUndo) const;

    std::vector<File> m_files;
    std::vector<Slot> m_slots;
    std::optional<Trash::Item> m_thrownAway;
    std::optional<Trash::Item> m_broughtBack;
    Trash::State m_trashState = Trash::State::Whole;
    bool m_isBegun = false; ///< refused in the middle the last time
};
