// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/sealing/sealedrecords.h"

#include <QByteArray>
#include <QDate>

#include <array>
#include <optional>
#include <vector>

/// What a record of a sealed year stands for: a date, and which block of it.
struct SealedLabel {
    enum class Kind : quint8 {
        Entry,
        Earlier, ///< as it was before the last sitting that changed it
        Head     ///< what stands before the first entry, where that is not our first line alone
    };
    QDate date; ///< invalid where the block names none
    Kind kind = Kind::Entry;
    bool operator==(const SealedLabel &) const = default;
};

/// The plain form of a year in the pieces that are sealed one by one. Put behind one another they are the
/// same bytes again, whatever somebody wrote into the file.
namespace SealedBlocks {

/// The first line of a plain year.
inline const QByteArray plainLine = QByteArrayLiteral("Quillery journal 1\r\n");

/// What `block` begins with.
SealedLabel labelOf(QByteArrayView block);

/// The pieces of a plain year: each from a line "=== 2026-03-14" to the next. What stands before the first is
/// the head, and is left out where it is our first line and nothing else.
std::vector<QByteArrayView> cut(QByteArrayView plain);

using Nonce = std::array<char, SealedRecords::nonceLength>;

/// A line of the list that a sealed year begins with: "2026-03-14 entry" and the nonce in hexadecimal digits.
struct Listed {
    SealedLabel label;
    Nonce nonce{};
};
QByteArray encoded(const std::vector<Listed> &list);
std::vector<Listed> decoded(QByteArrayView bytes);

} // namespace SealedBlocks
