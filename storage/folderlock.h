#pragma once

#include "storage/datafolder.h"

#include <QLockFile>

/// One running program per data folder. Held for the whole run; a lock left by a program that died is taken
/// over.
class FolderLock
{
public:
    explicit FolderLock(const DataFolder &folder);

    /// False when another running program holds the folder. A folder in which no lock can be made is held by
    /// nobody: true, with a line in the log.
    bool take();

private:
    QLockFile m_lock;
};
