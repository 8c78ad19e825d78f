// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/openedcopy.h"
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
        });
    }
    void opensASet()
    {
        const auto [damaged, names, refusal] = row<QString, QStringList, QString>();
        const BackupHousehold house;
        house.put(u"Addbk1.Fil"_s, noiseOf(7000));
        house.put(u"2026.Fil"_s, "rent");
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
        QVERIFY(set && OpenedCopy::isPossible(*set));
        const OpenedCopy opened = OpenedCopy::ofSet(*set, into.path(), false);
        QCOMPARE(opened.refusal, refusal);
        QCOMPARE(opened.functions, QSet<QString>{u"AddressBook"_s});
        QCOMPARE(QDir(into.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), names);
        if (damaged.isEmpty())
            QCOMPARE(contentOf(into.filePath(u"Addbk1.Fil"_s)), noiseOf(7000));

        QVERIFY(QDir(house.disk(1)).removeRecursively());
        QVERIFY(!OpenedCopy::ofSet(*set, into.path(), false).refusal.isEmpty());
    }

    void opensNoSetOfManyDisksAndNoSealedOne()
    {
        BackupSet set;
        QVERIFY(!OpenedCopy::isPossible(set)); // not complete
        set.record.emplace();
        QVERIFY(OpenedCopy::isPossible(set));
        set.record->disks = 2;
        QVERIFY(!OpenedCopy::isPossible(set));
        set.record->disks = 1;
        set.record->isSealed = true;
        QVERIFY(!OpenedCopy::isPossible(set));
    }
};

QTEST_GUILESS_MAIN(TestOpenedCopy)
#include "tst_openedcopy.moc"
