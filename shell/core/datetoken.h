// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QStringView>
#include <QVarLengthArray>

/// A piece of a date's text: a number, a word that may name a month, or any other character.
struct DateToken {
    enum Kind { Number, Word, Other };

    /// No date is longer than this.
    static constexpr qsizetype longestDate = 40;
    using Bytes = QVarLengthArray<char, longestDate>;

    Kind kind = Other;
    int value = 0;      ///< a number's first four digits; the month that a word begins, 0 for any other word
    int length = 1;     ///< in characters
    char character = 0; ///< the first one

    /// Three digits or more can only be a year.
    bool isYear() const { return kind == Number && length > 2; }

    /// Takes the first piece off `text`, which holds one character at least.
    static DateToken take(QByteArrayView &text);

    /// The first characters of `text`, one byte each; those beyond ASCII mean nothing in a date.
    static Bytes bytes(QStringView text);
};
