// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/filecopier.h"
#include "backup/model/setrecords.h"

#include <QList>
#include <QString>

/// How a step with a disk went.
enum class DiskResult {
    Done,
    Stopped,
    Full,
    Gone,       ///< the disk is no longer there
    Protected,  ///< it cannot be written to
    NotWritten, ///< the disk refuses for another reason
    NotRead,    ///< the household's file is gone, or cannot be read
    Spoilt,     ///< the same, and what was written of it cannot be taken off the disk
    Differs     ///< what was read back is not what was written
};

/// The set's record, for its last disk.
struct LastRecord {
    const SetRecord *set = nullptr; ///< null: it is not the last one
    QByteArray bytes{};             ///< of its file
};

/// One disk of a set while it is written. What is put on it counts once it is proven: flushed, read back and
/// compared.
class SetDisk
{
public:
    virtual ~SetDisk() = default;
    Q_DISABLE_COPY_MOVE(SetDisk)

    /// Makes the disk's place for the set, or finds what a run that ended before has left there.
    virtual DiskResult open();

    /// Whether the disk has a picture of that content already.
    virtual bool hasPicture(const QByteArray &hash, qint64 size) const = 0;
    /// Adds such a picture to the disk's part of the set.
    virtual void putKnown(const BackupPart &part) = 0;
    /// Puts the part there; its hash is taken on the way, and added to that of the whole file. Nothing stays
    /// of a part that does not get there.
    virtual DiskResult put(const FileCopier::Source &source, BackupPart part, FileHash *whole) = 0;
    /// Whether the disk had the content of the last part that was put, so that nothing was written.
    virtual bool wasThere() const { return false; }
    /// Takes back the last part that was put, which is not proven yet. False where it has to stay.
    virtual bool takeBack() = 0;
    /// Proves what was put since the last time.
    virtual DiskResult prove() = 0;

    /// Writes the disk's records, and last of all the set's where this is the last disk. `Full`: they have no
    /// room.
    virtual DiskResult close(const LastRecord &last) = 0;
    /// Takes a proven part off the disk again, to make room for its records: which of `parts` that was, or -1
    /// when there is none.
    virtual qsizetype giveBack() = 0;
    /// Whether a disk that is full sooner than it said keeps what was put on it until then.
    virtual bool keepsWhenFull() const = 0;
    /// Removes what stands for the set on a disk that got nothing of it.
    void leave();

    /// What is proven.
    const QList<BackupPart> &parts() const { return m_record.parts; }
    /// How much waits to be proven.
    virtual qint64 waitingBytes() const = 0;
    virtual qsizetype waitingCount() const = 0;
    /// The household's name of the file that the last failure was with.
    const QString &failedFile() const { return m_failed; }
    /// Where the files lie that can be read as they are; empty for a sealed disk.
    virtual QString readableFolder() const = 0;

protected:
    /// `record` is the disk's, without parts.
    SetDisk(const QString &drive, const DiskRecord &record, FileCopier &copier);

    const QString &drive() const { return m_drive; }
    /// Of the set on the disk.
    const QString &folder() const { return m_folder; }
    QString pathOf(const QString &name) const { return m_folder + u'/' + name; }
    DiskRecord &record() { return m_record; }
    const DiskRecord &record() const { return m_record; }
    FileCopier &copier() const { return m_copier; }
    /// Whether the folder was there before.
    bool isFound() const { return m_isFound; }
    void setFailedFile(const QString &name) { m_failed = name; }

    /// Whether the disk is still there.
    bool isThere() const;
    /// What a refused step means, which the system explains so.
    DiskResult whyNotWritten(const QString &error = {}) const;
    DiskResult resultOf(FileCopier::Result result) const;
    /// Writes a record of the folder in one step: a disk that is full keeps the one that it had.
    [[nodiscard]] bool write(QLatin1StringView name, const QByteArray &content) const;

private:
    bool findFolder();

    QString m_drive;
    QString m_folder;
    DiskRecord m_record;
    FileCopier &m_copier;
    QString m_failed;
    bool m_isFound = false;
    bool m_isOpen = false;
};
