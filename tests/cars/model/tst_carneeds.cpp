// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carneeds.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using enum CarNeed::State;
using Limit = CarNeed::Limit;

const QDate today(2026, 11, 22);

/// "5000 6 81210 2026-03-02": intervals and the last time, "?" for a text that is not there.
ScheduledAction action(const QString &text)
{
    const QStringList parts = QString(text).remove(u'?').split(u' ');
    return {u"Change Oil"_s, parts[0], parts[1], parts[2], parts[3], {}};
}

/// A car that reads `odometer`, with fill-ups "2026-01-01 1000, ...".
CarRecord carOf(const QString &odometer, const QString &fillUps, const ScheduledAction &action)
{
    CarRecord car;
    car.sheet.field(VehicleSheet::Odometer) = odometer;
    for (const QString &text : fillUps.split(u", "_s, Qt::SkipEmptyParts)) {
        FuelRow row;
        row.date = text.section(u' ', 0, 0);
        row.current = text.section(u' ', 1);
        car.fuel.append(row);
    }
    car.sheet.actions[3] = action;
    return car;
}

QList<CarNeed> needsOf(const CarRecord &car, QDate on = today)
{
    return CarNeeds::of(car, CarNeeds::drivingLog(car, DateStyle::Usa, on), DateStyle::Usa, on);
}

/// 10 a day, up to 10000 on the day before `today`.
const QString tenADay = u"2026-08-13 9000, 2026-10-02 9500, 2026-11-21 10000"_s;

} // namespace

/// What a car needs and when.
class TestCarNeeds : public QObject
{
    Q_OBJECT
private slots:
    void letsTheEarlierLimitDecide_data()
    {
        rows<QString, QString, CarNeed::State, Limit, QDate>(
            {{"the distance", u"10000"_s, u"1000 12 9500 2026-10-02"_s, Ahead, Limit::Distance,
              QDate(2027, 1, 10)},
             {"the months", u"10000"_s, u"5000 6 9500 2026-10-02"_s, Ahead, Limit::Time, QDate(2027, 4, 2)},
             {"only a distance", u"10000"_s, u"1000 ? 9100 2026-08-20"_s, Due, Limit::Distance,
              QDate(2026, 12, 1)},
             {"only months", u"10000"_s, u"? 1 ? 2026-11-10"_s, Due, Limit::Time, QDate(2026, 12, 10)},
             {"months on their last day", u"10000"_s, u"? 6 ? 2026-05-22"_s, Due, Limit::Time, today},
             {"months since yesterday", u"10000"_s, u"? 6 ? 2026-05-21"_s, Overdue, Limit::Time,
              QDate(2026, 5, 21).addMonths(6)},
             {"a leap day", u"10000"_s, u"? 12 ? 2024-02-29"_s, Overdue, Limit::Time, QDate(2025, 2, 28)},
             {"the end of a month", u"10000"_s, u"? 1 ? 2026-10-31"_s, Due, Limit::Time, QDate(2026, 11, 30)},
             {"a distance to its last mile", u"10000"_s, u"500 ? 9500 2026-10-02"_s, Due, Limit::Distance,
              today},
             {"a distance that is over", u"10000"_s, u"400 12 9500 2026-10-02"_s, Overdue, Limit::Distance,
              QDate(2026, 11, 11)},
             {"both over, the months first", u"10000"_s, u"400 1 9500 2026-10-02"_s, Overdue, Limit::Time,
              QDate(2026, 11, 2)},
             {"no interval", u"10000"_s, u"? ? 9500 2026-10-02"_s, NoInterval, Limit::None, {}},
             {"an interval of nothing", u"10000"_s, u"0 0 9500 2026-10-02"_s, NoInterval, Limit::None, {}},
             {"no last time", u"10000"_s, u"5000 6 ? ?"_s, NoLastTime, Limit::None, {}},
             {"a last date that is none", u"10000"_s, u"? 6 ? soon"_s, NoLastTime, Limit::None, {}},
             {"commas", u"10,000"_s, u"1,000 ? 9,500 2026-10-02"_s, Ahead, Limit::Distance,
              QDate(2027, 1, 10)},
             {"a present reading that lags behind the fill-ups", u"9800"_s, u"1000 ? 9500 2026-10-02"_s,
              Ahead, Limit::Distance, QDate(2027, 1, 10)},
             {"a present reading beyond them", u"10200"_s, u"1000 ? 9500 2026-10-02"_s, Due, Limit::Distance,
              QDate(2026, 12, 22)}});
    }

    void letsTheEarlierLimitDecide()
    {
        const auto [odometer, texts, state, limit, date] =
            row<QString, QString, CarNeed::State, Limit, QDate>();
        const QList<CarNeed> needs = needsOf(carOf(odometer, tenADay, action(texts)));
        QCOMPARE(needs.size(), 1);
        QCOMPARE(needs[0].row, 3);
        QCOMPARE(needs[0].state, state);
        QCOMPARE(needs[0].limit, limit);
        QCOMPARE(needs[0].date(), date);
    }

    void findsTheRateOfDriving_data()
    {
        using Rate = std::optional<double>;
        rows<QString, QString, Rate, double>(
            {{"of the readings", u"10000"_s, tenADay, 10.0, 500},
             {"in any order", u"10000"_s, u"2026-11-21 10000, 2026-08-13 9000"_s, 10.0, 500},
             {"of late", u"10000"_s, u"2020-01-01 100, "_s + tenADay, 10.0, 500},
             {"of one journey", u"10000"_s, u"2026-08-13 9000, 2026-11-20 9970, 2026-11-21 10000"_s, 10.0,
              500},
             {"of a single reading and the present one", u"10000"_s, u"2026-08-14 9000"_s, 10.0, 500},
             {"of a car that stands still", u"10000"_s, u"2026-08-13 10000, 2026-11-21 10000"_s, 0.0, 500},
             {"without readings", u"10000"_s, {}, {}, 500},
             {"of two days", u"10000"_s, u"2026-11-20 9970, 2026-11-21 10000"_s, {}, 500},
             {"with a mistyped high one", u"10000"_s,
              u"2026-08-13 9000, 2026-10-02 95000, 2026-11-21 10000"_s, 10.0, 500},
             {"with a mistyped low one", u"10000"_s, u"2026-08-13 9000, 2026-10-02 950, 2026-11-21 10000"_s,
              10.0, 500},
             {"with one that was mistyped twice", u"10000"_s,
              u"2026-08-13 9000, 2026-10-02 95000, 2026-10-02 95000, 2026-11-21 10000"_s, 10.0, 500},
             {"with a mistyped high one at the end", u"10000"_s, u"2026-08-13 9000, 2026-11-20 100000"_s,
              1000.0 / 101, 500},
             {"with a day to come", u"10000"_s, tenADay + u", 2062-11-21 20000"_s, 10.0, 500},
             {"that nobody can drive",
              u"10000"_s,
              u"2026-11-01 7, 2026-11-21 1000000, 2026-11-22 2000000"_s,
              {},
              2000500},
             {"with a new odometer", u"600"_s,
              u"2026-06-01 9400, 2026-06-30 9700, 2026-09-22 0, 2026-11-21 600"_s, 10.0, 800},
             {"with a new odometer since the last reading",
              u"300"_s,
              u"2026-08-13 9000, 2026-10-02 9700"_s,
              {},
              500}});
    }

    /// The last action was at 9500.
    void findsTheRateOfDriving()
    {
        const auto [odometer, fillUps, perDay, driven] =
            row<QString, QString, std::optional<double>, double>();
        const DrivingLog log = CarNeeds::drivingLog(carOf(odometer, fillUps, {}), DateStyle::Usa, today);
        QCOMPARE(log.perDay().has_value(), perDay.has_value());
        QVERIFY(!perDay || std::abs(*perDay - *log.perDay()) < 0.11);
        QCOMPARE(log.drivenSince(9500, QDate(2026, 6, 10)), driven);
    }

    void asksForTheOdometerWhenTheDistanceIsProbablyOver()
    {
        const QList<CarNeed> needs =
            needsOf(carOf(u"10000"_s, tenADay, action(u"600 ? 9500 2026-10-02"_s)), QDate(2027, 3, 1));
        QCOMPARE(needs[0].state, Due);
        QVERIFY(needs[0].isReadingOld);
        QCOMPARE(needs[0].date(), QDate(2027, 3, 1));
        QCOMPARE(needs[0].remaining, 100.0);
        QCOMPARE(needs[0].reading, 10100.0);
    }

    void countsTheDistanceWhereNoRateIsKnown_data()
    {
        rows<QString, DistanceUnit, CarNeed::State>({{"far", u"1001"_s, DistanceUnit::Miles, Ahead},
                                                     {"near", u"1000"_s, DistanceUnit::Miles, Due},
                                                     {"kilometres", u"1300"_s, DistanceUnit::Kilometers, Due},
                                                     {"over", u"499"_s, DistanceUnit::Miles, Overdue}});
    }

    void countsTheDistanceWhereNoRateIsKnown()
    {
        const auto [interval, unit, state] = row<QString, DistanceUnit, CarNeed::State>();
        CarRecord car = carOf(u"10000"_s, {}, action(interval + u" ? 9500 ?"_s));
        car.sheet.unit = unit;
        QCOMPARE(needsOf(car)[0].state, state);
        QVERIFY(!needsOf(car)[0].date().isValid());
    }

    void knowsWhenTheRegistrationEnds_data()
    {
        rows<QString, QDate>({{"this year's is over", u"August"_s, QDate(2027, 8, 31)},
                              {"this month", u"Nov"_s, QDate(2026, 11, 30)},
                              {"a number", u"12"_s, QDate(2026, 12, 31)},
                              {"a month of a year", u"02/2024"_s, QDate(2024, 2, 29)},
                              {"in words", u"Feb, 2027"_s, QDate(2027, 2, 28)},
                              {"a date", u"03/15/2027"_s, QDate(2027, 3, 15)},
                              {"nothing", {}, {}},
                              {"a word", u"sold"_s, {}},
                              {"too many numbers", u"3 4 5 6"_s, {}},
                              {"no month", u"13"_s, {}}});
    }

    void knowsWhenTheRegistrationEnds()
    {
        const auto [text, date] = row<QString, QDate>();
        QCOMPARE(CarNeeds::registrationEnd(text, DateStyle::Usa, today), date);
    }

    void putsTheMostUrgentFirst()
    {
        CarRecord car = carOf(u"10000"_s, tenADay, action(u"? 6 ? 2026-06-01"_s));
        car.sheet.actions[0] = {u"Rotate Tires"_s, {}, {}, {}, {}, {}};
        car.sheet.actions[1] = {u"Coolant"_s, {}, u"24"_s, {}, u"01/05/2026"_s, {}};
        car.sheet.actions[2] = {u"Brakes"_s, u"100"_s, {}, u"9500"_s, u"10/02/2026"_s, {}};
        car.sheet.field(VehicleSheet::RegistrationMonth) = u"November"_s;
        car.sheet.field(VehicleSheet::InsuranceExpiration) = u"11/20/2026"_s;
        QStringList names;
        for (const CarNeed &need : CarNeeds::byUrgency(needsOf(car)))
            names << need.name;
        QCOMPARE(names, (QStringList{u"Brakes"_s, u"Insurance"_s, u"Registration"_s, u"Change Oil"_s,
                                     u"Coolant"_s, u"Rotate Tires"_s}));
    }

    void knowsHowFarACarWasDriven_data()
    {
        using Distance = std::optional<double>;
        rows<QDate, QDate, Distance>(
            {{"between two readings", QDate(2026, 8, 13), QDate(2026, 10, 1), 500.0},
             {"in proportion", QDate(2026, 8, 23), QDate(2026, 9, 1), 100.0},
             {"up to now", QDate(2026, 10, 2), QDate(2026, 12, 31), 500.0},
             {"before anything is known", QDate(2025, 1, 1), QDate(2025, 12, 31), {}}});
    }

    void knowsHowFarACarWasDriven()
    {
        const auto [from, to, distance] = row<QDate, QDate, std::optional<double>>();
        QCOMPARE(CarNeeds::drivingLog(carOf(u"10000"_s, tenADay, {}), DateStyle::Usa, today)
                     .drivenBetween(from, to),
                 distance);
    }
};

QTEST_APPLESS_MAIN(TestCarNeeds)
#include "tst_carneeds.moc"
