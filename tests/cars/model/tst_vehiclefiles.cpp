// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carfiles.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace {

using State = VehicleFiles::State;

/// A record of the list as a file has it.
QByteArray listed(const QByteArray &text)
{
    QByteArray record = QByteArray("\x64\x00", 2) + padded(text, 100);
    return record + QByteArray(48, '\0');
}

template <typename Row, std::size_t Count>
QJsonArray cells(const QList<Row> &rows, const std::array<QString Row::*, Count> &columns)
{
    QJsonArray all;
    for (const Row &row : rows) {
        QJsonArray cells;
        for (QString Row::*column : columns)
            cells.append(row.*column);
        all.append(cells);
    }
    return all;
}

QJsonArray schedule(const VehicleSheet &sheet)
{
    QJsonArray all;
    for (const ScheduledAction &action : sheet.actions) {
        if (!action.isEmpty())
            all.append(QJsonArray{action.name, action.distance, action.months, action.odometer, action.date,
                                  action.cost});
    }
    return all;
}

} // namespace

/// The list of cars and the files of each.
class TestVehicleFiles : public QObject
{
    Q_OBJECT
private slots:
    void readsTheHousehold()
    {
        const DataFolder folder(householdPath());
        const CarFiles cars(folder, DateStyle::Usa);
        const QJsonObject expected = expectedOf(u"vehicles"_s);
        QJsonArray names;
        for (const Vehicle &vehicle : cars.vehicles()) {
            names.append(vehicle.name);
            const QJsonObject car =
                expected[u"vehicles"_s].toObject()[QString::number(vehicle.slot)].toObject();
            const CarRecord record = cars.read(vehicle.slot).record;
            QCOMPARE(record.vehicle.name, car[u"name"_s].toString());
            QCOMPARE(QJsonArray::fromStringList({record.sheet.fields.begin(), record.sheet.fields.end()}),
                     car[u"fields"_s].toArray());
            QCOMPARE(schedule(record.sheet), car[u"schedule"_s].toArray());
            QCOMPARE(cells(record.maintenance, historyColumns), car[u"maintenance"_s].toArray());
            QCOMPARE(cells(record.repairs, historyColumns), car[u"repairs"_s].toArray());
            QCOMPARE(cells(record.fuel, fuelColumns), car[u"fuel"_s].toArray());
        }
        QCOMPARE(names, expected[u"selector"_s].toArray());
        QCOMPARE(VehicleList(folder).freeSlot(), expected[u"next_slot"_s].toInt());
        QCOMPARE(cars.unit(), DistanceUnit::Miles);
    }

    /// Byte for byte.
    void writesWhatWasRead()
    {
        const DataFolder folder(householdPath());
        const VehicleFiles files(folder);
        for (const int slot : {1, 3, 4}) {
            const auto bytes = [slot](CarPart part) {
                return contentOf(householdPath(VehicleFiles::fileName(part, slot)));
            };
            QCOMPARE(VehicleFiles::encode(files.readSheet(slot).value), bytes(CarPart::Sheet));
            for (const CarPart part : {CarPart::Maintenance, CarPart::Repairs})
                QCOMPARE(VehicleFiles::encode(files.readHistory(part, slot).value), bytes(part));
            QCOMPARE(VehicleFiles::encode(files.readFuel(slot).value), bytes(CarPart::Fuel));
        }
        QCOMPARE(VehicleFiles::emptied(), contentOf(householdPath(u"MCar2.Fil"_s)));
    }

    void readsARecordOfTheList_data()
    {
        rows<QByteArray, QString>({
            {"a name", listed("Van"), u"Van"_s},
            {"blanks before it", listed("  Van"), u"Van"_s},
            {"free", listed(QByteArray(95, ' ') + "EMPTY"), {}},
            {"free, however it is written", listed("empty shell"), {}},
            {"a hole", QByteArray(150, '\0'), {}},
            {"a length of 0", QByteArray("\0\0Van", 5), {}},
            {"shorter than it says", QByteArray("\x64\0Va", 4), u"Va"_s},
            {"a length of its own", QByteArray("\x03\0Vanguard", 10), u"Van"_s},
            {"a length beyond the record", "\xff\xff" + padded("Van", 148), u"Van"_s},
            {"a single byte", "\x64", {}},
            {"nothing", "", {}},
        });
    }

    void readsARecordOfTheList()
    {
        const auto [record, name] = row<QByteArray, QString>();
        QCOMPARE(VehicleList::decode(record), name);
    }

    void takesTheFirstFreeSlot_data()
    {
        const QByteArray free = listed(QByteArray(95, ' ') + "EMPTY");
        rows<QByteArray, int>({
            {"no list", {}, 1},
            {"one behind the last", listed("Van") + listed("Saab"), 3},
            {"behind a short last record", listed("Van") + listed("Saab").left(102), 3},
            {"one that is free", listed("Van") + free + listed("Saab") + free, 2},
            {"a hole", QByteArray(150, '\0') + listed("Van"), 1},
        });
    }

    void takesTheFirstFreeSlot()
    {
        const auto [bytes, slot] = row<QByteArray, int>();
        const TestFolder test;
        if (!bytes.isEmpty())
            test.put(u"CARMNT1.FIL"_s, bytes);
        QCOMPARE(VehicleList(test.folder()).freeSlot(), slot);
    }

    void writesRecordsOfTheList()
    {
        QCOMPARE(VehicleList::encode(u" Zoë's car "_s), listed("Zo\xeb's car").left(102));
        QCOMPARE(VehicleList::encode({}), listed(QByteArray(95, ' ') + "EMPTY").left(102));
    }

    void readsASheetAsFarAsItGoes_data()
    {
        const QByteArray whole = contentOf(householdPath(u"ACar1.Fil"_s));
        rows<QByteArray, State, QString, QString>({
            {"whole", whole, State::Whole, u"Toyota"_s, u"5000"_s},
            {"values behind the last", whole + "\"more\"\r\n", State::Whole, u"Toyota"_s, u"5000"_s},
            {"cut behind the make", whole.left(whole.indexOf("\"Sienna")), State::Cut, u"Toyota"_s, {}},
            {"the marker alone", "\"NEWW\"", State::Cut, {}, {}},
            {"emptied", "\" \"\r\n", State::Empty, {}, {}},
            {"no bytes", "", State::Empty, {}, {}},
            {"without the marker", whole.sliced(8), State::Foreign, {}, {}},
            {"noise", noiseOf(2000), State::Foreign, {}, {}},
        });
    }

    void readsASheetAsFarAsItGoes()
    {
        const auto [bytes, state, make, distance] = row<QByteArray, State, QString, QString>();
        const VehicleFiles::Found<VehicleSheet> found = VehicleFiles::decodeSheet(bytes);
        QCOMPARE(found.state, state);
        QCOMPARE(found.value.field(VehicleSheet::Make), make);
        QCOMPARE(found.value.actions[0].distance, distance);
        if (state == State::Whole)
            QCOMPARE(VehicleFiles::encode(found.value), bytes);
    }

    /// The unit, and what nobody knows the meaning of.
    void keepsTheClosingValues()
    {
        QByteArray bytes = contentOf(householdPath(u"ACar1.Fil"_s));
        bytes.chop(QByteArray("\"0\"\r\n\"\"\r\n").size());
        bytes += "\"1\"\r\n\"7 b\"\r\n";
        const VehicleSheet sheet = VehicleFiles::decodeSheet(bytes).value;
        QCOMPARE(sheet.unit, DistanceUnit::Kilometers);
        QCOMPARE(sheet.ownValue, u"7 b"_s);
        QCOMPARE(VehicleFiles::encode(sheet), bytes);
    }

    void countsTheColumnsOfRows_data()
    {
        rows<QByteArray, State, History>({
            {"one row",
             "\"1\"\r\n\"2\"\r\n\"a\"\r\n\"3\"\r\n",
             State::Whole,
             {{u"1"_s, u"2"_s, u"a"_s, u"3"_s}}},
            {"separated by commas", "1,2,\"a, b\",3", State::Whole, {{u"1"_s, u"2"_s, u"a, b"_s, u"3"_s}}},
            {"the last one cut",
             "\"1\"\r\n\"2\"\r\n\"a\"\r\n\"3\"\r\n\"4\"\r\n\"5",
             State::Whole,
             {{u"1"_s, u"2"_s, u"a"_s, u"3"_s}, {u"4"_s, u"5"_s, {}, {}}}},
            {"emptied", "\" \"\r\n", State::Empty, {}},
            {"no bytes", "", State::Empty, {}},
        });
    }

    void countsTheColumnsOfRows()
    {
        const auto [bytes, state, history] = row<QByteArray, State, History>();
        const VehicleFiles::Found<History> found = VehicleFiles::decodeHistory(bytes);
        QCOMPARE(found.state, state);
        QCOMPARE(found.value, history);
        QCOMPARE(VehicleFiles::decodeHistory(VehicleFiles::encode(history)).value, history);
    }

    void seesWhatIsMissingAndOutOfReach()
    {
        const TestFolder test;
        QVERIFY(QDir(test.folder().path()).mkpath(u"RCar1.Fil"_s));
        test.put(u"GCAR1.FIL"_s, "\"01/05/2026\"\r\n");
        const CarFiles::Found found = CarFiles(test.folder(), DateStyle::Usa).read(1);
        QCOMPARE(found.state(CarPart::Sheet), State::Missing);
        QCOMPARE(found.state(CarPart::Repairs), State::OutOfReach);
        QVERIFY(found.mayBeWritten(CarPart::Sheet) && !found.mayBeWritten(CarPart::Repairs));
        QCOMPARE(found.record.fuel, FuelLog({{u"01/05/2026"_s, {}, {}, {}, {}, {}, {}}}));
    }
};

QTEST_APPLESS_MAIN(TestVehicleFiles)
#include "tst_vehiclefiles.moc"
