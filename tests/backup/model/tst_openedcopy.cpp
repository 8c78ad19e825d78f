// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/copyopening.h"
#include "backup/model/sealedkey.h"
#include "tests/backup/model/backuphousehold.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

/// The record files of a set, put beside the household to be looked at.
class TestOpenedCopy : public QObject
{
    Q_OBJECT
private slots:
    void opensASet_data()
    {
        // What is changed on the disk, and what of the set lies open then.
        rows<QString, QStringList, QString>({
            {"whole", {}, {u"2026.Fil"_s, u"Addbk1.Fil"_s, u"Desk.conf"_s}, {}},
            {"a damaged file",
             u"Addbk1.Fil"_s,
             {u"2026.Fil"_s, u"Desk.conf"_s},
             u"Damaged there, and left out: Addbk1.Fil"_s},
            {"a damaged file of the password",
             u"PCtrl1.Fil"_s,
             {u"2026.Fil"_s, u"Addbk1.Fil"_s, u"Desk.conf"_s, u"PCtrl1.Fil"_s},
             u"Damaged there, and left out: PCtrl1.Fil"_s},
        });
    }
    void opensASet()
    {
        const auto [damaged, names, refusal] = row<QString, QStringList, QString>();
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(7000));
        house.put(u"2026.Fil"_s, "rent");
        if (damaged == u"PCtrl1.Fil"_s)
            house.put(damaged, "flags");
        house.putElsewhere(u"a.jpg"_s, noiseOf(90));
        ScriptedAsker asker;
        BackupJob job = house.job();
        job.count = [](const QString &) { return QList<BackupCount>{{u"AddressBook"_s, 4}}; };
        QCOMPARE(BackupRun(job, asker, {}).run().end, BackupReport::End::Complete);
        if (!damaged.isEmpty()) {
            const QString path = house.setFolder(1) + u'/' + damaged;
            QVERIFY(QFile::remove(path) && makeFile(path, noiseOf(7000).replace(5, 1, "x")));
        }
        const QTemporaryDir into;
        const std::optional<BackupSet> set = SetList::last(house.disk(1));
        QVERIFY(set && OpenedCopy::isAtOnce(*set));
        const OpenedCopy opened = OpenedCopy::ofSet(*set, into.path(), false);
        QCOMPARE(opened.refusal, refusal);
        QCOMPARE(opened.functions, QSet<QString>{u"AddressBook"_s});
        QCOMPARE(QDir(into.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), names);
        if (damaged == u"PCtrl1.Fil"_s) // what it can guard is guarded
            QCOMPARE(contentOf(into.filePath(damaged)), "damaged");
        if (damaged.isEmpty())
            QCOMPARE(contentOf(into.filePath(u"Addbk1.Fil"_s)), noiseOf(7000));

        QVERIFY(QDir(house.disk(1)).removeRecursively());
        QVERIFY(!OpenedCopy::ofSet(*set, into.path(), false).refusal.isEmpty());
    }

    void opensDiskByDisk_data()
    {
        // Of how many disks, its password, the one that is typed, which disks are put in when one is asked
        // for, whether the user stops at once, whether it opens, and what else is said.
        rows<int, QString, QString, QList<int>, bool, bool, QString>({
            {"sealed, one disk", 1, u"p"_s, u"p"_s, {}, false, true, {}},
            {"open, three disks", 3, {}, {}, {1, 2}, false, true, {}},
            {"sealed, two disks", 2, u"p"_s, u"p"_s, {1}, false, true, {}},
            {"a wrong disk first", 3, {}, {}, {3, 1, 2}, false, true, {}},
            {"a wrong password",
             1,
             u"p"_s,
             u"q"_s,
             {},
             false,
             false,
             u"That is not the password of this backup."_s},
            {"no disk", 3, {}, {}, {}, false, false, {}},
            {"stopped", 1, u"p"_s, u"p"_s, {}, true, false, {}},
        });
    }
    void opensDiskByDisk()
    {
        const auto [disks, seal, typed, given, stops, isOpen, refusal] =
            row<int, QString, QString, QList<int>, bool, bool, QString>();
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(160'000)); // of several disks none has all of it
        house.putElsewhere(u"a.jpg"_s, noiseOf(90));
        BackupJob job = house.job(disks == 1 ? 0 : (disks == 2 ? 130'000 : 75'000));
        if (!seal.isEmpty()) {
            KeyDerivation derived = KeyDerivation::fresh(SecretBytes::ofText(seal), PasswordCost::minimum());
            QVERIFY(derived.run());
            job.seal = std::make_shared<SealedKey>(SealedKey::fresh(derived));
        }
        ScriptedAsker writer({ScriptedAsker::use(house.disk(2)), ScriptedAsker::use(house.disk(3))});
        QCOMPARE(BackupRun(job, writer, {}).run().end, BackupReport::End::Complete);
        const std::optional<BackupSet> set = SetList::last(house.disk(disks));
        QVERIFY(set && set->record->disks == disks);

        std::deque<ScriptedAsker::Answer> answers;
        for (const int disk : given)
            answers.push_back(ScriptedAsker::use(house.disk(disk)));
        answers.push_back(&ScriptedAsker::stop);
        ScriptedAsker asker(answers);
        CopyOpening opening(*set, typed, asker);
        if (stops)
            opening.stop();
        QString path;
        {
            PrivateFolder into;
            const OpenedCopy opened = opening.run(into);
            QCOMPARE(opened.isOpen, isOpen);
            QCOMPARE(opened.refusal, refusal);
            path = into.path();
            if (isOpen) {
                QCOMPARE(QDir(path).entryList(QDir::Files), (QStringList{u"Addbk1.Fil"_s, u"Desk.conf"_s}));
                QCOMPARE(contentOf(path + u"/Addbk1.Fil"_s), noiseOf(160'000));
                QCOMPARE(int(asker.asked.size()), int(given.size()));
            }
            PrivateFolder::removeLeft(); // it is not left: somebody works with it
            QVERIFY(path.isEmpty() || QDir(path).exists());
        }
        QVERIFY(path.isEmpty() || !QDir(path).exists());
    }

    void openedAtOnceIsWhatLiesOpenOnOneDisk()
    {
        BackupSet set;
        QVERIFY(!OpenedCopy::isAtOnce(set)); // not complete
        set.record.emplace();
        QVERIFY(OpenedCopy::isAtOnce(set));
        set.record->disks = 2;
        QVERIFY(!OpenedCopy::isAtOnce(set));
        set.record->disks = 1;
        set.record->isSealed = true;
        QVERIFY(!OpenedCopy::isAtOnce(set));
    }
};

QTEST_GUILESS_MAIN(TestOpenedCopy)
#include "tst_openedcopy.moc"
