// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/holdings.h"
#include "backup/model/setrecords.h"

/// How much of a household a backup holds: all of it, or only what was ticked.
namespace BackupScope {

/// How many files of the household the backup does not hold although they were there. Those in its folders,
/// pictures for the most part, are not looked at.
int missing(const SetRecord &backup, const DataFolder &household);

/// Whether `items` leave out what the backup `before` holds and the household still has.
bool isLess(const QList<BackupItem> &items, const SetRecord &before, const DataFolder &household);

} // namespace BackupScope
