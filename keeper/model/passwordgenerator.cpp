// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/passwordgenerator.h"

#include <QFile>

#include <sodium.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::Literals::StringLiterals;

// The macro has to stand outside every namespace.
static void initializeWords()
{
    Q_INIT_RESOURCE(quillery_keeperwords);
}

namespace {

using PasswordGenerator::Recipe;

constexpr QStringView lookAlikes = u"l1IO0.,:;";
constexpr int wordCount = 6 * 6 * 6 * 6 * 6; ///< as many as five dice can throw

/// One string for each kind of character.
std::vector<QString> kinds(const Recipe &recipe)
{
    const std::pair<bool, QString> all[] = {
        {recipe.hasSmallLetters, u"abcdefghijklmnopqrstuvwxyz"_s},
        {recipe.hasCapitals, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s},
        {recipe.hasDigits, u"0123456789"_s},
        // Without quotes, backslash and bar, which forms and scripts are apt to spoil.
        {recipe.hasSigns, u"!#$%&()*+,-./:;<=>?@[]^_{}~"_s},
    };
    std::vector<QString> kinds;
    for (const auto &[isWanted, characters] : all) {
        if (!isWanted)
            continue;
        QString &kind = kinds.emplace_back(characters);
        if (!recipe.hasLookAlikes)
            kind.removeIf([](QChar character) { return lookAlikes.contains(character); });
    }
    return kinds;
}

int lengthOf(const Recipe &recipe)
{
    return std::clamp(recipe.length, PasswordGenerator::shortest, PasswordGenerator::longest);
}

int wordsOf(const Recipe &recipe)
{
    return std::clamp(recipe.words, PasswordGenerator::fewestWords, PasswordGenerator::mostWords);
}

/// "11111<tab>abacus": what the dice show, and the word.
QStringList words()
{
    initializeWords();
    QFile file(u":/keeper/wordlist_en_eff.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList words = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (QString &word : words)
        word.remove(0, word.indexOf(u'\t') + 1);
    return words;
}

QString drawWords(const Recipe &recipe)
{
    const QStringList all = words();
    if (all.size() != wordCount)
        return {};
    QStringList drawn;
    for (int i = 0; i < wordsOf(recipe); ++i)
        drawn << all[randombytes_uniform(wordCount)];
    return drawn.join(recipe.separator);
}

bool hasEachKind(const QString &password, const std::vector<QString> &kinds)
{
    return std::ranges::all_of(kinds, [&password](const QString &kind) {
        return std::ranges::any_of(password, [&kind](QChar character) { return kind.contains(character); });
    });
}

} // namespace

QStringList PasswordGenerator::separators()
{
    return {u"-"_s, u"."_s, u"_"_s, u" "_s};
}

bool PasswordGenerator::isPossible(const Recipe &recipe)
{
    return recipe.form == Recipe::Words || !kinds(recipe).empty();
}

QString PasswordGenerator::make(const Recipe &recipe)
{
    if (!isPossible(recipe) || sodium_init() < 0)
        return {};
    if (recipe.form == Recipe::Words)
        return drawWords(recipe);
    const std::vector<QString> kinds = ::kinds(recipe);
    QString all;
    for (const QString &kind : kinds)
        all += kind;
    // Drawing anew until each kind is there keeps all that are allowed equally likely. Of the shortest with
    // four kinds, one in fifteen is.
    QString password(lengthOf(recipe), u' ');
    do {
        for (QChar &character : password)
            character = all[randombytes_uniform(quint32(all.size()))];
    } while (!hasEachKind(password, kinds));
    return password;
}

double PasswordGenerator::bits(const Recipe &recipe)
{
    if (recipe.form == Recipe::Words)
        return wordsOf(recipe) * std::log2(double(wordCount));
    const std::vector<QString> kinds = ::kinds(recipe);
    if (kinds.empty())
        return 0;
    double all = 0;
    for (const QString &kind : kinds)
        all += double(kind.size());
    // Of all texts of that length, the share that lacks no kind: those that lack one are taken away, those
    // that lack two were taken away twice, and so on.
    double share = 0;
    for (unsigned lacking = 0; lacking < 1U << kinds.size(); ++lacking) {
        double left = all;
        int sign = 1;
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            if (lacking & (1U << i)) {
                left -= double(kinds[i].size());
                sign = -sign;
            }
        }
        share += sign * std::pow(left / all, lengthOf(recipe));
    }
    return lengthOf(recipe) * std::log2(all) + std::log2(share);
}
