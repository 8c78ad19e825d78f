// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/textindex.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Found = QList<std::tuple<int, int, int>>; ///< text, rank, line

constexpr int whole = TextIndex::WholeWordOfTitle;
constexpr int title = TextIndex::WordOfTitle;
constexpr int word = TextIndex::Word;
constexpr int inside = TextIndex::Inside;

Found foundIn(const TextIndex &index, const QString &text)
{
    Found found;
    index.find(TextIndex::Words(text), [&found](const TextIndex::Hit &hit) {
        found << std::tuple(hit.text, int(hit.rank), hit.line);
        return true;
    });
    return found;
}

} // namespace

class TestTextIndex : public QObject
{
    Q_OBJECT

private slots:
    void findsWordsInAnyOrder_data()
    {
        rows<QString, Found>({
            {"three letters", u"jos"_s, {{0, title, 0}, {1, title, 0}}},
            {"both names, turned round", u"holm jos"_s, {{0, title, 0}}},
            {"with a comma", u"Holm, Josephine"_s, {{0, whole, 0}}},
            {"a whole word of the title", u"HOLM"_s, {{0, whole, 0}, {2, word, 1}}},
            {"the word that fits worst counts", u"josephine brist"_s, {{0, word, 2}}},
            {"inside a word", u"istol"_s, {{0, inside, 2}}},
            {"without the accent", u"jose"_s, {{0, title, 0}, {1, whole, 0}}},
            {"with an accent that is not there", u"hölm"_s, {{0, whole, 0}, {2, word, 1}}},
            {"a number by its digits", u"5550142"_s, {{0, word, 4}}},
            {"a number as it stands", u"555-01"_s, {{0, word, 3}}},
            {"a letter", u"É"_s, {{0, inside, 0}, {1, inside, 0}, {2, title, 0}}},
            {"one word is missing", u"josephine leeds"_s, {}},
            {"not across two lines", u"holm12"_s, {}},
            {"no words", u" , ; "_s, {}},
            {"what no file can hold", u"jos Ж"_s, {}},
        });
    }
    void findsWordsInAnyOrder()
    {
        const auto [text, expected] = row<QString, Found>();
        TextIndex index;
        index.beginText();
        for (const QByteArrayView line : {"Josephine Holm", " 12 Mill Lane  ", "Bristol", "555-0142"})
            index.addLine(line);
        index.addDigits("555-0142");
        index.beginText();
        index.addLine("Jos\xE9 Marti\0 rest of nothing");
        index.addDigits("5550143");
        index.beginText();
        index.addLine("Eve");
        index.addLine("near the Holm\noak");
        QCOMPARE(index.count(), 3);
        QCOMPARE(foundIn(index, text), expected);
    }

    /// The search looks at many places at once; whatever stands at the edges of them is found all the same.
    void findsAtEveryPlace()
    {
        for (const QString &sought : {u"x"_s, u"xy"_s, u"xyz"_s, u"xyzxyw"_s}) {
            for (int before = 0; before < 200; ++before) {
                for (const int after : {0, 1, 70}) {
                    TextIndex index;
                    index.beginText();
                    const QByteArray line =
                        QByteArray(before, 'w') + sought.toLatin1() + QByteArray(after, 'v');
                    index.addLine(line);
                    QCOMPARE(foundIn(index, sought).size(), 1);
                    QCOMPARE(foundIn(index, sought + u'q').size(), 0);
                }
            }
        }
    }

    void stopsWhenItIsTold()
    {
        TextIndex index;
        for (int text = 0; text < 10; ++text) {
            index.beginText();
            index.addLine("same");
        }
        int visited = 0;
        index.find(TextIndex::Words(u"same"), [&visited](const TextIndex::Hit &) { return ++visited < 3; });
        QCOMPARE(visited, 3);
    }
};

QTEST_GUILESS_MAIN(TestTextIndex)
#include "tst_textindex.moc"
