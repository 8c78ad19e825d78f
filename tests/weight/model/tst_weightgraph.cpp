// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "weight/model/personfiles.h"
#include "weight/model/weightcolumns.h"
#include "weight/model/weightgraph.h"

#include <QJsonArray>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

using Texts = QList<WeighIn>;

WeightSheet sheetOf(const QString &beginning, const QString &goal, const Texts &weighIns)
{
    WeightSheet sheet;
    sheet.field(WeightSheet::Name) = u"Anne"_s;
    sheet.field(WeightSheet::BeginningWeight) = beginning;
    sheet.field(WeightSheet::GoalWeight) = goal;
    for (const WeighIn &weighIn : weighIns)
        sheet.weighIns.append(weighIn);
    return sheet;
}

/// A weigh-in a day.
WeightSheet daily(int count)
{
    WeightSheet sheet = sheetOf(u"200."_s, u"180."_s, {});
    for (int i = 0; i < count; ++i)
        sheet.weighIns.append({QDate(1999, 12, 31).addDays(i).toString(u"MM/dd/yyyy"),
                               QString::number(200 - i % 200 * 0.1, 'f', 1)});
    return sheet;
}

WeightSheet householdSheet(const QString &name)
{
    const DataFolder folder(householdPath());
    WeightSheet sheet = PersonFiles(folder).read(name).sheet;
    return sheet;
}

} // namespace

/// The computed columns and the graph.
class TestWeightGraph final : public QObject
{
    Q_OBJECT
private slots:
    void showsTheHousehold_data()
    {
        QTest::addColumn<QJsonObject>("person");
        const QJsonObject persons = expectedOf(u"weights"_s)[u"persons"].toObject();
        for (auto person = persons.begin(); person != persons.end(); ++person)
            QTest::newRow(person.key().toUtf8().constData()) << person->toObject();
    }

    void showsTheHousehold()
    {
        QFETCH(QJsonObject, person);
        const WeightSheet sheet = householdSheet(QString::fromUtf8(QTest::currentDataTag()));
        QJsonArray table;
        for (qsizetype row = 0; row < sheet.weighIns.rowCount(); ++row)
            table.append(QJsonArray{sheet.weighIns.date(row), sheet.weighIns.weight(row),
                                    WeightColumns::change(sheet.weighIns, row),
                                    WeightColumns::difference(sheet.weighIns, row, sheet.beginningWeight())});
        QCOMPARE(table, person[u"table"].toArray());
        QCOMPARE(WeightColumns::isGoalReached(sheet), person[u"goal_achieved"].toBool());
        const WeightGraph graph = WeightGraph::of(sheet);
        const QJsonObject chart = person[u"chart"].toObject();
        QCOMPARE(graph.header, chart[u"header"].toString());
        QCOMPARE(graph.axis, chart[u"axis"].toString());
        const QJsonArray points = chart[u"points"].toArray();
        QCOMPARE(graph.points.size(), points.size());
        for (qsizetype i = 0; i < points.size(); ++i) {
            QCOMPARE(WeightGraph::label(graph.points[i].date), points[i][u"label"].toString());
            QCOMPARE(float(graph.points[i].weight), float(points[i][u"weight"].toDouble()));
            QCOMPARE(float(graph.goal.value()), float(points[i][u"goal"].toDouble()));
            QCOMPARE(float(graph.beginning.value()), float(points[i][u"beginning"].toDouble()));
        }
    }

    void computesTheColumns()
    {
        const WeightSheet sheet = sheetOf(u"180."_s, {},
                                          {{u"01/05/2026"_s, {}},
                                           {u"01/06/2026"_s, u"180."_s},
                                           {u"01/07/2026"_s, {}},
                                           {u"01/08/2026"_s, u"180.4"_s},
                                           {{}, u"179.1"_s}});
        QStringList changes;
        QStringList differences;
        for (qsizetype row = 0; row < sheet.weighIns.rowCount(); ++row) {
            changes << WeightColumns::change(sheet.weighIns, row);
            differences << WeightColumns::difference(sheet.weighIns, row, sheet.beginningWeight());
        }
        QCOMPARE(changes, QStringList({u"N/A"_s, u"N/A"_s, {}, u"+0.4"_s, u"-1.3"_s}));
        QCOMPARE(differences, QStringList({{}, u"0"_s, {}, u"+0.4"_s, u"-0.9"_s}));
        QCOMPARE(WeightColumns::sinceBeginning(sheet), WeightColumns::Way::Down);
        QCOMPARE(WeightGraph::of(sheet).points.size(), 2);
    }

    void tellsTheGoalAndWhereTheWeightWent_data()
    {
        using enum WeightColumns::Way;
        using WeightColumns::Way;
        rows<QString, QString, QStringList, bool, Way, Way>(
            {{"on the way down", u"200."_s, u"180."_s, {u"199."_s, u"181."_s}, false, Down, Down},
             {"there", u"200."_s, u"180."_s, {u"181."_s, u"180."_s}, true, Down, Down},
             {"beyond, and back a little", u"200."_s, u"180."_s, {u"170."_s, u"175."_s}, true, Down, Up},
             {"gained", u"118."_s, u"125."_s, {u"120."_s, u"126."_s}, true, Up, Up},
             {"not yet gained", u"118."_s, u"125."_s, {u"120."_s, u"118."_s}, false, Level, Down},
             {"kept", u"150."_s, u"150."_s, {u"151."_s, u"150."_s}, true, Level, Down},
             {"without a beginning", {}, u"150."_s, {u"160."_s, u"150."_s}, true, Unknown, Down},
             {"without a goal", u"150."_s, {}, {u"160."_s}, false, Up, Unknown},
             {"without weigh-ins", u"150."_s, u"140."_s, {}, false, Unknown, Unknown}});
    }

    void tellsTheGoalAndWhereTheWeightWent()
    {
        using WeightColumns::Way;
        const auto [beginning, goal, weights, isReached, whole, last] =
            row<QString, QString, QStringList, bool, Way, Way>();
        Texts weighIns;
        for (const QString &weight : weights)
            weighIns.append({u"01/05/2026"_s, weight});
        const WeightSheet sheet = sheetOf(beginning, goal, weighIns);
        QCOMPARE(WeightColumns::isGoalReached(sheet), isReached);
        QCOMPARE(WeightColumns::sinceBeginning(sheet), whole);
        QCOMPARE(WeightColumns::sinceLastEntry(sheet), last);
    }

    void showsTheLastFifty_data()
    {
        const QString limited = u"Weigh In Dates (Graph Limited to Last 50 Entries)"_s;
        rows<int, WeightGraph::Extent, QString, QString, qsizetype>(
            {{"49", 49, WeightGraph::Extent::Last50, u"Weigh In Dates"_s, u"Dec-31-99"_s, 49},
             {"50", 50, WeightGraph::Extent::Last50, limited, u"Dec-31-99"_s, 50},
             {"51", 51, WeightGraph::Extent::Last50, limited, u"Jan-01-00"_s, 50},
             {"all", 51, WeightGraph::Extent::Everything, u"Weigh In Dates"_s, u"Dec-31-99"_s, 51}});
    }

    void showsTheLastFifty()
    {
        const auto [count, extent, axis, first, points] =
            row<int, WeightGraph::Extent, QString, QString, qsizetype>();
        const WeightGraph graph = WeightGraph::of(daily(count), extent);
        QCOMPARE(graph.axis, axis);
        QCOMPARE(graph.points.size(), points);
        QCOMPARE(WeightGraph::label(graph.points.first().date), first);
        QCOMPARE(graph.trend.first().date, graph.points.first().date);
    }

    void describesItself()
    {
        const LineChart chart =
            WeightGraph::of(
                sheetOf(u"200."_s, u"180."_s, {{u"01/12/2026"_s, u"198."_s}, {u"01/05/2026"_s, u"200."_s}}))
                .chart();
        QCOMPARE(
            chart.description(),
            u"Anne Weight Tracker Graph. Line chart. Across: Weigh In Dates. Up: Weight. Weight, 2 points "
            "from Jan-05-26 to Jan-12-26, 198.0 to 200.0. Trend, 2 points from Jan-05-26 to Jan-12-26, "
            "199.0 to 200.0. Goal weight: 180.0. Beginning weight: 200.0."_s);
        QCOMPARE(chart.rows().last(),
                 QStringList({u"Jan-12-26"_s, u"198.0"_s, u"199.0"_s, u"180.0"_s, u"200.0"_s}));
        const LineChart empty = WeightGraph::of(sheetOf(u"200."_s, u"180."_s, {})).chart();
        QVERIFY(empty.isEmpty() && empty.levels.isEmpty());
        QCOMPARE(empty.description(), u"Anne Weight Tracker Graph. No weigh-ins yet."_s);
    }
};

QTEST_APPLESS_MAIN(TestWeightGraph)
#include "tst_weightgraph.moc"
