// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/restoresource.h"
#include "backup/model/snapshots.h"

#include <QTemporaryDir>

#include <atomic>

/// A snapshot that is restored as a backup of one disk is: unpacked into a folder of its own before, so that
/// it may even be deleted meanwhile.
class SnapshotSource final : public RestoreSource
{
public:
    /// Unpacks it; on any thread. `refusal()` says why nothing is there then.
    SnapshotSource(const Snapshot &snapshot, const std::atomic_bool &isStopped);

    const QString &refusal() const { return m_refusal; }
    /// What is in it, as the record of a set.
    const SetRecord &setRecord() const { return m_set; }
    /// Where its files lie: those that were damaged do not.
    QString folder() const { return m_folder.path(); }

    Reading read(const QString &root, int number, Visitor &visitor) override;
    std::optional<DiskRecord> diskAt(const QString &root) const override;

private:
    bool readFile(const BackupFile &file, Visitor &visitor) const;

    QTemporaryDir m_folder;
    SetRecord m_set;
    QString m_refusal;
};
