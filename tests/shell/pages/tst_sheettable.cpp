// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagetype.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

PageItem::Columns names(int across, TableLines lines = TableLines::Rows)
{
    PageItem::Columns columns;
    columns.weights = {1, 1};
    columns.headings = {u"Name"_s, u"State"_s};
    columns.lines = lines;
    columns.across = across;
    return columns;
}

Page list(int rows, const PageItem::Columns &columns)
{
    Page page(u"Family List - Page No. "_s, u"As of today"_s);
    page.numberSheets(SheetNumbers::Title).table(columns);
    for (int i = 0; i < rows; ++i)
        page.row({u"Row %1"_s.arg(i), u"WI"_s});
    return page.close(QDate(2026, 11, 21), DateStyle::Usa);
}

QStringList sheetsOf(const PagePainter &painter)
{
    QStringList sheets;
    for (int i = 0; i < painter.sheetCount(); ++i)
        sheets << painter.text(i);
    return sheets;
}

/// How many rows a sheet takes in one column, which depends on the font.
int rowsOnASheet()
{
    return int(PagePainter(list(100, names(1)), {}, bodyFont()).text(0).count(u"\tWI"_s));
}

/// The line above the closing lines of the last sheet.
QRectF closingRule(const PagePainter &painter)
{
    constexpr double dots = 144;
    constexpr double below = 1.2; // the title, whose letters have such a grey in some fonts
    const QImage edge = painter.image(painter.sheetCount() - 1, dots)
                            .copy(QRectF(7.7 * dots, below * dots, 0.2 * dots, 9.8 * dots).toRect());
    return inkOf(edge, qRgb(0x9A, 0x9A, 0x9A), dots).translated(0, below);
}

} // namespace

/// Tables that run down several columns, and numbers of sheets.
class TestSheetTable final : public QObject
{
    Q_OBJECT
private slots:
    void runsDownSeveralColumns_data()
    {
        rows<int, bool, int, int>({
            {"one", 1, false, 60, 2},
            {"two", 2, false, 60, 1},
            {"two over two sheets", 2, false, 100, 2},
            {"three", 3, false, 90, 1},
            {"three that end even", 3, true, 90, 1},
            {"three that end even over two sheets", 3, true, 130, 2},
            {"nonsense", -5, true, 60, 2},
            {"more than fit", 1000, false, 60, 1},
        });
    }

    void runsDownSeveralColumns()
    {
        const auto [across, endsEven, count, sheets] = row<int, bool, int, int>();
        PageItem::Columns columns = names(across);
        columns.endsEven = endsEven;
        const PagePainter painter(list(count, columns), {}, bodyFont());
        QCOMPARE(painter.sheetCount(), sheets);
        static const QRegularExpression line(u"Row (\\d+)\\tWI"_s);
        int next = 0;
        for (const QString &sheet : sheetsOf(painter)) {
            for (auto it = line.globalMatch(sheet); it.hasNext();)
                QCOMPARE(it.next().captured(1).toInt(), next++);
        }
        QCOMPARE(next, count);
    }

    void keepsNumbersTogether_data()
    {
        rows<QString, QString>({
            {"a telephone number", u"    Phone: (440) 555-0100"_s, u"(440) 555-0100"_s},
            {"a postal code", u"Mill Street 4, 221 00 Lund"_s, u"221 00"_s},
        });
    }

    void keepsNumbersTogether()
    {
        const auto [text, number] = row<QString, QString>();
        const PageType type(bodyFont().font, PageMetrics::bodyPoints);
        for (double width = type.width(number) + 2; width < type.width(text); width += 3) {
            const QStringList lines = type.wrapped(text, width);
            QCOMPARE(lines.filter(number).size(), 1);
        }
    }

    void goesOnBelowItsColumns()
    {
        const PagePainter painter(list(rowsOnASheet() + 10, names(2)), {}, bodyFont());
        QCOMPARE(painter.sheetCount(), 1);
        // The first column reaches further down than the second: the closing lines stay clear of it.
        QVERIFY(painter.text(0).endsWith(u"Quillery\nPrinted on 11/21/2026"_s));
        const QRectF rule = closingRule(painter);
        QVERIFY(rule.top() > 9 && rule.bottom() < 10.2);
    }

    void linesStandBelowTheLongestColumn()
    {
        const auto end = [](int count) {
            PageItem::Columns columns = names(2);
            columns.endsEven = true;
            Page page;
            page.table(columns);
            for (int i = 0; i < count; ++i)
                page.row({u"Bread"_s, u"WI"_s});
            page.blankLine()
                .line(u"Household"_s, TextRole::Strong)
                .close(QDate(2026, 11, 21), DateStyle::Usa);
            return closingRule(PagePainter(page, {}, bodyFont())).top();
        };
        QCOMPARE(end(3), end(4));
        QVERIFY(end(4) < end(5));
    }

    void endsEven()
    {
        const auto end = [](int count, const PageItem::Columns &columns) {
            return closingRule(PagePainter(list(count, columns), {}, bodyFont())).top();
        };
        PageItem::Columns columns = names(3);
        columns.endsEven = true;
        QCOMPARE(end(22, columns), end(8, names(1)));
        // What is left on the second sheet.
        QVERIFY(end(3 * rowsOnASheet() + 15, columns) < end(20, names(1)));
    }

    void numbersSheetsAsAsked()
    {
        const PagePainter painter(list(60, names(1)), {}, bodyFont());
        QVERIFY(painter.text(0).contains(u"Family List - Page No. 1\tAs of today"_s));
        QVERIFY(painter.text(1).contains(u"Family List - Page No. 2\tAs of today"_s));

        Page page;
        page.numberSheets(SheetNumbers::None);
        page.placeText({1, 1, 2, 1}, u"one"_s).breakPage().placeText({1, 1, 2, 1}, u"two"_s);
        QVERIFY(isBlank(PagePainter(page, {}, bodyFont()).image(0, 72), {0, 9, 8.5, 2}, 72));
        page.numberSheets(SheetNumbers::Foot);
        QVERIFY(!isBlank(PagePainter(page, {}, bodyFont()).image(0, 72), {0, 9, 8.5, 2}, 72));
    }

    void drawsLinesAsAsked()
    {
        constexpr double dots = 144;
        const auto below = [](TableLines lines) { // the rows, without title and headings
            return PagePainter(list(8, names(1, lines)), {}, bodyFont())
                .image(0, dots)
                .copy(QRect(0, 190, 1224, 300));
        };
        const QRgb row = qRgb(0xDD, 0xDD, 0xDD), grid = qRgb(0xB0, 0xB0, 0xB0);
        QVERIFY(inkOf(below(TableLines::Rows), row, dots).width() > 7);
        // The edges of letters have such colours too, but none stands that far out.
        QVERIFY(inkOf(below(TableLines::Rows), grid, dots).width() < 6);
        QVERIFY(inkOf(below(TableLines::None), row, dots).width() < 6);
        const QRectF lines = inkOf(below(TableLines::Grid), grid, dots);
        QVERIFY(std::abs(lines.width() - 7.5) < 0.05 && lines.height() > 1.5);
    }
};

QTEST_MAIN(TestSheetTable)
#include "tst_sheettable.moc"
