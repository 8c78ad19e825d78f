// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <vector>

/// Where a word stands in a text.
struct WordPlace {
    qsizetype at = 0;
    qsizetype length = 0; ///< 0: no word

    qsizetype end() const { return at + length; }
    bool operator==(const WordPlace &) const = default;
};

/// Finds the words of a text: letters and digits with the apostrophes between them.
namespace WordBreaks {

/// The words that spelling looks at: none with digits, none in capitals only, no part of an address of a
/// page, a file or a mailbox.
std::vector<WordPlace> checkedWords(QStringView text);

/// The word that stands around `place` or ends there, of whatever kind.
WordPlace wordAt(QStringView text, qsizetype place);

/// Whether `text` is one word and nothing else.
bool isWord(QStringView text);

/// Whether `character` behind a word says that the word is complete: a blank or a sign of punctuation.
bool endsWord(QChar character);

/// Whether `word` has two letters or more and all of them are capitals.
bool isInCapitals(QStringView word);

} // namespace WordBreaks
