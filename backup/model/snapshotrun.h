// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/holdings.h"
#include "backup/model/snapshotmanifest.h"
#include "shell/core/functionrecords.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

/// How the files of a function go into a snapshot.
struct SnapshotFunction {
    QString function; ///< as in `BackupItem`
    KeptAs keptAs = KeptAs::Readable;
    /// For its copy for spreadsheets; null where it gets none, as it always is where it is guarded.
    std::shared_ptr<const FunctionRecords> records{};
};

/// A snapshot that is to be made. Values and paths only: nothing of the program is touched.
struct SnapshotJob {
    QString folder; ///< where snapshots are kept; made where it is not there
    /// All files of the household, called on the thread of the run. Pictures among them are left out.
    std::function<QList<BackupItem>()> items;
    QList<SnapshotFunction> functions; ///< those of the others are readable
    QDateTime now;                     ///< by the clock of the desk
    qint64 limit = 0;                  ///< of the space for all snapshots, in bytes; 0 without one
    /// The day's: made where there is none of today, and something has changed since the last one. A
    /// household in which no function has a file gets none.
    bool isDaily = false;
};

/// What came of it.
struct SnapshotReport {
    enum class End {
        Made,
        NotDue, ///< of a daily one
        Stopped,
        NotMade ///< `refusal` says why
    };

    End end = End::NotMade;
    QString path{};
    QString refusal{};     ///< a sentence for the user
    QStringList leftOut{}; ///< names that no archive takes

    bool operator==(const SnapshotReport &) const = default;
};

/// Makes a snapshot, on any thread: all files as they were at one moment, or none. Those that are not kept
/// any longer go when it is there.
class SnapshotRun
{
public:
    explicit SnapshotRun(SnapshotJob job);

    SnapshotReport run();
    /// From any thread: ends at the next piece of a file.
    void stop() { m_isStopped = true; }

    /// Where the files of the household lie in the ZIP, and the copies for spreadsheets.
    static constexpr QLatin1StringView filesFolder{"Household/"};
    static constexpr QLatin1StringView copiesFolder{"Readable/"};

private:
    class Attempt;

    void findItems();
    bool isDue() const;
    SnapshotReport refused(SnapshotReport::End end, const QString &refusal) const;
    void makeRoom() const;

    SnapshotJob m_job;
    QList<BackupItem> m_items;
    QStringList m_leftOut;
    std::atomic_bool m_isStopped = false;
};
