// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Texts of the data files compared as they stand there, one byte a character, without decoding them.
namespace ByteCase {

/// The bytes of `text` in upper case, for `contains`; nothing when it holds a character that no file can.
std::optional<QByteArray> folded(QStringView text);

/// Whether `foldedText` stands anywhere in `bytes`, upper and lower case alike. The empty text does.
bool contains(QByteArrayView bytes, QByteArrayView foldedText);

/// `text` as a search across accents compares it: each byte as the letter that it is filed under, "Élan" as
/// "elan". Nothing when it holds a character that no file can.
std::optional<QByteArray> filed(QStringView text);
/// The letter that `byte` is filed under: in lower case and without its accent.
char filed(char byte);

/// The same letter in the other case; `byte` itself where the code page has none.
char otherCase(char byte);

/// Orders two texts as a telephone book does: case and accents only decide between texts that are otherwise
/// alike. Negative, zero or positive.
int compare(QByteArrayView one, QByteArrayView other);

} // namespace ByteCase
