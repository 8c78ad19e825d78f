// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/dictionaries.h"
#include "shell/writing/otherwords.h"
#include "shell/writing/spelling.h"
#include "shell/writing/thesaurus.h"
#include "tests/shell/writing/threewords.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<ThesaurusFiles> foundIn(const TestFolder &folder)
{
    return Thesauri::found({folder.folder().path()});
}

/// "adj: felicitous, fortunate (similar term); noun: ..."
QString textOf(const std::vector<Meaning> &meanings)
{
    QStringList all;
    for (const Meaning &meaning : meanings) {
        QStringList words;
        for (const OtherWord &word : meaning.words)
            words += word.remark.isEmpty() ? word.text : word.text + u" <"_s + word.remark + u'>';
        all += meaning.kind + u": "_s + words.join(u", "_s);
    }
    return all.join(u"; "_s);
}

} // namespace

/// The thesaurus: its files, its words, and what is asked of it.
class ThesaurusTest : public QObject
{
    Q_OBJECT

private slots:
    void findsWordsAndTheirBaseForms_data()
    {
        const QString happy = u"adj: felicitous, fortunate <similar term>; noun: joy <generic term>"_s;
        rows<QString, QString, bool, QString>({
            {"a word", u"happy"_s, u"happy"_s, false, happy},
            {"with a capital", u"Happy"_s, u"happy"_s, false, happy},
            {"a form of it", u"happier"_s, u"happy"_s, true, happy},
            {"the first word", u"glad"_s, u"glad"_s, false, u"adj: happy, cheerful <similar term>"_s},
            {"the last word", u"zest"_s, u"zest"_s, false, u"noun: gusto, relish"_s},
            {"a beginning of one", u"happ"_s, u"happ"_s, false, {}},
            {"none", {}, {}, false, {}},
            {"letters that the index has as signs", u"glad|6"_s, u"glad|6"_s, false, {}},
        });
    }

    void findsWordsAndTheirBaseForms()
    {
        const auto [word, found, isBaseForm, meanings] = row<QString, QString, bool, QString>();
        const TestFolder folder;
        ThreeWords::put(folder);
        Spelling spelling(folder.folder());
        std::vector<std::unique_ptr<Dictionary>> dictionaries;
        dictionaries.push_back(Dictionary::load(Dictionaries::found({folder.folder().path()}).at(0)));
        spelling.setDictionaries(std::move(dictionaries));
        const auto thesaurus = Thesaurus::open(foundIn(folder).at(0));
        QVERIFY(thesaurus);
        const OtherWordsFound other = OtherWords::of(word, *thesaurus, spelling);
        QCOMPARE(other.word, found);
        QCOMPARE(other.isBaseForm, isBaseForm);
        QCOMPARE(textOf(other.meanings), meanings);
    }

    void keepsTheLettersOfTheWord_data()
    {
        rows<QString, QString, QString>({
            {"small", u"happy"_s, u"glad"_s, u"glad"_s},
            {"a capital", u"Happy"_s, u"glad"_s, u"Glad"_s},
            {"an accent", u"\u00c9lan"_s, u"\u00e9clat"_s, u"\u00c9clat"_s},
            {"capitals", u"HAPPY"_s, u"glad"_s, u"GLAD"_s},
            {"a name", u"happy"_s, u"Hague"_s, u"Hague"_s},
            {"one letter", u"I"_s, u"ego"_s, u"Ego"_s},
        });
    }

    void keepsTheLettersOfTheWord()
    {
        const auto [word, by, expected] = row<QString, QString, QString>();
        QCOMPARE(OtherWords::asIn(word, by), expected);
    }

    void servesTheFirstLanguageThatHasOne_data()
    {
        rows<QStringList, QString>({
            {"its own", {u"en_GB"_s, u"en_US"_s}, u"en_GB"_s},
            {"another country's", {u"en_AU"_s}, u"en_GB"_s},
            {"the second language", {u"fr_FR"_s, u"de_AT"_s}, u"de_DE"_s},
            {"none", {u"fr_FR"_s}, {}},
            {"no language", {}, {}},
        });
    }

    void servesTheFirstLanguageThatHasOne()
    {
        const auto [languages, expected] = row<QStringList, QString>();
        const TestFolder folder;
        for (const char *name : {"en_US", "en_GB", "de_DE"})
            ThreeWords::putThesaurus(folder, QString::fromLatin1(name));
        folder.put(u"th_fr_FR_v2.idx"_s, "UTF-8\n1\nmot|6\n"); // without the other file
        folder.put(u"th_da_DK_v2.idx"_s, "KOI8-R\n1\nord|6\n");
        folder.put(u"th_da_DK_v2.dat"_s, "KOI8-R\nord|0\n");
        const auto files = Thesauri::firstFor(languages, foundIn(folder));
        QCOMPARE(files ? files->name : QString(), expected);
    }

    void doesNotBelieveDamagedFiles_data()
    {
        const QByteArray idx = ThreeWords::idx;
        const QByteArray dat = ThreeWords::dat;
        const auto with = [](QByteArray text, const char *before, const QByteArray &after) {
            return text.replace(before, after);
        };
        rows<QByteArray, QByteArray>({
            {"an index that counts none", with(idx, "\n3\n", "\n0\n"), dat},
            {"an index that counts too many", with(idx, "\n3\n", "\n2147483647\n"), dat},
            {"an index without a count", with(idx, "\n3\n", "\nglad\n"), dat},
            {"a word without end", with(idx, "happy", QByteArray(500, 'h')), dat},
            {"zeros", with(idx, "happy", QByteArray(5, '\0')), dat},
            {"a place behind the end", with(idx, "happy|49", "happy|4999"), dat},
            {"a place before the beginning", with(idx, "happy|49", "happy|-49"), dat},
            {"a place elsewhere", with(idx, "happy|49", "happy|50"), dat},
            {"a second place", with(idx, "zest|", "happy|9999\nzest|"), dat},
            {"meanings without number", idx, with(dat, "happy|2", "happy|9")},
            {"meanings without end", idx, with(dat, "happy|2\n", "happy|99999999\n")},
            {"fewer meanings than none", idx, with(dat, "happy|2\n", "happy|-2\n")},
            {"nothing", {}, {}},
            {"noise", noiseOf(5000), noiseOf(5000)},
            {"noise behind the index", idx, noiseOf(5000)},
        });
    }

    /// What counts is that the library comes through; the words around the damage may still be there.
    void doesNotBelieveDamagedFiles()
    {
        const auto [idx, dat] = row<QByteArray, QByteArray>();
        for (qsizetype end = dat.size(); end >= 0; end -= std::max<qsizetype>(1, dat.size() / 30)) {
            const TestFolder folder;
            folder.put(u"th_en_US_v2.idx"_s, idx);
            folder.put(u"th_en_US_v2.dat"_s, dat.first(end));
            for (const ThesaurusFiles &files : foundIn(folder)) {
                const auto thesaurus = Thesaurus::open(files);
                for (const char *word : {"glad", "happy", "zest"}) {
                    if (thesaurus)
                        QVERIFY(thesaurus->meanings(QString::fromLatin1(word)).size() <= 200);
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(ThesaurusTest)
#include "tst_thesaurus.moc"
