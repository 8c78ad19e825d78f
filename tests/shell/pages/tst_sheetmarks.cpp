// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

PageItem::Paragraph heading(const QString &text, int mark)
{
    return {.runs = {{text}}, .role = TextRole::Heading, .mark = mark};
}

/// A book of two chapters, between its contents and its index; `lines` stand before each of its two days.
Page book(int lines)
{
    Page page(u"A Year"_s);
    page.setHeads(SheetHeads::Running).numberSheets(SheetNumbers::Book);
    page.placeText({1, 3, 4, 1}, u"A Year"_s, TextRole::Cover).section(u"Contents"_s).columns({4, 1});
    page.rowWithSheets({u"March"_s, {}}, {1}).rowWithSheets({u"April"_s, {}}, {2});
    for (const int chapter : {1, 2}) {
        page.section(chapter == 1 ? u"March"_s : u"April"_s, chapter);
        for (int i = 0; i < lines; ++i)
            page.line(u"a line"_s);
        page.paragraph(heading(u"Day %1"_s.arg(chapter), 10 + chapter)).line(u"the day"_s);
    }
    page.section(u"Index"_s).columns({1});
    return page.rowWithSheets({u"garden"_s}, {12, 11, 12}).rowWithSheets({u"nowhere"_s}, {99});
}

/// The number of the sheet on which `line` stands.
int sheetWith(const PagePainter &painter, const QString &line)
{
    for (int sheet = 0; sheet < painter.sheetCount(); ++sheet) {
        if (painter.text(sheet).split(u'\n').contains(line))
            return sheet + 1;
    }
    return 0;
}

} // namespace

class TestSheetMarks final : public QObject
{
    Q_OBJECT
private slots:
    void tellsTheSheetsOfMarks()
    {
        for (int lines = 0; lines < 110; ++lines) {
            const PagePainter painter(book(lines), {}, bodyFont());
            const QStringList contents = painter.text(1).split(u'\n');
            const int april = sheetWith(painter, u"Day 2"_s);
            const int march = sheetWith(painter, u"Day 1"_s);
            QVERIFY(contents.contains(u"March\t3"_s));
            QVERIFY2(contents.contains(u"April\t%1"_s.arg(march + 1)), qPrintable(contents.join(u'/')));
            const QStringList index = painter.text(painter.sheetCount() - 1).split(u'\n');
            QVERIFY2(index.contains(u"garden  %1, %2"_s.arg(march).arg(april)), qPrintable(index.join(u'/')));
            QVERIFY(index.contains(u"nowhere  "_s));
        }
    }

    void joinsSheetsThatFollowOneAnother_data()
    {
        rows<std::vector<int>, QString>({
            {"none", {}, u"word"_s},
            {"one", {2}, u"word  2"_s},
            {"two in a row", {2, 3}, u"word  2, 3"_s},
            {"three in a row", {4, 2, 3}, u"word  2\u20134"_s},
            {"gaps", {1, 3, 4, 5, 7}, u"word  1, 3\u20135, 7"_s},
        });
    }

    void joinsSheetsThatFollowOneAnother()
    {
        const auto [marks, expected] = row<std::vector<int>, QString>();
        Page page;
        for (int sheet = 1; sheet <= 7; ++sheet)
            page.section({}, sheet).line(u"a"_s);
        page.columns({1}).rowWithSheets({u"word"_s}, marks);
        const PagePainter painter(page, {}, bodyFont());
        QCOMPARE(painter.text(6).split(u'\n').constLast(), expected);
    }

    void booksHaveTheirHeadsAndNumbers()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const QTemporaryDir folder;
        const QStringList sheets = pdfSheets(savePdf(folder.filePath(u"book.pdf"_s), book(50)));
        QCOMPARE(sheets.size(), 7);
        QCOMPARE(sheets[0].count(u"A Year"_s), 1);
        QVERIFY(!sheets[0].contains(u'1'));
        QCOMPARE(sheets[2].simplified().first(5), u"March"_s);
        QVERIFY(sheets[2].simplified().endsWith(u" 3"_s));
        QVERIFY(sheets[3].simplified().startsWith(u"A Year March a line"_s));
    }
};

QTEST_MAIN(TestSheetMarks)
#include "tst_sheetmarks.moc"
