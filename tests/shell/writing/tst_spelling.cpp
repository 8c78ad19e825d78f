// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/correctionfile.h"
#include "shell/writing/dictionaries.h"
#include "shell/writing/spelling.h"
#include "shell/writing/spellwalk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The path of a household may have letters of any script.
const QString dictionaryFolder = u"Дом Żółć/dictionaries"_s;

/// A dictionary of a few words: "water", "fern", "the", and what the rows of a test add.
void putDictionary(const TestFolder &folder, const QString &name, const QByteArray &words,
                   const QByteArray &aff = "SET UTF-8\nTRY esianrtolcdug\n")
{
    QVERIFY(QDir(folder.folder().path()).mkpath(dictionaryFolder));
    const QByteArray count = QByteArray::number(words.count('\n'));
    folder.put(dictionaryFolder + u"/%1.aff"_s.arg(name), aff);
    folder.put(dictionaryFolder + u"/%1.dic"_s.arg(name), count + '\n' + words);
}

std::vector<DictionaryFiles> foundIn(const TestFolder &folder)
{
    return Dictionaries::found({folder.path(dictionaryFolder)});
}

Spelling spellingOf(const TestFolder &folder)
{
    Spelling spelling(folder.folder());
    std::vector<std::unique_ptr<Dictionary>> dictionaries;
    for (const DictionaryFiles &files : foundIn(folder)) {
        if (auto dictionary = Dictionary::load(files))
            dictionaries.push_back(std::move(dictionary));
    }
    spelling.setDictionaries(std::move(dictionaries));
    spelling.readOwnWords();
    return spelling;
}

QStringList wordsAt(const QString &text, const std::vector<WordPlace> &places)
{
    QStringList words;
    for (const WordPlace &place : places)
        words += text.sliced(place.at, place.length);
    return words;
}

QStringList wrongIn(const Spelling &spelling, const QString &text)
{
    return wordsAt(text, spelling.wrongWords(text));
}

} // namespace

/// Words of a text, right and wrong ones, and what is done about them.
class SpellingTest : public QObject
{
    Q_OBJECT

private slots:
    void findsTheWordsToCheck_data()
    {
        rows<QString, QStringList>({
            {"words and signs",
             u"Water the ferns, twice; (re-pot)?"_s,
             {u"Water"_s, u"the"_s, u"ferns"_s, u"twice"_s, u"re"_s, u"pot"_s}},
            {"apostrophes",
             u"'Anne's' don\u2019t o' clock'"_s,
             {u"Anne's"_s, u"don\u2019t"_s, u"o"_s, u"clock"_s}},
            {"digits and capitals", u"3rd B2B ISBN \u00c4\u00d6 A a\u00e9 7"_s, {u"A"_s, u"a\u00e9"_s}},
            {"addresses",
             u"see www.lind.example, anne@lind.example or https://lind.example/a b"_s,
             {u"see"_s, u"or"_s, u"b"_s}},
            {"files", u"C:\\Photos\\Ferns list.txt e.g. and/or"_s, {u"and"_s, u"or"_s}},
            {"a missing blank", u"home.Then"_s, {u"home"_s, u"Then"_s}},
            {"other letters",
             u"na\u00efve e\u0301t\u00e9 \u0444\u0438\u043a\u0443\u0441 \U0001F33F"_s,
             {u"na\u00efve"_s, u"e\u0301t\u00e9"_s, u"\u0444\u0438\u043a\u0443\u0441"_s}},
            {"nothing", u" \t\n' ."_s, {}},
        });
    }
    void findsTheWordsToCheck()
    {
        const auto [text, words] = row<QString, QStringList>();
        QCOMPARE(wordsAt(text, WordBreaks::checkedWords(text)), words);
    }

    void tellsWrongWordsByEveryLanguageAndTheHousehold()
    {
        const TestFolder folder;
        putDictionary(folder, u"en_US"_s, "water\nthe\nfern/S\n", "SET UTF-8\nSFX S Y 1\nSFX S 0 s .\n");
        putDictionary(folder, u"de_DE"_s,
                      "Gr\xfc\xdf"
                      "e\n",
                      "SET ISO8859-1\n");
        putDictionary(folder, u"fr_FR"_s, "\x9cuf\n", "SET WINDOWS-1252\n");
        folder.put(u"SPELL1.FIL"_s, "Quillery words 1\r\nrepot\r\n");
        Spelling spelling = spellingOf(folder);
        spelling.setKnownNames({u"Karin Holm"_s, u"Nils"_s});
        QCOMPARE(wrongIn(spelling, u"Water teh ferns"_s), QStringList{u"teh"_s});
        QCOMPARE(wrongIn(spelling, u"Gr\u00fc\u00dfe \u0153uf \u0153uff \u0444"_s),
                 (QStringList{u"\u0153uff"_s, u"\u0444"_s}));
        QCOMPARE(wrongIn(spelling, u"Repot repot Holm's holm Nils"_s), QStringList{u"holm"_s});
        spelling.ignore(u"teh"_s);
        QCOMPARE(wrongIn(spelling, u"teh Teh"_s), QStringList{u"Teh"_s});
        QVERIFY(spelling.suggestions(u"wter"_s).contains(u"water"_s));
        QVERIFY(!spelling.isRight(u"fernery"_s));
        QVERIFY(spelling.addOwnWord(u"fernery"_s));
        QVERIFY(spelling.isRight(u"Fernery"_s));
        QCOMPARE(folder.bytes(u"SPELL1.FIL"_s), "Quillery words 1\r\nfernery\r\nrepot\r\n");
        QVERIFY(spelling.removeOwnWord(u"repot"_s));
        QCOMPARE(folder.bytes(u"SPELL1.FIL"_s), "Quillery words 1\r\nfernery\r\n");
    }

    void everyWordIsRightWithoutADictionary()
    {
        const TestFolder folder;
        const Spelling spelling = spellingOf(folder);
        QCOMPARE(wrongIn(spelling, u"Watre teh fersn"_s), QStringList());
        QCOMPARE(Dictionaries::firstChoice(foundIn(folder), u"en_US"_s), QStringList());
    }

    void saysWhyADictionaryCannotBeUsed_data()
    {
        const QByteArray noise = noiseOf(5000);
        rows<QByteArray, QByteArray>({{"another encoding", "SET KOI8-R\n", "1\nwater\n"},
                                      {"no number of words", "SET UTF-8\n", "water\nfern\n"},
                                      {"more words than bytes", "SET UTF-8\n", "200000000\nwater\n"},
                                      {"none", "SET UTF-8\n", "0\n"},
                                      {"broken letters", "SET UTF-8\nTRY es\xff\xc3n\n", "1\nwater\n"},
                                      {"zero bytes", QByteArray("SET UTF-8\n\0\n", 12), "1\nwater\n"},
                                      {"empty", "", ""},
                                      {"noise", noise, noise}});
    }
    void saysWhyADictionaryCannotBeUsed()
    {
        const auto [aff, dic] = row<QByteArray, QByteArray>();
        const TestFolder folder;
        QVERIFY(QDir(folder.folder().path()).mkpath(dictionaryFolder));
        folder.put(dictionaryFolder + u"/xx_XX.aff"_s, aff);
        folder.put(dictionaryFolder + u"/xx_XX.dic"_s, dic);
        const auto found = foundIn(folder);
        QCOMPARE(found.size(), 1U);
        QVERIFY(!found[0].whyNot.isEmpty());
        QVERIFY(!Dictionary::load(found[0]));
        QVERIFY(Dictionaries::firstChoice(found, u"xx_XX"_s).isEmpty());
    }

    void loadsNoDictionaryOfMoreThan64Megabytes()
    {
        const TestFolder folder;
        putDictionary(folder, u"en_US"_s, "water\n");
        QVERIFY(foundIn(folder)[0].isUsable());
        QVERIFY(QFile::resize(folder.path(dictionaryFolder + u"/en_US.dic"_s), (64 << 20) + 1));
        QVERIFY(foundIn(folder)[0].whyNot.contains(u"64 MB"_s));
    }

    void countsAsRightForNowWhereTheDiskRefuses()
    {
        const TestFolder folder;
        QVERIFY(QDir(folder.folder().path()).mkpath(u"Spell1.Fil"_s));
        QVERIFY(QDir(folder.folder().path()).mkpath(u"Spell2.Fil"_s));
        OwnWords words(folder.folder());
        words.read();
        QVERIFY(!words.add(u"repot"_s));
        QVERIFY(words.contains(u"repot"_s));
        const CorrectionFile file(folder.folder());
        QCOMPARE(file.read(), Corrections::firstTable());
        QVERIFY(!file.save({}));
    }

    void beginsWithTheLanguageOfTheSystem_data()
    {
        const QStringList some{u"de_DE"_s, u"en_GB"_s, u"en_US"_s};
        rows<QStringList, QString, QString>({{"with its country", some, u"en_GB"_s, u"en_GB"_s},
                                             {"without", {u"de"_s, u"de_DE"_s}, u"de_AT"_s, u"de"_s},
                                             {"of another country", some, u"de_AT"_s, u"de_DE"_s},
                                             {"American", some, u"sv_SE"_s, u"en_US"_s},
                                             {"the first one", {u"nl_NL"_s}, u"C"_s, u"nl_NL"_s}});
    }
    void beginsWithTheLanguageOfTheSystem()
    {
        const auto [there, system, chosen] = row<QStringList, QString, QString>();
        const TestFolder folder;
        for (const QString &name : there)
            putDictionary(folder, name, "water\n");
        QCOMPARE(Dictionaries::firstChoice(foundIn(folder), system), QStringList{chosen});
    }

    void leavesAFileOfOwnWordsAloneThatIsNotItsOwn_data()
    {
        rows<QByteArray, bool, QByteArray>(
            {{"none", {}, true, "Quillery words 1\r\nrepot\r\n"},
             {"cut in its first line", "Quillery wo", true, "Quillery words 1\r\nrepot\r\n"},
             {"with bare line ends", "Quillery words 1\nfern\n\nzz", true,
              "Quillery words 1\r\nfern\r\nrepot\r\nzz\r\n"},
             {"not UTF-8", "Quillery words 1\r\n\xff\xfe\r\n", true,
              "Quillery words 1\r\nrepot\r\n\xff\xfe\r\n"},
             {"a later version", "Quillery words 2\r\nfern\r\n", false, "Quillery words 2\r\nfern\r\n"},
             {"something else", "water\nfern\n", false, "water\nfern\n"}});
    }
    void leavesAFileOfOwnWordsAloneThatIsNotItsOwn()
    {
        const auto [before, isSaved, after] = row<QByteArray, bool, QByteArray>();
        const TestFolder folder;
        if (!before.isNull())
            folder.put(u"Spell1.Fil"_s, before);
        OwnWords words(folder.folder());
        words.read();
        QCOMPARE(words.contains(u"Fern"_s), before.contains("1\nfern") || before.contains("2\r\nfern"));
        QCOMPARE(words.add(u"repot"_s), isSaved);
        QVERIFY(words.contains(u"repot"_s));
        QCOMPARE(folder.bytes(u"Spell1.Fil"_s), after);
    }

    void walksFromWordToWordAndBack()
    {
        const TestFolder folder;
        putDictionary(folder, u"en_US"_s, "water\nthe\nferns\n");
        Spelling spelling = spellingOf(folder);
        SpellWalk walk(spelling,
                       {{7, {}, u"Watre teh ferns, teh"_s}, {8, {}, u"the"_s}, {9, {}, u"teh zinnia"_s}});
        QCOMPARE(walk.word(), u"Watre"_s);
        using Texts = std::vector<WalkedText>;
        QCOMPARE(walk.change(u"Water"_s), (Texts{{7, {}, u"Water teh ferns, teh"_s}}));
        QCOMPARE(walk.word(), u"teh"_s);
        QCOMPARE(walk.changeAll(u"the"_s),
                 (Texts{{7, {}, u"Water the ferns, the"_s}, {9, {}, u"the zinnia"_s}}));
        QCOMPARE(walk.word(), u"zinnia"_s);
        QVERIFY(walk.addWord());
        QVERIFY(walk.isAtEnd());
        walk.undo();
        QCOMPARE(walk.word(), u"zinnia"_s);
        QCOMPARE(folder.bytes(u"Spell1.Fil"_s), "Quillery words 1\r\n");
        walk.ignore();
        QVERIFY(walk.isAtEnd());
        walk.undo();
        QCOMPARE(walk.undo().size(), 2U);
        QCOMPARE(walk.undo(), (Texts{{7, {}, u"Watre teh ferns, teh"_s}}));
        QCOMPARE(walk.place(), (WordPlace{0, 5}));
        QVERIFY(!walk.mayUndo());
    }

    /// What somebody may mean is never corrected, and what comes instead is right.
    void theFirstTableHoldsNoRightWord()
    {
        std::unique_ptr<Dictionary> english;
        for (const DictionaryFiles &files : Dictionaries::found(Dictionaries::folders({}, {}))) {
            if (files.name == "en_US"_L1)
                english = Dictionary::load(files);
        }
        if (!english)
            QSKIP("no American English here");
        const Corrections table = Corrections::firstTable();
        QVERIFY(table.pairs().size() > 140);
        for (const Correction &pair : table.pairs()) {
            QVERIFY2(!english->knows(pair.wrong), qPrintable(pair.wrong));
            for (const WordPlace &word : WordBreaks::checkedWords(pair.right))
                QVERIFY2(english->knows(QStringView(pair.right).sliced(word.at, word.length)),
                         qPrintable(pair.right));
        }
    }
};

QTEST_GUILESS_MAIN(SpellingTest)
#include "tst_spelling.moc"
