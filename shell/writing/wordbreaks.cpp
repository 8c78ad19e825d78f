// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/wordbreaks.h"

#include <QString>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar typesetApostrophe(u'\u2019');

bool isOfWord(QChar character)
{
    const char16_t code = character.unicode();
    if (code < 0x80)
        return (code >= u'a' && code <= u'z') || (code >= u'A' && code <= u'Z') ||
               (code >= u'0' && code <= u'9');
    return character.isLetterOrNumber() || character.isMark();
}

bool isApostrophe(QChar character)
{
    return character == u'\'' || character == typesetApostrophe;
}

/// Whether the character at `at` belongs to a word; an apostrophe does between two that do.
bool isInWord(QStringView text, qsizetype at)
{
    if (isOfWord(text[at]))
        return true;
    return isApostrophe(text[at]) && at > 0 && at + 1 < text.size() && isOfWord(text[at - 1]) &&
           isOfWord(text[at + 1]);
}

/// Where the word that begins at `from` ends.
qsizetype wordEnd(QStringView text, qsizetype from)
{
    while (from < text.size() && isInWord(text, from))
        ++from;
    return from;
}

/// What stands between two blanks is an address: "anne@example.com", "https://...", "C:\\Photos", "list.txt".
/// A dot that a capital follows may as well be the end of a sentence whose blank is missing.
bool isAddress(QStringView piece)
{
    for (qsizetype i = 0; i < piece.size(); ++i) {
        const char16_t code = piece[i].unicode();
        if (code == u'@' || code == u'\\')
            return true;
        if (code == u':' && piece.sliced(i).startsWith("://"_L1))
            return true;
        if (code == u'.' && i > 0 && i + 1 < piece.size() && isOfWord(piece[i - 1]) && piece[i + 1].isLower())
            return true;
    }
    return piece.startsWith("www."_L1, Qt::CaseInsensitive);
}

bool isChecked(QStringView word)
{
    const auto isDigit = [](QChar character) { return character.isNumber(); };
    return std::ranges::none_of(word, isDigit) && !WordBreaks::isInCapitals(word);
}

void addWordsOf(QStringView text, qsizetype from, qsizetype to, std::vector<WordPlace> &words)
{
    for (qsizetype at = from; at < to;) {
        if (!isOfWord(text[at])) {
            ++at;
            continue;
        }
        const qsizetype end = wordEnd(text, at);
        if (isChecked(text.sliced(at, end - at)))
            words.push_back({at, end - at});
        at = end;
    }
}

} // namespace

std::vector<WordPlace> WordBreaks::checkedWords(QStringView text)
{
    std::vector<WordPlace> words;
    words.reserve(std::size_t(text.size() / 6));
    for (qsizetype at = 0; at < text.size();) {
        if (text[at].isSpace()) {
            ++at;
            continue;
        }
        qsizetype end = at;
        bool hasSign = text[at] == u'w' || text[at] == u'W'; // one that an address has
        for (; end < text.size() && !text[end].isSpace(); ++end) {
            const char16_t code = text[end].unicode();
            hasSign = hasSign || code == u'.' || code == u':' || code == u'@' || code == u'\\';
        }
        if (!hasSign || !isAddress(text.sliced(at, end - at)))
            addWordsOf(text, at, end, words);
        at = end;
    }
    return words;
}

WordPlace WordBreaks::wordAt(QStringView text, qsizetype place)
{
    place = std::clamp<qsizetype>(place, 0, text.size());
    qsizetype begin = place;
    while (begin > 0 && isInWord(text, begin - 1))
        --begin;
    return {begin, wordEnd(text, place) - begin};
}

bool WordBreaks::isWord(QStringView text)
{
    return !text.isEmpty() && isOfWord(text.front()) && wordEnd(text, 0) == text.size();
}

bool WordBreaks::endsWord(QChar character)
{
    return !isOfWord(character) && !isApostrophe(character) && character != u'-' && character != u'_' &&
           (character.isSpace() || character.isPunct());
}

bool WordBreaks::isInCapitals(QStringView word)
{
    // Most words are told by their second letter.
    if (std::ranges::any_of(word, [](QChar character) { return character.isLower(); }))
        return false;
    const auto letters = std::ranges::count_if(word, [](QChar character) { return character.isLetter(); });
    return letters > 1 && std::ranges::any_of(word, [](QChar character) { return character.isUpper(); });
}
