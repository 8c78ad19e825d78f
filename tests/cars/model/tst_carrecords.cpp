// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carrecords.h"
#include "tests/support/recordsback.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime now(QDate(2026, 11, 22), QTime(12, 0));
const QByteArray emptied = "\" \"\r\n";
const QByteArray bus = "\"NEWW\"\r\n\"VIN 7\"\r\n";
const QByteArray busOiled = "\"NEWW\"\r\n\"VIN 7\"\r\n\"LUND 1\"\r\n";
const QByteArray van = "\"NEWW\"\r\n\"VIN 9\"\r\n";
const QByteArray oil = "\"84,210\"\r\n\"05/01/2026\"\r\n\"Oil\"\r\n\"30.00\"\r\n";

/// The list of cars; an empty name is a free slot.
QByteArray listOf(const QByteArrayList &names)
{
    QByteArray list;
    for (const QByteArray &name : names)
        list += QByteArray("\x64\0", 2) +
                (name.isEmpty() ? QByteArray(95, ' ') + "EMPTY" : padded(name, 100)) + QByteArray(48, '\0');
    return list.chopped(48);
}

} // namespace

class TestCarRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfCars_data()
    {
        rows<FolderFiles, QStringList>({
            {"a car",
             {{u"CarMnt1.Fil"_s, listOf({"", "Bus"})},
              {u"ACar2.Fil"_s, busOiled},
              {u"MCar2.Fil"_s, oil},
              {u"ACar1.Fil"_s, van}},
             {u"Bus"_s, u"VIN: VIN 7"_s, u"License No.: LUND 1"_s,
              u"Maintenance: 84,210, 05/01/2026, Oil, 30.00"_s}},
            {"two of a name",
             {{u"CarMnt1.Fil"_s, listOf({"Bus", "Bus"})}, {u"ACar1.Fil"_s, bus}, {u"ACar2.Fil"_s, van}},
             {u"Bus"_s, u"VIN: VIN 7"_s, u"Bus"_s, u"VIN: VIN 9"_s}},
            {"a list without the files", {{u"CarMnt1.Fil"_s, listOf({"Bus"}).left(40)}}, {u"Bus"_s}},
            {"noise", {{u"CarMnt1.Fil"_s, listOf({"Bus"})}, {u"ACar1.Fil"_s, noiseOf(900)}}, {u"Bus"_s}},
            {"no list", {{u"ACar1.Fil"_s, bus}}, {}},
        });
    }
    void tellsOfCars()
    {
        const auto [files, texts] = row<FolderFiles, QStringList>();
        putAll(*m_there, files);
        QCOMPARE(told(CarRecords(m_there->folder(), DateStyle::Other, now)), texts);
        QCOMPARE(filesOf(*m_there), files);
    }

    void bringsBack_data()
    {
        const FolderFiles there{{u"CarMnt1.Fil"_s, listOf({"Van", "Bus"})},
                                {u"ACar1.Fil"_s, van},
                                {u"ACar2.Fil"_s, bus},
                                {u"RCar2.Fil"_s, oil}};
        FolderFiles exchanged = there;
        exchanged[u"ACar2.Fil"_s] = busOiled;
        exchanged[u"MCar2.Fil"_s] = oil;
        FolderFiles exchangedBack = there;
        exchangedBack[u"MCar2.Fil"_s] = oil; // it came since
        const FolderFiles free{{u"CarMnt1.Fil"_s, listOf({"Van", ""})},
                               {u"ACar1.Fil"_s, van},
                               {u"ACar2.Fil"_s, emptied},
                               {u"RCar2.Fil"_s, emptied}};
        const FolderFiles another{
            {u"CarMnt1.Fil"_s, listOf({"Van", "Truck"})}, {u"ACar1.Fil"_s, van}, {u"ACar2.Fil"_s, van}};
        FolderFiles beside = another;
        beside[u"CarMnt1.Fil"_s] = listOf({"Van", "Truck", "Bus"});
        beside[u"ACar3.Fil"_s] = bus;
        beside[u"RCar3.Fil"_s] = oil;
        FolderFiles emptiedAgain = another;
        emptiedAgain[u"CarMnt1.Fil"_s] = listOf({"Van", "Truck", ""});
        emptiedAgain[u"ACar3.Fil"_s] = emptied;
        emptiedAgain[u"RCar3.Fil"_s] = emptied;
        using Undone = std::optional<FolderFiles>;
        rows<FolderFiles, FolderFiles, Undone>({
            {"into its own slot, which is free", free, there, Undone()},
            {"into a new one, since another has its own", another, beside, emptiedAgain},
            {"in place of what the car is now", exchanged, exchangedBack, Undone()},
        });
    }
    void bringsBack()
    {
        const auto [here, expected, undone] = row<FolderFiles, FolderFiles, std::optional<FolderFiles>>();
        putAll(*m_here, here);
        putAll(*m_there, {{u"CarMnt1.Fil"_s, listOf({"Van", "Bus"})},
                          {u"ACar1.Fil"_s, van},
                          {u"ACar2.Fil"_s, bus},
                          {u"RCar2.Fil"_s, oil}});
        CarRecords records(m_here->folder(), DateStyle::Other, now);
        bringBackAndForth(records, CarRecords(m_there->folder(), DateStyle::Other, now), {u"Bus"_s}, *m_here,
                          expected, undone);
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestCarRecords)
#include "tst_carrecords.moc"
