// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskprogress.h"
#include "backup/model/diskquestions.h"
#include "backup/model/restoreplan.h"
#include "backup/model/restoresource.h"

#include <atomic>
#include <functional>
#include <memory>

class RestoreWork;

/// Who is asked while a restore runs: for the disks in turn, and what to do about damaged files. Called on
/// the thread of the restore, which waits for the answer.
class RestoreAsker : public DiskAsker
{
public:
    /// Whether to restore the others, where these files of the backup are damaged.
    virtual bool takeTheRest(const QStringList &damaged) = 0;
    /// Whether to restore a damaged file all the same. Asked of those only of which every byte could be read.
    virtual bool takeDamaged(const QString &name) = 0;
};

/// What came of a restore.
struct RestoreResult {
    enum class End {
        Restored,    ///< into another folder: all is in its place
        AtNextStart, ///< into the household's folder: all is laid down, and the next start puts it in its
                     ///< place
        Stopped,     ///< by the user: nothing has changed
        Refused      ///< nothing has changed
    };
    End end = End::Refused;
    QString refusal;     ///< a sentence for the user
    int files = 0;       ///< that were restored
    QStringList damaged; ///< names of those that were left out for that
    QStringList moved;   ///< pictures that could not go where they were: where they are now, full paths
    qint64 bytes = 0;

    bool operator==(const RestoreResult &) const = default;
};

/// One restore, on a thread of its own: a snapshot, then all files laid down in the folder and checked
/// against their hashes, then all of them in their places or none.
class RestoreRun
{
public:
    /// What is to be done.
    struct Order {
        RestorePlan::Aim aim;
        SetRecord set;
        QString drive{}; ///< the drive or folder that is tried first; empty: the first disk is asked for
        QList<RestoreItem> items; ///< those that are wanted; those that write nothing do not matter
        /// Called first of all, on the thread of the run: it may change what is to be done, and stops it by
        /// answering false.
        std::function<bool(Order &order)> prepare{};
        /// Makes the snapshot: empty, or a sentence why there is none. Not called for another folder.
        std::function<QString()> snapshot{};
        /// All of the set is wanted: it counts as the last backup where no other is known.
        bool isAll = false;
        RestorePlan::FreeBytes freeBytes = &RestorePlan::freeBytes;
    };

    using Progress = std::function<void(const DiskProgress &)>;

    /// `asker` and `progress` are called on the thread of the run, progress ten times a second at most.
    RestoreRun(Order order, RestoreSource &source, RestoreAsker &asker, Progress progress);
    ~RestoreRun();
    Q_DISABLE_COPY_MOVE(RestoreRun)

    /// Does it all. Called once, on any thread but that of the windows.
    RestoreResult run();

    /// From any thread: it ends within two tenths of a second, with nothing changed.
    void stop() { m_isStopped = true; }

private:
    std::atomic<bool> m_isStopped = false;
    std::unique_ptr<RestoreWork> m_work;
};
