// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/thesaurus.h"

class Spelling;

/// What a thesaurus has for a word of a text.
struct OtherWordsFound {
    QString word; ///< under which it was found; that of the text where it was not
    bool isBaseForm = false;
    std::vector<Meaning> meanings{};

    bool operator==(const OtherWordsFound &) const = default;
};

/// Looks for other words for those of a text.
namespace OtherWords {

/// In small letters; where that has nothing, what the word is a form of. Endings are not made.
OtherWordsFound of(const QString &word, const Thesaurus &thesaurus, const Spelling &spelling);

/// `by` with a capital where `word` has one, and in capitals where it is.
QString asIn(const QString &word, const QString &by);

} // namespace OtherWords
