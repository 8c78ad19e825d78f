// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/archive/archive.h"

#include <QIODevice>

#include <functional>
#include <memory>

/// An archive that is written file by file, as its bytes go through `sink`. Nothing of it is held in memory
/// but what is on its way.
class ArchiveWriter
{
public:
    ArchiveWriter(ArchiveForm form, const ArchiveSink &sink);

    /// Whether the program came with what makes and reads archives.
    static bool isAvailable();

    /// Begins a file, of which `entry.size` bytes follow: neither fewer nor more. In a ZIP the size may be
    /// `unknownSize`. Everything answers false from the first refusal on, and where no archive can be made.
    [[nodiscard]] bool begin(const ArchiveEntry &entry);
    [[nodiscard]] bool write(QByteArrayView bytes);
    /// The same two for a file of these bytes.
    [[nodiscard]] bool add(const ArchiveEntry &entry, QByteArrayView bytes);
    /// Ends the archive; without it there is none.
    [[nodiscard]] bool finish();

    /// At most so many bytes a tar takes for this file.
    static qint64 mostTarBytes(const QString &name, qint64 size);
    /// And at most so many for its end.
    static constexpr qint64 mostTarEnd = 10'240;
    static constexpr qint64 unknownSize = -1;

private:
    bool noted(bool isDone);
    bool isFileWhole() const { return m_left == 0 || m_left == unknownSize; }

    ArchiveForm m_form;
    std::unique_ptr<ArchiveWriting> m_writing;
    qint64 m_left = 0; ///< of the file that was begun
};

/// How much of an archive is believed.
struct ArchiveLimits {
    int files = 100'000;
    qint64 bytes = qint64(64) << 30; ///< unpacked, all files together
};

/// An archive of the program's own two forms that is read file by file, from anywhere: whatever its bytes
/// are, it hands out safe names of plain files, and not more than the limits.
class ArchiveReader
{
public:
    enum class State {
        Reading,
        Complete,    ///< all files were seen, those that are damaged too
        Refused,     ///< it is none of ours: links, folders, unsafe names, other compressions, more than is
                     ///< believed
        Damaged,     ///< it cannot be read any further
        NotAvailable ///< the program came without what reads archives
    };

    ArchiveReader(ArchiveForm form, const ArchiveSource &source, const ArchiveLimits &limits = {});
    /// A whole file that is open for reading; it has to outlive the reader.
    static ArchiveSource sourceOf(QIODevice &file);

    State state() const { return m_state; }
    /// Goes to the next file, over what was not read of the one before; false at the end, or where the state
    /// says why not.
    bool next();
    const ArchiveEntry &entry() const { return m_entry; }
    /// The next bytes of the file: how many there were, 0 at its end, -1 where it is damaged, as one is that
    /// has fewer or more bytes than it says. `next` may go on behind it.
    qint64 read(char *bytes, qint64 size);
    /// The rest of the file, in pieces of at most 64 KiB; stops where `take` answers false. True where all of
    /// it was taken.
    bool readAll(const std::function<bool(QByteArrayView bytes)> &take);

private:
    bool stop(State state);

    std::unique_ptr<ArchiveReading> m_reading;
    ArchiveLimits m_limits;
    ArchiveEntry m_entry;
    State m_state = State::Reading;
    qint64 m_left = 0; ///< of the file
    bool m_isFileDamaged = true;
    int m_files = 0;
    qint64 m_bytes = 0;
};
