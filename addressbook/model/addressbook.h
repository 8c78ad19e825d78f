// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressentry.h"
#include "addressbook/model/namelist.h"
#include "storage/datafolder.h"
#include "storage/openrecordfile.h"
#include "storage/recordchange.h"
#include "storage/recordfile.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

/// The two files of the address book, which always move together: `Addbk1.Fil` holds the entries,
/// `Addbk2.Fil` a line of the name list for each. Entry N is record N of both. No file stays open between
/// calls, but for a `Reader`.
class AddressBook
{
public:
    static constexpr int firstRecord = 2;
    static constexpr int lastRecord = 50000;
    /// Where a new entry goes when no record up to the last is free.
    static constexpr int overflowRecord = lastRecord + 1;

    /// How a save went.
    struct [[nodiscard]] SaveResult {
        int record = 0; ///< where the entry went, or will go; 0 when nothing was tried
        QString line;   ///< the entry's line for the name list
        RecordChange change;
        bool isSaved = false;
        bool isBookFull = false;    ///< nothing was tried: a new entry would take the place of another
        bool isLineTooLong = false; ///< no record can hold the line: none was written, an old one stays
    };

    /// What a line of the list leads to.
    struct Found {
        int record = 0; ///< 0: the line's number cannot be read, and there is no entry
        AddressEntry entry;
        bool mayChange = false; ///< false: the line bears another name than the entry
        bool isStray = false;   ///< it leads to no entry and none stands in its own record: it may be removed
    };

    /// Reads entries one after another while `Addbk1.Fil` stays open: for pages of many of them.
    class Reader
    {
    public:
        explicit Reader(const AddressBook &book);

        /// As `AddressBook::read`.
        AddressEntry read(int record);

    private:
        OpenRecordFile m_file;
    };

    explicit AddressBook(const DataFolder &folder);

    const DataFolder &folder() const { return m_folder; }

    /// The name list; creates a missing index file. Deleted entries are left out, and so are empty lines but
    /// that of the first record.
    NameList loadNames() const;

    /// The entry of `record`; an empty one when it was never written or its file is missing.
    AddressEntry read(int record) const;

    /// The entry that `line` leads to, and whether it may be changed through it.
    Found open(QStringView line) const;

    /// The number that the next new entry takes, from `first` on; 0 when the entries cannot be read to their
    /// end, and beyond `overflowRecord` when the book is full.
    int nextFreeRecord(int first = firstRecord) const;

    /// Writes `entry` to the first free record, and its line: both or, when the disk refuses, neither. The
    /// last name is not checked here. One that the disk refused in the middle has a record, which is
    /// `begunRecord` when the same entry is saved again, changed or not.
    SaveResult saveNew(const AddressEntry &entry, int begunRecord = 0);

    /// Writes the entry of `record` and its line: both or neither. A line that is too long is left out.
    SaveResult saveChanged(int record, const AddressEntry &entry);

    /// Marks entry and line as deleted, and puts them as they were into the trash. Nothing, with a line in
    /// the log and both as they were, when the disk refuses.
    [[nodiscard]] std::optional<RecordChange> remove(int record, const QDateTime &now);
    /// Marks a stray line as deleted. Nothing when there is none like it, or the disk refuses.
    [[nodiscard]] std::optional<RecordChange> removeStray(QStringView line);

    /// The entries that were deleted in the 30 days before `now`, the newest first.
    std::vector<Trash::Item> deletedEntries(const QDateTime &now) const;
    /// Writes a deleted entry, byte for byte, into its own record where that is free, else into the one that
    /// a new entry takes; it then leaves the trash.
    SaveResult bringBack(const Trash::Item &item);

    /// Adds to `change` that an entry of these bytes stands in `record`, with its line unless that is too
    /// long.
    void add(RecordChange &change, int record, QByteArrayView entryBytes) const;

    /// Visits the live entries in record order, in one pass over each file; the visitor returns false to
    /// stop. An entry is live when its own record of the index holds a line.
    void forEachLive(const std::function<bool(int record, const AddressEntry &entry)> &visit) const;

    /// The same with the bytes of the entry: at most 724, fewer at the end of the file.
    void forEachLiveRecord(const std::function<bool(int record, QByteArrayView bytes)> &visit) const;

    /// The same, and the entries for which the index is too short to have a record at all: that is a damaged
    /// one, or has lost the line of a long name at its end.
    void forEachReadableRecord(const std::function<bool(int record, QByteArrayView bytes)> &visit) const;

    /// The live ones of the records `first` to `last`. False when the files end before the last.
    bool visitLiveRecords(int first, int last,
                          const std::function<void(int record, QByteArrayView bytes)> &visit) const;

    /// The two files, as the data folder names them.
    static QStringList fileNames();

    /// The two files themselves, for readers that walk over all of them at once.
    RecordFile entries() const;
    RecordFile index() const;

private:
    SaveResult write(int record, const AddressEntry &entry);
    /// A line that was kept from before is written as it was.
    SaveResult write(int record, QByteArrayView entryBytes, QByteArrayView keptLine, RecordChange change);
    void forEachRecord(bool isLiveBeyondIndex,
                       const std::function<bool(int record, QByteArrayView bytes)> &visit) const;
    /// Whether nothing would be lost of what a file holds, were an entry written to `record`.
    bool isRecordFree(int record) const;
    /// The bytes of an entry; empty where none stands.
    QByteArray liveEntry(int record) const;
    /// The record of the index in which this line stands while its own record holds no entry, or 0.
    int strayRecord(QStringView line) const;
    /// Whether `line` is the one that `entry` left in its own record when its names grew too long for the
    /// index.
    bool isOutgrownLine(int record, QStringView line, const AddressEntry &entry) const;

    const DataFolder &m_folder;
};
