// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/otherwords.h"

#include "shell/writing/spelling.h"

OtherWordsFound OtherWords::of(const QString &word, const Thesaurus &thesaurus, const Spelling &spelling)
{
    const QString plain = word.trimmed();
    for (const QString &form : {plain.toLower(), plain}) {
        if (auto meanings = thesaurus.meanings(form); !meanings.empty())
            return {form, false, std::move(meanings)};
    }
    for (const QString &stem : spelling.stems(plain) + spelling.stems(plain.toLower())) {
        if (auto meanings = thesaurus.meanings(stem.toLower()); !meanings.empty())
            return {stem.toLower(), true, std::move(meanings)};
    }
    return {plain, false, {}};
}

QString OtherWords::asIn(const QString &word, const QString &by)
{
    if (WordBreaks::isInCapitals(word))
        return by.toUpper();
    if (word.isEmpty() || by.isEmpty() || !word.front().isUpper())
        return by;
    return by.front().toUpper() + by.sliced(1);
}
