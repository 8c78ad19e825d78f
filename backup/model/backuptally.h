// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskplan.h"
#include "backup/model/filehash.h"
#include "backup/model/holdings.h"
#include "backup/model/setrecords.h"

#include <QDateTime>
#include <QHash>
#include <QList>

#include <vector>

/// What of a household is on which disk of a set by now, and what is still to come. A copy of it is how that
/// was then: a disk that is begun anew begins from there.
class BackupTally
{
public:
    /// What is to come of a file: all of it, or the rest of one that is cut.
    struct State {
        qint64 size = 0;
        QDateTime changed;
        qint64 offset = 0;
        int pieces = 0;
        int firstDisk = 0;
        int lastDisk = 0;
        QByteArray hash; ///< of the whole file, once all of it is there
        bool isDone = false;
        bool isLeftOut = false;
    };

    explicit BackupTally(const QList<BackupItem> &items);

    /// Takes over what a run that ended before has put on disks before `disk` and has not changed since.
    void takeOver(const SetRecord &unfinished, const QList<BackupItem> &items, int disk);

    bool isDone() const { return m_open == 0; }
    int doneCount() const { return int(m_states.size()) - m_open; }
    const State &state(int item) const { return m_states[std::size_t(item)]; }

    /// Of a file that is cut: the hash of what was put until now.
    FileHash &wholeHash(int item) { return m_whole[item]; }
    /// The pieces of the item that are on disks count no more.
    void beginAnew(int item);
    /// The part is on `disk`; `changed` as it was when it was read.
    void put(int item, const BackupPart &part, int disk);
    /// Not to be had: it does not come any more.
    void leaveOut(int item);

    /// All that are there, in the order of `items`.
    QList<BackupFile> files(const QList<BackupItem> &items) const;

private:
    std::vector<State> m_states;
    QHash<int, FileHash> m_whole;
    int m_open = 0;
};
