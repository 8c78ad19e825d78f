// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"
#include "storage/datafolder.h"
#include "storage/trash.h"
#include "storage/wholefileschange.h"
#include "weight/model/weightsheet.h"

#include <QDateTime>
#include <QStringList>

#include <optional>
#include <vector>

/// The household's persons who weigh themselves: the list and a file for each, "Anne.Fil". Every action is on
/// the disk as a whole or not at all, and can be taken back.
class PersonFiles
{
public:
    enum class State {
        Missing,
        Empty, ///< there is nothing in it
        Whole,
        Cut,       ///< it ends early: the rest is blank
        Foreign,   ///< no person's file; never written
        OutOfReach ///< there, but it cannot be read; never written
    };

    /// What a file holds.
    struct Found {
        WeightSheet sheet;
        State state = State::Missing;
        /// Weigh-ins behind the last that the file counts; they are not in the sheet, and a save drops them.
        WeightTable uncounted{};

        bool mayBeWritten() const { return state != State::Foreign && state != State::OutOfReach; }
    };

    /// How a deleted person was brought back.
    struct [[nodiscard]] BroughtBack {
        QString name;            ///< their own, or one beside it where that was given away
        WholeFilesChange change; ///< to take it back
        bool isDone = false;
    };

    explicit PersonFiles(const DataFolder &folder)
        : m_folder(folder)
    {}

    const DataFolder &folder() const { return m_folder; }

    /// The file of a person of that name.
    static QString fileName(const QString &name);

    /// The persons in the order of the list. Where the list is missing or empty, those who have a file.
    QStringList names() const;
    /// The persons who have a file and are not in the list, by name.
    QStringList unlisted() const;
    /// The sheet of a person, with their name.
    Found read(const QString &name) const;

    /// What the bytes of a person's file say. The number of rows in front is trusted only as far as there are
    /// values.
    static Found decode(QByteArrayView bytes);
    static QByteArray encode(const WeightSheet &sheet);

    /// Why no file can have that name; nothing where it can.
    static std::optional<Message> whyNotNamed(const QString &name);
    /// `name`, or one beside it where that is given away: to a file, or to somebody in `listed`.
    QString freeName(const QString &name, const QStringList &listed = {}) const;
    /// Why nobody can be added under that name, or `former` be renamed to it.
    std::optional<Message> whyNotNew(const QString &name, const QString &former = {}) const;

    /// Makes the file of a new person and adds them to the list. Nothing where the name or the disk refuses.
    [[nodiscard]] std::optional<WholeFilesChange> create(const WeightSheet &sheet);
    /// Writes the file of the person `name`; where the sheet has another name the file and the list take it.
    /// Nothing, with a line in the log, where the name or the disk refuses or the file must not be written.
    [[nodiscard]] std::optional<WholeFilesChange> save(const QString &name, const WeightSheet &sheet);
    /// Adds persons who have a file already. Nothing where the disk refuses.
    [[nodiscard]] std::optional<WholeFilesChange> addToList(const QStringList &names);

    /// Deletes the person's file and takes them from the list; they go into the trash. Nothing where the disk
    /// refuses.
    [[nodiscard]] std::optional<WholeFilesChange> remove(const QString &name, const QDateTime &now);
    /// The persons who were deleted in the 30 days before `now`, the newest first.
    std::vector<Trash::Item> deletedPersons(const QDateTime &now) const;
    /// Brings a deleted person back, byte for byte, to the place in the list that was theirs.
    BroughtBack bringBack(const Trash::Item &item);

    /// The files of all persons that are there. An empty one that can be a person's counts as one: where
    /// nothing but names is known, as of the files of a backup, theirs are told by them.
    static QStringList files(const DataFolder &folder);
    /// The photos of all persons that are there, as full paths.
    static QStringList pictures(const DataFolder &folder);

private:
    /// What could be the names of persons, by the files without a byte.
    QStringList empty() const;
    void writeList(WholeFilesChange &change, const QStringList &names) const;
    /// Lets the card of a person tell what it told before; of nobody where `after` is empty.
    void renameTold(WholeFilesChange &change, const QString &name, const QString &after) const;
    [[nodiscard]] std::optional<WholeFilesChange> done(WholeFilesChange change) const;

    const DataFolder &m_folder;
};
