// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/wordencoding.h"

#include <QStringList>

#include <memory>
#include <string>
#include <vector>

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
    /// What the word may be a form of: "happy" of "happier".
    QStringList stems(QStringView word) const;

private:
    Dictionary(const DictionaryFiles &files, WordEncoding encoding);
    QStringList decoded(const std::vector<std::string> &words) const;

    std::unique_ptr<Hunspell> m_words;
    WordEncoding m_encoding;
};
