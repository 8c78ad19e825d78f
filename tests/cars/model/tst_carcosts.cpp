// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carseries.h"
#include "cars/model/scheduleupdate.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Two years of fuel, and a few other things.
CarRecord exampleCar()
{
    CarRecord car;
    car.sheet.field(VehicleSheet::Odometer) = u"3000"_s;
    car.fuel = {{u"01/01/2025"_s, {}, u"1000"_s, {}, u"5"_s, {}, u"20"_s},
                {u"01/01/2026"_s, u"1000"_s, u"2000"_s, {}, u"50"_s, {}, u"$210.50"_s},
                {u"06/30/2026"_s, u"2000"_s, u"2900"_s, {}, u"30"_s, {}, u"60+40"_s},
                {{}, {}, {}, {}, u"1"_s, {}, u"5"_s}};
    car.maintenance = {{u"1500"_s, u"06/30/2025"_s, u"Oil"_s, u"49.90"_s},
                       {u"1500"_s, u"07/01/2025"_s, u"Tires"_s, u"100"_s}};
    car.repairs = {{u"150"_s, u"02/29/2024"_s, u"Bulb"_s, u"9.99"_s},
                   {{}, u"03/05/2026"_s, u"Wash"_s, u"-"_s}};
    return car;
}

} // namespace

/// What a car costs.
class TestCarCosts : public QObject
{
    Q_OBJECT
private slots:
    void addsUpAYear_data()
    {
        rows<QDate, int, qint64, qint64, qint64, qint64>(
            {{"that is over", QDate(2026, 11, 22), 2025, 2000, 14990, 0, 999},
             {"so far, as far of the year before", QDate(2026, 6, 30), 2026, 31050, 0, 0, 6990},
             {"of a leap day", QDate(2024, 2, 29), 2024, 0, 0, 999, 0}});
    }

    void addsUpAYear()
    {
        const auto [today, year, fuel, maintenance, repairs, before] =
            row<QDate, int, qint64, qint64, qint64, qint64>();
        const auto both = CarCosts(exampleCar(), DateStyle::Usa, today).yearAgainstLast(year);
        QCOMPARE(both.sums.cents, (std::array{fuel, maintenance, repairs}));
        QCOMPARE(both.before.total(), before);
    }

    void countsDistancesAndMonths()
    {
        const CarCosts costs(exampleCar(), DateStyle::Usa, QDate(2026, 6, 30));
        QCOMPARE(costs.all().total(), 2000 + 21050 + 10000 + 500 + 14990 + 999);
        const CostSums year = costs.sums(QDate(2025, 7, 1), QDate(2026, 6, 30));
        QCOMPARE(year.driven, 1500.0);
        QCOMPARE(year.perDistance(), (10000 + 21050 + 10000) / 1500.0);
        QCOMPARE(costs.years(), (QList<int>{2026, 2025, 2024}));
        QCOMPARE(costs.perMonth(), (999 + 2000 + 14990 + 21050) / 28.0);
        const auto months = costs.months(QDate(2025, 6, 15), QDate(2025, 7, 1));
        QCOMPARE(months.size(), 2);
        QCOMPARE(months[0].sums.total(), 4990);
        QCOMPARE(months[1].sums.of(CostKind::Maintenance), 10000);
    }

    void costsNothingWithoutCosts()
    {
        const CarCosts costs({}, DateStyle::Usa, QDate(2026, 6, 30));
        QCOMPARE(costs.all(), CostSums());
        QVERIFY(!costs.perMonth());
        QVERIFY(costs.years().isEmpty());
        QVERIFY(CarSeries::costs(costs).isEmpty());
    }

    void drawsTheMonthsWithoutAGap()
    {
        const QList<DayValue> values =
            CarSeries::costs(CarCosts(exampleCar(), DateStyle::Usa, QDate(2026, 11, 22)), CostKind::Fuel);
        QCOMPARE(values.size(), 29);
        QCOMPARE(values.last(), (DayValue{QDate(2026, 6, 1), 100, u"100.00"_s}));
        QCOMPARE(values[23].value, 210.5);
        QCOMPARE(values[24].value, 0.0);
    }

    void offersToUpdateTheSchedule_data()
    {
        rows<HistoryRow, bool>(
            {{"the same words", {u"86000"_s, u"11/20/2026"_s, u"change OIL and filter"_s, {}}, true},
             {"in another order", {u"86000"_s, u"11/20/2026"_s, u"Oil & filter change"_s, {}}, true},
             {"another action", {u"86000"_s, u"11/20/2026"_s, u"Change filter"_s, {}}, false},
             {"nothing", {u"86000"_s, u"11/20/2026"_s, {}, {}}, false},
             {"an older one", {u"86000"_s, u"03/01/2026"_s, u"Change Oil and Filter"_s, {}}, false},
             {"the same one", {u"81210"_s, u"03/02/2026"_s, u"Change Oil and Filter"_s, {}}, false},
             {"a later one of the day", {u"81211"_s, u"03/02/2026"_s, u"Change Oil and Filter"_s, {}}, true},
             {"without a date", {u"86000"_s, {}, u"Change Oil and Filter"_s, {}}, true}});
    }

    void offersToUpdateTheSchedule()
    {
        const auto [entry, isOffered] = row<HistoryRow, bool>();
        VehicleSheet sheet;
        sheet.actions[2] = {
            u"Change Oil and Filter"_s, u"5000"_s, u"6"_s, u"81,210"_s, u"03/02/2026"_s, u"49.90"_s};
        const auto update = ScheduleUpdate::of(entry, sheet, DateStyle::Usa);
        QCOMPARE(update.has_value(), isOffered);
        if (!isOffered)
            return;
        QCOMPARE(update->row, 2);
        QCOMPARE(update->after, (ScheduledAction{u"Change Oil and Filter"_s, u"5000"_s, u"6"_s,
                                                 entry.odometer, entry.date, u"49.90"_s}));
    }
};

QTEST_APPLESS_MAIN(TestCarCosts)
#include "tst_carcosts.moc"
