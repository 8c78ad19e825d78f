// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskquestions.h"
#include "backup/model/restoresource.h"

#include <atomic>
#include <functional>
#include <optional>

/// The disks of a backup, one after the other: the person at the desk is asked for each that is not there.
class DiskTurns
{
public:
    /// What came of reading a disk.
    struct Attempt {
        RestoreSource::Reading reading = RestoreSource::Reading::Done;
        bool hasBegun = false; ///< something of the disk was read, this time or before
    };
    /// Reads the disk that stands at `root`; nothing where the work cannot go on.
    using Read = std::function<std::optional<Attempt>(const QString &root)>;

    /// `drive` is where the first one is tried; where it is empty, that is asked for.
    DiskTurns(const RestoreSource &source, DiskAsker &asker, int disks, QString drive,
              const std::atomic_bool &isStopped);

    /// Has disk `number` read until all of it is. False where the person or the work stops.
    [[nodiscard]] bool read(int number, const Read &attempt);

private:
    DiskQuestion questionAfter(const Attempt &attempt, int number, bool isAsked) const;

    const RestoreSource &m_source;
    DiskAsker &m_asker;
    int m_disks;
    QString m_drive;
    const std::atomic_bool &m_isStopped;
};
