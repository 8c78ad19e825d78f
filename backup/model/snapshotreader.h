// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/archivefile.h"
#include "backup/model/snapshotmanifest.h"

#include <QFile>
#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <optional>

/// Looks into a snapshot. Whatever the file is, nothing is written before all of it is known to be one.
class SnapshotReader
{
public:
    enum class State {
        Whole,
        Refused,     ///< it is no snapshot, or holds what none has
        Damaged,     ///< it cannot be read to its end, or not every file is as it was: `damaged()`
        NotUnpacked, ///< there is no room for the files
        Stopped,
        NotAvailable
    };

    explicit SnapshotReader(const QString &path);

    /// What is in it, in its order; nothing where the state says why not.
    std::optional<QList<SnapshotFile>> files();
    /// Writes those of its files that `isWanted` names into the folder `into`, under their names and with
    /// their times; all of them where it is empty. True where each is as it was when the snapshot was made; a
    /// damaged one is not left there.
    [[nodiscard]] bool unpack(const QString &into, const std::function<bool(const SnapshotFile &)> &isWanted,
                              const std::atomic_bool &isStopped);

    State state() const { return m_state; }
    /// A sentence for the user; empty while the state is whole, or stopped.
    QString refusal() const;
    /// The names of files that were not as they should be.
    const QStringList &damaged() const { return m_damaged; }

private:
    bool stop(State state);
    bool stopAsOf(const ArchiveReader &archive);
    bool unpackOne(ArchiveReader &archive, const SnapshotFile &file, const QString &path,
                   const std::atomic_bool &isStopped);

    QFile m_file;
    State m_state = State::Whole;
    QStringList m_damaged;
};
