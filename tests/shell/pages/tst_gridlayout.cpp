// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridlayout.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

constexpr int weeks = 5;
const QDate monday(2027, 3, 1);

/// Five weeks from a Monday without any lines, on a sheet of 10 by 7 inches.
PageGrid fiveWeeks()
{
    GridBlock block;
    for (int i = 0; i < 7; ++i)
        block.columns.append({.text = u"Day"_s});
    for (int i = 0; i < 7 * weeks; ++i)
        block.cells.append(
            {.date = monday.addDays(i), .number = QString::number(i + 1), .name = u"Day %1"_s.arg(i + 1)});
    PageGrid grid{.place = QRectF(0.5, 0.5, 10, 7), .title = u"March"_s, .restTitle = u"Also this month"_s};
    grid.blocks.append(block);
    return grid;
}

void addLines(PageGrid &grid, int cell, int count, const QString &words)
{
    for (int i = 0; i < count; ++i)
        grid.blocks[0].cells[cell].lines.append({.text = words.arg(i + 1), .index = i});
}

GridLayout laidOut(const PageGrid &grid)
{
    return GridLayout(std::make_shared<const PageGrid>(grid), bodyFont());
}

double rowHeight(const GridLayout &layout, int row)
{
    return layout.blocks().front().laid.rows.at(std::size_t(row)).height();
}

} // namespace

class TestGridLayout final : public QObject
{
    Q_OBJECT
private slots:
    void aWeekThatHoldsMoreGrowsThenTheLettersShrinkThenAListFollows_data()
    {
        rows<int, bool, bool, bool>({
            {"few lines", 3, false, false, false},
            {"a full day", 11, true, false, false},
            {"a day for small letters", 15, true, true, false},
            {"more than that", 60, true, true, true},
        });
    }

    void aWeekThatHoldsMoreGrowsThenTheLettersShrinkThenAListFollows()
    {
        const auto [count, grows, shrinks, hasList] = row<int, bool, bool, bool>();
        PageGrid grid = fiveWeeks();
        addLines(grid, 8, count, u"line %1"_s);
        const GridLayout layout = laidOut(grid);
        QCOMPARE(rowHeight(layout, 1) > rowHeight(layout, 2) + 1, grows);
        QCOMPARE(layout.points() < laidOut(fiveWeeks()).points(), shrinks);
        QCOMPARE(layout.restCount() > 0, hasList);
        QCOMPARE(layout.partCount(), 1);
        double sum = 0;
        for (int week = 0; week < weeks; ++week) {
            sum += rowHeight(layout, week);
            QVERIFY(rowHeight(layout, week) > 3 * GridTypes::pitch(layout.points()));
        }
        QVERIFY(sum <= layout.blocks().front().frame.body().height() + 0.1);
    }

    void rowsOfDaysAreNeverLowerThanTheirNumbers()
    {
        PageGrid grid = fiveWeeks();
        GridBlock &block = grid.blocks[0];
        block.form = GridForm::Days;
        block.columns = {GridHead{.text = u"Everyone"_s}};
        for (const GridCell &cell : block.cells)
            block.rows.append({.text = cell.number, .note = u"Mo"_s});
        for (const int day : {3, 4, 20, 30})
            addLines(grid, day, 300, u"line %1"_s);
        const GridLayout layout = laidOut(grid);
        QVERIFY(layout.restCount() > 0);
        for (int day = 0; day < 7 * weeks; ++day)
            QVERIFY(rowHeight(layout, day) >= layout.blocks().front().frame.numberHeight());
    }

    void linesStandInTheirCellsAndAreFoundThere()
    {
        PageGrid grid = fiveWeeks();
        for (int i = 0; i < 7 * weeks; ++i)
            addLines(grid, i, i % 9, u"an entry of several words, number %1"_s);
        grid.blocks[0].spans.append({.row = 1, .column = 2, .length = 3, .text = u"away"_s, .index = 4});
        const GridLayout layout = laidOut(grid);
        for (int i = 0; i < 7 * weeks; ++i) {
            const LaidCell *cell = layout.cellOf(monday.addDays(i));
            QVERIFY(cell);
            QCOMPARE(layout.cellAt(cell->rect.center()), cell);
            double y = cell->rect.top();
            for (const LaidLine &line : cell->lines) {
                QVERIFY(cell->rect.contains(line.rect) && line.rect.top() >= y);
                QCOMPARE(GridLayout::lineAt(*cell, line.rect.center())->line->index, line.line->index);
                y = line.rect.bottom();
            }
        }
        const LaidSpan &bar = layout.blocks().front().laid.spans.front();
        QCOMPARE(layout.spanAt(bar.rect.center())->span->index, 4);
        const LaidCell *under = layout.cellOf(monday.addDays(10));
        QVERIFY(under->rect.contains(bar.rect.center()) &&
                under->lines.front().rect.top() >= bar.rect.bottom());
        QVERIFY(!layout.cellAt({1, 1}) && !layout.cellOf(QDate()) && !layout.spanAt({1, 1}));
    }

    void noWordIsTornThatHasRoom()
    {
        for (int width = 4; width <= 11; ++width) {
            PageGrid grid = fiveWeeks();
            grid.place.setWidth(width);
            for (const QString &words : {u"Washington's Birthday"_s, u"Independence Day (observed)"_s,
                                         u"Happy Thanksgiving to all of you"_s})
                addLines(grid, 3, 1, words);
            const GridLayout layout = laidOut(grid);
            const LaidBlock &block = layout.blocks().front().laid;
            const PageType &type =
                layout.blocks().front().frame.types().line(layout.points(), GridTypes::Normal);
            for (const LaidLine &line : block.cells.at(3).lines) {
                for (const QString &word : line.line->text.split(u' ')) {
                    if (type.width(word) + 2 < line.rect.width())
                        QVERIFY2(line.words.join(u' ').split(u' ').contains(word), qPrintable(word));
                }
            }
        }
    }

    void noLineIsLost_data()
    {
        rows<int, QString>({
            {"five thousand in a day", 5000, u"line %1 of the day"_s},
            {"words without a blank", 3, QString(10000, u'x') + u"%1"_s},
            {"none that can be read", 40, u"\n\t\r%1"_s},
        });
    }

    void noLineIsLost()
    {
        const auto [count, words] = row<int, QString>();
        PageGrid grid = fiveWeeks();
        addLines(grid, 20, count, words);
        const GridLayout layout = laidOut(grid);
        QCOMPARE(int(layout.cellOf(monday.addDays(20))->lines.size()) + layout.restCount(), count);
        Page page;
        page.placeGrid(std::make_shared<const PageGrid>(grid));
        const PagePainter painter(page, {.orientation = PageSetup::Landscape}, bodyFont());
        QCOMPARE(painter.sheetCount(), layout.partCount());
        const QImage last = painter.image(painter.sheetCount() - 1, 30);
        QVERIFY(!isBlank(last, QRectF(0.5, 0.5, 10, 2), 30));
    }

    void sheetsOfEverySizeAreFilledWithoutAFall_data()
    {
        rows<QRectF, double>({
            {"none", {}, 0},
            {"a strip", {0, 0, 8, 0.1}, 0},
            {"a column", {0, 0, 0.1, 8}, 0},
            {"a poster", {0, 0, 40, 60}, 0},
            {"large letters", {0.5, 0.5, 7, 5}, 96},
        });
    }

    void sheetsOfEverySizeAreFilledWithoutAFall()
    {
        const auto [place, points] = row<QRectF, double>();
        for (const GridForm form : {GridForm::Weeks, GridForm::Days, GridForm::Numbers}) {
            PageGrid grid = fiveWeeks();
            grid.place = place;
            grid.points = points;
            grid.blocks[0].form = form;
            grid.blocks[0].notes = {{.text = u"a note"_s, .lead = u"1"_s}};
            addLines(grid, 3, 30, u"an entry %1"_s);
            for (int i = 0; i < 9; ++i)
                grid.blocks[0].spans.append({.row = 0, .column = 0, .length = 7, .text = u"a span"_s});
            QImage image(100, 100, QImage::Format_RGB32);
            QPainter painter(&image);
            const GridLayout layout = laidOut(grid);
            for (int part = 0; part < layout.partCount(); ++part)
                layout.paint(painter, part);
        }
    }

    void daysOffAreTellable()
    {
        // Without any colour: by a tone, and by heavier numbers.
        PageGrid grid = fiveWeeks();
        grid.blocks[0].cells[5].isTinted = grid.blocks[0].cells[5].isStrong = true;
        const GridLayout layout = laidOut(grid);
        QImage image(800, 600, QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        layout.paint(painter);
        const auto tone = [&](int day) {
            const QPointF at = layout.cellOf(monday.addDays(day))->rect.center();
            return image.pixelColor(at.toPoint()).lightness();
        };
        const auto ink = [&](int day) {
            const QRect number = layout.cellOf(monday.addDays(day))->number.toRect();
            int dark = 0;
            for (int y = number.top(); y < number.bottom(); ++y) {
                for (int x = number.left(); x < number.right(); ++x)
                    dark += tone(day) - image.pixelColor(x, y).lightness();
            }
            return dark;
        };
        grid.blocks[0].cells[4].number = grid.blocks[0].cells[5].number;
        QCOMPARE(tone(4), 255);
        QVERIFY(tone(5) < 245 && tone(5) > 200);
        QVERIFY(ink(5) > ink(4));
    }
};

QTEST_MAIN(TestGridLayout)
#include "tst_gridlayout.moc"
