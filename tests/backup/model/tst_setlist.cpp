// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backupoutlook.h"
#include "backup/model/drives.h"
#include "backup/model/setlist.h"
#include "tests/backup/model/backuphousehold.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void backUp(const BackupHousehold &house, int day)
{
    BackupJob job = house.job();
    job.begun = QDateTime({2026, 11, day}, {12, 0}, Qt::UTC);
    ScriptedAsker asker;
    QVERIFY(BackupRun(job, asker, {}).run().end == BackupReport::End::Complete);
}

QList<int> days(const QList<BackupSet> &sets)
{
    QList<int> days;
    for (const BackupSet &set : sets)
        days.append(set.begun().date().day());
    return days;
}

} // namespace

/// The sets on a drive: which there are, which may be deleted, and what goes with one.
class TestSetList : public QObject
{
    Q_OBJECT

private slots:
    void findsThem()
    {
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, "12345");
        for (const int day : {9, 1, 5})
            backUp(house, day);
        QVERIFY(QDir(house.disk(1) + u"/Quillery Backup"_s).mkpath(u"Holiday"_s));
        const QList<BackupSet> sets = SetList::on(house.disk(1));
        QCOMPARE(days(sets), (QList<int>{9, 5, 1}));
        QVERIFY(sets[0].isComplete() && sets[0].record->drive == u"SILVER"_s && sets[0].bytes > 5);
        QCOMPARE(SetList::last(house.disk(1))->begun().date().day(), 9);
        QVERIFY(!SetList::last(house.disk(2)));
    }

    void knowsTheDisksOfTheLastBackup()
    {
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(20'000));
        ScriptedAsker asker({[&house](const DiskQuestion &question) {
            return DiskAnswer{DiskAnswer::Action::UseFolder, house.disk(question.disk)};
        }});
        const int disks = BackupRun(house.job(15'000), asker, {}).run().set.disks;
        std::optional<SetRecord> last = DiskRecords::readSet(house.folder().path());
        QVERIFY(disks > 1 && last);
        QCOMPARE(SetList::on(house.disk(1), last)[0].disks, disks);
        QVERIFY(!SetList::on(house.disk(1), last)[0].isComplete());
        QCOMPARE(SetList::on(house.disk(disks))[0].disks, disks);
        QCOMPARE(SetList::on(house.disk(1))[0].disks, 0);
        last->ended = {};
        QCOMPARE(SetList::on(house.disk(1), last)[0].disks, 0);
    }

    void offersTheOldest()
    {
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, "12345");
        for (const int day : {1, 5, 9})
            backUp(house, day);
        const auto last = DiskRecords::readSet(house.folder().path());
        QCOMPARE(days(SetList::deletable(SetList::on(house.disk(1)), last)), (QList<int>{1, 5}));
        // The last backup is on another drive, or is not finished: then the newest here stays all the same.
        QCOMPARE(days(SetList::deletable(SetList::on(house.disk(1)), {})), (QList<int>{1, 5}));
        // What is not finished may go only when a later one is complete.
        QVERIFY(QFile::remove(SetList::on(house.disk(1))[1].folder + u"/DiskInfo.Abk"_s));
        QCOMPARE(days(SetList::deletable(SetList::on(house.disk(1)), last)), (QList<int>{1, 5}));
        SetRecord running = *last;
        running.ended = {};
        QCOMPARE(days(SetList::deletable(SetList::on(house.disk(1)), running)), (QList<int>{1}));
    }

    void deletesWithItsPictures()
    {
        const BackupHousehold house;
        house.putElsewhere(u"Oak.jpg"_s, "oak");
        house.putElsewhere(u"Elm.jpg"_s, "elm");
        backUp(house, 1);
        QVERIFY(QFile::remove(house.elsewhere(u"Oak.jpg"_s)));
        backUp(house, 5);
        const auto last = DiskRecords::readSet(house.folder().path());
        const QList<BackupSet> sets = SetList::on(house.disk(1));
        expectWarning("^Not deleted");
        QVERIFY(!SetList::remove(sets[0], last));
        QVERIFY(SetList::remove(sets[1], last));
        QCOMPARE(days(SetList::on(house.disk(1))), QList<int>{5});
        QCOMPARE(house.stored(1), house.wanted());
        QCOMPARE(QDir(house.disk(1) + u"/Quillery Backup/Pictures"_s).entryList(QDir::Files).size(), 1);
    }

    void saysBeforeWhatGoesWhere()
    {
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(3000));
        house.putElsewhere(u"Oak.jpg"_s, noiseOf(4000));
        const auto outlook = [&house](qint64 room) {
            return BackupOutlook::of(house.holdings().items, house.folder(), house.disk(1),
                                     DiskRoom{room, 512});
        };
        QCOMPARE(outlook(100'000).plan.disks.size(), 1);
        QCOMPARE(outlook(100'000).newPictures, 1);
        QCOMPARE(outlook(9000).plan.disks.size(), 2);
        backUp(house, 1);
        QCOMPARE(outlook(100'000).knownPictures, 1);
        QCOMPARE(outlook(100'000).plan.bytes(), 3007);
        // Under another name, only reading tells that the drive has it.
        house.putElsewhere(u"Moved oak.jpg"_s, noiseOf(4000));
        house.putElsewhere(u"Ash.jpg"_s, noiseOf(4001));
        const BackupOutlook moved = outlook(100'000);
        QVERIFY(moved.knownPictures == 1 && moved.newPictures == 2 && moved.perhapsPictures == 1);
    }

    void refusesTheHouseholdsOwnFolder_data()
    {
        rows<QString, bool>({{"itself", u"house"_s, true},
                             {"in it", u"house/Pictures/new"_s, true},
                             {"by another way", u"house/../house/x"_s, true},
                             {"by a link", u"link/x"_s, true},
                             {"beside it", u"house 2"_s, false},
                             {"above it", u"."_s, false}});
    }
    void refusesTheHouseholdsOwnFolder()
    {
        const auto [folder, isOwn] = row<QString, bool>();
        const BackupHousehold house;
        QFile::link(house.folder().path(), house.path(u"../link"_s));
        QCOMPARE(Drives::isOwn(house.path(u"../"_s + folder), {house.folder().path()}), isOwn);
    }
};

QTEST_GUILESS_MAIN(TestSetList)
#include "tst_setlist.moc"
