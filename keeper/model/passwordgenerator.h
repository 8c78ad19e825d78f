// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Makes passwords that nobody can guess: of characters, or of words that can be learnt by heart. Each that a
/// recipe allows is as likely as any other.
namespace PasswordGenerator {

inline constexpr int shortest = 4;
inline constexpr int longest = 128;
inline constexpr int fewestWords = 4;
inline constexpr int mostWords = 8;

/// What is to be made.
struct Recipe {
    enum Form { Characters, Words };

    Form form = Characters;
    int length = 20; ///< of characters
    bool hasSmallLetters = true;
    bool hasCapitals = true;
    bool hasDigits = true;
    bool hasSigns = true;
    bool hasLookAlikes = true; ///< l, 1, I, O and 0, and the points and commas
    int words = 6;
    QString separator = QStringLiteral("-"); ///< between the words; one of `separators()`

    bool operator==(const Recipe &) const = default;
};

/// What may stand between words: "-", ".", "_" and a blank. Without one, two draws could give the same text.
QStringList separators();

/// Whether anything can be made: a password of characters has one kind of them at least.
bool isPossible(const Recipe &recipe);

/// A new password, which has at least one character of each kind; empty where none is possible. Lengths and
/// numbers beyond the bounds are taken as the bounds.
QString make(const Recipe &recipe);

/// The binary logarithm of the number of passwords that `make()` draws from.
double bits(const Recipe &recipe);

} // namespace PasswordGenerator
