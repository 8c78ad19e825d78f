// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/snapshotrun.h"

struct Program;

/// A snapshot of the household as it is now, for `SnapshotRun` on any thread.
namespace HouseholdSnapshot {

/// On the window's thread. Nothing is read but the names of files; a function
/// that is guarded gets no copy for spreadsheets.
SnapshotJob job(const Program &program);

} // namespace HouseholdSnapshot
