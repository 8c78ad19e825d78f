// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"

/// Entries as a file of comma-separated values that other keepers and spreadsheets read, and that can be
/// brought in again. Nothing in it is sealed.
namespace KeeperExport {

/// What every entry has comes first; behind it the boxes of the kinds that are there, and own fields. Fields
/// of numbers that this version does not know stay behind.
QByteArray csv(const QList<KeeperEntry> &entries);

/// "Password Keeper.csv"
QString fileName();

} // namespace KeeperExport
