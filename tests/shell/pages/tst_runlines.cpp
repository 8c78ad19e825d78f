// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/runlines.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

const QString sentence = u"The ferry was late, and nobody minded. "_s;

/// A paragraph of so many lines: its words are wider than half of one.
PageItem::Paragraph ofLines(int count)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += u"word%1"_s.arg(i) + QString(40, u'm') + u' ';
    return {.runs = {{text.trimmed()}}};
}

QString textOf(const std::vector<RunLine> &lines)
{
    QStringList texts;
    for (const RunLine &line : lines) {
        QString text;
        for (const RunPiece &piece : line)
            text += piece.text;
        texts << text;
    }
    return texts.join(u' ');
}

} // namespace

class TestRunLines final : public QObject
{
    Q_OBJECT
private slots:
    void keepsEveryWordInItsStyle_data()
    {
        using Runs = std::vector<PageItem::Run>;
        const QString twice = sentence + sentence;
        rows<Runs, int>({
            {"nothing", {}, 0},
            {"an empty run", {{QString()}}, 0},
            {"plain", {{sentence.repeated(5)}}, 0},
            {"a bold beginning", {{sentence, true}, {sentence.repeated(5)}}, 0},
            {"italics in the middle", {{twice}, {sentence, false, true}, {twice}}, 0},
            {"both", {{sentence}, {twice, true, true}}, 0},
            {"in a list", {{sentence.repeated(3)}, {sentence, true}}, 2},
            {"a style that changes within a word", {{u"un"_s}, {u"believable"_s, true}}, 0},
            {"a word wider than the line", {{QString(300, u'w')}, {u"end"_s, true}}, 0},
            {"a style for more than anybody marks", {{sentence.repeated(600)}, {sentence, true}}, 0},
        });
    }

    void keepsEveryWordInItsStyle()
    {
        constexpr double width = 250;
        const auto [runs, level] = row<std::vector<PageItem::Run>, int>();
        const PageTypes types(bodyFont());
        const PageItem::Paragraph paragraph{.runs = runs, .listLevel = level};
        const std::vector<RunLine> lines = RunLines::of(paragraph, types, width);
        QString text;
        for (const PageItem::Run &run : runs)
            text += run.text;
        const auto isNoBlank = [](const QString &words) { return QString(words).remove(u' '); };
        QCOMPARE(isNoBlank(textOf(lines)), isNoBlank(text));
        const double usable = width - RunLines::indentOf(paragraph);
        std::vector<const PageType *> used;
        for (const RunLine &line : lines) {
            for (const RunPiece &piece : line) {
                QVERIFY(piece.x + piece.type->width(piece.text) < usable + 1);
                if (used.empty() || used.back() != piece.type)
                    used.push_back(piece.type);
            }
        }
        std::vector<const PageType *> expected;
        for (const PageItem::Run &run : runs) {
            if (!run.text.isEmpty())
                expected.push_back(&types.of(TextRole::Body, run.isBold, run.isItalic));
        }
        QCOMPARE(used, expected);
    }

    void twoLinesAtLeastStandOnEitherSide()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const QTemporaryDir folder;
        for (int before = 40; before < 50; ++before) {
            Page page;
            for (int i = 0; i < before; ++i)
                page.line(u"a line"_s);
            const QString path = savePdf(folder.filePath(u"page.pdf"_s), page.paragraph(ofLines(5)));
            for (const QString &sheet : pdfSheets(path)) {
                const auto count = sheet.count(u"word"_s);
                QVERIFY2(count == 0 || count == 2 || count == 3 || count == 5, qPrintable(sheet));
            }
        }
    }

    void whatStaysWithTheNextStandsOnItsSheet_data()
    {
        rows<int>({{"a short paragraph, as a whole", 3}, {"the last lines of a long one", 5}});
    }
    void whatStaysWithTheNextStandsOnItsSheet()
    {
        const auto [lines] = row<int>();
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const QTemporaryDir folder;
        for (int before = 40; before < 52; ++before) {
            Page page;
            for (int i = 0; i < before; ++i)
                page.line(u"a line"_s);
            PageItem::Paragraph paragraph = ofLines(lines);
            paragraph.staysWithNext = true;
            page.paragraph(paragraph).blankLine().paragraph(
                {.runs = {{u"the tags"_s}}, .role = TextRole::Small});
            int words = 0;
            for (const QString &sheet : pdfSheets(savePdf(folder.filePath(u"page.pdf"_s), page))) {
                words += int(sheet.count(u"word"_s));
                QVERIFY2(!sheet.contains(u"the tags"_s) || sheet.count(u"word"_s) >= 2, qPrintable(sheet));
            }
            QCOMPARE(words, lines);
        }
    }
};

QTEST_MAIN(TestRunLines)
#include "tst_runlines.moc"
