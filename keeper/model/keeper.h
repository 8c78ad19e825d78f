// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keeperentries.h"
#include "keeper/model/keeperfiles.h"
#include "keeper/model/keeperopening.h"
#include "keeper/model/keepersettings.h"
#include "keeper/model/keepersummary.h"
#include "shell/core/clock.h"
#include "storage/sealing/keyslots.h"

#include <QObject>

#include <memory>
#include <optional>

/// The password keeper: its two files, and while it is open what they hold. Secrets stay sealed in the file
/// until their entry is asked for.
class Keeper final : public QObject
{
    Q_OBJECT
public:
    using State = KeeperFiles::State;

    static constexpr qsizetype earlierVersions = KeeperEntries::earlierVersions;

    /// `cost` goes into a keeper that is set up.
    Keeper(const DataFolder &folder, const Clock &clock, PasswordCost cost = PasswordCost::moderate());
    ~Keeper() override { lock(); }

    State state() const;
    QString missingFile() const { return KeeperFiles::missing(m_folder); }
    QStringList foreignFiles() const { return KeeperFiles::foreign(m_folder); }
    [[nodiscard]] bool setAside() { return KeeperFiles::setAside(m_folder); }
    /// Whether one copy of the key file is damaged; the next writing mends it.
    bool isOneCopyDamaged() const;

    // The slow half of passwords, to be run on a thread of its own.
    /// Of a new password, at the cost of the keeper.
    KeyDerivation newKey(const QString &password) const;
    /// Of a new recovery code, as `RecoveryCode::generate` gave it.
    KeyDerivation newCodeKey(const QString &code) const;
    /// Nothing for a slip in a code and where no password could open the file.
    std::optional<KeeperOpening> opening(const QString &typed, KeySlots::Slot slot) const;
    /// The same to ask for the password once more: `isRight` judges it.
    std::optional<KeeperOpening> checking(const QString &typed, KeySlots::Slot slot) const;

    /// Makes both files, and is open then. False when there is one already, or the disk refuses.
    [[nodiscard]] bool create(const KeyDerivation &master, const KeyDerivation &code);
    /// False, and counted, for a wrong answer. What has been in the trash for 30 days goes.
    [[nodiscard]] bool unlock(KeeperOpening opening);
    /// The same without opening anything.
    [[nodiscard]] bool isRight(const KeeperOpening &checking);
    /// Those since the last right one.
    KeySlots::WrongAnswers wrongAnswers() const;
    /// Wipes the keys and all that was opened.
    void lock();

    /// A master password that is in force at once. False, with the old one in force, when the disk refuses.
    [[nodiscard]] bool changeMaster(const KeyDerivation &master);
    [[nodiscard]] bool changeCode(const KeyDerivation &code);

    // The entries, in the order of their titles; those in the trash too, and a row for each damaged record.
    int count() const { return m_open ? m_open->index().count() : 0; }
    KeeperSummary summary(int place) const { return m_open->index().summary(place); }
    QList<KeeperSummary> entries() const;
    /// -1: none.
    int placeOf(const QByteArray &id) const { return m_open ? m_open->index().placeOf(id) : -1; }
    /// The places of those in whose title, user name, address, tags or notes all words stand.
    QList<int> search(const QString &text) const
    {
        return m_open ? m_open->index().find(text) : QList<int>();
    }
    qsizetype memoryUsed() const { return m_open ? m_open->index().memoryUsed() : 0; }
    /// The whole entry, with its secrets; `version` is one of `versions`, 0 the last.
    std::optional<KeeperEntry> entry(const QByteArray &id, quint32 version = 0) const;
    /// Whether another entry than `id` has this password, or an earlier version of that one had it.
    bool isUsedBefore(const QString &password, const QByteArray &id) const;
    /// The last five earlier ones, the newest first.
    QList<KeeperVersion> versions(const QByteArray &id) const;

    /// Writes a new version; an entry without an id gets one. False, with all as it was, when the disk
    /// refuses or the entry is too long.
    [[nodiscard]] bool save(KeeperEntry &entry);
    [[nodiscard]] bool saveAll(QList<KeeperEntry> &entries);

    /// Puts entries into the trash of the keeper, or takes them out again.
    [[nodiscard]] bool setTrashed(const QList<QByteArray> &ids, bool isTrashed);
    /// Takes entries out of the trash for good, with all their versions.
    [[nodiscard]] bool removeForGood(const QList<QByteArray> &ids);
    /// The ids of what is in the trash.
    QList<QByteArray> trash() const;

    /// What is being typed, sealed until the next unlocking. There is one at a time.
    [[nodiscard]] bool saveDraft(const KeeperEntry &draft);
    std::optional<KeeperEntry> draft() const;
    [[nodiscard]] bool dropDraft();

    const KeeperSettings &settings() const { return m_settings; }
    [[nodiscard]] bool saveSettings(const KeeperSettings &settings);

    /// The records that do not open, counted from 1. They are never written over,
    QList<int> damagedPlaces() const;
    /// until they are given up.
    [[nodiscard]] bool giveUpDamaged();

signals:
    /// Opened, locked, or an entry changed.
    void changed();

private:
    KeySlots keys() const { return KeeperFiles::keySlots(m_folder); }
    std::optional<KeeperOpening> makeOpening(const QString &typed, KeySlots::Slot slot,
                                             bool readsEntries) const;
    bool judge(const KeeperOpening &opening);
    bool told(bool isDone);
    void tellExpiries();
    void purge();
    void readSettings();
    std::vector<KeeperPlaces::Version> single(KeeperPlaces::Sort sort) const;
    [[nodiscard]] bool replaceSingle(KeeperPlaces::Sort sort, std::optional<KeeperFile::Writing> writing);

    DataFolder m_folder;
    const Clock &m_clock;
    PasswordCost m_cost;
    std::unique_ptr<KeeperEntries> m_open; ///< while it is open
    KeeperSettings m_settings;
};
