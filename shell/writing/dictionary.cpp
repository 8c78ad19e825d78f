// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/dictionary.h"

#include "shell/writing/dictionaries.h"
#include "storage/systemfile.h"

#include <hunspell.hxx>

namespace {

constexpr QChar typesetApostrophe(u'\u2019');

} // namespace

std::unique_ptr<Dictionary> Dictionary::load(const DictionaryFiles &files)
{
    const DictionaryFiles now = Dictionaries::examined(files);
    if (!now.isUsable())
        return nullptr;
    const auto encoding = WordEncoding::named(now.encoding);
    if (!encoding)
        return nullptr;
    return std::unique_ptr<Dictionary>(new Dictionary(now, *encoding));
}

Dictionary::Dictionary(const DictionaryFiles &files, WordEncoding encoding)
    : m_words(std::make_unique<Hunspell>(SystemFile::encodedPath(files.affPath).constData(),
                                         SystemFile::encodedPath(files.dicPath).constData()))
    , m_encoding(encoding)
{}

Dictionary::~Dictionary() = default;

QStringList Dictionary::decoded(const std::vector<std::string> &words) const
{
    QStringList texts;
    texts.reserve(qsizetype(words.size()));
    for (const std::string &word : words)
        texts += m_encoding.decoded({word.data(), qsizetype(word.size())});
    return texts;
}

bool Dictionary::knows(QStringView word) const
{
    const std::string bytes = m_encoding.encoded(word);
    if (!bytes.empty() && m_words->spell(bytes))
        return true;
    // Few dictionaries know the apostrophe of typesetters.
    return word.contains(typesetApostrophe) && knows(word.toString().replace(typesetApostrophe, u'\''));
}

QStringList Dictionary::suggestions(QStringView word) const
{
    const std::string bytes = m_encoding.encoded(word);
    return bytes.empty() ? QStringList() : decoded(m_words->suggest(bytes));
}

QStringList Dictionary::stems(QStringView word) const
{
    const std::string bytes = m_encoding.encoded(word.toString().replace(typesetApostrophe, u'\''));
    return bytes.empty() ? QStringList() : decoded(m_words->stem(bytes));
}
