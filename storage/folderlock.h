// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QLockFile>

/// One running program per data folder. Held for the whole run; a lock left by a program that died is taken
/// over. Beside the lock file, which other computers see too, the folder itself is locked where the system
/// can do that: it needs no room on the disk.
class FolderLock
{
public:
    explicit FolderLock(const DataFolder &folder);
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    /// False when another running program holds the folder. Where nothing can be locked, this is not known:
    /// true, with a line in the log, and not held.
    [[nodiscard]] bool take();

    /// Whether this program holds the folder.
    bool isHeld() const { return m_lock.isLocked() || m_handle >= 0; }
    /// Leaves the folder to others, where it is held.
    void release();

    /// Who holds the folder: "process 4711 on the computer castle", for the user to find that program.
    QString holder() const;

    /// Takes a lock over that nobody answers for: it may have come with a copy of the folder. False when it
    /// cannot be removed.
    [[nodiscard]] bool takeOver();

private:
    bool lockFolder();
    bool lockFile();

    QString m_path;
    QLockFile m_lock;
    int m_handle = -1; ///< of the folder, while that is locked
};
