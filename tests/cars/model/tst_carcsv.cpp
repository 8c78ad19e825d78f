// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carcsvimport.h"
#include "shell/core/csvcolumns.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 22);

/// A car that reads 84,210, with an oil change in its history.
CarRecord exampleCar()
{
    CarRecord car;
    car.sheet.field(VehicleSheet::Odometer) = u"84,210"_s;
    car.maintenance = {{u"81,210"_s, u"03/02/2026"_s, u"Oil, \"5W-30\""_s, u"49.90"_s}};
    car.fuel = {{u"08/31/2026"_s, u"82595"_s, u"82820"_s, u"225"_s, u"7.8"_s, u"28.8"_s, u"20+6.52"_s}};
    return car;
}

CarCsvImport importOf(const QByteArray &bytes, CarPart part, const CarRecord &car = exampleCar(),
                      DateStyle style = DateStyle::Usa)
{
    CarCsvImport import(bytes, part, car, style, today);
    while (import.step()) {}
    return import;
}

/// "10000 01/02/2026 Tires 30.00": the row that came in last; nothing where none did.
QString lastMaintenance(const CarCsvImport &import)
{
    const HistoryRow row = import.result().maintenance.last();
    return import.chosenCount() == 0
               ? QString()
               : QStringList{row.odometer, row.date, row.description, row.cost}.join(u' ');
}

} // namespace

/// Histories and fill-ups as files for spreadsheets.
class TestCarCsv : public QObject
{
    Q_OBJECT
private slots:
    void writesTextsAsTheyWereTyped()
    {
        QCOMPARE(CarCsv::text(exampleCar().maintenance, DistanceUnit::Miles),
                 "\xEF\xBB\xBFMileage,Date,Description,Cost\r\n"
                 "\"81,210\",03/02/2026,\"Oil, \"\"5W-30\"\"\",49.90\r\n");
        QCOMPARE(CarCsv::text(exampleCar().fuel, DistanceUnit::Kilometers),
                 "\xEF\xBB\xBF"
                 "Date,Previous Reading,Current Reading,Kms. Driven,Liters Used,Kms. Per Liter,Cost\r\n"
                 "08/31/2026,82595,82820,225,7.8,28.8,20+6.52\r\n");
        QCOMPARE(CarCsv::fileName(u"..Zoë's: first/car"_s, CarPart::Fuel), u"Zoë's firstcar fuel.csv"_s);
    }

    void readsWhatItWrote()
    {
        CarRecord empty = exampleCar();
        empty.maintenance.clear();
        empty.fuel.clear();
        CarRecord car = exampleCar();
        car.maintenance[0].odometer = u"81210"_s; // as it is stored: a plain number
        QCOMPARE(importOf(CarCsv::text(car.maintenance, DistanceUnit::Miles), CarPart::Maintenance, empty)
                     .result()
                     .maintenance,
                 car.maintenance);
        FuelLog fuel = car.fuel;
        fuel[0].cost = u"26.52"_s;
        QCOMPARE(importOf(CarCsv::text(car.fuel, DistanceUnit::Miles), CarPart::Fuel, empty).result().fuel,
                 fuel);
    }

    void readsWhatOthersWrite_data()
    {
        rows<QByteArray, QString>(
            {{"other headings", "Day;Mileage;What;Price\n02.01.2026;10.000;Tires;30,00 \xE2\x82\xAC\n",
              u"10000 01/02/2026 Tires 30.00"_s},
             {"columns in another order",
              "Cost,Service performed,Odometer reading,Date\n$30.00,Tires,\"10,000 mi\",2026-01-02\n",
              u"10000 01/02/2026 Tires 30"_s},
             {"a sum", "Date,Odometer,Work,Cost\n01/02/2026,10000.,Tires,5+4.5\n",
              u"10000 01/02/2026 Tires 9.5"_s},
             {"no heading", "10000,01/02/2026,Tires,30.00\n", u"10000 01/02/2026 Tires 30.00"_s},
             {"a currency in front", "Date,Work,Cost\n01/02/2026,Tires,USD 30.00\n",
              u" 01/02/2026 Tires 30.00"_s},
             {"thousands with points, and no amounts", "Date,Odometer,Work\n01/02/2026,10.000 km,Tires\n",
              u"10000 01/02/2026 Tires "_s},
             {"a point in what was done", "Date,Odometer,Work\n01/02/2026,10000,5.5 qt of oil\n",
              u"10000 01/02/2026 5.5 qt of oil "_s},
             {"another unit", "Date,Km,Work\n01/02/2026,10000,Tires\n", u" 01/02/2026 Tires "_s},
             {"no cost", "Date,Odometer,Work\n01/02/2026,10000,Tires\n", u"10000 01/02/2026 Tires "_s},
             {"nothing but a date", "Date\n01/02/2026\n", {}},
             {"something else", "a,b\nc,d\n", {}}});
    }

    void readsWhatOthersWrite()
    {
        const auto [bytes, row] = ::row<QByteArray, QString>();
        QCOMPARE(lastMaintenance(importOf(bytes, CarPart::Maintenance)), row);
    }

    void saysWhatBecomesOfEachLine_data()
    {
        rows<QByteArray, CarCsvLine::State, QString>(
            {{"ready", "81300,03/09/2026,Wash,5", CarCsvLine::Ready, {}},
             {"there already", "81210,3/2/2026,\"OIL,  \"\"5w-30\"\"\",", CarCsvLine::Duplicate, {}},
             {"no date", "81300,soon,Wash,5", CarCsvLine::NotRead, u"no date"_s},
             {"a date to come", "81300,11/23/2026,Wash,5", CarCsvLine::NotRead, u"a date to come"_s},
             {"no reading", "many,03/09/2026,Wash,5", CarCsvLine::NotRead, u"no number: many"_s},
             {"a date as the cost", "81300,03/09/2026,Wash,3/9/2026", CarCsvLine::NotRead,
              u"no number: 3/9/2026"_s},
             {"below 0", "81300,03/09/2026,Wash,-5", CarCsvLine::NotRead, u"no number: -5"_s},
             {"beyond the odometer", "84211,03/09/2026,Wash,5", CarCsvLine::NotRead,
              u"above the current reading"_s},
             {"a quote without an end", "81300,03/09/2026,\"Wash,5", CarCsvLine::NotRead,
              u"a quote has no end"_s}});
    }

    void saysWhatBecomesOfEachLine()
    {
        const auto [line, state, problem] = row<QByteArray, CarCsvLine::State, QString>();
        CarCsvImport import = importOf("Mileage,Date,Description,Cost\n" + line + '\n', CarPart::Maintenance);
        QVERIFY(import.isReadable());
        QCOMPARE(import.lines().size(), 1);
        QCOMPARE(import.lines()[0].number, 2);
        QCOMPARE(import.lines()[0].state, state);
        QCOMPARE(import.lines()[0].problem, problem);
        QCOMPARE(import.chosenCount(), state == CarCsvLine::Ready ? 1 : 0);
        import.setChosen(0, true);
        QCOMPARE(import.chosenCount(), state == CarCsvLine::NotRead ? 0 : 1);
    }

    void tellsWhichColumnsItDoesNotUse()
    {
        CarCsvImport import = importOf(
            "Datum;Was;Betrag;;km\n02.01.2026;Reifen;12,50;;10.000\n03.01.2026;;;;\n", CarPart::Maintenance);
        QCOMPARE(import.notUsed(), QStringList({u"Was"_s, u"Betrag"_s, u"km (another unit)"_s}));
        QVERIFY(CarCsv::isInOtherUnit(u"Miles Driven"_s, DistanceUnit::Kilometers));
        QVERIFY(!CarCsv::isInOtherUnit(u"Mileage"_s, DistanceUnit::Kilometers));
        QVERIFY(import.lines()[0].isBare);
        QCOMPARE(import.chosenCount(), 0);
        QCOMPARE(import.columns()->example(2), u"12,50"_s);
        import.setPlace(0, 4);
        import.setPlace(2, 1);
        import.setPlace(3, 2);
        while (import.step()) {}
        QCOMPARE(import.notUsed(), QStringList());
        QCOMPARE(lastMaintenance(import), u"10000 01/02/2026 Reifen 12.50"_s);
        QCOMPARE(import.chosenCount(), 1); // nothing was done on the third
        import.setChosen(1, true);
        QCOMPARE(import.result().maintenance.size(), 3);
        // What a column was before, it is no more.
        import.setPlace(0, 0);
        while (import.step()) {}
        QCOMPARE(import.columns()->placeOf(1), -1);
        QVERIFY(!import.isReadable());
        QCOMPARE(import.lines()[0].problem, u"no date"_s);
    }

    void findsColumnsThatHaveNoName()
    {
        CarCsvImport import = importOf("Tires,01/02/2026\n", CarPart::Repairs);
        QVERIFY(!import.isReadable());
        QCOMPARE(import.columns()->fileNames(), QStringList({u"Column 1"_s, u"Column 2"_s}));
        import.setPlace(1, 1);
        import.setPlace(2, 0);
        while (import.step()) {}
        QCOMPARE(import.result().repairs.last(), (HistoryRow{{}, u"01/02/2026"_s, u"Tires"_s, {}}));
    }

    void knowsANameThatItCannotRead()
    {
        const CarCsvImport import =
            importOf("Tag;Arbeit;Betrag\n02.01.2026;Reifen;12,50\n", CarPart::Repairs);
        QCOMPARE(import.columns()->fileNames(), QStringList({u"Tag"_s, u"Arbeit"_s, u"Betrag"_s}));
        QCOMPARE(import.notUsed(), import.columns()->fileNames());
        QCOMPARE(import.lines().size(), 1);
    }

    void worksOutWhatAFillUpLeavesOut()
    {
        const FuelLog fuel = importOf("Date,Reading,Gallons,Price\n2026-11-13,84700,8.1,29.9\n"
                                      "2026-11-05,84500,9.5,$32.50\n2026-08-30,82700,3,\n2026-11-20,,9,\n",
                                      CarPart::Fuel)
                                 .result()
                                 .fuel.mid(1);
        QCOMPARE(fuel,
                 (FuelLog{{u"08/30/2026"_s, {}, u"82700"_s, {}, u"3"_s, {}, {}},
                          {u"11/05/2026"_s, u"82820"_s, u"84500"_s, u"1680"_s, u"9.5"_s, u"176.8"_s, {}},
                          {u"11/13/2026"_s, u"84500"_s, u"84700"_s, u"200"_s, u"8.1"_s, u"24.7"_s, {}},
                          {u"11/20/2026"_s, {}, {}, {}, u"9"_s, {}, {}}}));
    }

    void takesNoMoreFillUpsThanThereIsRoom()
    {
        CarRecord car = exampleCar();
        while (car.fuel.size() < mostFuelRows - 1)
            car.fuel.append(car.fuel.last());
        CarCsvImport import =
            importOf("Date,Odometer,Gallons\n9/3/2026,83100,9\n9/2/2026,83000,9\n", CarPart::Fuel, car);
        QCOMPARE(import.lines()[1].state, CarCsvLine::Full);
        QCOMPARE(import.result().fuel.size(), mostFuelRows);
        import.setChosen(1, true);
        QCOMPARE(import.chosenCount(), 1);
        import.setChosen(0, false);
        import.setChosen(1, true);
        QCOMPARE(import.result().fuel.last().current, u"83000"_s);
    }

    void putsTheOldestFirst()
    {
        const CarRecord car =
            importOf("Date,Odometer,Gallons\n9/14/2026,83100,9\n9/2/2026,83000,9\n9/2/2026,83000,9\n",
                     CarPart::Fuel)
                .result();
        QCOMPARE(car.fuel.size(), 3);
        QCOMPARE(car.fuel[1].current, u"83000"_s);
        QCOMPARE(car.fuel[2].date, u"09/14/2026"_s);
    }
};

QTEST_APPLESS_MAIN(TestCarCsv)
#include "tst_carcsv.moc"
