// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/spelling.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// No language has longer words; the library would only find them wrong.
constexpr qsizetype longestWord = 90;
/// What the dictionaries have said is forgotten beyond that many words.
constexpr qsizetype mostLooked = 50'000;
/// The words of a long text.
constexpr qsizetype usuallyLooked = 2'000;

/// `word` without the ending of "Anne's".
QStringView withoutGenitive(QStringView word)
{
    return word.endsWith(u"'s"_s) || word.endsWith(u"\u2019s"_s) ? word.chopped(2) : word;
}

} // namespace

Spelling::Spelling(const DataFolder &folder)
    : m_ownWords(folder)
{}

void Spelling::setDictionaries(std::vector<std::unique_ptr<Dictionary>> dictionaries)
{
    m_dictionaries = std::move(dictionaries);
    forgetLooked();
}

void Spelling::setKnownNames(const QStringList &names)
{
    m_names.clear();
    for (const QString &name : names) {
        for (const WordPlace &word : WordBreaks::checkedWords(name))
            m_names.insert(name.sliced(word.at, word.length));
    }
}

void Spelling::readOwnWords()
{
    m_ownWords.read();
}

std::vector<WordPlace> Spelling::wrongWords(QStringView text) const
{
    if (!hasDictionary())
        return {};
    std::vector<WordPlace> words = WordBreaks::checkedWords(text);
    std::erase_if(words, [&](const WordPlace &word) { return isRight(text.sliced(word.at, word.length)); });
    return words;
}

bool Spelling::isInDictionary(QStringView word) const
{
    return word.size() <= longestWord && std::ranges::any_of(m_dictionaries, [word](const auto &dictionary) {
               return dictionary->knows(word);
           });
}

bool Spelling::isRight(QStringView word) const
{
    if (m_dictionaries.empty() || word.size() > longestWord)
        return true;
    // A key that borrows the characters: most words have been looked up before.
    const QString key = QString::fromRawData(word.data(), word.size());
    auto looked = m_looked.constFind(key);
    if (looked == m_looked.cend()) {
        if (m_looked.size() > mostLooked)
            m_looked.clear();
        const bool isKnown =
            std::ranges::any_of(m_dictionaries, [word](const auto &one) { return one->knows(word); });
        looked = m_looked.insert(word.toString(), isKnown);
    }
    return *looked || isKnownHere(word);
}

bool Spelling::isKnownHere(QStringView word) const
{
    // Keys that borrow the characters.
    const QString text = QString::fromRawData(word.data(), word.size());
    const QString plain = text.endsWith(u's') ? withoutGenitive(word).toString() : text;
    return m_ignored.contains(text) || m_names.contains(text) || m_names.contains(plain) ||
           m_ownWords.contains(text) || m_ownWords.contains(plain);
}

QStringList Spelling::suggestions(QStringView word) const
{
    QStringList all;
    if (word.size() > longestWord)
        return all;
    for (const auto &dictionary : m_dictionaries) {
        for (const QString &suggestion : dictionary->suggestions(word)) {
            if (!suggestion.isEmpty() && !all.contains(suggestion))
                all += suggestion;
        }
    }
    return all.first(std::min<qsizetype>(all.size(), mostSuggestions));
}

QStringList Spelling::stems(QStringView word) const
{
    QStringList all;
    if (word.size() > longestWord)
        return all;
    for (const auto &dictionary : m_dictionaries)
        all += dictionary->stems(word);
    all.removeDuplicates();
    return all;
}

bool Spelling::addOwnWord(const QString &word)
{
    return m_ownWords.add(word);
}

bool Spelling::removeOwnWord(const QString &word)
{
    return m_ownWords.remove(word);
}

void Spelling::forgetLooked() const
{
    m_looked.clear();
    m_looked.reserve(usuallyLooked);
}
