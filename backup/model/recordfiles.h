// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/filehash.h"
#include "backup/model/restoresource.h"

#include <QFile>
#include <QList>
#include <QSet>
#include <QStringList>

#include <atomic>
#include <functional>
#include <map>

/// Writes the files of the household's folder that are no pictures into another folder, where they lie whole
/// or in pieces on the disks of a set. What is damaged is left out.
class RecordFiles final : public RestoreSource::Visitor
{
public:
    /// Told how many bytes were written.
    using Written = std::function<void(qint64 bytes)>;

    RecordFiles(const SetRecord &set, const std::atomic_bool &isStopped, Written written = {});

    /// How many bytes they have, and how many there are.
    qint64 bytes() const;
    int count() const { return int(m_files.size()); }
    /// The disks on which they lie, the last one of the set first: it is in when a set is opened.
    QList<int> disks() const;

    /// Where they go to, before any disk is read.
    void setFolder(const QString &into) { m_into = into; }
    /// From now on disk `number` is read, perhaps once more.
    void beginDisk(int number);
    /// Something of that disk was read.
    bool hasBegun() const { return m_hasBegun; }
    /// All that is wanted of it was read: the rest need not be.
    bool isDiskDone() const { return m_partsLeft == 0; }
    /// The folder takes no more.
    bool hasFailed() const { return m_hasFailed; }

    bool wants(const BackupPart &part) override;
    bool take(QByteArrayView bytes) override;
    bool end(bool isWhole) override;

    /// Removes what is not whole: the names of those.
    QStringList finish();

private:
    struct Wanted {
        BackupFile file;
        qint64 received = 0;
        QSet<qint64> offsets{}; ///< of the parts that were received
    };

    bool isWhole(const Wanted &wanted) const;

    int m_disks;
    const std::atomic_bool &m_isStopped;
    Written m_written;
    QString m_into;
    std::map<QString, Wanted> m_files; ///< by names
    int m_disk = 0;
    int m_partsToCome = 0; ///< of the disk, which were not received whole
    int m_partsLeft = 0;   ///< of the disk, while it is read
    bool m_hasBegun = false;
    bool m_hasFailed = false;
    BackupPart m_part;
    QFile m_file;
    FileHash m_hash;
};
