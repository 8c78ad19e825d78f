// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/thesauri.h"
#include "shell/writing/wordencoding.h"

#include <QString>

#include <memory>
#include <vector>

class MyThes;

/// A word that may stand in place of another.
struct OtherWord {
    QString text;
    QString remark; ///< "similar term": how it is related

    bool operator==(const OtherWord &) const = default;
};

/// One of the meanings of a word, with the words for it.
struct Meaning {
    QString kind; ///< "adj", as the thesaurus has it
    std::vector<OtherWord> words;

    bool operator==(const Meaning &) const = default;
};

/// The thesaurus of one language, open.
class Thesaurus
{
public:
    /// Opens the files, which takes 40 ms. Null where they cannot be used.
    static std::unique_ptr<Thesaurus> open(const ThesaurusFiles &files);
    ~Thesaurus();

    const ThesaurusFiles &files() const { return m_files; }
    /// Those of exactly this word.
    std::vector<Meaning> meanings(const QString &word) const;

private:
    Thesaurus(ThesaurusFiles files, WordEncoding encoding);

    ThesaurusFiles m_files;
    WordEncoding m_encoding;
    std::unique_ptr<MyThes> m_words;
};
