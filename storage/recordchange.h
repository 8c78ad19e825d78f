// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"
#include "storage/recordfile.h"
#include "storage/trash.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <utility>
#include <vector>

/// How taking a change back, or making it again, went.
enum class ChangeResult {
    Done,
    Outdated, ///< a place holds something else since: nothing was written
    Refused   ///< the disk refused: nothing was written, and it can be tried again
};

/// What one action of a person changed in record files: each place as it was and as it became. It can be
/// taken back and made again as long as nobody else has written to one of its places.
class RecordChange
{
public:
    /// Adds: record `number` of `file` begins with `after`. What stands there now is what comes back; bytes
    /// that a file does not have yet come back as zeros, since files never shrink.
    void write(const RecordFile &file, int number, QByteArrayView after);
    /// The same, where it is `before` that comes back.
    void write(const RecordFile &file, int number, QByteArrayView after, QByteArrayView before);

    /// Adds what another change did after this one.
    void add(const RecordChange &later);

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

    /// Whether there is something to take back.
    bool isEmpty() const;

private:
    struct Place {
        qsizetype recordLength = 0;
        QByteArray before;
        QByteArray after;
    };
    /// By file and record: an action that writes to a record twice has one place there.
    using Places = std::map<std::pair<QString, int>, Place>;
    using Bytes = QByteArray Place::*;

    void add(const Places::key_type &where, qsizetype recordLength, QByteArrayView after,
             QByteArrayView before);
    ChangeResult exchange(const DataFolder &folder, Bytes held, Bytes wanted);
    bool write(const DataFolder &folder, Bytes wanted);

    Places m_places;
    std::vector<Trash::Item> m_thrownAway;
    std::vector<Trash::Item> m_broughtBack;
    Trash::State m_trashState = Trash::State::Whole;
    bool m_isBegun = false;   ///< refused in the middle the last time
    bool m_isUnknown = false; ///< what stood there could not be read, and will not be guessed
};
