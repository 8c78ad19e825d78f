// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carfiles.h"
#include "cars/model/messages.h"
#include "shell/core/reservednames.h"
#include "tests/support/failingdisk.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

namespace {

using Files = QMap<QString, QByteArray>;

const QDateTime now(QDate(2026, 11, 22), QTime(12, 0));
const QByteArray emptied = "\" \"\r\n"_ba;
const QByteArray freeRecord = QByteArray("\x64\x00", 2) + QByteArray(95, ' ') + "EMPTY";

/// What a person enters for a new car.
CarRecord newCar()
{
    CarRecord car;
    car.vehicle.name = u" Zoë's bus "_s;
    car.sheet.field(VehicleSheet::Model) = u"Bus"_s;
    car.sheet.field(VehicleSheet::Odometer) = u"84,210"_s;
    car.sheet.nameFirstActions();
    return car;
}

/// Its information file.
QByteArray newSheet(char unit)
{
    QByteArray bytes = "\"NEWW\"\r\n";
    for (int field = 1; field <= 20; ++field)
        bytes += "\"\"\r\n";
    bytes += "\"Bus\"\r\n\"84,210\"\r\n";
    for (int value = 0; value < 250; ++value)
        bytes += "\"\"\r\n";
    bytes += "\"Change Oil and Filter\"\r\n\"Rotate Tires\"\r\n\"Inspect Brake Linings\"\r\n"
             "\"Replace Air Filter\"\r\n\"Replace Coolant\"\r\n\"Replace Spark Plugs\"\r\n"
             "\"Replace Timing Belt\"\r\n";
    for (int action = 7; action < 50; ++action)
        bytes += "\"\"\r\n";
    return bytes + '"' + unit + "\"\r\n\"\"\r\n";
}

} // namespace

/// Cars are made, saved, deleted and brought back: the bytes of the folder.
class TestCarFiles : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
        const QDir household(householdPath());
        for (const QString &name : household.entryList({u"?Car?.Fil"_s, u"CARMNT1.FIL"_s}))
            m_test.put(name, contentOf(household.filePath(name)));
    }

    void makesTheFirstCar()
    {
        const TestFolder test;
        CarFiles cars(test.folder(), DateStyle::Usa);
        CarFiles::Placed made = cars.create(newCar(), now);
        QVERIFY(made.isDone);
        QCOMPARE(made.vehicle, (Vehicle{1, u"Zoë's bus"_s}));
        QCOMPARE(filesOf(test),
                 (Files{{u"CarMnt1.Fil"_s, "\x64" + QByteArray(1, '\0') + padded("Zo\xeb's bus", 100)},
                        {u"ACar1.Fil"_s, newSheet('0')},
                        {u"MCar1.Fil"_s, {}},
                        {u"RCar1.Fil"_s, {}}}));
        QCOMPARE(made.change.undo(test.folder()), ChangeResult::Done);
        QVERIFY(cars.vehicles().isEmpty());
        QCOMPARE(test.bytes(u"CarMnt1.Fil"_s), freeRecord);
        QCOMPARE(test.bytes(u"ACar1.Fil"_s), emptied);
    }

    /// With empty histories, whatever its files held, and in the unit of the other cars.
    void takesAFreeSlotAgain()
    {
        m_test.put(u"MCar2.Fil"_s, "\"1\"\r\n\"2\"\r\n\"a\"\r\n\"3\"\r\n");
        QVERIFY(m_cars.changeUnit(DistanceUnit::Kilometers));
        Files expected = filesOf(m_test);
        CarFiles::Placed made = m_cars.create(newCar(), now);
        QVERIFY(made.isDone);
        QCOMPARE(made.vehicle.slot, 2);
        expected[u"CARMNT1.FIL"_s].replace(152, 100, padded("Zo\xeb's bus", 100));
        expected[u"ACar2.Fil"_s] = newSheet('1');
        expected[u"MCar2.Fil"_s] = emptied;
        Files found = filesOf(m_test);
        QVERIFY(found.remove(Trash::fileName) == 1);
        QCOMPARE(found, expected);
        // What the history held is not lost.
        const CarFiles::Placed back = m_cars.bringBack(m_cars.deletedCars(now).front());
        QCOMPARE(m_cars.read(back.vehicle.slot).record.maintenance,
                 History({{u"1"_s, u"2"_s, u"a"_s, u"3"_s}}));
    }

    void refusesACarWithoutWhatItNeeds_data()
    {
        const QString odometer = u"84,210"_s;
        using Refusal = std::optional<Message>;
        rows<QString, QString, QString, Refusal>({
            {"all there", u"Van"_s, u"Ford"_s, odometer, {}},
            {"no name", u"  "_s, {}, {}, CarMessages::nameMissing()},
            {"the mark of a free slot", u" Empty nest"_s, {}, {}, CarMessages::nameReserved()},
            {"100 characters", QString(100, u'é'), u"Ford"_s, odometer, {}},
            {"101 characters", QString(101, u'é'), u"Ford"_s, odometer, CarMessages::nameTooLong()},
            {"a foreign letter", u"Škoda Ω"_s, u"Ford"_s, odometer, CarMessages::nameForeign(u"Ω"_s)},
            {"neither make nor model", u"Van"_s, u" "_s, {}, CarMessages::makeMissing()},
            {"no reading", u"Van"_s, u"Ford"_s, u" "_s, CarMessages::odometerMissing()},
            {"a reading of no number", u"Van"_s, u"Ford"_s, u"new"_s, CarMessages::odometerMissing()},
        });
    }

    void refusesACarWithoutWhatItNeeds()
    {
        const auto [name, make, odometer, refusal] = row<QString, QString, QString, std::optional<Message>>();
        CarRecord car;
        car.vehicle.name = name;
        car.sheet.field(VehicleSheet::Make) = make;
        car.sheet.field(VehicleSheet::Odometer) = odometer;
        QCOMPARE(CarFiles::whyNotCreated(car), refusal);
    }

    void savesOnlyWhatHasChanged()
    {
        Files expected = filesOf(m_test);
        const CarRecord before = m_cars.read(3).record;
        CarRecord after = before;
        after.sheet.field(VehicleSheet::Odometer) = u"120999"_s;
        after.maintenance.append({u"120900"_s, u"11/20/2026"_s, u"Change Oil and Filter"_s, u"49.90"_s});
        after.fuel.clear();
        std::optional<CarChange> change = m_cars.save(before, after);
        QVERIFY(change);
        expected[u"ACar3.Fil"_s].replace("\"120034\"", "\"120999\"");
        expected[u"MCar3.Fil"_s] +=
            "\"120900\"\r\n\"11/20/2026\"\r\n\"Change Oil and Filter\"\r\n\"49.90\"\r\n";
        expected[u"GCar3.Fil"_s] = emptied;
        QCOMPARE(filesOf(m_test), expected);
        // Somebody else has written since.
        m_test.put(u"GCar3.Fil"_s, "\"11/21/2026\"\r\n");
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Outdated);
        m_test.put(u"GCar3.Fil"_s, emptied);
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Done);
        QCOMPARE(m_cars.read(3).record, before);
        QCOMPARE(change->redo(m_test.folder()), ChangeResult::Done);
        QCOMPARE(filesOf(m_test), expected);
        QVERIFY(m_cars.remove(3, now));
        expectWarning("^Refused to save a car");
        QVERIFY(!m_cars.save(before, after));
    }

    void neverWritesOverWhatItCannotRead_data()
    {
        rows<QString, QByteArray>({{"a sheet of another kind", u"ACar3.Fil"_s, "\"OLD\"\r\n\"Ford\"\r\n"},
                                   {"a folder in the place of a history", u"MCar3.Fil"_s, {}}});
    }

    void neverWritesOverWhatItCannotRead()
    {
        const auto [name, bytes] = row<QString, QByteArray>();
        QVERIFY(QFile::remove(m_test.path(name)));
        if (bytes.isEmpty())
            QVERIFY(QDir(m_test.folder().path()).mkpath(name));
        else
            m_test.put(name, bytes);
        const Files before = filesOf(m_test);
        CarRecord after = m_cars.read(3).record;
        after.sheet.field(VehicleSheet::Odometer) = u"120999"_s;
        after.maintenance.append({u"120900"_s, {}, u"Wash"_s, {}});
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        QVERIFY(!m_cars.save(m_cars.read(3).record, after));
        QCOMPARE(filesOf(m_test), before);
    }

    void deletesACarAndBringsItBack_data() { rows<int>({{"the first", 1}, {"the third", 3}}); }

    void deletesACarAndBringsItBack()
    {
        const auto [slot] = row<int>();
        const Files before = filesOf(m_test);
        const CarRecord car = m_cars.read(slot).record;
        std::optional<CarChange> change = m_cars.remove(slot, now);
        QVERIFY(change);
        Files deleted = before;
        deleted[u"CARMNT1.FIL"_s].replace((slot - 1) * 150, 102, freeRecord);
        for (const QChar letter : u"AMRG"_s)
            deleted[letter + u"Car%1.Fil"_s.arg(slot)] = emptied;
        Files found = filesOf(m_test);
        QVERIFY(found.remove(Trash::fileName) == 1);
        QCOMPARE(found, deleted);

        // Into its own slot, byte for byte.
        const std::vector<Trash::Item> items = m_cars.deletedCars(now);
        QVERIFY(items.size() == 1 && items.front().title == car.vehicle.name);
        CarFiles::Placed back = m_cars.bringBack(items.front());
        QVERIFY(back.isDone);
        QCOMPARE(back.vehicle, car.vehicle);
        found = filesOf(m_test);
        found.remove(Trash::fileName);
        QCOMPARE(found, before);

        // Into another one where that is taken.
        QCOMPARE(back.change.undo(m_test.folder()), ChangeResult::Done);
        QVERIFY(slot == 3 || m_cars.create(newCar(), now).vehicle.slot == slot);
        QVERIFY(slot == 1 || (m_cars.create(newCar(), now).vehicle.slot == 2 &&
                              m_cars.create(newCar(), now).vehicle.slot == slot));
        back = m_cars.bringBack(m_cars.deletedCars(now).front());
        QVERIFY(back.isDone && back.vehicle.slot != slot && m_cars.deletedCars(now).empty());
        CarRecord there = m_cars.read(back.vehicle.slot).record;
        there.vehicle.slot = slot;
        QCOMPARE(there, car);
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Outdated);
    }

    void changesTheUnitOfAllCars()
    {
        Files expected = filesOf(m_test);
        std::optional<CarChange> change = m_cars.changeUnit(DistanceUnit::Kilometers);
        QVERIFY(change);
        for (const QString &name : {u"ACar1.Fil"_s, u"ACar3.Fil"_s, u"ACar4.Fil"_s})
            expected[name].replace(expected[name].size() - 9, 9, "\"1\"\r\n\"\"\r\n");
        QCOMPARE(filesOf(m_test), expected);
        QCOMPARE(m_cars.unit(), DistanceUnit::Kilometers);
        QCOMPARE(change->undo(m_test.folder()), ChangeResult::Done);
        QCOMPARE(m_cars.unit(), DistanceUnit::Miles);
        // A car that comes back counts as the others do.
        QVERIFY(m_cars.remove(1, now) && m_cars.changeUnit(DistanceUnit::Kilometers));
        QVERIFY(m_cars.bringBack(m_cars.deletedCars(now).front()).isDone);
        QCOMPARE(filesOf(m_test)[u"ACar1.Fil"_s], expected[u"ACar1.Fil"_s]);
    }

    void isOldOrNewAfterEveryFailure_data()
    {
        using Action = bool (*)(CarFiles &);
        rows<Action>({
            {"a car deleted", [](CarFiles &cars) { return cars.remove(1, now).has_value(); }},
            {"a car saved",
             [](CarFiles &cars) {
                 const CarRecord before = cars.read(4).record;
                 CarRecord after = before;
                 after.sheet.field(VehicleSheet::Odometer) = u"31000"_s;
                 after.maintenance.removeFirst();
                 after.repairs.clear();
                 after.fuel.removeLast();
                 return cars.save(before, after).has_value();
             }},
        });
    }

    void isOldOrNewAfterEveryFailure()
    {
        const auto [action] = row<bool (*)(CarFiles &)>();
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        failAtEachStep(
            m_test.folder(), [this] { init(); }, [this, action = action] { return action(m_cars); },
            [this] {
                Files files = filesOf(m_test);
                files.remove(ChangeSet::journalName);
                return files;
            });
    }

    /// No person's file may take them.
    void namesItsFiles()
    {
        for (const QString &name : {u"ACar1"_s, u"gcar12.FIL "_s, u"CarMnt1.Fil"_s})
            QVERIFY2(ReservedNames::isReserved(name), qPrintable(name));
        for (const QString &name : {u"McArthur"_s, u"ACar"_s, u"Car1"_s, u"A"_s, QString()})
            QVERIFY2(!ReservedNames::isReserved(name), qPrintable(name));
        const QStringList files = CarFiles::files(m_test.folder());
        QCOMPARE(files.size(), 17);
        QCOMPARE(files.mid(0, 6), (QStringList{u"CarMnt1.Fil"_s, u"ACar1.Fil"_s, u"MCar1.Fil"_s,
                                               u"RCar1.Fil"_s, u"GCar1.Fil"_s, u"ACar2.Fil"_s}));
        QVERIFY(CarFiles::files(TestFolder().folder()).isEmpty());

        CarRecord car = m_cars.read(3).record;
        car.sheet.field(VehicleSheet::Picture) = u"C:\\Cars\\saab.jpg"_s;
        QVERIFY(m_cars.save(m_cars.read(3).record, car));
        m_test.put(u"Saab.jpg"_s, "picture");
        const QStringList pictures = CarFiles::pictures(m_test.folder());
        QCOMPARE(pictures.size(), 1);
        QCOMPARE(spelt(pictures.first()), spelt(m_test.path(u"Saab.jpg"_s)));
    }

private:
    static Files filesOf(const TestFolder &test)
    {
        Files files;
        for (const QString &name : QDir(test.folder().path()).entryList(QDir::Files | QDir::Hidden))
            files[name] = test.bytes(name);
        return files;
    }

    TestFolder m_test;
    CarFiles m_cars{m_test.folder(), DateStyle::Usa};
};

QTEST_APPLESS_MAIN(TestCarFiles)
#include "tst_carfiles.moc"
