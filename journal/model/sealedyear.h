// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/sealedreader.h"
#include "storage/sealing/keyslots.h"
#include "storage/sealing/secretbytes.h"

#include <QByteArray>

#include <optional>
#include <vector>

/// What is amiss with a record of a sealed year. Nothing of it is lost when the year is saved.
struct SealedDamage {
    enum class Kind : quint8 {
        Unreadable, ///< it does not open
        Missing,    ///< the list names it, and it is not there
        Unlisted,   ///< it opens, but the list does not name it: it is of another copy of the year
        Doubled,    ///< it is there twice
        Moved,      ///< it stands at the place of another
        List        ///< the list does not open; everything else is found without it
    };
    Kind kind = Kind::Unreadable;
    SealedLabel label; ///< without a date where nobody can tell
    bool operator==(const SealedDamage &) const = default;
};

/// The bytes of a sealed year, opened: its plain form, and what of it could not be opened.
class SealedYear
{
public:
    inline static const QByteArray firstLine = QByteArrayLiteral("Quillery journal sealed 1\r\n");
    static constexpr qsizetype headLength = KeySlots::recordLength;
    static constexpr qsizetype recordsAt = 27 + headLength;

    /// Whether these are bytes of a sealed year, be they damaged or cut short.
    static bool isSealed(QByteArrayView bytes);
    /// Whether a later version of the program sealed them.
    static bool isLater(QByteArrayView bytes);
    /// The copy of the key record in them, which may be damaged or short.
    static QByteArrayView head(QByteArrayView bytes);
    /// The same year under another key record.
    static QByteArray withHead(const QByteArray &bytes, QByteArrayView head);

    /// Opens what opens of `bytes`; they may be empty. `key` must outlive this.
    SealedYear(int year, const QByteArray &bytes, const SecretBytes &key);

    /// The bytes of the plain file.
    const QByteArray &plain() const { return m_plain; }
    const std::vector<SealedDamage> &damage() const { return m_damage; }
    /// Whether something of it does not show, and would be lost outside the seal.
    bool holdsBack() const { return !m_kept.empty(); }
    /// Whether there are records, and none of them opens: the key is not that of this year.
    bool isShut() const;

    /// The sealed bytes of `plain`, which the year is to hold. What is unchanged keeps its record byte for
    /// byte, and so does what did not open.
    QByteArray changedTo(const QByteArray &plain, const QByteArray &head) const;
    /// The same, and from now on it is the year that has these `bytes`. None of its records need be opened
    /// for that.
    void change(const QByteArray &plain, const QByteArray &head);
    int number() const { return m_year; }
    const QByteArray &bytes() const { return m_bytes; }
    /// Overwrites the texts with zeros, as far as nobody else holds them. It is not to be asked for
    /// anything afterwards.
    void wipe();
    /// Those of a year that was not sealed before.
    static QByteArray sealed(int year, const QByteArray &plain, const QByteArray &head,
                             const SecretBytes &key);

private:
    /// What a save writes: a record with its line of the list, or one of the two.
    struct Item {
        SealedLabel label;
        std::optional<SealedBlocks::Nonce> nonce; ///< without one the list does not name it
        QByteArray record;                        ///< for as long as the year has the bytes that it has now
        QByteArrayView block{};                   ///< what it holds, of what is saved
    };

    QByteArrayView plainOf(const SealedPiece &piece) const;
    QByteArray recordOf(const SealedPiece &piece) const;
    SealedLabel labelOf(const SealedPiece &piece) const;
    void guessDates();
    void choose();
    bool isInOrder() const;
    void tellMoved();
    void compose();
    std::vector<Item> itemsOf(QByteArrayView plain) const;
    Item sealedItem(QByteArrayView block) const;
    void keep(std::vector<Item> &items) const;
    QByteArray bytesOf(const std::vector<Item> &items, const QByteArray &head) const;

    int m_year;
    QByteArray m_bytes;
    const SecretBytes *m_key;
    bool m_hasList = false;
    std::vector<SealedBlocks::Listed> m_list;
    QByteArray m_opened; ///< in which the texts of the pieces are
    std::vector<SealedPiece> m_pieces;
    std::vector<std::size_t> m_shown; ///< those pieces that the plain form has, in its order
    std::vector<std::size_t> m_kept;  ///< those that it has not, and that a save keeps
    std::vector<int> m_missing;       ///< lines of the list
    QByteArray m_plain;
    std::vector<SealedDamage> m_damage;
};
