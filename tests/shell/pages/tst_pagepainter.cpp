// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"

#include <QElapsedTimer>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

const QDate printedOn(2026, 11, 21);

Page numbered(int rows, const QString &cell = u"Müller, Zoë"_s)
{
    Page page(u"Family List"_s, u"As of Nov-21-2026"_s);
    page.columns({3, 1}, {u"Name"_s, u"Number"_s}, {Qt::AlignLeft, Qt::AlignRight});
    for (int i = 0; i < rows; ++i)
        page.row({cell, QString::number(i)});
    return page.close(printedOn, DateStyle::Usa);
}

} // namespace

class TestPagePainter final : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void cutsPagesIntoSheets_data()
    {
        Page blank;
        for (int i = 0; i < 200; ++i)
            blank.blankLine();
        const QRectF place(1, 1, 1, 1);
        rows<Page, int>({
            {"nothing", Page(), 1},
            {"only closing lines", Page().close(printedOn, DateStyle::Usa), 1},
            {"a break", Page().line(u"a"_s).breakPage().line(u"b"_s), 2},
            {"a break before anything", Page(u"T"_s).breakPage().line(u"b"_s), 1},
            {"a break behind everything", Page().line(u"a"_s).breakPage().close(printedOn, DateStyle::Usa),
             1},
            {"two breaks in a row", Page().line(u"a"_s).breakPage().breakPage().line(u"b"_s), 2},
            {"placed items alone", Page().placeText(place, u"a"_s).breakPage().placeText(place, u"b"_s), 2},
            {"blank lines never start a sheet", blank, 1},
            {"a picture that finds no room",
             Page().picture({}, {7, 6}).picture({}, {7, 6}).close(printedOn, DateStyle::Usa), 2},
            {"squares that find no room", Page().squares({u"#"_s}, 6).squares({u"#"_s}, 6), 2},
            {"closing lines below placed items",
             Page().placeText({0.5, 9.7, 3, 0.3}, u"a"_s).close(printedOn, DateStyle::Usa), 1},
            {"closing lines with no room below placed items",
             Page().placeText({0.5, 10.5, 3, 0.3}, u"a"_s).close(printedOn, DateStyle::Usa), 2},
        });
    }

    void cutsPagesIntoSheets()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const auto [page, sheets] = row<Page, int>();
        QCOMPARE(PagePainter(page, {}, bodyFont()).sheetCount(), sheets);
        QVERIFY(output(u"pdfinfo"_s, {pdf(page)}).contains(u"Pages:           %1\n"_s.arg(sheets)));
    }

    void everyTextIsOnItsSheetOnce()
    {
        for (int rows = 20; rows < 120; ++rows) {
            const PagePainter painter(numbered(rows), {}, bodyFont());
            QStringList numbers;
            for (int sheet = 0; sheet < painter.sheetCount(); ++sheet) {
                QStringList lines = painter.text(sheet).split(u'\n');
                // Blank line, title, blank line, headings; on the last sheet blank line and closing lines.
                QVERIFY2(lines.size() > 4, "a sheet with closing lines alone");
                lines = lines.mid(4);
                if (sheet + 1 == painter.sheetCount())
                    lines = lines.mid(0, lines.size() - 3);
                QVERIFY2(!lines.isEmpty(), qPrintable(u"a sheet without rows, of %1 rows"_s.arg(rows)));
                for (const QString &line : lines)
                    numbers << line.section(u'\t', 1);
            }
            QCOMPARE(numbers.size(), rows);
            QCOMPARE(numbers.constFirst(), u"0"_s);
            QCOMPARE(numbers.constLast(), QString::number(rows - 1));
        }
    }

    void repeatsTitleAndHeadings()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const QStringList sheets = pdfSheets(pdf(numbered(60)));
        QCOMPARE(sheets.size(), 2);
        for (int i = 0; i < sheets.size(); ++i) {
            QVERIFY(sheets[i].contains(u"Family List"_s));
            QVERIFY(sheets[i].contains(u"As of Nov-21-2026"_s));
            QCOMPARE(sheets[i].count(u"Number"_s), 1);
            QVERIFY(sheets[i].contains(u"Page %1 of 2"_s.arg(i + 1)));
            QCOMPARE(sheets[i].contains(u"Printed on 11/21/2026"_s), i == 1);
        }
    }

    void titlesGoOnWithTheirWords()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        Page page = numbered(60).continueTitle(u" (Continued)"_s);
        const PagePainter painter(page, {}, bodyFont());
        QVERIFY(painter.text(0).startsWith(u"\nFamily List\tAs of"_s));
        QVERIFY(painter.text(1).startsWith(u"\nFamily List (Continued)\tAs of"_s));
        const QStringList sheets = pdfSheets(pdf(page));
        QVERIFY(!sheets[0].contains(u"Continued"_s) && sheets[1].contains(u"Family List (Continued)"_s));
    }

    void sectionsHaveTitlesAndNumbersOfTheirOwn()
    {
        Page page(u"Printout"_s, u"Anne"_s);
        page.line(u"a"_s).numberedSection(u"Data - Page "_s).columns({1});
        for (int i = 0; i < 80; ++i)
            page.row({QString::number(i)});
        page.section(u"Plan"_s).line(u"b"_s).section(u"Photos"_s).line(u"c"_s);
        const PagePainter painter(page.close(printedOn, DateStyle::Usa), {}, bodyFont());
        QStringList titles;
        for (int sheet = 0; sheet < painter.sheetCount(); ++sheet)
            titles << painter.text(sheet).split(u'\n')[1];
        QCOMPARE(titles, QStringList({u"Printout\tAnne"_s, u"Data - Page 1\tAnne"_s, u"Data - Page 2\tAnne"_s,
                                      u"Data - Page 3\tAnne"_s, u"Plan\tAnne"_s, u"Photos\tAnne"_s}));
        QVERIFY(painter.text(4).startsWith(u"\nPlan\tAnne\n\nb"_s));
    }

    void framesEverySheet()
    {
        for (const bool isFramed : {false, true}) {
            Page page = Page().line(u"a"_s).breakPage().line(u"b"_s);
            const PagePainter painter(page.frameSheets(isFramed), {}, bodyFont());
            for (const int sheet : {0, 1}) {
                const QImage image = painter.image(sheet, 100); // the frame is 0.3 inch inside
                QCOMPARE(qGray(image.pixel(30, 550)) < 200 || qGray(image.pixel(29, 550)) < 200, isFramed);
            }
        }
    }

    void rowsStayTogether()
    {
        for (int rows = 20; rows < 60; ++rows) {
            Page page = numbered(rows);
            page.rowWithNext({u"Expenses"_s, u"1"_s}).rule().rowWithNext({u"Income"_s, u"2"_s});
            page.row({u"Balance"_s, u"1"_s}).close(QDate(2026, 11, 21), DateStyle::Usa);
            const PagePainter painter(page, {}, bodyFont());
            for (int sheet = 0; sheet < painter.sheetCount(); ++sheet)
                QCOMPARE(painter.text(sheet).contains(u"Expenses"_s),
                         painter.text(sheet).contains(u"Balance"_s));
        }
    }

    void smallTablesAreNotParted()
    {
        for (int rows = 20; rows < 60; ++rows) {
            Page page = numbered(rows);
            page.line(u"Years"_s, TextRole::Heading).columns({1, 1}, {u"Year"_s, u"Cost"_s});
            page.row({u"2025"_s, u"1"_s}).row({u"2026"_s, u"2"_s}).rule().row({u"Together"_s, u"3"_s});
            const PagePainter painter(page.line(u"after"_s).close(printedOn, DateStyle::Usa), {}, bodyFont());
            for (int sheet = 0; sheet < painter.sheetCount(); ++sheet) {
                const QString text = painter.text(sheet);
                QCOMPARE(text.contains(u"Years"_s), text.contains(u"Together"_s));
            }
        }
    }

    void headingsStandWithWhatTheyLead_data()
    {
        using Add = void (*)(Page &);
        rows<Add>({
            {"a line", [](Page &page) { page.line(u"led"_s); }},
            {"a line behind a blank one", [](Page &page) { page.blankLine().line(u"led"_s); }},
            {"a table", [](Page &page) { page.columns({1}, {u"Name"_s}).row({u"led"_s}); }},
            {"a table without headings",
             [](Page &page) { page.columns({1}).row({u"led"_s + u"\n\n\n"_s}).row({u"b"_s}); }},
            {"another heading",
             [](Page &page) { page.line(u"Part"_s, TextRole::Heading).columns({1}).row({u"led"_s}); }},
        });
    }

    void headingsStandWithWhatTheyLead()
    {
        const auto [add] = row<void (*)(Page &)>();
        for (int rows = 20; rows < 60; ++rows) {
            Page page = numbered(rows);
            add(page.blankLine().line(u"Heading"_s, TextRole::Heading));
            page.close(printedOn, DateStyle::Usa);
            const PagePainter painter(page, {}, bodyFont());
            for (int sheet = 0; sheet < painter.sheetCount(); ++sheet) {
                const QString text = painter.text(sheet);
                QCOMPARE(text.contains(u"Heading"_s), text.contains(u"led"_s));
            }
        }
    }

    void headingsStandOverTheirPicture()
    {
        for (int lines = 20; lines < 60; ++lines) {
            Page page(u"Family van"_s);
            for (int i = 0; i < lines; ++i)
                page.line(u"a"_s);
            page.line(u"Heading"_s, TextRole::Heading).picture({}, {7, 4});
            const PagePainter painter(page, {}, bodyFont());
            QVERIFY(painter.text(painter.sheetCount() - 1).contains(u"Heading"_s));
        }
    }

    void whatFollowsStandsBelowWhatIsPlaced()
    {
        Page page(u"BUDGET TOTALS"_s);
        page.startAt(0.3).placeRule({0.31, 0.7, 9.9, 4.4}).belowPlaced().line(u"Rent"_s);
        constexpr double dotsPerInch = 100;
        const QImage image = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
        QVERIFY(!isBlank(image, {0.5, 0.3, 3, 0.36}, dotsPerInch)); // the title, above the frame
        QVERIFY(isBlank(image, {0.5, 0.75, 7.5, 4.3}, dotsPerInch));
        QVERIFY(!isBlank(image, {0.5, 5.15, 3, 0.35}, dotsPerInch)); // the line
    }

    void givesPdfsTheirPaper_data()
    {
        const QSizeF letter(8.5, 11), a4(210 / 25.4, 297 / 25.4);
        rows<QSizeF, PageSetup::Orientation, QString>({
            {"letter", letter, PageSetup::Portrait, u"612 x 792 pts (letter)"_s},
            {"letter, landscape", letter, PageSetup::Landscape, u"792 x 612 pts (letter)"_s},
            {"A4", a4, PageSetup::Portrait, u"595 x 842 pts (A4)"_s},
            {"A4, landscape", a4, PageSetup::Landscape, u"842 x 595 pts (A4)"_s},
        });
    }

    void givesPdfsTheirPaper()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const auto [paper, orientation, size] = row<QSizeF, PageSetup::Orientation, QString>();
        const PageSetup setup{paper, orientation};
        const QString info = output(u"pdfinfo"_s, {pdf(numbered(3), setup)});
        QVERIFY2(info.contains(size), qPrintable(info));

        const PageSetup back = PagePainter::setupOf(PagePainter::deviceLayout(setup));
        QCOMPARE(back.orientation, orientation);
        QVERIFY(std::abs(back.paper.width() - paper.width()) < 0.01);
    }

    void pdfsAreReadInOrder()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        Page page(u"Information For Müller-Lüdenscheidt, Zoë"_s);
        page.line(u"Date of Birth: Nov-24-1978"_s, TextRole::Strong).line(u"Straße 12, Orléans"_s);
        page.line(u"Señor Núñez – café “Bœuf” €"_s, TextRole::Small).blank(u"Last Name:"_s);
        page.close(printedOn, DateStyle::Other);
        const QString path = pdf(page);
        QStringList lines = pdfSheets(path).join(u'\n').split(u'\n', Qt::SkipEmptyParts);
        for (QString &line : lines)
            line = line.simplified();
        QCOMPARE(lines,
                 (QStringList{u"Information For Müller-Lüdenscheidt, Zoë"_s, u"Date of Birth: Nov-24-1978"_s,
                              u"Straße 12, Orléans"_s, u"Señor Núñez – café “Bœuf” €"_s, u"Last Name:"_s,
                              u"Quillery"_s, u"Printed on 21/11/2026"_s}));
        const QString fonts = output(u"pdffonts"_s, {path});
        for (const QString &line : fonts.split(u'\n', Qt::SkipEmptyParts).mid(2))
            QVERIFY2(line.contains(QRegularExpression(u"Identity-H +yes"_s)), qPrintable(fonts));
    }

    void printersBreakAsImagesDo()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const Page page =
            numbered(100, u"A name that is long enough to be broken over two or more lines of its column"_s);
        const PagePainter painter(page, {}, bodyFont());
        QStringList expected;
        for (int sheet = 0; sheet < painter.sheetCount(); ++sheet)
            expected << painter.text(sheet).section(u'\t', -1).section(u'\n', 0, 0);
        for (const int resolution : {72, 300, 1200}) {
            const QString path = m_folder->filePath(u"printed.pdf"_s);
            QPrinter printer(QPrinter::HighResolution);
            printer.setResolution(resolution);
            printer.setOutputFileName(path);
            QVERIFY(painter.print(printer));
            const QStringList sheets = pdfSheets(path);
            QCOMPARE(sheets.size(), expected.size());
            for (int i = 0; i + 1 < sheets.size(); ++i)
                QVERIFY(sheets[i].contains(QRegularExpression(u" %1\n"_s.arg(expected[i]))));
        }
    }

    void nothingLeavesTheMargins_data()
    {
        rows<double, PageSetup::Orientation>({
            {"usual", 11, PageSetup::Portrait},
            {"small", 6, PageSetup::Landscape},
            {"large", 30, PageSetup::Portrait},
            {"huge", 96, PageSetup::Landscape},
        });
    }

    void nothingLeavesTheMargins()
    {
        const auto [points, orientation] = row<double, PageSetup::Orientation>();
        const QString word(60, u'W');
        Page page(word + word, u"a date"_s);
        page.line(word + word)
            .columns({1, 2, 1}, {word, word, word}, {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignRight});
        for (int i = 0; i < 8; ++i)
            page.row({word, u"many words "_s.repeated(20), word, u"and a cell too many"_s});
        page.blank(word).picture({}, {30, 30}).close(printedOn, DateStyle::Usa);
        const PageSetup setup{{8.5, 11}, orientation};
        const PagePainter painter(page, setup, bodyFont(points));
        const QSizeF sheet = setup.sheet();
        const QRectF atLeft(0, 0, 0.46, sheet.height()), atTop(0, 0, sheet.width(), 0.46);
        for (int i = 0; i < painter.sheetCount(); ++i) {
            const QImage image = painter.image(i, 50);
            for (const QRectF &margin : {atLeft, atLeft.translated(sheet.width() - 0.46, 0), atTop,
                                         atTop.translated(0, sheet.height() - 0.46)})
                QVERIFY(isBlank(image, margin, 50));
        }
    }

    void numbersStandRight()
    {
        Page page;
        page.columns({1, 1}, {}, {Qt::AlignLeft, Qt::AlignRight}).row({u"Rent"_s, u"11760.00"_s});
        constexpr double dotsPerInch = 100;
        const QImage image = PagePainter(page, {}, bodyFont()).image(0, dotsPerInch);
        QVERIFY(!isBlank(image, {7.9, 0.5, 0.1, 0.4}, dotsPerInch));
        QVERIFY(isBlank(image, {4.3, 0.5, 2, 0.4}, dotsPerInch));
    }

    void laysOutFiftyThousandRowsInOneGo()
    {
        const auto fastest = [](int rows) {
            const Page page = numbered(rows);
            qint64 best = std::numeric_limits<qint64>::max();
            for (int run = 0; run < 3; ++run) {
                QElapsedTimer timer;
                timer.start();
                const PagePainter painter(page, {}, bodyFont());
                best = std::min(best, timer.nsecsElapsed());
            }
            return best;
        };
        const qint64 few = fastest(5'000);
        const qint64 many = fastest(50'000);
        // Ten times the rows: a layout that goes back for each sheet would take a hundred times as long.
        QVERIFY2(many < 40 * few, qPrintable(u"%1 ns for ten times what takes %2 ns"_s.arg(many).arg(few)));
    }

    /// Three squares of four, an inch wide together, at the upper left corner of what flows.
    void drawsSquaresWhereTheyStand()
    {
        constexpr int inch = 80;
        const QImage image =
            PagePainter(Page().squares({u"# "_s, u"##"_s}, 1), {}, bodyFont()).image(0, inch);
        int black = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                black += qGray(image.pixel(x, y)) < 10 ? 1 : 0;
        }
        QCOMPARE(black, inch * inch * 3 / 4);
        QCOMPARE(qGray(image.pixel(inch / 2 + 5, inch / 2 + 5)), 0);
        QCOMPARE(qGray(image.pixel(inch / 2 + 75, inch / 2 + 5)), 255);
    }

    void survivesOddPages_data()
    {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        const PageSetup letter;
        rows<Page, PageSetup>({
            {"no weights", Page().columns({}, {u"a"_s}).row({u"b"_s, u"c"_s}).row({}), letter},
            {"weights that are none", Page().columns({0, -1, nan}).row({u"b"_s, u"c"_s, u"d"_s, u"e"_s}),
             letter},
            {"rows without columns", Page().row({u"a"_s, u"b"_s}).row({}), letter},
            {"pictures that have no size", Page().picture(u"x"_s, {-1, nan}), letter},
            {"squares of no size", Page().squares({u"#"_s}, nan).squares({}, 1).squares({u"#"_s}, -1),
             letter},
            {"squares wider than the sheet, in uneven rows", Page().squares({u"####"_s, u"#"_s}, 1e9),
             letter},
            {"places that are none",
             Page().placePicture({nan, nan, nan, nan}, u"x"_s).placeText({1, 1, -1, -1}, u"y"_s), letter},
            {"places off the sheet", Page().placeText({1e9, -1e9, 5, 5}, u"far away"_s), letter},
            {"control characters",
             Page(u"\x01\x02\t"_s).line(u"a\r\nb\rc\u2028d\te\x1b"_s).row({u"\n\n"_s, QString(3, QChar(0))}),
             letter},
            {"an enormous line", Page().line(QString(100'000, u'x')).line(u"y "_s.repeated(50'000)), letter},
            {"a row higher than a sheet",
             Page().columns({1, 1}, {u"h"_s}).row({u"a"_s, u"word "_s.repeated(3'000)}).row({u"last"_s}),
             letter},
            {"no paper",
             Page(u"T"_s).line(u"a"_s).close(printedOn, DateStyle::Usa),
             {{0, 0}, PageSetup::Portrait}},
            {"an endless strip of paper", Page(u"T"_s).line(u"a"_s), {{1, 1e9}, PageSetup::Landscape}},
        });
    }

    void survivesOddPages()
    {
        const auto [page, setup] = row<Page, PageSetup>();
        const PagePainter painter(page, setup, bodyFont());
        QVERIFY(painter.sheetCount() >= 1);
        for (int sheet = -1; sheet <= painter.sheetCount(); ++sheet)
            QVERIFY(!painter.image(sheet, 20).isNull());
    }

private:
    QString pdf(const Page &page, const PageSetup &setup = {}) const
    {
        return savePdf(m_folder->filePath(u"page.pdf"_s), page, setup);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestPagePainter)
#include "tst_pagepainter.moc"
