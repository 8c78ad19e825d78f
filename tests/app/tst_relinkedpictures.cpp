// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressbook.h"
#include "addressbook/model/addressholdings.h"
#include "calendar/model/calendarfiles.h"
#include "calendar/model/calendarholdings.h"
#include "cars/model/carfiles.h"
#include "cars/model/carpictures.h"
#include "journal/model/journalholdings.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"
#include "weight/model/personfiles.h"
#include "weight/model/weightpictures.h"

using namespace Qt::Literals::StringLiterals;

/// Pictures of records, when their files have been moved.
class TestRelinkedPictures : public QObject
{
    Q_OBJECT

    /// A function with a record that names a picture, and what it tells of it.
    struct Told {
        void (*name)(const DataFolder &folder, const QString &picture);
        QStringList (*missing)(const DataFolder &folder);
        QStringList (*there)(const DataFolder &folder);
        std::optional<UndoStep> (*relink)(const DataFolder &folder, const QHash<QString, QString> &files);
    };

    static void nameInAddressBook(const DataFolder &folder, const QString &picture)
    {
        AddressEntry entry;
        entry[LastName] = u"Lind"_s;
        entry.picture = picture;
        QVERIFY(AddressBook(folder).saveNew(entry).isSaved);
    }
    static void nameInCars(const DataFolder &folder, const QString &picture)
    {
        CarRecord car;
        car.vehicle.name = u"Family Car"_s;
        car.sheet.field(VehicleSheet::Make) = u"Volvo"_s;
        car.sheet.field(VehicleSheet::Model) = u"V70"_s;
        car.sheet.field(VehicleSheet::Odometer) = u"1000"_s;
        car.sheet.field(VehicleSheet::Picture) = picture;
        const QDateTime now(QDate(2026, 11, 23), QTime(12, 0));
        QVERIFY(CarFiles(folder, DateStyle::Usa).create(car, now).isDone);
    }
    static void nameInWeight(const DataFolder &folder, const QString &picture)
    {
        WeightSheet sheet;
        sheet.field(WeightSheet::Name) = u"Anne"_s;
        sheet.currentPicture = picture;
        QVERIFY(PersonFiles(folder).create(sheet));
    }
    static void nameInCalendar(const DataFolder &folder, const QString &picture)
    {
        WallCalendar calendar;
        calendar.title = u"Family"_s;
        calendar.from = QDate(2027, 1, 1);
        calendar.photos.insert(QDate(2027, 3, 1), {picture, u"Anne"_s});
        QVERIFY(CalendarFiles::create(folder, calendar) > 0);
    }
    static void nameInJournal(const DataFolder &folder, const QString &picture)
    {
        const QByteArray line = "picture " + picture.toUtf8() + " | Anne\r\n\r\nSun.\r\n[picture 1]\r\n";
        QFile file(folder.filePath(u"DJour2026.Fil"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("Quillery journal 1\r\n=== 2026-05-02\r\nmood 3\r\n" + line);
        file.write("=== 2026-05-02 earlier\r\n" + line);
    }
    static std::optional<UndoStep> relinkCars(const DataFolder &folder, const QHash<QString, QString> &files)
    {
        return CarPictures::relink(folder, DateStyle::Usa, files);
    }

private slots:
    void recordsNameThemWhereTheyAreNow_data()
    {
        rows<Told>(
            {{"address book",
              {nameInAddressBook, AddressHoldings::missingPictures, AddressHoldings::pictures,
               AddressHoldings::relinkPictures}},
             {"cars", {nameInCars, CarPictures::missing, CarFiles::pictures, relinkCars}},
             {"calendars",
              {nameInCalendar, CalendarHoldings::missingPictures, CalendarHoldings::pictures,
               CalendarHoldings::relinkPictures}},
             {"journal",
              {nameInJournal, JournalHoldings::missingPictures, JournalHoldings::pictures,
               JournalHoldings::relinkPictures}},
             {"weight",
              {nameInWeight, WeightPictures::missing, PersonFiles::pictures, WeightPictures::relink}}});
    }
    void recordsNameThemWhereTheyAreNow()
    {
        const auto [told] = row<Told>();
        const TestFolder data;
        const DataFolder &folder = data.folder();
        const QTemporaryDir elsewhere;
        const QString old = u"C:\\Old\\Anne.jpg"_s;
        const QString now = makePicture(elsewhere.filePath(u"Anne here.jpg"_s), {16, 12});
        const QString asStored = QDir::toNativeSeparators(now);
        told.name(folder, old);
        QCOMPARE(told.missing(folder), QStringList{old});
        {
            const FailingDisk disk(DiskFailure::OneStep, 1);
            QVERIFY(!told.relink(folder, {{old, now}}));
        }
        QCOMPARE(told.missing(folder), QStringList{old});
        const auto nothing = told.relink(folder, {{u"other.jpg"_s, now}});
        QVERIFY(nothing && !nothing->undo);

        const auto step = told.relink(folder, {{old, now}});
        QVERIFY(step && step->undo);
        QCOMPARE(told.missing(folder), QStringList());
        QCOMPARE(told.there(folder), QStringList{asStored});
        QCOMPARE(step->undo(), ChangeResult::Done);
        QCOMPARE(told.missing(folder), QStringList{old});
        QCOMPARE(step->redo(), ChangeResult::Done);
        QCOMPARE(told.there(folder), QStringList{asStored});
    }
};

QTEST_GUILESS_MAIN(TestRelinkedPictures)
#include "tst_relinkedpictures.moc"
