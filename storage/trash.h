// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

class ChangeSet;

/// What was deleted in the last 30 days, to be brought back: the file `Quillery.trash`, with the bytes of
/// records as they were. It is open to whoever can read the household's folder, as the records were; so
/// nothing of a function that seals its records ever comes here, and what such a function deletes is gone.
class Trash
{
public:
    inline static const QString fileName = QStringLiteral("Quillery.trash");
    /// A file of that name that cannot be read is kept under this one, the next under ...-2.
    inline static const QString keptName = QStringLiteral("Quillery.trash.kept");
    static constexpr int days = 30;

    /// What one record of a file held.
    struct Piece {
        QString file;
        int number = 0;
        QByteArray bytes;

        bool operator==(const Piece &) const = default;
    };
    /// Something that was deleted.
    struct Item {
        QString kind; ///< whose it is: "AddressBook"
        QDateTime deleted;
        QString title;
        std::vector<Piece> pieces;

        bool operator==(const Item &) const = default;
    };

    enum class State {
        Whole,     ///< or not there yet
        Foreign,   ///< the file is none of this program, or damaged
        OutOfReach ///< it cannot be read or not be written
    };

    explicit Trash(const DataFolder &folder);

    State state() const { return m_state; }
    /// What was deleted of this kind in the 30 days before `now`, the newest first.
    std::vector<Item> items(const QString &kind, const QDateTime &now) const;

    /// Puts `item` in, and drops what had lain there for 30 days when it was deleted.
    void put(const Item &item);
    /// Takes `item` out; nothing when it is not there.
    void take(const Item &item);
    /// Adds to `change` that the file holds what was put in and taken out. A foreign file is kept aside
    /// first; where that or any write is out of reach, nothing is added: no deletion waits for the trash.
    void addTo(ChangeSet &change);

    static QByteArray encode(const std::vector<Item> &items);
    /// Nothing when the bytes are no trash, or not all of it.
    static std::optional<std::vector<Item>> decode(const QByteArray &bytes);

private:
    bool keepAside() const;

    DataFolder m_folder;
    State m_state = State::Whole;
    std::vector<Item> m_items;
    QByteArray m_foreign;
};
