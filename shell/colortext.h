#pragma once

#include "shell/theme.h"

#include <QColor>
#include <QString>

#include <optional>

/// Colours as the colour files hold them: the decimal text of a number with red in the low byte, or a negative number
/// for a system colour, or "Default".
namespace ColorText {

inline constexpr qsizetype maximumLength = 18;

/// The number of `color`, in decimal.
QString encode(const QColor &color);

/// The colour of a stored text; nothing for an empty one, "Default", one of the two designed panel colours, or a text
/// that is no colour number. System colours are taken from `palette`.
std::optional<QColor> decode(const QString &text, const QPalette &palette);

} // namespace ColorText
