// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/cardates.h"
#include "cars/model/carfiles.h"
#include "cars/model/carneeds.h"
#include "shell/core/dates.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr DateStyle usa = DateStyle::Usa;
constexpr DateStyle other = DateStyle::Other;

QByteArray fillUp(const char *date)
{
    return '"' + QByteArray(date) + "\"\r\n\"1000\"\r\n\"1300\"\r\n\"300\"\r\n\"10\"\r\n\"30\"\r\n\"35\"\r\n";
}

QByteArray fillUps(const char *dates)
{
    QByteArray bytes;
    for (const QByteArray &date : QByteArray(dates).split('|'))
        bytes += fillUp(date);
    return bytes;
}

} // namespace

/// A car keeps the order of day and month that its files have, whoever opens it.
class TestCarDates : public QObject
{
    Q_OBJECT
private slots:
    void readsAndWritesInTheOrderOfTheFile_data()
    {
        rows<const char *, DateStyle, QString, const char *>({
            {"month first, read day first", "03/02/2026|11/20/2025", other, u"02/03/2026|20/11/2025"_s,
             "03/02/2026|11/20/2025|11/22/2026"},
            {"day first, read month first", "3.2.26|20-11-2025", usa, u"2.3.26|11-20-2025"_s,
             "3.2.26|20-11-2025|22/11/2026"},
            {"as the person has it", "03/02/2026|11/20/2025", usa, u"03/02/2026|11/20/2025"_s,
             "03/02/2026|11/20/2025|11/22/2026"},
            {"nothing tells", "03/02/2026", other, u"03/02/2026"_s, "03/02/2026|22/11/2026"},
            {"as many one way as the other", "11/20/2025|20/11/2025|03/02/2026", other,
             u"11/20/2025|20/11/2025|03/02/2026"_s, "11/20/2025|20/11/2025|03/02/2026|22/11/2026"},
            {"one among them the other way", "11/20/2025|11/21/2025|22/11/2025|1/30/2026", other,
             u"20/11/2025|21/11/2025|11/22/2025|30/1/2026"_s,
             "11/20/2025|11/21/2025|22/11/2025|1/30/2026|11/22/2026"},
            {"what has no order", "2026-03-02|Mar 2 2026|May|30/2026|13/14/2026| 1/20/26 ", other,
             u"2026-03-02|Mar 2 2026|May|30/2026|13/14/2026| 20/1/26 "_s,
             "2026-03-02|Mar 2 2026|May|30/2026|13/14/2026| 1/20/26 |11/22/2026"},
        });
    }

    void readsAndWritesInTheOrderOfTheFile()
    {
        const auto [stored, style, read, saved] = row<const char *, DateStyle, QString, const char *>();
        TestFolder test;
        test.put(u"CarMnt1.Fil"_s, "\x64" + QByteArray(1, '\0') + padded("Van", 100));
        test.put(u"GCar1.Fil"_s, fillUps(stored));
        CarFiles cars(test.folder(), style);
        const CarRecord before = cars.read(1).record;
        QStringList dates;
        for (const FuelRow &row : before.fuel)
            dates << row.date;
        QCOMPARE(dates.join(u'|'), read);
        CarRecord after = before;
        const QString today = Dates::numbers(QDate(2026, 11, 22), style);
        after.fuel.append({today, u"1000"_s, u"1300"_s, u"300"_s, u"10"_s, u"30"_s, u"35"_s});
        QVERIFY(cars.save(before, after));
        QCOMPARE(test.bytes(u"GCar1.Fil"_s), fillUps(saved));
        QCOMPARE(cars.read(1).record, after);
    }

    /// The same days for everybody, in the sheet, the schedule and the histories.
    void tellsTheSameDaysToEverybody()
    {
        const DataFolder household(householdPath());
        const QDate today(2026, 11, 22);
        const QList<CarRecord> american = CarFiles(household, usa).all();
        const QList<CarRecord> european = CarFiles(household, other).all();
        for (qsizetype i = 0; i < american.size(); ++i) {
            const DrivingLog log = CarNeeds::drivingLog(american[i], usa, today);
            const DrivingLog same = CarNeeds::drivingLog(european[i], other, today);
            QCOMPARE(same.readings(), log.readings());
            QCOMPARE(CarNeeds::of(european[i], same, other, today),
                     CarNeeds::of(american[i], log, usa, today));
        }
        QCOMPARE(european.first().sheet.field(VehicleSheet::InsuranceExpiration), u"30/09/2027"_s);
        QCOMPARE(european.first().sheet.actions[0].date, u"02/03/2026"_s);
    }

    void showsDatesInTheShortForm()
    {
        QCOMPARE(CarDates::shown(u"3-2-26"_s, other), u"03/02/2026"_s);
        QCOMPARE(CarDates::shown(u"Mar 2, 2026"_s, usa), u"03/02/2026"_s);
        QCOMPARE(CarDates::shown(u"spring"_s, usa), u"spring"_s);
    }
};

QTEST_APPLESS_MAIN(TestCarDates)
#include "tst_cardates.moc"
