// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <functional>

/// The two forms of archive that the program knows; any other is refused.
enum class ArchiveForm { Zip, Tar };

/// What an archive says of one of its files.
struct ArchiveEntry {
    QString name; ///< "/" between folders. An archive gives it back composed (NFC), whatever it was before.
    qint64 size = 0;     ///< less than 0 where nobody knows it before: only in a ZIP that is being written
    QDateTime changed{}; ///< UTC, to the second

    bool operator==(const ArchiveEntry &) const = default;
};

/// Takes the bytes of an archive as they are made; false where it cannot.
using ArchiveSink = std::function<bool(QByteArrayView bytes)>;

/// Where the bytes of an archive come from.
struct ArchiveSource {
    /// The next bytes into `bytes`, at most `size`: how many there were, 0 at the end, -1 where they cannot
    /// be read.
    std::function<qint64(char *bytes, qint64 size)> read;
    /// Goes to `place`, counted from the first byte; empty where that cannot be done: a ZIP needs it.
    std::function<bool(qint64 place)> seek{};
    qint64 size = 0; ///< of all bytes; only where one can seek
};

/// An archive on its way out, file by file. Behind the first refusal nothing more is written.
class ArchiveWriting
{
public:
    ArchiveWriting() = default;
    virtual ~ArchiveWriting() = default;
    Q_DISABLE_COPY_MOVE(ArchiveWriting)

    /// Begins a file, of which `entry.size` bytes follow, where it has a size.
    [[nodiscard]] virtual bool begin(const ArchiveEntry &entry) = 0;
    [[nodiscard]] virtual bool write(QByteArrayView bytes) = 0;
    /// Ends the archive; without it there is none.
    [[nodiscard]] virtual bool finish() = 0;
};

/// An archive on its way in.
class ArchiveReading
{
public:
    enum class Step {
        Entry,   ///< a file, whose bytes can be read now
        End,     ///< all were read
        Refused, ///< a link, a folder, a sealed file, one with holes, another compression or form
        Damaged
    };

    ArchiveReading() = default;
    virtual ~ArchiveReading() = default;
    Q_DISABLE_COPY_MOVE(ArchiveReading)

    /// Goes to the next file, over what was not read of the one before.
    virtual Step next(ArchiveEntry &entry) = 0;
    /// The next bytes of the file: how many there were, 0 at its end, -1 where they are damaged.
    virtual qint64 read(char *bytes, qint64 size) = 0;
};

/// The module that knows the library for archives, as a table: nothing of the library is seen beyond it, and
/// no exception leaves it. Archives may be on any thread, each on one at a time; the table's functions give
/// them away for good.
struct ArchiveModule {
    ArchiveWriting *(*startWriting)(ArchiveForm form, const ArchiveSink &sink);
    ArchiveReading *(*startReading)(ArchiveForm form, const ArchiveSource &source);
};

/// How the module gives its table away.
using ArchiveEntrance = const ArchiveModule *(*)();
inline constexpr char archiveModuleName[] = "archive";
inline constexpr char archiveEntranceName[] = "quilleryArchive";
