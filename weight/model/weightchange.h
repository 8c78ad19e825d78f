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

/// What one action of a person changed in the files of the weight tracker: each file as it was and as it
/// became, there or not. It can be taken back and made again as long as none of them holds anything else
/// since.
class WeightChange
{
public:
    /// Adds: the file `name` holds `after`; without `after` it is gone. One that is there and cannot be read
    /// is not written over, and nothing else is then.
    void replace(const DataFolder &folder, const QString &name, const std::optional<QByteArray> &after);
    /// Adds: `item` goes into the trash with the change, and comes out when it is taken back.
    void throwAway(Trash::Item item) { m_thrownAway = std::move(item); }
    /// Adds: `item` comes out of the trash with the change, and goes in again when it is taken back.
    void bringBack(Trash::Item item) { m_broughtBack = std::move(item); }

    /// How the trash took that the last time; never a reason to refuse the change.
    Trash::State trashState() const { return m_trashState; }

    /// What the file `name` held before; nothing where it was not there, or is no part of the change.
    std::optional<QByteArray> before(const QString &name) const;

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
    struct Place {
        QString name;
        std::optional<QByteArray> before; ///< nothing: no such file
        std::optional<QByteArray> after;
    };
    using Content = std::optional<QByteArray> Place::*;

    ChangeResult exchange(const DataFolder &folder, Content held, Content wanted);
    bool write(const DataFolder &folder, Content wanted);
    bool isThere(const DataFolder &folder, Content content) const;

    std::vector<Place> m_places;
    std::optional<Trash::Item> m_thrownAway;
    std::optional<Trash::Item> m_broughtBack;
    Trash::State m_trashState = Trash::State::Whole;
    bool m_isBegun = false;   ///< refused in the middle the last time
    bool m_isUnknown = false; ///< what a file holds could not be read
};
