// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskplan.h"
#include "backup/model/holdings.h"

#include <optional>

/// What a backup will do, to be shown before it: how much goes where, and on how many disks. Nothing is
/// read but names and the last backup's records, which tell the pictures that the drive has already.
struct BackupOutlook {
    DiskPlan plan;
    int newPictures = 0;
    /// Of the new ones: not known, but of the size of one that the drive has. Only reading tells.
    int perhapsPictures = 0;
    int knownPictures = 0;

    enum class Form { Plain, Sealed };

    /// To the drive or folder `folder`; further disks are like that one. `room` is what there is in place of
    /// what the drive has.
    static BackupOutlook of(const QList<BackupItem> &items, const DataFolder &household,
                            const QString &folder, const std::optional<DiskRoom> &room = {},
                            Form form = Form::Plain);
};
