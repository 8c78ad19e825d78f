// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringView>

/// Texts in UTF-8 folded so that case and accents do not count: "Élan" is "elan", "Straße" "strasse", a curly
/// quote a straight one, and every control character a blank.
namespace FoldedText {

/// The most bytes that one byte becomes.
inline constexpr qsizetype mostGrowth = 3;

/// Writes `bytes` folded to `out`, where there is room for `mostGrowth` times as many; where they end. Those
/// that are no UTF-8 count as Windows-1252.
char *write(char *out, QByteArrayView bytes);

/// Adds `bytes` folded to `folded`.
void append(QByteArray &folded, QByteArrayView bytes);

/// Adds one character folded to `folded`.
void append(QByteArray &folded, char32_t character);

QByteArray of(QStringView text);

} // namespace FoldedText
