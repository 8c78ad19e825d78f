// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/fuelfigures.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using enum FillUp::Kind;
using Number = std::optional<double>;

/// "2026-01-05 1000 1300 ? 10 ? 35.00, ...": the columns of the tracker, "?" for a text that is not there.
FuelLog logOf(const QString &text)
{
    FuelLog log;
    for (const QString &line : text.split(u", "_s)) {
        const QStringList cells = QString(line).remove(u'?').split(u' ');
        FuelRow row;
        for (std::size_t i = 0; i < fuelColumns.size(); ++i)
            row.*fuelColumns[i] = cells.value(qsizetype(i));
        log.append(row);
    }
    return log;
}

QList<FillUp::Kind> kindsOf(const FuelFigures &figures)
{
    QList<FillUp::Kind> kinds;
    for (const FillUp &fillUp : figures.fillUps())
        kinds.append(fillUp.kind);
    return kinds;
}

/// Five of 30 miles a gallon, from 1000 to 2500.
const QString usual =
    u"2026-01-01 1000 1300 ? 10 ? 30, 2026-01-08 1300 1600 ? 10 ? 30, 2026-01-15 1600 1900 ? 10 "
    u"? 30, 2026-01-22 1900 2200 ? 10 ? 30, 2026-01-29 2200 2500 ? 10 ? 30"_s;

} // namespace

/// What the fuel tracker's rows come to.
class TestFuelFigures : public QObject
{
    Q_OBJECT
private slots:
    void worksOutTheConsumption_data()
    {
        rows<QString, QList<FillUp::Kind>, Number, Number>(
            {{"readings", u"2026-01-05 1000 1300 ? 10 ? 35.00"_s, {Counted}, 30.0, 30.0},
             {"typed distance and amount", u"2026-01-05 ? ? 300 10"_s, {Counted}, 30.0, 30.0},
             {"since last, behind a reading",
              u"2026-01-05 1000 1300 ? 10, 2026-01-12 ? ? 200 10"_s,
              {Counted, Counted},
              20.0,
              25.0},
             {"sums", u"2026-01-05 ? ? 100+200 4.5+5.5"_s, {Counted}, 30.0, 30.0},
             {"a typed consumption", u"2026-01-05 1000 1300 ? ? 30"_s, {Counted}, 30.0, 30.0},
             {"readings against a typed distance",
              u"2026-01-05 1000 1300 999 10 99.9"_s,
              {Counted},
              30.0,
              30.0},
             {"only the present reading",
              u"2026-01-05 1000 1300 ? 10, 2026-01-12 ? 1500 ? 10"_s,
              {Counted, Counted},
              20.0,
              25.0},
             {"rows that are not in order",
              u"2026-01-12 1300 1500 ? 10, 2026-01-05 1000 1300 ? 10"_s,
              {Counted, Counted},
              30.0,
              25.0},
             {"a reading that was rounded",
              u"2026-01-05 1000 1300 ? 10, 2026-01-12 1301 1501 ? 10"_s,
              {Counted, Counted},
              20.0,
              25.0},
             {"a forgotten fill-up",
              u"2026-01-05 1000 1300 ? 10, 2026-01-12 1500 1700 ? 10"_s,
              {Counted, Missing},
              20.0,
              30.0},
             {"a partial one",
              u"2026-01-05 1000 1300 ? 10, 2026-01-12 1300 1400 ? 1, 2026-01-19 1300 1600 ? 9"_s,
              {Counted, Partial, Counted},
              30.0,
              30.0},
             {"one without a reading",
              u"2026-01-05 1000 1300 ? 10, 2026-01-12 ? ? ? 5, 2026-01-19 1300 1600 ? 5"_s,
              {Counted, Partial, Counted},
              30.0,
              30.0},
             {"a new odometer",
              u"2026-01-05 9000 9300 ? 10, 2026-01-12 9300 50 ? 10, 2026-01-19 50 250 ? 10"_s,
              {Counted, Missing, Counted},
              20.0,
              25.0},
             {"no amount", u"2026-01-05 1000 1300 ? ?"_s, {Incomplete}, {}, {}},
             {"nothing", u"2026-01-05"_s, {Incomplete}, {}, {}},
             {"not filled up, by what is usual",
              usual + u", 2026-02-05 2500 2700 ? 3, 2026-02-12 2700 2800 ? 7"_s,
              {Counted, Counted, Counted, Counted, Counted, Partial, Counted},
              30.0,
              30.0},
             {"too far for the fuel of two",
              usual + u", 2026-02-05 2500 4200 ? 10, 2026-02-12 4200 4500 ? 10"_s,
              {Counted, Counted, Counted, Counted, Counted, Missing, Counted},
              30.0,
              30.0},
             {"less than half of what is usual",
              usual + u", 2026-02-05 2500 2600 ? 10"_s,
              {Counted, Counted, Counted, Counted, Counted, Unlikely},
              10.0,
              30.0}});
    }

    void worksOutTheConsumption()
    {
        const auto [text, kinds, last, average] = row<QString, QList<FillUp::Kind>, Number, Number>();
        const FuelFigures figures(logOf(text), DateStyle::Usa);
        QCOMPARE(kindsOf(figures), kinds);
        QCOMPARE(figures.fillUps().last().economy, last);
        QCOMPARE(figures.sums().economy, average);
    }

    void addsUp()
    {
        const FuelFigures figures(logOf(usual + u", 2026-02-05 2500 2900 ? 10 ? ?"_s), DateStyle::Usa);
        const FuelSums sums = figures.sums();
        QCOMPARE(sums.fillUps, 6);
        QCOMPARE(sums.driven, 1900.0);
        QCOMPARE(sums.used, 60.0);
        QCOMPARE(sums.cents, 15000);
        QCOMPARE(sums.best, 40.0);
        QCOMPARE(sums.worst, 30.0);
        QCOMPARE(sums.centsPerDistance, 10.0);
        QCOMPARE(sums.centsPerAmount, 300.0);
        QCOMPARE(sums.centsPerFillUp, 3000.0);
        QCOMPARE(figures.newest(), 5);
        const FuelSums two = figures.sums(QDate(2026, 1, 8), QDate(2026, 1, 15));
        QCOMPARE(two.fillUps, 2);
        QCOMPARE(two.driven, 600.0);
    }

    void countsNoDistanceTwice()
    {
        const FuelFigures figures(
            logOf(u"2026-01-05 1000 1300 ? 10, 2026-01-12 1300 1400 ? 1, 2026-01-19 1300 1600 ? 9"_s),
            DateStyle::Usa);
        QCOMPARE(figures.sums().driven, 600.0);
        QCOMPARE(figures.fillUps().last().driven, 300.0);
    }

    void completesARow_data()
    {
        const QString whole = u"2026-02-05 2500 2800 300 10 30.0 31"_s;
        rows<QString, QString>(
            {{"from the last row", u"2026-02-05 ? 2800 ? 10 ? 31"_s, whole},
             {"from the distance", u"2026-02-05 ? ? 300 10 ? 31"_s, whole},
             {"with readings that were changed", u"2026-02-05 ? 2800 1 10 2 31"_s, whole},
             {"without an amount", u"2026-02-05 2500 2800 ? ? 29.9"_s, u"2026-02-05 2500 2800 300 ? 29.9"_s},
             {"with a lower reading", u"2026-02-05 ? 28 ? 10"_s, u"2026-02-05 2500 28 ? 10"_s}});
    }

    void completesARow()
    {
        const auto [text, completed] = row<QString, QString>();
        QCOMPARE(FuelFigures::completed(logOf(text).first(), logOf(usual)), logOf(completed).first());
    }
};

QTEST_APPLESS_MAIN(TestFuelFigures)
#include "tst_fuelfigures.moc"
