// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

/// Text as the data files hold it: Windows-1252, one byte a character.
namespace AnsiText {

/// The bytes of `text`, composed to NFC first; a character that the code page lacks becomes '?'.
QByteArray encode(QStringView text);

/// The text of `bytes`; the five bytes that the code page leaves undefined become the C1 controls of their
/// number.
QString decode(QByteArrayView bytes);

/// Whether every character of `text`, composed to NFC, has a byte in the code page. U+0000 does not count as
/// holdable: a zero byte means "never written" in a file.
bool isHoldable(QStringView text);

/// The characters of `text` that no byte stands for, each once, in order; empty when all can be held.
QString foreignCharacters(QStringView text);

/// `text` encoded, cut to `width` bytes and padded with blanks on the right.
QByteArray field(QStringView text, qsizetype width);

/// A fixed-width field as text: trailing blanks removed; zero bytes (never written) read as nothing.
QString fieldText(QByteArrayView bytes);

/// `text` without blanks (character 32 only) on both sides.
QStringView trimmedBlanks(QStringView text);

/// `text` without blanks (character 32 only) on the right.
QStringView trimmedBlanksRight(QStringView text);

} // namespace AnsiText
