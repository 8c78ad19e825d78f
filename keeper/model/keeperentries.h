// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentry.h"
#include "keeper/model/keeperfile.h"
#include "keeper/model/keeperindex.h"
#include "shell/core/clock.h"

#include <QDateTime>

#include <memory>
#include <optional>

/// An earlier version of an entry that can be brought back.
struct KeeperVersion {
    quint32 number = 0;
    QDateTime time;
    bool operator==(const KeeperVersion &) const = default;
};

/// The entries while the keeper is open: a change is a new version in the file, and then the list shows it.
class KeeperEntries
{
public:
    static constexpr qsizetype earlierVersions = 5;
    static constexpr int daysInTrash = 30;

    KeeperEntries(std::unique_ptr<KeeperFile> file, KeeperIndex index, const Clock &clock);

    KeeperFile &file() { return *m_file; }
    const KeeperFile &file() const { return *m_file; }
    const KeeperIndex &index() const { return m_index; }

    /// The whole entry, with its secrets; `version` is one of `versions`, 0 the last.
    std::optional<KeeperEntry> entry(const QByteArray &id, quint32 version) const;
    /// Whether another entry has this password, or an earlier version of this one.
    bool isUsedBefore(const QString &password, const QByteArray &id) const;
    /// The last five earlier ones, the newest first.
    QList<KeeperVersion> versions(const QByteArray &id) const;

    /// Writes a new version of each; those without an id get one. False, with all as it was, when the disk
    /// refuses or one is too long.
    [[nodiscard]] bool save(QList<KeeperEntry> &entries);

    [[nodiscard]] bool setTrashed(const QList<QByteArray> &ids, bool isTrashed);
    /// Of what is in the trash; of the others nothing goes.
    [[nodiscard]] bool removeForGood(const QList<QByteArray> &ids);
    /// The ids of what is in the trash, and of what has been there for too long.
    QList<QByteArray> trash() const;
    QList<QByteArray> oldTrash() const;

    [[nodiscard]] bool giveUpDamaged();

private:
    using Version = KeeperPlaces::Version;

    std::vector<Version> versionsOf(const QByteArray &id) const;
    KeeperFile::Writing writingOf(const KeeperEntry &entry) const;
    std::optional<KeeperFile::Writing> moved(const QByteArray &id, KeeperRecord::State state) const;
    bool bringBack(const QByteArray &id);
    void trim(const QList<QByteArray> &ids);
    void showAnew(const QList<QByteArray> &ids);
    void show(const QByteArray &id, const SecretBytes &payload);

    std::unique_ptr<KeeperFile> m_file;
    KeeperIndex m_index;
    const Clock &m_clock;
};
