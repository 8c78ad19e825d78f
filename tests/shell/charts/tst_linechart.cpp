// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/chartticks.h"
#include "shell/charts/linechartview.h"
#include "shell/charts/paperchart.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>

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

/// A value a day, and a second line that begins in the middle.
LineChart daily(int count)
{
    LineChart chart;
    chart.title = u"Weight"_s;
    chart.up = {u"Pounds"_s, {}, u" lbs"_s};
    LineChart::Series one{u"Anne"_s, {}};
    LineChart::Series two{u"Tom"_s, {}};
    for (int day = 0; day < count; ++day) {
        one.points << on(QDate(2026, 1, 1).addDays(day), 100 + day % 7);
        if (day >= count / 2)
            two.points << on(QDate(2026, 1, 1).addDays(day), 180 - day % 5);
    }
    chart.series = {one, two};
    return chart;
}

double dayOf(int month, int day)
{
    return LineChart::dayAt(QDate(2026, month, day));
}

int darkPoints(const QImage &picture, const QRect &place)
{
    int found = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x)
            found += qGray(picture.pixel(x, y)) < 128 ? 1 : 0;
    }
    return found;
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
        LineChart expected = daily(60);
        expected.series.last().isTrend = true;
        expected.forecast = {u"Goal about Mar 20, 2026"_s, 90, dayOf(3, 12), dayOf(3, 20), dayOf(4, 2)};
        QVERIFY(expected.description().endsWith(
            u" Goal about Mar 20, 2026, between Mar 12, 2026 and Apr 2, 2026."_s));
        QCOMPARE(*expected.forecastStart(), LineChart::Spot(1, 29));
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

    void tellsLevelsAtEveryPointAndDaysInAForm()
    {
        LineChart chart = twoCars();
        chart.series.removeLast();
        chart.levels.append({u"Beginning"_s, 28.5, LineChart::Level::Beginning, true});
        chart.dayForm = u"MMM-dd-yy"_s;
        QCOMPARE(chart.headings(), QStringList({u"Date"_s, u"Volvo"_s, u"Beginning"_s}));
        QCOMPARE(chart.rows().first(), QStringList({u"Jan-03-26"_s, u"30.0 mpg"_s, u"28.5 mpg"_s}));
    }

    void placesTicksAtPoints_data()
    {
        rows<double, double, double, QList<double>>(
            {{"all", 0, 9, 1, {1, 2, 4, 8}},
             {"those that have room, the last one first", 0, 9, 3, {1, 4, 8}},
             {"of the part in view", 1.5, 7, 1, {2, 4}},
             {"none", 5, 7, 1, {}}});
    }

    void placesTicksAtPoints()
    {
        const auto [from, to, apart, ticks] = row<double, double, double, QList<double>>();
        const QList<LineChart::Point> points{{1, 5}, {2, 5}, {4, 5}, {8, 5}};
        QCOMPARE(ChartTicks::atPoints(points, from, to, apart), ticks);
    }

    void placesTicksOfNumbers_data()
    {
        rows<double, int, double, int>({{"hundreds", 431, 5, 100, 0},
                                        {"exactly", 500, 5, 100, 0},
                                        {"fractions", 0.7, 4, 0.2, 1},
                                        {"small ones", 0.034, 8, 0.005, 3},
                                        {"nothing", 0, 5, 1, 0}});
    }

    void placesTicksOfNumbers()
    {
        const auto [span, most, step, decimals] = row<double, int, double, int>();
        QCOMPARE(ChartTicks::step(span, most), step);
        QCOMPARE(ChartTicks::decimals(step), decimals);
    }

    void placesTicksOfDays_data()
    {
        const double year = 365;
        rows<double, QDate, QDate, QStringList>({
            {"weeks, from Monday on",
             8,
             {2026, 12, 22},
             {2027, 1, 12},
             {u"Dec 28\n2026"_s, u"Jan 4\n2027"_s, u"Jan 11"_s}},
            {"months", 2, {2027, 11, 2}, {2028, 3, 1}, {u"Dec\n2027"_s, u"Jan\n2028"_s, u"Feb"_s, u"Mar"_s}},
            {"quarters",
             0.6,
             {2026, 2, 1},
             {2027, 1, 1},
             {u"Apr\n2026"_s, u"Jul"_s, u"Oct"_s, u"Jan\n2027"_s}},
            {"years", 60 / year, {2024, 2, 29}, {2026, 6, 1}, {u"2025"_s, u"2026"_s}},
            {"decades", 6 / year, {2001, 1, 1}, {2026, 6, 1}, {u"2010"_s, u"2020"_s}},
        });
    }

    void placesTicksOfDays()
    {
        const auto [perDay, from, to, labels] = row<double, QDate, QDate, QStringList>();
        const auto days = ChartTicks::Days::fitting(perDay, 50, 56);
        const QList<double> ticks = days.between(LineChart::dayAt(from), LineChart::dayAt(to));
        QCOMPARE(days.labels(ticks, DateStyle::Usa), labels);
    }

    void keysNameThePoints()
    {
        show(twoCars());
        QCOMPARE(reading(), u"Volvo, Jan 20, 2026: 33.1 mpg, partial fill-up"_s);
        const struct {
            Qt::Key key;
            LineChart::Spot spot;
        } steps[]{{Qt::Key_Left, {0, 0}}, {Qt::Key_Left, {0, 0}}, {Qt::Key_Down, {1, 0}},
                  {Qt::Key_End, {1, 1}},  {Qt::Key_Down, {1, 1}}, {Qt::Key_Home, {1, 0}},
                  {Qt::Key_Up, {0, 1}},   {Qt::Key_Right, {0, 1}}};
        for (const auto &step : steps) {
            QTest::keyClick(m_view.get(), step.key);
            QCOMPARE(*m_view->current(), step.spot);
        }
    }

    /// Beside the title or, in a narrow chart, in the caption's place.
    void whatIsNamedIsWhole()
    {
        show(twoCars());
        auto *words = m_view->findChild<QLabel *>(u"chartReading"_s);
        const auto *title = m_view->findChild<QLabel *>(u"chartTitle"_s);
        for (const auto &[width, isBelow] :
             {std::pair(title->width() + words->sizeHint().width() + 40, false),
              {title->width() + words->sizeHint().width() - 20, true}}) {
            m_view->resize(width, 360);
            QCoreApplication::processEvents();
            QCOMPARE(words->y() > title->y(), isBelow);
            QVERIFY(words->width() >= words->sizeHint().width());
        }
    }

    void theMouseNamesThePoints()
    {
        show(twoCars());
        QTest::mouseMove(m_view.get(), m_view->placeOf({0, 0}) + QPoint(5, -4));
        QCOMPARE(reading(), u"Volvo, Jan 3, 2026: 30.0 mpg"_s);
        LineChart other = twoCars();
        other.series[0].points[0].y = 31;
        m_view->setChart(other);
        QCOMPARE(reading(), u"Volvo, Jan 3, 2026: 31.0 mpg"_s);
        other.series.removeFirst();
        m_view->setChart(other);
        QVERIFY(!m_view->current());
    }

    void showsAPart()
    {
        show(daily(300));
        m_view->setCurrent({{0, 150}});
        for (int i = 0; i < 4; ++i)
            QTest::keyClick(m_view.get(), Qt::Key_Plus);
        QVERIFY(m_view->isZoomed());
        QVERIFY(m_view->placeOf({0, 0}).x() < 0);
        QTest::keyClick(m_view.get(), Qt::Key_Home); // what is named comes into view
        QVERIFY(m_view->placeOf({0, 0}).x() > 0);
        QTest::keyClick(m_view.get(), Qt::Key_PageDown);
        QCOMPARE(reading(), u"Jan 20, 2026 to Apr 4, 2026; the key 0 shows all"_s);
        QTest::keyClick(m_view.get(), Qt::Key_0);
        QVERIFY(!m_view->isZoomed());
        m_view->zoom(1e-9, dayOf(3, 1)); // never nothing
        QVERIFY(m_view->placeOf({0, 60}).x() - m_view->placeOf({0, 59}).x() < m_view->width() / 2);
    }

    void leavesRoomForWhatIsExpected()
    {
        LineChart chart = daily(60);
        show(chart);
        const int end = m_view->placeOf({0, 59}).x();
        chart.forecast = {u"Goal about Apr 1, 2026"_s, 50, dayOf(3, 12), dayOf(4, 1), dayOf(5, 30)};
        m_view->setChart(chart);
        QCoreApplication::processEvents();
        QVERIFY(m_view->placeOf({0, 59}).x() < end / 2 + 60);
        const QPoint beside = m_view->placeOf({0, 59}) + QPoint(6, 0);
        QVERIFY(m_view->grab().toImage().pixelColor(end - 40, beside.y()) !=
                m_view->grab().toImage().pixelColor(beside)); // shaded there
    }

    void theWheelScrollsElsewhereWithoutTheFocus()
    {
        show(daily(300));
        const auto turn = [&](Qt::KeyboardModifiers modifiers) {
            const QPointF place(m_view->rect().center());
            QWheelEvent wheel(place, m_view->mapToGlobal(place), {}, {0, 120}, Qt::NoButton, modifiers,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(m_view.get(), &wheel);
        };
        m_view->clearFocus();
        turn({});
        QVERIFY(!m_view->isZoomed());
        turn(Qt::ControlModifier);
        QVERIFY(m_view->isZoomed());
    }

    void standsOnThePanelWithoutAChart()
    {
        m_view = std::make_unique<LineChartView>(u"chart"_s);
        showActive(*m_view);
        QTest::keyClick(m_view.get(), Qt::Key_Left);
        QTest::keyClick(m_view.get(), Qt::Key_Plus);
        QVERIFY(!m_view->current());
        QVERIFY(!m_view->findChild<QWidget *>(u"chartAsTable"_s)->isVisible());
    }

    void turnsIntoATable()
    {
        show(twoCars());
        m_view->setCurrent({{0, 0}});
        auto *link = m_view->findChild<QWidget *>(u"chartAsTable"_s);
        QTest::mouseClick(link, Qt::LeftButton);
        auto *table = m_view->findChild<QTableView *>(u"chartTable"_s);
        QVERIFY(table->hasFocus());
        QCOMPARE(table->currentIndex().data(), u"Jan 3, 2026"_s);
        QCOMPARE(table->model()->rowCount(), 3);
        QTest::mouseClick(link, Qt::LeftButton);
        QVERIFY(!m_view->isTable() && m_view->hasFocus());
    }

    void fitsItsFrameOnPaper()
    {
        const QSizeF frame(7.3, 4.15);
        LineChart atPoints = daily(50);
        atPoints.ticksAtPoints = atPoints.series[1].isTrend = true;
        for (const LineChart &chart : {twoCars(), daily(2000), atPoints, LineChart{}}) {
            const QImage picture = PaperChart::draw(chart, frame);
            QCOMPARE(picture.size(), (frame * 300).toSize());
            QCOMPARE(darkPoints(picture, picture.rect()) > 5000, !chart.isEmpty());
            QCOMPARE(darkPoints(picture, QRect(picture.width() - 3, 0, 3, picture.height())), 0);
        }
    }

private:
    void show(const LineChart &chart)
    {
        m_view = std::make_unique<LineChartView>(u"chart"_s);
        m_view->resize(700, 360);
        m_view->setChart(chart);
        showActive(*m_view);
        m_view->setFocus();
        QCoreApplication::processEvents();
    }
    QString reading() const { return m_view->findChild<QLabel *>(u"chartReading"_s)->text(); }

    std::unique_ptr<LineChartView> m_view;
};

QTEST_MAIN(TestLineChart)
#include "tst_linechart.moc"
