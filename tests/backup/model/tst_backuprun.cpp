// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backupoutlook.h"
#include "backup/model/backuprun.h"
#include "backup/model/sealedkey.h"
#include "backup/model/sealedreader.h"
#include "tests/backup/model/backuphousehold.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;
using End = BackupReport::End;
using Kind = DiskQuestion::Kind;

namespace {

BackupReport run(const BackupJob &job, DiskAsker &asker)
{
    return BackupRun(job, asker, {}).run();
}

/// The disks after the first, each when the next one is asked for.
ScriptedAsker::Answer nextDisks(const BackupHousehold &house)
{
    return [&house](const DiskQuestion &question) {
        return DiskAnswer{DiskAnswer::Action::UseFolder, house.disk(question.disk)};
    };
}

void fill(const BackupHousehold &house)
{
    house.put(u"Addbk1.Fil"_s, "Lind\0Holm"_ba + noiseOf(700));
    house.put(u" 2026.Cal"_s, noiseOf(5000));
    house.put(u"PCtrl1.Fil"_s, "guard");
    house.put(u"2026.Fil"_s, {});
    house.put(u"Quillery.trash"_s, "deleted");
    house.put(u"Pictures/Elm.jpg"_s, noiseOf(3000) + "elm");
    house.putElsewhere(u"Oak.JPG"_s, noiseOf(4000) + "oak");
    house.put(u"Quillery.lock"_s, "left out");
    house.put(u"Snapshots/2026-11-22.zip"_s, "left out");
}

} // namespace

/// A backup: what lies on the disks afterwards, and what happens when something goes wrong on the way.
class TestBackupRun : public QObject
{
    Q_OBJECT

private slots:
    void copiesEverything()
    {
        const BackupHousehold house;
        fill(house);
        if (!QFileInfo(house.path(u"addbk1.fil"_s)).exists()) {
            house.put(u"a:b\\c"_s, "not on every disk");
            house.put(u"odd\n:name"_s, "odd");
            house.put(u"NOTES.txt"_s, "two");
            house.put(u"notes.txt"_s, "one");
        }
        const Contents before = house.house();
        ScriptedAsker asker;
        BackupJob job = house.job();
        job.count = [](const QString &folder) {
            const int records = QFileInfo(folder + u"/Addbk1.Fil"_s).size() > 0 ? 40 : 0;
            return QList<BackupCount>{{u"AddressBook"_s, records}};
        };
        const BackupReport report = run(job, asker);
        QVERIFY(report.end == End::Complete && report.isNoted);
        QVERIFY(asker.asked.isEmpty());
        QCOMPARE(house.stored(1), house.wanted());
        QCOMPARE(house.house(), before);
        QVERIFY(sumsAgree(house.setFolder(1)));
        QCOMPARE(report.set.counts, (QList<BackupCount>{{u"AddressBook"_s, 40}}));
        QCOMPARE(DiskRecords::readSet(house.folder().path()), report.set);
        QCOMPARE(contentOf(house.setFolder(1) + u"/ 2026.Cal"_s), noiseOf(5000));
        QCOMPARE(QFileInfo(house.setFolder(1) + u"/ 2026.Cal"_s).lastModified(),
                 QFileInfo(house.path(u" 2026.Cal"_s)).lastModified());
        QCOMPARE(report.newPictures, 2);
    }

    void copiesPicturesOnce()
    {
        const BackupHousehold house;
        fill(house);
        ScriptedAsker asker;
        run(house.job(), asker);
        house.putElsewhere(u"Moved oak.jpg"_s, noiseOf(4000) + "oak");
        house.putElsewhere(u"Ash.jpg"_s, noiseOf(4000) + "ash");
        BackupJob job = house.job();
        job.begun = job.begun.addDays(1);
        const BackupReport report = run(job, asker);
        QVERIFY(report.knownPictures == 3 && report.newPictures == 1);
        QCOMPARE(house.stored(1), house.wanted());
        const QDir pictures(house.disk(1) + u"/Quillery Backup/Pictures"_s);
        QCOMPARE(pictures.entryList(QDir::Files).size(), 3);
        QVERIFY(sumsAgree(house.setFolder(1)));
    }

    void aPartIsNotTheLastBackup()
    {
        const BackupHousehold house;
        fill(house);
        ScriptedAsker asker;
        const QStringList part{u"AddressBook"_s};
        const auto backUp = [&](int day, bool isPart) {
            BackupJob job = house.job();
            job.begun = job.begun.addDays(day);
            if (isPart)
                job.items = house.holdings().only(part).items;
            const BackupReport report = run(job, asker);
            return report.end == End::Complete && report.isNoted ? report.set : SetRecord();
        };
        const auto noted = [&house] { return DiskRecords::readSet(house.folder().path()); };
        const SetRecord first = backUp(0, true);
        QCOMPARE(noted(), first);
        const SetRecord whole = backUp(1, false);
        QCOMPARE(noted(), whole);
        const SetRecord second = backUp(2, true);
        QCOMPARE(noted(), whole);
        QCOMPARE(DiskRecords::readSet(house.setFolder(1)), second);
        // What is gone from the household is missed in no backup.
        QVERIFY(QFile::remove(house.path(u"PCtrl1.Fil"_s)));
        const SetRecord last = backUp(3, false);
        QCOMPARE(noted(), last);
    }

    void goesOnWithTheNextDisk_data()
    {
        rows<int, int>({{"small disks", 20000, 3000},
                        {"a file larger than a disk", 20000, 50000},
                        {"disks that hardly take a file", 9000, 100},
                        {"a picture larger than a disk", 16000, 40000}});
    }
    void goesOnWithTheNextDisk()
    {
        const auto [room, largest] = row<int, int>();
        const BackupHousehold house;
        fill(house);
        house.put(u"Large.dat"_s, noiseOf(largest));
        house.putElsewhere(u"Large.jpg"_s, noiseOf(largest) + "x");
        ScriptedAsker asker({nextDisks(house)});
        BackupJob job = house.job(room);
        job.count = [](const QString &folder) {
            const QDir dir(folder);
            const qint64 size =
                QFileInfo(dir, u"Addbk1.Fil"_s).size() + QFileInfo(dir, u"Large.dat"_s).size();
            return QList<BackupCount>{{u"AddressBook"_s, int(size)}};
        };
        const BackupReport report = run(job, asker);
        QVERIFY(report.end == End::Complete && report.set.disks > 1);
        QCOMPARE(asker.asked.size(), report.set.disks - 1);
        QCOMPARE(house.stored(report.set.disks), house.wanted());
        QCOMPARE(report.set.counts, (QList<BackupCount>{{u"AddressBook"_s, 709 + largest}}));
        for (int disk = 1; disk <= report.set.disks; ++disk)
            QVERIFY(sumsAgree(house.setFolder(disk)));
    }

    void goesOnAfterEachFailure_data() { rows<bool>({{"as they are", false}, {"sealed", true}}); }
    void goesOnAfterEachFailure()
    {
        const auto [isSealed] = row<bool>();
        KeyDerivation derived = KeyDerivation::fresh(SecretBytes::ofText(u"elm"_s), PasswordCost::minimum());
        QVERIFY(derived.run());
        const auto key = std::make_shared<SealedKey>(SealedKey::fresh(derived));
        const auto jobOf = [&](const BackupHousehold &house) {
            BackupJob job = house.job(isSealed ? 60'000 : 15'000);
            job.seal = isSealed ? key : nullptr;
            return job;
        };
        int steps = 0;
        {
            const BackupHousehold house;
            fill(house);
            ScriptedAsker asker({nextDisks(house)});
            const FailingDisk disk(DiskFailure::OneStep, 0);
            QVERIFY(run(jobOf(house), asker).set.disks > 1);
            steps = disk.steps();
        }
        for (const DiskFailure failure : {DiskFailure::OneStep, DiskFailure::TheEnd}) {
            for (int refused = 1; refused <= steps; ++refused) {
                const BackupHousehold house;
                fill(house);
                const Contents before = house.house();
                const bool isEnd = failure == DiskFailure::TheEnd;
                const QByteArray step = "step " + QByteArray::number(refused) + (isEnd ? ", killed" : "");
                BackupReport report;
                BackupJob job = jobOf(house);
                {
                    const FailingDisk disk(failure, refused);
                    ScriptedAsker asker({[&](const DiskQuestion &question) {
                        if (isEnd)
                            return DiskAnswer{};
                        const bool isNext = question.kind == Kind::NextDisk;
                        return isNext ? nextDisks(house)(question) : ScriptedAsker::tryAgain(question);
                    }});
                    report = run(job, asker);
                }
                QVERIFY2(isEnd || report.end == End::Complete, step.constData());
                if (isEnd && report.end == End::Stopped) {
                    job.unfinished = DiskRecords::readSet(house.folder().path());
                    const int disk = job.unfinished ? job.unfinished->disks : 1;
                    job.folder = house.disk(isSealed ? 1 : disk);
                    ScriptedAsker asker({nextDisks(house)});
                    report = run(job, asker);
                }
                QVERIFY2(report.end == End::Complete, step.constData());
                QVERIFY2(isSealed || house.stored(report.set.disks) == house.wanted(), step.constData());
                for (int disk = 1; disk <= report.set.disks; ++disk)
                    QVERIFY2(sumsAgree(house.setFolder(disk)), step.constData());
                QVERIFY2(house.house() == before, step.constData());
            }
        }
    }

    void asksWhatToDo_data()
    {
        rows<Kind>({{"no disk is in yet", Kind::NextDisk},
                    {"a disk of this set is still in", Kind::WrongDisk},
                    {"nothing can be written", Kind::WriteProtected},
                    {"there is no room at all", Kind::NoRoom}});
    }
    void asksWhatToDo()
    {
        const auto [kind] = row<Kind>();
        const BackupHousehold house;
        fill(house);
        BackupJob job = house.job(15000);
        // Where nobody can make a file, not even root.
        const QString odd = kind == Kind::WriteProtected ? u"/proc"_s : house.path(u"../odd"_s);
        if (kind == Kind::WriteProtected && (!QFileInfo::exists(odd) || DataFolder(odd).isWritable()))
            QSKIP("nothing is write-protected here");
        // The second disk is the wrong one at first.
        const QString wrong = kind == Kind::WrongDisk ? house.disk(1) : odd;
        if (kind == Kind::NoRoom) {
            job.room->bytes = 2000;
            ScriptedAsker asker;
            QVERIFY(run(job, asker).end == End::Stopped);
            QVERIFY(asker.asked.constLast().kind == kind && house.setFolder(1).isEmpty());
            return;
        }
        ScriptedAsker asker({ScriptedAsker::use(wrong), nextDisks(house)});
        const BackupReport report = run(job, asker);
        QVERIFY(report.end == End::Complete);
        QVERIFY(asker.asked[1].kind == kind && asker.asked[1].disk == 2);
        QCOMPARE(asker.asked[1].foundNumber, kind == Kind::WrongDisk ? 1 : 0);
        QCOMPARE(house.stored(report.set.disks), house.wanted());
    }

    void beginsADiskAnewThatWasTakenOut()
    {
        // At each file in turn, the disk goes and comes back, empty or with what was on it.
        qsizetype questions = 0;
        for (const bool isEmptied : {false, true}) {
            for (int at = 1; at < 12; ++at) {
                const BackupHousehold house;
                fill(house);
                const QString away = house.disk(1) + u" away"_s;
                ScriptedAsker asker({[&](const DiskQuestion &question) {
                    if (question.kind != Kind::DiskGone)
                        return DiskAnswer{};
                    QDir().rmdir(house.disk(1));
                    if (isEmptied)
                        QDir(away).removeRecursively();
                    else
                        QDir().rename(away, house.path(u"../disk1"_s));
                    std::ignore = house.disk(1);
                    return ScriptedAsker::tryAgain(question);
                }});
                int steps = 0;
                Disk::setGate([&] {
                    if (++steps == at * 2)
                        QDir().rename(house.disk(1), away);
                    return true;
                });
                const BackupReport report = run(house.job(), asker);
                Disk::setGate({});
                QVERIFY(report.end == End::Complete && asker.asked.size() <= 1);
                QCOMPARE(house.stored(1), house.wanted());
                questions += asker.asked.size();
            }
        }
        QVERIFY(questions > 10);
    }

    void stopsAndGoesOn()
    {
        const BackupHousehold house;
        fill(house);
        house.put(u"Large.dat"_s, noiseOf(3'000'000));
        ScriptedAsker asker;
        BackupRun first(house.job(), asker, {});
        int steps = 0;
        Disk::setGate([&] {
            if (++steps == 15)
                first.stop();
            return true;
        });
        const BackupReport stopped = first.run();
        Disk::setGate({});
        QVERIFY(stopped.end == End::Stopped && asker.asked.isEmpty());
        const auto unfinished = DiskRecords::readSet(house.folder().path());
        QVERIFY(unfinished && !unfinished->ended.isValid());
        QVERIFY(!QFileInfo::exists(house.setFolder(1) + u"/DiskInfo.Abk"_s));
        BackupJob job = house.job();
        job.unfinished = unfinished;
        const BackupReport report = run(job, asker);
        QVERIFY(report.end == End::Complete && report.set.set == unfinished->set);
        QCOMPARE(house.stored(1), house.wanted());
        QVERIFY(sumsAgree(house.setFolder(1)));
    }

    void goesOnBehindAFinishedDisk()
    {
        const BackupHousehold house;
        fill(house);
        house.put(u"Large.dat"_s, noiseOf(40'000));
        BackupJob job = house.job(15'000);
        ScriptedAsker first({nextDisks(house), ScriptedAsker::stop});
        QVERIFY(run(job, first).end == End::Stopped && first.asked.constLast().disk == 3);
        const Contents finished = contentsIn(house.setFolder(2));
        // One file is another by now, of the same size and time.
        const QFileInfo guard(house.path(u"PCtrl1.Fil"_s));
        const QDateTime changed = guard.lastModified();
        house.put(u"PCtrl1.Fil"_s, "other");
        QFile file(guard.filePath());
        QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(changed, QFile::FileModificationTime));
        file.close();
        job.count = [](const QString &folder) {
            const QStringList names = QDir(folder).entryList(QDir::Files);
            return QList<BackupCount>{{names.join(u' '), int(names.size())}};
        };
        job.unfinished = DiskRecords::readSet(house.folder().path());
        job.folder = house.disk(3);
        ScriptedAsker second({nextDisks(house)});
        const BackupReport report = run(job, second);
        QVERIFY(report.end == End::Complete);
        QCOMPARE(DiskRecords::readDisk(house.setFolder(3))->number, 3);
        QCOMPARE(contentsIn(house.setFolder(2)), finished);
        QCOMPARE(house.stored(report.set.disks), house.wanted());
        QCOMPARE(report.set.counts,
                 (QList<BackupCount>{
                     {u" 2026.Cal 2026.Fil Addbk1.Fil Desk.conf Large.dat PCtrl1.Fil Quillery.trash"_s, 7}}));
    }

    void readsAgainWhatChanges()
    {
        const BackupHousehold house;
        fill(house);
        house.put(u"Busy.dat"_s, noiseOf(600'000));
        house.put(u"Always.dat"_s, noiseOf(600'000));
        const BackupJob job = house.job();
        QVERIFY(QFile::remove(house.path(u"2026.Fil"_s)));
        bool isChanged = false;
        int changes = 0;
        Disk::setGate([&] {
            QFile always(house.path(u"Always.dat"_s));
            if (always.open(QIODevice::ReadWrite) && always.size() < 620'000)
                always.write(QByteArray(1, char(++changes)));
            always.setFileTime(QDateTime::fromMSecsSinceEpoch(changes * 1000), QFile::FileModificationTime);
            if (const QFileInfo begun(house.setFolder(1) + u"/Busy.dat"_s); begun.size() > 0 && !isChanged) {
                isChanged = true;
                house.put(u"Busy.dat"_s, noiseOf(610'000));
            }
            return true;
        });
        ScriptedAsker asker;
        const BackupReport report = run(job, asker);
        Disk::setGate({});
        QVERIFY(report.end == End::Complete);
        QCOMPARE(report.changing, QStringList{u"Always.dat"_s});
        QCOMPARE(report.unread, QStringList{u"2026.Fil"_s});
        QCOMPARE(contentOf(house.setFolder(1) + u"/Busy.dat"_s), noiseOf(610'000));
        QVERIFY(sumsAgree(house.setFolder(1)));
    }

    void sealsEachDisk_data()
    {
        rows<int, qint64, int>({{"one disk", 5'000'000, DiskRoom().largestFile, 1},
                                {"several disks", 150'000, DiskRoom().largestFile, 2},
                                {"a disk of short files", 5'000'000, 150'000, 2}});
    }
    void sealsEachDisk()
    {
        const auto [room, largest, least] = row<int, qint64, int>();
        const BackupHousehold house;
        fill(house);
        house.put(u"Large.dat"_s, noiseOf(200'000));
        BackupJob job = house.job();
        job.room = DiskRoom{room, 512, largest};
        const auto outlook =
            BackupOutlook::of(job.items, job.household, job.folder, job.room, BackupOutlook::Form::Sealed);
        KeyDerivation derived = KeyDerivation::fresh(SecretBytes::ofText(u"elm"_s), PasswordCost::minimum());
        QVERIFY(derived.run());
        job.seal = std::make_shared<SealedKey>(SealedKey::fresh(derived));
        ScriptedAsker asker({nextDisks(house)});
        const BackupReport report = run(job, asker);
        QVERIFY(report.end == End::Complete && report.set.isSealed && report.set.disks >= least);
        QCOMPARE(outlook.plan.disks.size(), report.set.disks);
        Contents all;
        for (int number = 1; number <= report.set.disks; ++number) {
            const QDir folder(house.setFolder(number));
            const bool isLast = number == report.set.disks;
            QCOMPARE(folder.entryList(QDir::Files).size(), isLast ? 4 : 3);
            QVERIFY(sumsAgree(folder.path()));
            QVERIFY(DiskRecords::readDisk(folder.path())->parts.isEmpty());
            QFile file(folder.filePath(u"Quillery.sealed"_s));
            QVERIFY(file.size() <= largest);
            QVERIFY(file.open(QIODevice::ReadOnly) && !file.readAll().contains("Lind"));
            QVERIFY(file.seek(SealedKey::recordLength));
            SealedReader reader(*job.seal, report.set.set, number,
                                [&file](char *bytes, qint64 size) { return file.read(bytes, size); });
            QList<QByteArray> members;
            while (reader.next()) {
                members.append(QByteArray());
                QVERIFY(reader.readAll(
                    [&](QByteArrayView bytes) { return !members.last().append(bytes).isNull(); }));
            }
            QVERIFY(reader.state() == SealedReader::State::Complete);
            const auto disk = DiskRecords::diskRecord(members[members.size() - (isLast ? 2 : 1)]);
            QVERIFY(disk && disk->number == number);
            for (qsizetype i = 0; i < disk->parts.size(); ++i)
                all[disk->parts[i].name] += members[i];
            if (isLast)
                QCOMPARE(DiskRecords::setRecord(members.last())->files, report.set.files);
        }
        QCOMPARE(all, house.wanted());
        QVERIFY(DiskRecords::readSet(house.setFolder(report.set.disks))->files.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestBackupRun)
#include "tst_backuprun.moc"
