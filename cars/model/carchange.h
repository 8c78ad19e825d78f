// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/undostep.h"
#include "storage/datafolder.h"
#include "storage/recordchange.h"
#include "storage/trash.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

/// What one action of a person changed in the files of the cars: each file and each slot of the list as it
/// was and as it became. It can be taken back and made again as long as none of them holds anything else
/// since.
class CarChange
{
public:
    /// Adds: the file `name` holds `after`. One that is not there yet comes back as an emptied file; one that
    /// cannot be read is not written over, and nothing else is then.
    void replace(const DataFolder &folder, const QString &name, const QByteArray &after);
    /// Adds: `slot` of the list bears `name`; an empty one frees it.
    void setName(const DataFolder &folder, int slot, const QString &name);
    /// The same with the bytes that the record begins with.
    void setRecord(const DataFolder &folder, int slot, const QByteArray &after);
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

    /// The change as a step of a window's undo; `show` brings what the files hold now to the screen. `folder`
    /// outlives the step.
    UndoStep step(const QString &title, const DataFolder &folder, const std::function<void()> &show) const;

private:
    /// A whole file, or the beginning of a record of the list.
    struct Place {
        QString name;
        int slot = 0; ///< 0: a whole file
        QByteArray before;
        QByteArray after;
    };
    using Bytes = QByteArray Place::*;

    ChangeResult exchange(const DataFolder &folder, Bytes held, Bytes wanted);
    bool write(const DataFolder &folder, Bytes wanted);
    bool isThere(const DataFolder &folder, Bytes bytes) const;

    std::vector<Place> m_places;
    std::optional<Trash::Item> m_thrownAway;
    std::optional<Trash::Item> m_broughtBack;
    Trash::State m_trashState = Trash::State::Whole;
    bool m_isBegun = false;   ///< refused in the middle the last time
    bool m_isUnknown = false; ///< what a file holds could not be read
};
