// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "weight/model/weightfigures.h"
#include "weight/model/weightnumbers.h"
#include "weight/model/weightwords.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate start(2026, 1, 1);

struct Weight {
    int day; ///< from 0 on
    double weight;
};

WeightSeries series(const QList<Weight> &weights)
{
    WeightSeries series;
    for (const Weight &weight : weights)
        series.append({start.addDays(weight.day), weight.weight});
    return series;
}

} // namespace

/// What the weigh-ins come to, against values worked out by hand.
class TestWeightFigures final : public QObject
{
    Q_OBJECT
private slots:
    void theTrendCountsTheDaysBetween()
    {
        // A week leaves half of what was there: (200 + 198) / 2; two weeks a quarter: 199 / 4 + 195 * 3 / 4.
        const WeightSeries days = WeightTrend::byDay(series({{21, 195}, {0, 201}, {7, 198}, {0, 199}}));
        QCOMPARE(days, series({{0, 200}, {7, 198}, {21, 195}}));
        QCOMPARE(WeightTrend::smoothed(days), series({{0, 200}, {7, 199}, {21, 196}}));
        QVERIFY(WeightTrend::smoothed({}).isEmpty());
    }

    void foretellsTheDayOfTheGoal_data()
    {
        using enum GoalForecast::Kind;
        using Days = QList<int>; // expected, earliest, latest
        rows<QList<Weight>, double, int, GoalForecast::Kind, Days>({
            {"on a line, a pound a week",
             {{0, 200}, {7, 199}, {14, 198}, {21, 197}},
             195,
             21,
             Expected,
             {35, 35, 35}},
            {"upwards", {{0, 121}, {7, 122}, {14, 123}, {21, 124}}, 130, 21, Expected, {63, 63, 63}},
            {"only the last four weeks",
             {{-7, 150}, {0, 200}, {7, 199}, {14, 198}, {21, 197}},
             195,
             21,
             Expected,
             {35, 35, 35}},
            // -0.8 a week around 198.5 on day 10.5; its error is the root of 1.8 / 2 / 245 a day.
            {"scattered", {{0, 200}, {7, 198}, {14, 199}, {21, 197}}, 195, 21, Expected, {42, 31, 76}},
            // -0.6 a week; the error, the root of 7.2 / 2 / 245, is greater than that.
            {"too scattered for a latest day",
             {{0, 200}, {7, 197}, {14, 200}, {21, 197}},
             195,
             21,
             Expected,
             {52, 28}},
            {"not before today", {{0, 200}, {7, 199}, {14, 198}, {21, 197}}, 195, 40, Expected, {40, 40, 40}},
            {"leads away", {{0, 200}, {7, 201}, {21, 202}}, 195, 21, LeadsAway, {}},
            {"stays", {{0, 200}, {7, 200}, {21, 200}}, 195, 21, LeadsAway, {}},
            {"hardly moves", {{0, 200}, {7, 200}, {14, 200}, {21, 199.9}}, 100, 21, TooFar, {}},
            {"two weigh-ins", {{0, 200}, {21, 197}}, 195, 21, TooFew, {}},
            {"three in a week", {{0, 200}, {3, 199}, {6, 198}}, 195, 21, TooFew, {}},
            {"none", {}, 195, 21, TooFew, {}},
            {"long ago", {{0, 200}, {7, 199}, {21, 198}}, 195, 50, TooOld, {}},
            {"reached", {{0, 200}, {7, 199}, {21, 194}}, 195, 50, Reached, {}},
        });
    }

    void foretellsTheDayOfTheGoal()
    {
        const auto [weights, goal, today, kind, days] =
            row<QList<Weight>, double, int, GoalForecast::Kind, QList<int>>();
        const auto day = [&days = days](qsizetype at) {
            return at < days.size() ? start.addDays(days[at]) : QDate();
        };
        const double beginning = goal == 130 ? 120 : 201;
        const auto forecast = GoalForecast::of(series(weights), beginning, goal, start.addDays(today));
        QCOMPARE(forecast, (GoalForecast{kind, day(0), day(1), day(2)}));
    }

    void addsUp()
    {
        const auto weights = series({{0, 200}, {7, 199}, {14, 198}, {20, 197.5}, {21, 197}});
        const auto figures = WeightFigures::of(weights, 201, 195, start.addDays(21));
        QCOMPARE(figures.now, (DayWeight{start.addDays(21), 197}));
        QCOMPARE(figures.total, -4.0);
        QCOMPARE(figures.toGoal, -2.0);
        QCOMPARE(figures.weekAverage, 197.25);
        QCOMPARE(figures.weekBefore, 198.0);
        QCOMPARE(figures.perWeek, -1.0);
        const auto first = WeightFigures::of(series({{0, 200}}), {}, {}, start);
        QVERIFY(first.now && first.weekAverage && !first.total && !first.toGoal && !first.perWeek);
        QCOMPARE(WeightFigures::of({}, 201, 195, start).now, std::nullopt);
    }

    /// Of two weigh-ins on a day the last one is current, as in the table.
    void takesTheLastRowForTheCurrentWeight()
    {
        WeightSheet sheet;
        sheet.field(WeightSheet::BeginningWeight) = u"214.5"_s;
        sheet.field(WeightSheet::GoalWeight) = u"190"_s;
        sheet.weighIns.append({u"01/22/2026"_s, u"192.4"_s});
        sheet.weighIns.append({u"01/22/2026"_s, u"191.9"_s});
        const auto figures = WeightFigures::of(sheet, start.addDays(21));
        QCOMPARE(figures.now->weight, double(191.9F));
        QCOMPARE(WeightNumbers::difference(*figures.total), u"-22.6"_s);
        QCOMPARE(WeightWords::toGoal(figures), u"1.9 to lose"_s);
        sheet.weighIns.append({u"01/22/2026"_s, u"190"_s});
        QCOMPARE(WeightWords::toGoal(WeightFigures::of(sheet, start)), u"reached"_s);
    }

    void saysItInWords_data()
    {
        using enum GoalForecast::Kind;
        const QDate dec(2026, 12, 20);
        const QDate jan(2027, 1, 5);
        rows<GoalForecast, QString, QString>(
            {{"a day", {Expected, dec, dec, dec.addDays(3)}, u"Dec 20, 2026"_s, u"Dec 20 to Dec 23, 2026"_s},
             {"two years", {Expected, dec, dec, jan}, u"Dec 20, 2026"_s, u"Dec 20, 2026 to Jan 5, 2027"_s},
             {"no latest", {Expected, jan, dec, {}}, u"Jan 5, 2027"_s, u"Dec 20, 2026 at the earliest"_s},
             {"reached", {Reached, {}, {}, {}}, u"reached"_s, u"the goal is reached"_s},
             {"away", {LeadsAway, {}, {}, {}}, u"-"_s, u"the last four weeks lead away from it"_s}});
    }

    void saysItInWords()
    {
        const auto [forecast, day, range] = row<GoalForecast, QString, QString>();
        QCOMPARE(WeightWords::goalDay(forecast, DateStyle::Usa), day);
        QCOMPARE(WeightWords::goalRange(forecast, DateStyle::Usa), range);
    }
};

QTEST_APPLESS_MAIN(TestWeightFigures)
#include "tst_weightfigures.moc"
