// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A shown secret taken apart into its characters, for the eye and for screen readers.
namespace SpokenSecret {

enum class Class { Letter, Digit, Sign };

Class classOf(char32_t character);

/// What a screen reader says of one character: "capital M", "small l", "digit 1", "dollar sign".
QString nameOf(char32_t character);

} // namespace SpokenSecret
