// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sealedkey.h"
#include "backup/model/setcheck.h"
#include "tests/backup/model/backuphousehold.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;
using Kind = DiskQuestion::Kind;

namespace {

ScriptedAsker::Answer nextDisks(const BackupHousehold &house)
{
    return [&house](const DiskQuestion &question) {
        return DiskAnswer{DiskAnswer::Action::UseFolder, house.disk(question.disk)};
    };
}

SetCheck::Job checkOf(const BackupHousehold &house, int last)
{
    SetCheck::Job job;
    job.drive = house.disk(last);
    job.folder = house.setFolder(last);
    job.household = house.folder();
    job.now = [] { return QDateTime({2027, 3, 1}, {8, 0}, Qt::UTC); };
    return job;
}

} // namespace

/// "Test This Backup": what was damaged since is named.
class TestSetCheck : public QObject
{
    Q_OBJECT

private slots:
    void names_data()
    {
        // Which file of the disk is changed, at which byte; what the test names.
        rows<QString, int, QStringList>({{"nothing", {}, 0, {}},
                                         {"a byte", u"Addbk1.Fil"_s, 350, {u"Addbk1.Fil"_s}},
                                         {"a file that is gone", u"Addbk1.Fil"_s, -1, {u"Addbk1.Fil"_s}},
                                         {"an empty file that is gone", u"2026.Fil"_s, -1, {u"2026.Fil"_s}},
                                         {"a picture", u"*.jpg"_s, 20, {u"Pictures/Elm.jpg"_s}}});
    }
    void names()
    {
        const auto [file, at, damaged] = row<QString, int, QStringList>();
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(700));
        house.put(u"2026.Fil"_s, {});
        house.put(u"Pictures/Elm.jpg"_s, noiseOf(300));
        ScriptedAsker asker;
        BackupRun(house.job(), asker, {}).run();
        if (!file.isEmpty()) {
            const QDir folder(file == "*.jpg"_L1 ? house.disk(1) + u"/Quillery Backup/Pictures"_s
                                                 : house.setFolder(1));
            const QString path = folder.filePath(folder.entryList({file}, QDir::Files).constFirst());
            QByteArray content = contentOf(path);
            QVERIFY(QFile::remove(path));
            if (at >= 0) {
                content[at] = char(content[at] ^ 1);
                QVERIFY(makeFile(path, content));
            }
        }
        const CheckReport report = SetCheck(checkOf(house, 1), asker, {}).run();
        QVERIFY(report.end == CheckReport::End::Complete && asker.asked.isEmpty());
        QCOMPARE(report.damaged, damaged);
        QCOMPARE(report.files, 4 - damaged.size());
        // Only a test that finds all as it was counts as one.
        const auto noted = DiskRecords::readSet(house.folder().path());
        QVERIFY(noted);
        QCOMPARE(noted->tested.isValid(), damaged.isEmpty());
        QCOMPARE(DiskRecords::readSet(house.setFolder(1)), noted);
    }

    void namesASealedFilePlainly_data()
    {
        rows<qint64, QString>({{"of one disk", 0, u"Quillery.sealed"_s},
                               {"of several", 60'000, u"Quillery.sealed on disk 1"_s}});
    }
    void namesASealedFilePlainly()
    {
        const auto [room, name] = row<qint64, QString>();
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(50'000));
        BackupJob job = house.job(room);
        KeyDerivation derived = KeyDerivation::fresh(SecretBytes::ofText(u"elm"_s), PasswordCost::minimum());
        QVERIFY(derived.run());
        job.seal = std::make_shared<SealedKey>(SealedKey::fresh(derived));
        ScriptedAsker asker({nextDisks(house)});
        const int disks = BackupRun(job, asker, {}).run().set.disks;
        QVERIFY(disks > (room > 0 ? 1 : 0));
        const QString path = house.setFolder(1) + u"/Quillery.sealed"_s;
        QVERIFY(makeFile(path, contentOf(path) + "x"));
        const CheckReport report = SetCheck(checkOf(house, disks), asker, {}).run();
        QCOMPARE(report.damaged, QStringList{name});
    }

    void isMendedByTheNextBackup()
    {
        const BackupHousehold house;
        house.putElsewhere(u"Elm.jpg"_s, noiseOf(300));
        ScriptedAsker asker;
        BackupRun(house.job(), asker, {}).run();
        const QString first = house.setFolder(1);
        const QDir pictures(house.disk(1) + u"/Quillery Backup/Pictures"_s);
        const QStringList names = pictures.entryList(QDir::Files);
        QVERIFY(names.size() == 1 && QFile::remove(pictures.filePath(names[0])));
        QVERIFY(makeFile(pictures.filePath(names[0]), QByteArray(300, 'x')));
        QVERIFY(!SetCheck(checkOf(house, 1), asker, {}).run().isWhole());
        QVERIFY(QFile::rename(house.elsewhere(u"Elm.jpg"_s), house.elsewhere(u"Ash.jpg"_s)));
        BackupJob next = house.job();
        next.begun = next.begun.addDays(1);
        QVERIFY(BackupRun(next, asker, {}).run().end == BackupReport::End::Complete);
        QVERIFY(SetCheck(checkOf(house, 1), asker, {}).run().isWhole());
        // Those of before are whole again as well, and nothing is left of the damaged one.
        QVERIFY(sumsAgree(first) && sumsAgree(house.setFolder(1)));
        QCOMPARE(pictures.entryList(QDir::Files), names);
    }

    void asksForTheOtherDisks()
    {
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(7000));
        house.put(u"Large.dat"_s, noiseOf(30000));
        ScriptedAsker asker({nextDisks(house)});
        const int last = BackupRun(house.job(15000), asker, {}).run().set.disks;
        QVERIFY(last >= 3);
        ScriptedAsker wrong(
            {ScriptedAsker::use(house.disk(2)), ScriptedAsker::use(house.path(u"none"_s)), nextDisks(house)});
        const CheckReport report = SetCheck(checkOf(house, last), wrong, {}).run();
        QVERIFY(report.isWhole() && report.isNoted);
        QCOMPARE(wrong.asked.size(), last - 1 + 2);
        QVERIFY(wrong.asked[0].kind == Kind::NextDisk && wrong.asked[0].disk == 1);
        QVERIFY(wrong.asked[1].kind == Kind::WrongDisk && wrong.asked[1].foundNumber == 2);
        QVERIFY(wrong.asked[2].kind == Kind::NextDisk);
        ScriptedAsker stop;
        QVERIFY(SetCheck(checkOf(house, last), stop, {}).run().end == CheckReport::End::Stopped);
    }

    void isOfferedAfterNinetyDays()
    {
        SetRecord record;
        record.ended = QDateTime({2026, 1, 1}, {12, 0}, Qt::UTC);
        QVERIFY(!isTestDue(record, record.ended.addDays(89)));
        QVERIFY(isTestDue(record, record.ended.addDays(90)));
        record.tested = record.ended.addDays(60);
        QVERIFY(!isTestDue(record, record.ended.addDays(149)));
        QVERIFY(isTestDue(record, record.ended.addDays(150)));
    }
};

QTEST_GUILESS_MAIN(TestSetCheck)
#include "tst_setcheck.moc"
