// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalopening.h"
#include "journal/model/sealedyear.h"
#include "shell/core/clock.h"
#include "storage/datafolder.h"
#include "storage/sealing/keyslots.h"

#include <QObject>

#include <optional>

/// The seal of the journal: the file with its key, which a password and a recovery code open, and the key
/// itself while it is open. `SealingWalk` brings the years to what is decided here.
class JournalSeal final : public QObject
{
    Q_OBJECT
public:
    inline static const QString keyFile = QStringLiteral("DJourKey.Fil");

    enum class State {
        None, ///< the journal is plain
        Locked,
        Open,
        NoKey, ///< years are sealed, and no copy of the key record is whole: nobody can open them
        Newer  ///< a later version of the program sealed it
    };

    /// `cost` goes into a seal that is made.
    JournalSeal(const DataFolder &folder, const Clock &clock, PasswordCost cost = PasswordCost::moderate());
    ~JournalSeal() override;

    /// Whether the journal of a household is sealed, be it by halves, or by somebody else.
    static bool isSealed(const DataFolder &folder);

    const DataFolder &folder() const { return m_folder; }
    /// As much of a year's file as says how it is sealed.
    QByteArray beginningOf(int year) const;
    State state() const;
    bool isOpen() const { return !m_key.isEmpty(); }
    /// Whether nothing of the journal may be shown or written before it is unlocked.
    bool isLocked() const;
    /// Whether a copy of the key record serves, since the key file is missing, damaged or that of another
    /// journal. It is made anew at the next unlocking.
    bool isKeyFileLost() const;

    // The slow half of passwords, to be run on a thread of its own.
    /// Of a new password, at the cost of the journal.
    KeyDerivation newKey(const QString &password) const;
    /// Of a new recovery code, as `RecoveryCode::generate` gave it.
    KeyDerivation newCodeKey(const QString &code) const;
    /// Nothing for a slip in a code and where no password could open the journal.
    std::optional<JournalOpening> opening(const QString &typed, KeySlots::Slot slot) const;

    /// Begins to seal: makes the key file, and is open then; the years wait for the walk. False when the
    /// journal is sealed, or the disk refuses.
    [[nodiscard]] bool create(const KeyDerivation &password, const KeyDerivation &code);
    /// False, and counted, for a wrong answer. A walk that was cut short waits to be finished.
    [[nodiscard]] bool unlock(JournalOpening opening);
    /// The same to ask for the password once more: nothing is opened.
    [[nodiscard]] bool isRight(const JournalOpening &opening);
    /// Those since the last right one.
    KeySlots::WrongAnswers wrongAnswers() const;
    /// Wipes the key.
    void lock();

    /// A password that is in force at once; the years' copies wait for the walk. False, with the old one in
    /// force, when the disk refuses.
    [[nodiscard]] bool changePassword(const KeyDerivation &password);
    [[nodiscard]] bool changeCode(const KeyDerivation &code);

    /// Whether the years are to be plain again, and the walk is not yet at its end.
    bool isBeingOpened() const { return m_isBeingOpened; }
    /// Turns round: from now on the walk leads that way. False when the disk refuses.
    [[nodiscard]] bool setBeingOpened(bool isBeingOpened);
    /// Behind the last year made plain: the key file goes, and the journal is plain.
    [[nodiscard]] bool removeSeal();

    // What follows needs an open seal, but for the last.
    const SecretBytes &key() const { return m_key; }
    /// The key record in force, as it stands in the years.
    QByteArray head() const;
    /// Whether these are bytes of a year with the keys in force.
    bool isHeadInForce(QByteArrayView bytes) const;
    /// Whether the head of these bytes says that another key sealed them.
    bool isOfAnotherSeal(QByteArrayView bytes) const;

    /// What goes to the disk as `plain` in the place of `former`, the bytes that the year has there: sealed
    /// or not. Nothing while the seal is closed: then nothing may be written.
    std::optional<QByteArray> toStore(int year, const QByteArray &plain, const QByteArray &former);

signals:
    /// The key goes in a moment: what is open can be sealed for the last time.
    void locking();
    /// Made, opened, locked or removed.
    void changed();

private:
    struct Found {
        KeySlots::State file = KeySlots::State::Missing;
        std::optional<KeySlots::Content> content; ///< the key record that counts
        bool isFileLost = false;                  ///< it stood in a year
        bool hasSealedYears = false;
    };
    Found find() const;
    KeySlots keys() const;
    bool judge(const JournalOpening &opening);
    bool changeSlot(KeySlots::Slot slot, const KeyDerivation &derived);
    bool setKeyFileAside();
    void restoreKeyFile();
    void readDirection();
    void forgetKey();
    void forgetStored();

    DataFolder m_folder;
    const Clock &m_clock;
    PasswordCost m_cost;
    SecretBytes m_key;                  ///< while it is open
    KeySlots::Content m_content;        ///< the key record that it came from
    std::optional<SealedYear> m_stored; ///< as `toStore` gave it last, so that the next time opens nothing
    bool m_isBeingOpened = false;
};
