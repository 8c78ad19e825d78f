// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/recordfile.h"
#include "storage/sealing/keyderivation.h"

#include <QByteArray>
#include <QDateTime>

#include <array>
#include <optional>

/// A key file: one random key, sealed by the password and by the recovery code, and the wrong answers since
/// the last right one. It is written to its records 1 and 2 in turn: of the whole ones the copy with the
/// higher number counts, so that a write that fails leaves the one before. Nothing is cached.
class KeySlots
{
public:
    static constexpr qsizetype recordLength = 512;
    static constexpr qsizetype magicLength = 7;
    static constexpr qsizetype idLength = 16;

    enum Slot : quint8 { Password = 1, Recovery = 2 };

    enum class State {
        Missing, ///< an empty file too
        Whole,
        OneCopyDamaged, ///< the other opens; mended with the next writing
        Damaged,        ///< neither copy can be trusted: nothing is written
        Foreign,        ///< not a file of this kind: never written to
        Newer           ///< of a later version of the form: never written to
    };

    struct WrongAnswers {
        quint32 count = 0;
        QDateTime first; ///< invalid without one
        QDateTime last;
        bool operator==(const WrongAnswers &) const = default;
    };

    /// What a copy holds.
    struct Content {
        quint32 number = 0;
        QByteArray id;
        PasswordCost cost{};
        std::array<QByteArray, 3> sealedKeys; ///< salt, nonce and sealed key; zeros when unused
        WrongAnswers wrongAnswers;
        bool operator==(const Content &) const = default;
    };

    /// `magic` is 7 letters: what the file begins with, and what its keys are for.
    KeySlots(const DataFolder &folder, const QString &name, QByteArray magic);

    const QString &path() const { return m_file.path(); }

    State state() const;
    /// The copy that counts; nothing unless the state is whole, or one copy is.
    std::optional<Content> content() const;
    /// The same for a file of these bytes, whatever they are.
    State parse(QByteArrayView bytes, std::optional<Content> &content) const;

    /// A new file's bytes, both copies, with a new random key and its id.
    QByteArray made(const KeyDerivation &password, const KeyDerivation &recovery, SecretBytes &key,
                    QByteArray &id) const;

    /// What opening a slot takes of time, to be run; nothing when the file does not open at all or the slot
    /// is not used.
    std::optional<KeyDerivation> opening(Slot slot, SecretBytes typed) const;
    /// The key, or nothing when that was not the password (or the code) of the slot.
    std::optional<SecretBytes> open(Slot slot, const KeyDerivation &derived) const;
    /// The same two for a copy that is kept elsewhere, whatever the file is.
    std::optional<KeyDerivation> opening(const Content &content, Slot slot, SecretBytes typed) const;
    std::optional<SecretBytes> open(const Content &content, Slot slot, const KeyDerivation &derived) const;

    /// The bytes of a copy, to be kept elsewhere; `parse` reads it.
    QByteArray encoded(const Content &content) const;
    /// The bytes of a file, both copies, that holds the keys of `content`.
    QByteArray bothCopies(Content content) const;

    /// Puts a new password or code into the slot of both copies, one on the disk before the other: the old
    /// one opens neither. False, with the old one in force, when the file is not whole enough or the disk
    /// refuses.
    [[nodiscard]] bool setSlot(Slot slot, const KeyDerivation &derived, const SecretBytes &key);

    /// Counts a wrong answer.
    [[nodiscard]] bool countWrongAnswer(const QDateTime &now);
    /// After a right one. Writes only when there were wrong ones or the copies differ in a slot.
    [[nodiscard]] bool forgetWrongAnswers();

    /// Record 3: what is told without any key. At most a record.
    [[nodiscard]] bool setOpenRecord(QByteArrayView bytes);
    QByteArray openRecord() const;

private:
    struct Copies {
        std::array<std::optional<Content>, 2> whole;
        int current = 0; ///< which of them counts, when one is whole
        bool isNewer = false;
    };
    Copies copies(QByteArrayView bytes) const;
    bool isLater(QByteArrayView record) const;
    std::optional<Content> parsedCopy(QByteArrayView record) const;
    QByteArray context(const Content &content, Slot slot) const;
    void seal(Content &content, Slot slot, const KeyDerivation &derived, const SecretBytes &key) const;
    QByteArray read() const;
    [[nodiscard]] bool write(const Content &content);

    RecordFile m_file;
    QByteArray m_magic;
};
