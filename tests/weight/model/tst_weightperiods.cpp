// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "weight/model/photodays.h"
#include "weight/model/weightchart.h"
#include "weight/model/weightperiods.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);

WeightSheet sheetOf(const QList<WeighIn> &weighIns)
{
    WeightSheet sheet;
    sheet.field(WeightSheet::Name) = u"Anne"_s;
    sheet.field(WeightSheet::BeginningWeight) = u"190."_s;
    sheet.field(WeightSheet::GoalWeight) = u"170."_s;
    for (const WeighIn &weighIn : weighIns)
        sheet.weighIns.append(weighIn);
    return sheet;
}

/// A tenth a day is lost for `days` days, up to today.
WeightGraph losing(int days, double goal)
{
    WeightGraph graph;
    graph.goal = goal;
    for (int i = days; i >= 0; --i)
        graph.points.append({today.addDays(-i), 180 + i * 0.1});
    return graph;
}

GoalForecast expected(QDate day, QDate earliest, QDate latest)
{
    return {GoalForecast::Kind::Expected, day, earliest, latest};
}

} // namespace

/// What is told beside the graph: periods, the day of the goal, the days of the photos.
class TestWeightPeriods final : public QObject
{
    Q_OBJECT
private slots:
    void comparesPeriods_data()
    {
        using Length = WeightPeriod::Length;
        rows<Length, QList<QStringList>>({
            {"months: one without a weight ends the comparison",
             Length::Month,
             {{u"November 2026 so far"_s, u"180"_s, u"-4"_s, u"-3"_s, u"179"_s, u"181"_s, u"2"_s},
              {u"October 2026"_s, u"184"_s, u"-"_s, u"-5"_s, u"182"_s, u"186"_s, u"2"_s},
              {u"August 2026"_s, u"187"_s, u"0"_s, u"0"_s, u"187"_s, u"187"_s, u"1"_s},
              {u"July 2026"_s, u"187"_s, u"-"_s, u"-"_s, u"187"_s, u"187"_s, u"1"_s}}},
            {"years",
             Length::Year,
             {{u"2026 so far"_s, u"183.7"_s, u"-"_s, u"-8"_s, u"179"_s, u"187"_s, u"6"_s}}},
            {"four weeks, counted back from today",
             Length::FourWeeks,
             {{u"Oct 25 to Nov 21, 2026"_s, u"180.7"_s, u"-5.3"_s, u"-7"_s, u"179"_s, u"182"_s, u"3"_s},
              {u"Sep 27 to Oct 24, 2026"_s, u"186"_s, u"-"_s, u"-1"_s, u"186"_s, u"186"_s, u"1"_s},
              {u"Aug 2 to Aug 29, 2026"_s, u"187"_s, u"0"_s, u"0"_s, u"187"_s, u"187"_s, u"1"_s},
              {u"Jul 5 to Aug 1, 2026"_s, u"187"_s, u"-"_s, u"-"_s, u"187"_s, u"187"_s, u"1"_s}}},
        });
    }
    void comparesPeriods()
    {
        const auto [length, wanted] = row<WeightPeriod::Length, QList<QStringList>>();
        const WeightSeries byDay{{{2026, 7, 30}, 187},  {{2026, 8, 2}, 187},  {{2026, 10, 24}, 186},
                                 {{2026, 10, 25}, 182}, {{2026, 11, 1}, 181}, {{2026, 11, 21}, 179}};
        QList<QStringList> found;
        for (const WeightPeriod &period : WeightPeriod::all(byDay, length, today))
            found << period.row(DateStyle::Usa, today);
        QCOMPARE(found, wanted);
    }

    void countsFourWeeksAheadOfToday()
    {
        const auto periods =
            WeightPeriod::all({{today.addDays(1), 180}, {today.addDays(28), 179}, {today.addDays(29), 178}},
                              WeightPeriod::Length::FourWeeks, today);
        QCOMPARE(periods.size(), 2);
        QCOMPARE(periods.last().from, today.addDays(1));
        QCOMPARE(periods.last().days, 2);
    }

    void showsTheGoalWhereItIsNear_data()
    {
        using Days = QList<int>; // from today
        rows<int, QDate, QDate, QDate, Days>({
            {"as far ahead as the points go back", 200, today.addDays(100), today.addDays(80),
             today.addDays(130), Days{80, 100, 130}},
            {"the latest day beyond that", 200, today.addDays(100), today.addDays(80), today.addDays(900),
             Days{80, 100, 200}},
            {"no latest day", 200, today.addDays(50), today.addDays(40), QDate(), Days{40, 50, 100}},
            {"sixty days at least", 10, today.addDays(60), today.addDays(-2), today.addDays(61),
             Days{0, 60, 60}},
            {"farther ahead", 200, today.addDays(201), today.addDays(80), today.addDays(300), Days{}},
        });
    }
    void showsTheGoalWhereItIsNear()
    {
        const auto [days, day, earliest, latest, wanted] = row<int, QDate, QDate, QDate, QList<int>>();
        const auto found =
            WeightChart::forecast(losing(days, 170), expected(day, earliest, latest), DateStyle::Usa);
        QCOMPARE(found.has_value(), !wanted.isEmpty());
        if (!found)
            return;
        const double now = LineChart::dayAt(today);
        QCOMPARE((QList<int>{int(found->from - now), int(found->at - now), int(found->to - now)}), wanted);
        QCOMPARE(found->y, 170.0);
    }

    void tellsWhatIsExpectedInTheChart()
    {
        WeightSheet sheet = sheetOf({});
        for (int i = 28; i >= 0; --i)
            sheet.weighIns.append(
                {today.addDays(-i).toString(u"MM/dd/yyyy"), QString::number(176 + i * 0.5, 'f', 1)});
        const LineChart chart = WeightChart::of(sheet, WeightGraph::Extent::Last50, today, DateStyle::Usa);
        QCOMPARE(chart.forecast->name, u"Goal about Dec 3, 2026"_s); // six pounds, half a pound a day
        QVERIFY(chart.caption.startsWith(u"The last four weeks lead to the goal: "_s));
        sheet.field(WeightSheet::GoalWeight) = u"200."_s;
        sheet.field(WeightSheet::BeginningWeight) = u"190."_s;
        const LineChart away = WeightChart::of(sheet, WeightGraph::Extent::Last50, today, DateStyle::Usa);
        QVERIFY(!away.forecast);
        QVERIFY(away.caption.startsWith(u"No day for the goal"_s));
        QVERIFY(WeightChart::of(sheetOf({}), WeightGraph::Extent::Last50, today, DateStyle::Usa).isEmpty());
    }

    void tellsThenFromNow_data()
    {
        rows<QString, QString, QString, QString>({
            {"both weighed", u"January 05, 2026"_s, u"March 10, 2026"_s,
             u"Jan 5, 2026: 190 | Mar 10, 2026: 182.5"_s, u"64 days, -7.5"_s},
            {"weighed within a week", u"January 12, 2026"_s, u"March 03, 2026"_s,
             u"Jan 12, 2026: 190 | Mar 3, 2026: 182.5"_s, u"50 days, -7.5"_s},
            {"not weighed in that week", u"January 13, 2026"_s, u"January 14, 2026"_s,
             u"Jan 13, 2026 | Jan 14, 2026"_s, u"1 day"_s},
            {"no day", u""_s, u"March 10, 2026"_s, u" | Mar 10, 2026: 182.5"_s, u""_s},
        });
    }
    void tellsThenFromNow()
    {
        const auto [then, now, texts, between] = row<QString, QString, QString, QString>();
        WeightSheet sheet = sheetOf({{u"01/05/2026"_s, u"190."_s}, {u"03/10/2026"_s, u"182.5"_s}});
        sheet.field(WeightSheet::BeginningPhotoDate) = then;
        sheet.field(WeightSheet::CurrentPhotoDate) = now;
        const PhotoDays days = PhotoDays::of(sheet);
        QCOMPARE(PhotoDays::text(days.then, DateStyle::Usa) + u" | "_s +
                     PhotoDays::text(days.now, DateStyle::Usa),
                 texts);
        QCOMPARE(days.between(), between);
    }
};

QTEST_GUILESS_MAIN(TestWeightPeriods)
#include "tst_weightperiods.moc"
