// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/picturepool.h"
#include "backup/model/setdisk.h"
#include "backup/model/storednames.h"

#include <QSet>

#include <optional>

/// A disk on which every file stands as it is, under its own name.
class PlainDisk final : public SetDisk
{
public:
    PlainDisk(const QString &drive, const DiskRecord &record, FileCopier &copier);

    DiskResult open() override;
    bool hasPicture(const QByteArray &hash, qint64 size) const override;
    void putKnown(const BackupPart &part) override;
    DiskResult put(const FileCopier::Source &source, BackupPart part, FileHash *whole) override;
    bool wasThere() const override;
    bool takeBack() override;
    DiskResult prove() override;
    DiskResult close(const LastRecord &last) override;
    qsizetype giveBack() override;
    bool keepsWhenFull() const override { return true; }

    qint64 waitingBytes() const override { return m_waitingBytes; }
    qsizetype waitingCount() const override { return m_waiting.size(); }
    QString readableFolder() const override { return folder(); }

private:
    /// A part that is not proven yet.
    struct Waiting {
        BackupPart part;
        QString path;      ///< where it was written; empty where nothing was
        QString finalPath; ///< of a picture
        QString stored;    ///< its name below the folder; empty for a picture
    };

    bool makeFolderOf(const QString &path);
    std::optional<DiskResult> keep(const FileCopier::Source &source, const Waiting &waiting, FileHash *whole);
    DiskResult putPicture(const FileCopier::Source &source, Waiting waiting);
    void wait(const Waiting &waiting);
    bool takeName(const Waiting &picture);
    QByteArray sums() const;
    void clearLeftovers() const;

    PicturePool m_pool;
    StoredNames m_names;
    QStringList m_stored; ///< of each proven part; empty for a picture
    QList<Waiting> m_waiting;
    qint64 m_waitingBytes = 0;
    QSet<QString> m_folders; ///< that were made
    int m_pictures = 0;
};
