// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QSet>
#include <QString>

/// The words that a household has added to its dictionaries, in `Spell1.Fil`.
class OwnWords
{
public:
    inline static const QString fileName = QStringLiteral("Spell1.Fil");
    /// Longer ones are no words.
    static constexpr int longest = 64;

    explicit OwnWords(const DataFolder &folder);

    /// Reads the file, or reads it anew.
    void read();

    /// A word that was added in small letters counts with a first capital too.
    bool contains(QStringView word) const;

    /// Adds `word` to what the file holds now. False where the disk refuses, or the file is none that may be
    /// written: the word counts then as long as this lives.
    [[nodiscard]] bool add(const QString &word);
    /// Takes it out again. False where the disk refuses.
    [[nodiscard]] bool remove(const QString &word);

private:
    DataFolder m_folder;
    QSet<QString> m_words;
};
