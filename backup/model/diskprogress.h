// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// How far a backup, a test or a restore is.
struct DiskProgress {
    enum class Step { Copying, ReadingBack, Finishing };

    Step step = Step::Copying;
    int disk = 1;
    int disks = 1; ///< as planned
    int files = 0; ///< that are done
    int allFiles = 0;
    qint64 bytes =
        0; ///< that are done; those of a backup by half when they are copied, and wholly when read back
    qint64 allBytes = 0;
    qint64 seconds = 0; ///< since it began
    QString file{};     ///< the one that is worked on

    /// 0 to 100; 100 only at the end.
    int percent() const;
    /// Nothing (-1) before enough is done to tell.
    qint64 secondsLeft() const;

    bool operator==(const DiskProgress &) const = default;
};
