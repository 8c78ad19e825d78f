// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <memory>

class Hunspell;
struct DictionaryFiles;

/// One language, loaded: knows its words, and suggests some in place of a wrong one.
class Dictionary
{
public:
    /// Loads the files, which takes 50 to 110 ms. Null where they cannot be used: see `Dictionaries`.
    static std::unique_ptr<Dictionary> load(const DictionaryFiles &files);
    ~Dictionary();

    bool knows(QStringView word) const;
    /// The likeliest first; takes 20 to 90 ms.
    QStringList suggestions(QStringView word) const;

private:
    enum class Encoding { Utf8, Latin1, Windows1252 };

    Dictionary(const DictionaryFiles &files, Encoding encoding);
    /// Nothing where the dictionary cannot hold `word`.
    std::string encoded(QStringView word) const;
    QString decoded(const std::string &word) const;

    std::unique_ptr<Hunspell> m_words;
    Encoding m_encoding;
};
