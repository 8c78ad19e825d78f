// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

/// What has to be asked of the person at the desk while disks are worked with.
struct DiskQuestion {
    enum class Kind {
        NextDisk,       ///< this one is wanted now; `folder` is where the last one was
        DiskFull,       ///< the disk is full sooner than it said: the next one is wanted
        DiskGone,       ///< the disk is no longer there
        WrongDisk,      ///< another one is: `foundSet`, `foundNumber`
        WriteProtected, ///< nothing can be written to it
        NoRoom,         ///< it has not even room for a beginning
        NotRead,        ///< it cannot be read, or what was read back is not what was written: `file`
        NotWritten      ///< it takes nothing, for another reason than these: `file`
    };

    Kind kind = Kind::NextDisk;
    int disk = 1;     ///< the number of the disk that is wanted
    int disks = 0;    ///< of how many, as far as that is known; 0 where it is not
    QString folder{}; ///< the drive or folder that was tried last
    QString file{};   ///< the file that it happened with; empty where it is none
    QDateTime
        foundSet{}; ///< when the set of the disk that was found instead was begun, UTC; invalid for no set
    int foundNumber = 0;

    bool operator==(const DiskQuestion &) const = default;
};

/// What the person chose.
struct DiskAnswer {
    enum class Action {
        TryAgain, ///< the same folder once more
        UseFolder,
        Stop
    };

    Action action = Action::Stop;
    QString folder{}; ///< with `UseFolder`: the drive or folder that takes the place

    bool operator==(const DiskAnswer &) const = default;
};

/// Asks them. Called on the thread of the work, which waits for the answer.
class DiskAsker
{
public:
    virtual ~DiskAsker() = default;
    virtual DiskAnswer ask(const DiskQuestion &question) = 0;

protected:
    DiskAsker() = default;
    DiskAsker(const DiskAsker &) = default;
    DiskAsker &operator=(const DiskAsker &) = default;
};
