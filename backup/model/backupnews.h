// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/setrecords.h"
#include "shell/core/liveline.h"
#include "storage/datafolder.h"

#include <QDate>
#include <QDateTime>
#include <QStringList>

#include <optional>

class Settings;

/// What the household knows of its last backup. All of it comes from the record in its own folder: no drive
/// is touched, since one that lies in a drawer is no error.
struct BackupNews {
    enum class State { None, Unfinished, Part, Done };

    State state = State::None;
    QString drive;      ///< the drive's own name
    QDateTime time;     ///< when it ended, or began where it is not finished
    int missing = 0;    ///< files of the household that it does not hold
    int remindDays = 0; ///< after which another one is due; negative: never

    /// As the files have it now.
    static BackupNews of(const DataFolder &folder, const Settings &settings);

    /// The files that it comes from.
    static QStringList files();

    /// Whether another one is due on that day.
    bool isDue(QDate today) const;
    /// "Last backup 9 days ago, on SILVER", "No backup for 34 days", "6 files are not in the last backup".
    QString line(QDate today) const;
    LiveLine liveLine(QDate today) const;

    bool operator==(const BackupNews &) const = default;
};
