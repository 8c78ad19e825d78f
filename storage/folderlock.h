// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QLockFile>

/// One running program per data folder. Held for the whole run; a lock left by a program that died is taken
/// over.
class FolderLock
{
public:
    explicit FolderLock(const DataFolder &folder);

    /// False when another running program holds the folder. Where no lock can be made, on a full disk, this
    /// is not known: true, with a line in the log, and not held.
    [[nodiscard]] bool take();

    /// Whether this program holds the folder.
    bool isHeld() const { return m_lock.isLocked(); }
    /// Leaves the folder to others, where it is held.
    void release() { m_lock.unlock(); }

    /// Who holds the folder: "process 4711 on the computer castle", for the user to find that program.
    QString holder() const;

    /// Takes a lock over that nobody answers for: it may have come with a copy of the folder. False when it
    /// cannot be removed.
    [[nodiscard]] bool takeOver();

private:
    QLockFile m_lock;
};
