// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"
#include "storage/recordfile.h"

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

/// The writes of one action that belong together: after `commit`, and after any crash or power cut, all of
/// them are on the disk or none is.
///
/// What is to be written is first laid down beside the data, in the file `journalName`, and flushed; then it
/// is done and flushed; then the journal goes. A journal that a crash left behind is finished by the next
/// start when it is whole, and dropped when it is not. It holds the very bytes that the files get, so a
/// sealed function's journal holds sealed bytes.
class ChangeSet
{
public:
    /// A magic number, the writes, and the SHA-256 of both.
    inline static const QString journalName = QStringLiteral("Quillery.changes");
    /// The end of the names of files that wait for their journal.
    static constexpr QLatin1StringView waitingSuffix{".quillery-waiting"};
    /// The folder in the data folder where whole files wait that others have laid down there: see `takeLaid`.
    inline static const QString layingFolder = QStringLiteral("Restore.quillery-staged");

    explicit ChangeSet(const DataFolder &folder);

    /// Adds: `value` in record `number` of `file`, a file of the folder, from its byte `at` on; otherwise as
    /// `RecordFile::write`.
    void write(const RecordFile &file, int number, QByteArrayView value, qsizetype at = 0);

    /// Adds: the file `name` of the folder, which then holds `content`. One that is there already holds
    /// `inBetween` until it does, unless that is empty: other programs see by it that a save is under way.
    void replace(const QString &name, const QByteArray &content, const QByteArray &inBetween = {});

    /// Adds: the file `name` of the folder, or of one in it ("Pictures/Anne.jpg", in the spelling that is
    /// there), is then the file `laid` of the `layingFolder`. That one is whole and on the disk already, so
    /// that files of any size need no room in memory.
    void takeLaid(const QString &laid, const QString &name);

    /// Adds: the file `name` of the folder is gone, if it is there.
    void remove(const QString &name);

    /// Does what was added, in that order but for whole files, which come last, and those that go, behind
    /// them. False, with a line in the log and everything as it was, when a step is refused; it can be called
    /// again then.
    [[nodiscard]] bool commit();

    /// Lays down what was added, for the next start to do all of it before anything is read. False, with
    /// everything as it was, when that is refused.
    [[nodiscard]] bool leaveToNextStart();

    /// Finishes or drops what a crash interrupted in `folder`. Called once at start, before anything is read.
    /// False when a change cannot be finished now: its journal stays for the next time, as it does in a
    /// folder for reading only.
    [[nodiscard]] static bool recover(const DataFolder &folder);

    /// Whether a change waits in `folder` to be finished: one that was refused, and could not be taken back
    /// either.
    static bool isPending(const DataFolder &folder);

private:
    /// Bytes for a place in a file; a whole file that waits under its waiting name when `offset` is -1, one
    /// that goes when it is -2, one that waits in the laying folder when it is -3.
    struct Change {
        QString name;
        qint64 offset = 0;
        QByteArray bytes;     ///< of a laid file: its name there, in UTF-8
        QByteArray inBetween; ///< not in the journal: from there on the file only takes its new content

        bool isWholeFile() const { return offset == wholeFile; }
        bool isGoing() const { return offset == going; }
        bool isLaid() const { return offset == laid; }
        bool isInPlace() const { return offset >= 0; }
    };
    using Changes = std::vector<Change>;
    static constexpr qint64 wholeFile = -1;
    static constexpr qint64 going = -2;
    static constexpr qint64 laid = -3;

    /// What a file held before a change touched it.
    struct Former {
        QString path;
        qint64 size; ///< -1: the file was not there
        std::vector<std::pair<qint64, QByteArray>> places;
    };

    static bool finish(const DataFolder &folder);
    static QByteArray encode(const Changes &changes);
    static bool decode(const QByteArray &journal, Changes &changes);
    static bool writeFile(const DataFolder &folder, const Changes &changes, const QString &name,
                          std::vector<Former> &formers);
    static bool writePlaces(const DataFolder &folder, const Changes &changes, std::vector<Former> &formers);
    static bool takeNames(const DataFolder &folder, const Changes &changes);
    static bool takeName(const DataFolder &folder, const Change &change);
    static QString waitingPath(const DataFolder &folder, const Change &change);
    static QString targetPath(const DataFolder &folder, const Change &change);
    static bool removeFiles(const DataFolder &folder, const Changes &changes);
    static bool restore(const std::vector<Former> &formers);
    static bool restoreFile(const Former &former);
    static bool removeJournal(const DataFolder &folder);

    bool isReady() const;
    bool writeJournal() const;
    bool stage() const;
    bool hasTakenNames() const;
    bool isInBetween() const;
    void dropStaged() const;

    DataFolder m_folder;
    Changes m_changes;
    bool m_isRefused = false;
};
