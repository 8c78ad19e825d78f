// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/instancelink.h"
#include "storage/folderlock.h"

class Dialogs;

/// Holds the household's folder for this program: with the lock in it or, where none can be made, with the
/// line that is named after it.
class FolderHold
{
public:
    enum class Result {
        Ours,    ///< no other program writes here; of a folder for reading only nobody asks that
        Unknown, ///< another program may be at work here
        Locked,  ///< another program holds it and does not answer
        Answered ///< another program is at work here, and has come to the front
    };

    explicit FolderHold(const DataFolder &folder);

    Result take();
    /// After `Locked`: takes the lock over when the user knows that it is nobody's, and asks again where the
    /// system keeps it for a program that still runs.
    Result takeOver(Dialogs &dialogs);

    /// Hears the calls of later starts.
    const InstanceLink &line() const { return m_line; }

private:
    Result listen();

    QString m_path;
    bool m_isReadOnly;
    FolderLock m_lock;
    InstanceLink m_line;
};
