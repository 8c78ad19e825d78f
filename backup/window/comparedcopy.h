// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/openedcopy.h"
#include "backup/model/privatefolder.h"
#include "shell/core/programstate.h"

#include <atomic>

/// A snapshot or set that is looked into, as its files lie in a folder of their own.
struct ComparedCopy {
    PrivateFolder folder;
    OpenedCopy opened;
    ProtectedAreas areas; ///< that it guards
    std::atomic_bool isStopped = false;

    /// Once its files are there.
    void readAreas();
};
