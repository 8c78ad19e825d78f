// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskplan.h"
#include "backup/model/sealedkey.h"
#include "backup/model/sealedwriter.h"
#include "backup/model/setdisk.h"
#include "backup/model/storednames.h"

#include <memory>
#include <optional>

/// A disk on which everything stands in one file that only a password opens; the records beside it say
/// nothing of what is inside. It is proven as a whole, when it is closed.
class SealedDisk final : public SetDisk
{
public:
    /// What of `room` there is for files: all of them are one file, which has an end of its own.
    static DiskRoom sealedRoom(DiskRoom room);

    SealedDisk(const QString &drive, const DiskRecord &record, FileCopier &copier,
               std::shared_ptr<const SealedKey> key);

    DiskResult open() override;
    bool hasPicture(const QByteArray &, qint64) const override { return false; }
    void putKnown(const BackupPart &) override {}
    DiskResult put(const FileCopier::Source &source, BackupPart part, FileHash *whole) override;
    bool takeBack() override;
    DiskResult prove() override;
    DiskResult close(const LastRecord &last) override;
    qsizetype giveBack() override { return -1; }
    bool keepsWhenFull() const override { return false; }

    qint64 waitingBytes() const override { return 0; }
    qsizetype waitingCount() const override { return m_waiting.size(); }
    QString readableFolder() const override { return {}; }

private:
    /// A file that is small is held until the next one comes: it may have changed meanwhile.
    struct Held {
        QString stored;
        QByteArray content;
        QDateTime changed;
    };

    bool take(QByteArrayView bytes);
    DiskResult putHeld();
    DiskResult putSmall(const FileCopier::Source &source, const BackupPart &part, FileHash *whole);
    DiskResult putLarge(const FileCopier::Source &source, const BackupPart &part, FileHash *whole);
    DiskResult writeLast(const LastRecord &last);
    DiskResult readBack();
    DiskResult whyRefused() const;

    std::shared_ptr<const SealedKey> m_key;
    QFile m_file;
    qint64 m_written = 0;
    qint64 m_begun = 0; ///< of what the disk was told to take
    FileHash m_hash;    ///< of the sealed file
    QString m_error;
    std::unique_ptr<SealedWriter> m_writer;
    StoredNames m_names;
    QStringList m_stored;
    std::optional<Held> m_held;
    QList<BackupPart> m_waiting;
};
