// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/linechart.h"
#include "tests/support/testprogram.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

LineChart::Point on(QDate day, double y, const QString &note = {})
{
    return {.x = LineChart::dayAt(day), .y = y, .note = note};
}

LineChart twoCars()
{
    LineChart chart;
    chart.title = u"How far a gallon goes"_s;
    chart.across = {u"Date"_s};
    chart.up = {u"Miles per gallon"_s, {}, u" mpg"_s, 1};
    chart.series = {{u"Volvo"_s, {on({2026, 1, 3}, 30), on({2026, 1, 20}, 33.14, u"partial fill-up"_s)}},
                    {u"Van"_s, {on({2026, 1, 20}, 19), on({2026, 1, 20}, 1250.5)}}};
    chart.levels = {{u"Goal"_s, 32}};
    return chart;
}

} // namespace

/// Lines over days and numbers: their words, on the screen and on paper.
class TestLineChart final : public QObject
{
    Q_OBJECT
private slots:
    void tellsWhatItShows()
    {
        QCOMPARE(
            twoCars().description(),
            u"How far a gallon goes. Line chart. Across: Date. Up: Miles per gallon. Volvo, 2 points from "
            "Jan 3, 2026 to Jan 20, 2026, 30.0 mpg to 33.1 mpg. Van, 2 points from Jan 20, 2026 to "
            "Jan 20, 2026, 19.0 mpg to 1,250.5 mpg. Goal: 32.0 mpg."_s);
        QCOMPARE(twoCars().textOf({0, 1}), u"Volvo, Jan 20, 2026: 33.1 mpg, partial fill-up"_s);
        LineChart empty = twoCars();
        empty.series.clear();
        empty.nothing = u"No fill-ups yet"_s;
        QCOMPARE(empty.description(), u"How far a gallon goes. No fill-ups yet."_s);
        QCOMPARE(LineChart::Axis({u"Cost"_s, u"$"_s, {}, 2}).text(-1234.5), u"-$1,234.50"_s);
        QCOMPARE(LineChart::Axis({u"Cost"_s, u"$"_s}).text(-0.2), u"$0"_s);
    }

    void hasItsFiguresAsATable()
    {
        QCOMPARE(twoCars().headings(), QStringList({u"Date"_s, u"Volvo"_s, u"Van"_s}));
        const QList<QStringList> rows{{u"Jan 3, 2026"_s, u"30.0 mpg"_s, {}},
                                      {u"Jan 20, 2026"_s, u"33.1 mpg, partial fill-up"_s, u"19.0 mpg"_s},
                                      {u"Jan 20, 2026"_s, {}, u"1,250.5 mpg"_s}};
        QCOMPARE(twoCars().rows(), rows);
    }
};

QTEST_MAIN(TestLineChart)
#include "tst_linechart.moc"
