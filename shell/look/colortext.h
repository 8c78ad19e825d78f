// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include <optional>

/// Colours as the colour files hold them: the decimal text of a number with red in the low byte, or a
/// negative number for a system colour, or "Default".
namespace ColorText {

inline constexpr qsizetype maximumLength = 18;

/// What a record holds for the designed colour, besides nothing at all.
QString defaultText();
/// Whether `text` is empty or the word for the designed colour.
bool isDefault(const QString &text);

/// The number of `color`, in decimal.
QString encode(const QColor &color);

/// The panel colour of a stored text; nothing for an empty one, "Default", one of the two designed panel
/// colours, or a text that is no colour number. System colours are taken from `palette`.
std::optional<QColor> decode(const QString &text, const QPalette &palette);

/// The same for a text colour, where the designed panel colours are colours like any other.
std::optional<QColor> decodeInk(const QString &text, const QPalette &palette);

} // namespace ColorText
