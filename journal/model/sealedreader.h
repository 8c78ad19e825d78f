// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/sealedblocks.h"
#include "storage/sealing/secretbytes.h"

#include <QByteArray>

#include <span>
#include <vector>

/// A record as it stands in the bytes of a sealed year.
struct SealedPiece {
    qsizetype at = 0; ///< its nonce; sealed text and tag follow
    qsizetype length = 0;
    qsizetype plainAt = -1; ///< in what was opened; -1 where it does not open
    qsizetype plainLength = 0;
    int listed = -1; ///< its line of the list; -1: none
    bool isOpen() const { return plainAt >= 0; }
};

/// Finds the records of a sealed year and opens them. Where one is damaged, be it in its length, it finds the
/// next by what the list says of it, or by its opening.
class SealedReader
{
public:
    /// Plain texts are padded to a multiple of this.
    static constexpr qsizetype padding = 256;
    static constexpr qsizetype lengthBytes = 4;

    /// What the seal of a record of the year is bound to; `kind` is "list" or "entry".
    static QByteArray contextOf(int year, QByteArrayView kind);

    /// `key` must outlive this.
    SealedReader(int year, const QByteArray &bytes, const SecretBytes &key);

    /// Opens all that begins at `at`: the list, and the records behind it.
    void read(qsizetype at);

    bool hasList() const { return m_hasList; }
    const std::vector<SealedBlocks::Listed> &list() const { return m_list; }
    const std::vector<SealedPiece> &pieces() const { return m_pieces; }
    /// The first line of a plain year, then all that opened, in the order of the bytes.
    const QByteArray &opened() const { return m_opened; }

private:
    qsizetype lengthAt(qsizetype at) const;
    bool isPlausible(qsizetype at, qsizetype length) const;
    bool isFollowed(qsizetype end) const;
    qsizetype nextOpening(qsizetype at);
    std::span<char> room();
    bool opens(QByteArrayView record, const QByteArray &context, std::span<char> plain,
               qsizetype &length) const;
    qsizetype readList(qsizetype at);
    bool readListAs(qsizetype at, qsizetype length);
    qsizetype readRecord(qsizetype at);
    bool readRecordAs(qsizetype at, qsizetype length);
    void addDamaged(qsizetype at, qsizetype end);
    qsizetype endOfDamaged(qsizetype at);
    qsizetype nextListed(qsizetype at);
    void findPlaces();
    int lineOf(QByteArrayView nonce) const;

    QByteArray m_bytes;
    const SecretBytes &m_key;
    QByteArray m_listContext;
    QByteArray m_entryContext;
    bool m_hasList = false;
    std::vector<SealedBlocks::Listed> m_list;
    std::vector<SealedPiece> m_pieces;
    QByteArray m_opened;
    qsizetype m_openedLength = 0;
    std::vector<qsizetype> m_places; ///< where records stand that the list names
    bool m_hasPlaces = false;
    qsizetype m_openingSought = 0; ///< from here to the next place nothing opens
    qsizetype m_nextOpening = -1;
};
