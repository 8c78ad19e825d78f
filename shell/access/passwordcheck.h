// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "shell/core/wronganswers.h"
#include "storage/datafolder.h"
#include "storage/sealing/passwordcost.h"

#include <QByteArray>
#include <QString>

class ChangeSet;
class RecordFile;
struct PasswordMemory;

/// The password and the 21 flags of what it guards, in `PCtrl1.Fil` (record length 140): record 1 the
/// password's verifier, records 2 to 22 the flags 0 to 20, record 23 the wrong answers, record 24 the
/// verifier of the recovery code, all counted texts.
/// The password itself is never stored. Nothing is cached: each call reads the file as it is now.
class PasswordCheck
{
public:
    enum class State {
        NotSet, ///< no password: a missing or empty file too
        Set,
        Damaged ///< cannot be trusted: everything that can be guarded is, and nothing is written
    };

    /// With a `memory`, a file that is gone or emptied counts as it was when it was last read.
    explicit PasswordCheck(const DataFolder &folder, PasswordCost cost = PasswordCost::interactive(),
                           PasswordMemory *memory = nullptr);

    const DataFolder &folder() const { return m_folder; }

    State state() const;

    /// The flags as the file holds them; all of them set when the file is damaged.
    ProtectedAreas areas() const;

    /// Puts the flags into the program-wide state; called at start.
    void load(ProgramState &state) const;

    /// Whether `password` is the one that is set; never when none is set or the file is damaged.
    bool matches(const QString &password) const;

    /// The wrong answers since the last right one, those of earlier runs too.
    WrongAnswers wrongAnswers() const;
    /// Counts one more, and gives what there are now.
    WrongAnswers addWrongAnswer(const QDateTime &time);
    /// After a right answer: what there were, which do not count any more.
    WrongAnswers takeWrongAnswers();

    /// Sets or replaces the password, and with a `recoveryCode` that too; whoever calls has asked for the
    /// old one. False, with the old password in force, when `password` is empty, the file is damaged, or the
    /// disk refuses.
    [[nodiscard]] bool setPassword(const QString &password, const QString &recoveryCode = {});

    /// Whether there is a code that leads to a new password.
    bool hasRecoveryCode() const;
    /// Whether `code`, as `RecoveryCode::read` gives it, is that one.
    bool matchesRecoveryCode(const QString &code) const;
    /// Takes `code` in the place of the one before. False without a password, or when the disk refuses.
    [[nodiscard]] bool setRecoveryCode(const QString &code);

    /// Takes the password away, and all flags with it. False when the file is damaged or the disk refuses.
    [[nodiscard]] bool removePassword();

    /// Writes the flags that differ from those in the file. False when the file is damaged, when a flag would
    /// be set without a password, or when the disk refuses.
    [[nodiscard]] bool saveAreas(const ProtectedAreas &areas);

    /// What a file holds.
    struct Content {
        State state = State::NotSet;
        QByteArray verifier; ///< empty unless a password is set
        QByteArray wrong;    ///< `WrongAnswers` as text, whatever it is
        QByteArray recovery; ///< verifier of the recovery code; empty without one
        ProtectedAreas areas;
    };

    /// The content of a file of these bytes, whatever they are.
    static Content parsed(QByteArrayView bytes);

private:
    static Content damaged();
    Content read() const;
    RecordFile records() const;
    ChangeSet startChange() const;
    [[nodiscard]] bool commit(ChangeSet &change) const;
    [[nodiscard]] bool commitCode(ChangeSet &change) const;
    void writeFlag(ChangeSet &change, int area, const QString &flag) const;
    void writeText(ChangeSet &change, int record, const QByteArray &text, const QByteArray &old) const;
    void keepWrongAnswers(const WrongAnswers &wrong);

    const DataFolder &m_folder;
    PasswordCost m_cost;
    PasswordMemory *m_memory;
};
