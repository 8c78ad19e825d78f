// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/dictionary.h"
#include "shell/writing/ownwords.h"
#include "shell/writing/wordbreaks.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <memory>
#include <vector>

/// Tells right words from wrong ones: by the dictionaries of one or more languages, the household's own
/// words, the names that it knows, and what was ignored. Without a dictionary no word is wrong.
class Spelling
{
public:
    explicit Spelling(const DataFolder &folder);

    void setDictionaries(std::vector<std::unique_ptr<Dictionary>> dictionaries);
    bool hasDictionary() const { return !m_dictionaries.empty(); }
    /// "Anne Lind": each of its words is right, with a capital.
    void setKnownNames(const QStringList &names);
    /// Reads the household's own words anew.
    void readOwnWords();

    /// What is wrong in `text`, in order.
    std::vector<WordPlace> wrongWords(QStringView text) const;
    bool isRight(QStringView word) const;
    /// Whether a dictionary has it. Nothing of the question is kept, which may be a password.
    bool isInDictionary(QStringView word) const;
    /// At most `mostSuggestions`, the likeliest first, those of the first language before the next's. Takes
    /// up to a tenth of a second.
    QStringList suggestions(QStringView word) const;
    static constexpr int mostSuggestions = 8;
    /// What the word may be a form of, each once.
    QStringList stems(QStringView word) const;
    /// Lets go of what the dictionaries have said of words.
    void forgetLooked() const;

    /// The word is right from now on, also the next time. False where it could not be saved: then it is right
    /// as long as this lives.
    [[nodiscard]] bool addOwnWord(const QString &word);
    [[nodiscard]] bool removeOwnWord(const QString &word);
    /// The word is right as long as this lives.
    void ignore(const QString &word) { m_ignored.insert(word); }
    void heed(const QString &word) { m_ignored.remove(word); }

private:
    bool isKnownHere(QStringView word) const;

    std::vector<std::unique_ptr<Dictionary>> m_dictionaries;
    OwnWords m_ownWords;
    QSet<QString> m_names;
    QSet<QString> m_ignored;
    mutable QHash<QString, bool> m_looked; ///< what the dictionaries have said of a word
};
