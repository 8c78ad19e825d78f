// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// A code that opens what a forgotten password does not: 130 random bits in 26 characters that cannot be
/// mistaken for one another, and two check characters behind them.
namespace RecoveryCode {

inline constexpr qsizetype length = 28;

/// A new one, as it is shown and printed: seven groups of four, dashes between them.
QString generate();

/// The 26 characters, as they go into a key, of what somebody typed or copied from paper: case, blanks and
/// dashes do not count, O is read as 0, I and L as 1. Nothing when a character is missing, there is one too
/// many or the check characters do not agree: that is a slip and no wrong answer.
std::optional<QString> read(const QString &typed);

} // namespace RecoveryCode
