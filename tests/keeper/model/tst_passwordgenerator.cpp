// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/passwordgenerator.h"
#include "shell/core/passwordstrength.h"
#include "tests/support/rows.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

using PasswordGenerator::Recipe;

/// `kinds`: a for small letters, A for capitals, 1 for digits, ! for signs, - for no look-alikes.
Recipe characters(int length, const QString &kinds)
{
    Recipe recipe;
    recipe.length = length;
    recipe.hasSmallLetters = kinds.contains(u'a');
    recipe.hasCapitals = kinds.contains(u'A');
    recipe.hasDigits = kinds.contains(u'1');
    recipe.hasSigns = kinds.contains(u'!');
    recipe.hasLookAlikes = !kinds.contains(u'-');
    return recipe;
}

Recipe words(int count, const QString &separator)
{
    Recipe recipe;
    recipe.form = Recipe::Words;
    recipe.words = count;
    recipe.separator = separator;
    return recipe;
}

} // namespace

/// Passwords that the program makes, and what it says of those that are typed.
class TestPasswordGenerator : public QObject
{
    Q_OBJECT
private slots:
    void makesWhatTheRecipeSays_data()
    {
        // What each password looks like, and the logarithm of how many there are, counted by hand.
        rows<Recipe, QString, double>({
            {"digits", characters(6, u"1"_s), u"[0-9]{6}"_s, 19.9316},
            {"one of each kind", characters(4, u"aA1!"_s),
             u"(?=.*[a-z])(?=.*[A-Z])(?=.*[0-9])(?=.*[^a-zA-Z0-9])[!-~]{4}"_s, 22.0626},
            {"letters and digits", characters(5, u"a1"_s), u"(?=.*[a-z])(?=.*[0-9])[a-z0-9]{5}"_s, 25.5310},
            {"all kinds", characters(20, u"aA1!"_s), u"(?=.*[a-z])(?=.*[A-Z])(?=.*[0-9])[!-~]{20}"_s,
             129.3709},
            {"no look-alikes", characters(20, u"aA1!-"_s), u"[^l1IO0.,:;]{20}"_s, 126.2476},
            {"longer than allowed", characters(4000, u"A"_s), u"[A-Z]{128}"_s, 601.6563},
            {"shorter than allowed", characters(-1, u"A"_s), u"[A-Z]{4}"_s, 18.8018},
            {"no kind at all", characters(20, {}), u""_s, 0},
            {"four words", words(4, u"-"_s), u"[a-z-]+-[a-z-]+-[a-z-]+-[a-z-]+"_s, 51.6993},
            {"eight words", words(8, u" "_s), u"([a-z-]+ ){7}[a-z-]+"_s, 103.3985},
            {"more words than allowed", words(99, u"."_s), u"([a-z-]+\\.){7}[a-z-]+"_s, 103.3985},
        });
    }

    void makesWhatTheRecipeSays()
    {
        const auto [recipe, pattern, bits] = row<Recipe, QString, double>();
        const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern));
        for (int i = 0; i < 50; ++i) {
            const QString made = PasswordGenerator::make(recipe);
            QVERIFY2(whole.match(made).hasMatch(), qPrintable(made));
            QCOMPARE(made.isEmpty(), !PasswordGenerator::isPossible(recipe));
        }
        if (bits > 0)
            QVERIFY2(qAbs(PasswordGenerator::bits(recipe) - bits) < 0.0001,
                     qPrintable(QString::number(PasswordGenerator::bits(recipe), 'f', 4)));
    }

    /// Of 25,600 draws each of the 89 characters misses all with a chance of less than 10 to the minus 120.
    void drawsFromAllCharacters()
    {
        QHash<QChar, int> counts;
        for (int i = 0; i < 200; ++i) {
            for (const QChar character : PasswordGenerator::make(characters(128, u"aA1!"_s)))
                ++counts[character];
        }
        QCOMPARE(counts.size(), 26 + 26 + 10 + 27);
        const auto [least, most] = std::minmax_element(counts.cbegin(), counts.cend());
        QVERIFY(*least > 150 && *most < 450); // 288 each, give or take eight times the usual spread
    }

    void drawsFromAllWords()
    {
        QSet<QString> drawn;
        for (int i = 0; i < 1000; ++i) {
            const QStringList words = PasswordGenerator::make(::words(8, u" "_s)).split(u' ');
            drawn.unite(QSet<QString>(words.begin(), words.end()));
        }
        QVERIFY(drawn.size() > 4700 && drawn.size() < 5200); // 4,997 of 7,776 are usual
        QVERIFY(QStringList(drawn.values()).filter(QRegularExpression(u"[^a-z-]"_s)).isEmpty());
    }

    void tellsFactsOfATypedPassword_data()
    {
        rows<QString, QString>({
            {"nothing typed", {}, {}},
            {"one character", u"x"_s, u"1 character"_s},
            {"a word", u"Lighthouse"_s, u"10 characters, a word in the dictionary"_s},
            {"a word used before", u"sesame"_s, u"6 characters, a word in the dictionary, used before"_s},
            {"beyond the code page", u"\U0001F511\u00e4"_s, u"2 characters"_s},
        });
    }

    void tellsFactsOfATypedPassword()
    {
        const auto [password, words] = row<QString, QString>();
        PasswordStrength strength = PasswordStrength::of(
            password,
            {.isWord = [](const QString &word) { return word == u"lighthouse" || word == u"sesame"; },
             .isUsedBefore = [](const QString &word) { return word == u"sesame"; }});
        QCOMPARE(strength.bits.has_value(), PasswordStrength::canEstimate() && !password.isEmpty());
        strength.bits.reset();
        QCOMPARE(strength.words(), words);
    }

    void estimatesWhereItCan()
    {
        if (!PasswordStrength::canEstimate())
            QSKIP("built without libzxcvbn");
        const auto bits = [](const QString &password, const QStringList &guessed = {}) {
            return PasswordStrength::of(password, {.alsoGuessed = guessed}).bits.value_or(-1);
        };
        QVERIFY(bits(u"password"_s) < 5);
        QVERIFY(bits(u"kV9#qLw2$Tz7xB"_s) > PasswordStrength::enough);
        QVERIFY(bits(u"quillerymiller"_s, {u"Quillery"_s, u"Miller"_s}) < bits(u"quillerymiller"_s));
        QVERIFY(bits(QString(100000, u'x')) >= 0);
        QVERIFY(PasswordStrength::of(u"password"_s, {}).isWeak());
        QVERIFY(PasswordStrength::of(u"password"_s, {}).words().startsWith(u"8 characters, about "_s));
    }
};

QTEST_APPLESS_MAIN(TestPasswordGenerator)
#include "tst_passwordgenerator.moc"
