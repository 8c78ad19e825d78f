// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backuprun.h"
#include "shell/core/page.h"
#include "shell/core/pagecontext.h"

#include <QStringList>

/// A function in the report of a backup, in words.
struct ReportedCount {
    QString title;
    QString inCopy;
    QString here; ///< the same today

    bool operator==(const ReportedCount &) const = default;
};

/// The printed pages of a backup.
namespace BackupPages {

/// What was copied, and that it was read back.
Page report(const BackupReport &report, const QList<ReportedCount> &counts, const PageContext &context);

/// The files of a set, with their disks.
Page files(const SetRecord &set, const PageContext &context);

} // namespace BackupPages
