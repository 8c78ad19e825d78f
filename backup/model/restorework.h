// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/filecopier.h"
#include "backup/model/filehash.h"
#include "backup/model/laidfiles.h"
#include "backup/model/outsidefiles.h"
#include "backup/model/restorerun.h"

#include <QElapsedTimer>
#include <QHash>

#include <optional>
#include <vector>

class DiskTurns;

/// The work of a restore, from the first disk to the changeset.
class RestoreWork final : private RestoreSource::Visitor
{
public:
    RestoreWork(RestoreRun::Order order, RestoreSource &source, RestoreAsker &asker,
                RestoreRun::Progress progress, const std::atomic<bool> &isStopped);

    RestoreResult run();

private:
    /// A file that is laid down under its place in the list.
    struct Laid {
        RestoreItem item;
        qint64 received = 0;
        QByteArray hash{}; ///< of what was received, once it is complete
        bool isTaken = false;
        bool isInPlace = false; ///< it went outside the folder already

        bool isComplete() const { return !hash.isEmpty(); }
        bool isDamaged() const { return hash != item.file.hash; }
    };

    bool wants(const BackupPart &part) override;
    bool take(QByteArrayView bytes) override;
    bool end(bool isWhole) override;

    void list();
    // Each answers whether to go on; where not, `m_result` says why.
    bool begin();
    bool readDisks();
    bool readDisk(int number, DiskTurns &turns);
    bool check();
    bool askForDamaged();
    bool placeOutside();
    bool commit();
    bool stopped();
    bool refused(const QString &sentence);

    void rewind();
    QString placeInside(const RestoreItem &item) const;
    void takeBack();
    void advance(qint64 bytes);
    void tell(DiskProgress::Step step);

    RestoreRun::Order m_order;
    RestoreSource &m_source;
    RestoreAsker &m_asker;
    RestoreRun::Progress m_tell;
    const std::atomic<bool> &m_isStopped;

    RestoreResult m_result;
    LaidFiles m_laid;
    OutsideFiles m_outside;
    std::vector<Laid> m_files;
    QHash<QString, int> m_numbers;    ///< by names
    QHash<int, FileHash> m_hashes;    ///< of the files of which more is to come
    std::optional<BackupPart> m_part; ///< the one that is being read
    int m_number = 0;                 ///< of its file
    std::optional<FileHash> m_before; ///< of its file as it was before
    bool m_hasFailed = false;         ///< the folder took no more
    bool m_hasBegun = false;          ///< something of the disk was read
    FileCopier m_copier;
    DiskProgress m_progress;
    QElapsedTimer m_clock;
    qint64 m_told = -1;
};
