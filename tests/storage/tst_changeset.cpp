// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/changeset.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString first = u"First.Fil"_s;
const QString second = u"Second.Fil"_s;
const QString whole = u"Whole.Fil"_s;
const QByteArray former = "0000000011111111"_ba;

using Files = QMap<QString, QByteArray>;
const Files before{{first, former}, {whole, "old"}};
const Files after{{first, "00000000aaa11111bb"}, {second, "12345678"_ba}, {whole, "new"}};

} // namespace

class TestChangeSet : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
        for (auto file = before.cbegin(); file != before.cend(); ++file)
            m_test.put(file.key(), file.value());
    }

    void writesAll()
    {
        QVERIFY(change().commit());
        QCOMPARE(filesOf(m_test), after);
    }

    void refusesWhatDoesNotFit()
    {
        ChangeSet set = change();
        expectWarning("^Refused to write 9 bytes");
        set.write(RecordFile(m_test.folder(), first, 8), 1, "123456789");
        QVERIFY(!set.commit());
        QCOMPARE(filesOf(m_test), before);
    }

    void leavesEverythingWhereAStepIsRefused_data()
    {
        rows<QString>({{"a folder in the place of a record file", second},
                       {"a folder in the place of a whole file", whole},
                       {"a folder in the place of the journal", ChangeSet::journalName},
                       {"a folder where the whole file waits", whole + ChangeSet::waitingSuffix}});
    }

    void leavesEverythingWhereAStepIsRefused()
    {
        const auto [obstacle] = row<QString>();
        QFile::remove(m_test.path(obstacle));
        QVERIFY(QDir(m_test.folder().path()).mkpath(obstacle + u"/kept"_s));
        const Files all = filesOf(m_test);
        expectWarning("^Cannot (write|replace|finish) ");
        QVERIFY(!change().commit());
        QCOMPARE(filesOf(m_test), all);
        // It can be tried again.
        QVERIFY(QDir(m_test.path(obstacle)).removeRecursively());
        QVERIFY(change().commit());
        QCOMPARE(filesOf(m_test), after);
    }

    void takesFilesAway()
    {
        ChangeSet set = change();
        set.remove(first.toUpper()); // names match without regard to case
        set.remove(u"Missing.Fil"_s);
        QVERIFY(set.commit());
        Files left = after;
        left.remove(first);
        QCOMPARE(filesOf(m_test), left);
    }

    void takesAllFilesAwayOrNoneAfterEveryFailure()
    {
        failAtEachStep(
            m_test.folder(), [this] { init(); },
            [this] {
                ChangeSet set(m_test.folder());
                set.remove(first);
                set.remove(whole);
                return set.commit();
            },
            [this] {
                Files files = filesOf(m_test);
                files.remove(ChangeSet::journalName);
                return files;
            });
    }

    void isOldOrNewAfterEveryFailure()
    {
        failAtEachStep(
            m_test.folder(), [this] { init(); }, [this] { return change().commit(); },
            [this] { return filesOf(m_test); });
    }

    /// Several whole files, each with a state between old and new, are all old or all new.
    void isOldOrNewAfterEveryFailureOfWholeFiles()
    {
        failAtEachStep(
            m_test.folder(), [this] { init(); },
            [this] {
                ChangeSet set = change();
                set.replace(whole, "new", "between");
                set.replace(second, "also new", "between");
                return set.commit();
            },
            [this] { return filesOf(m_test); });
    }

    /// Whole files that others have laid down, into a folder that is not there yet, too.
    void takesLaidFilesOrNoneAfterEveryFailure()
    {
        failAtEachStep(
            m_test.folder(), [this] { init(); }, [this] { return layDown().commit(); },
            [this] { return filesOf(m_test); });
        QCOMPARE(m_test.bytes(u"Pictures/Anne.jpg"_s), "picture");
    }

    void leavesLaidFilesToTheNextStart()
    {
        failAtEachStep(
            m_test.folder(), [this] { init(); },
            [this] {
                const DataFolder &folder = m_test.folder();
                // Where that start is refused it, the one after it.
                return layDown().leaveToNextStart() &&
                       (ChangeSet::recover(folder) || ChangeSet::recover(folder));
            },
            [this] { return filesOf(m_test); });
        init();
        QVERIFY(layDown().leaveToNextStart());
        QCOMPARE(m_test.bytes(whole), "old");
        QVERIFY(ChangeSet::recover(m_test.folder()));
        QCOMPARE(filesOf(m_test),
                 (Files{{first, former}, {whole, "laid"}, {u"Pictures"_s, {}}, {second, "12345678"}}));
    }

    void reachesNothingOutsideTheFolder_data()
    {
        rows<QString, QString>({{"a folder above", u"1"_s, u"../Whole.Fil"_s},
                                {"a folder above, inside", u"1"_s, u"Pictures/../../Whole.Fil"_s},
                                {"a full path", u"1"_s, u"/tmp/Whole.Fil"_s},
                                {"an empty step", u"1"_s, u"Pictures//Whole.Fil"_s},
                                {"the folder itself", u"1"_s, u"."_s},
                                {"what lies above", u"../1"_s, whole}});
    }

    void reachesNothingOutsideTheFolder()
    {
        const auto [laid, name] = row<QString, QString>();
        ChangeSet set = layDown();
        expectWarning("^Refused to write to ");
        set.takeLaid(laid, name);
        QVERIFY(!set.commit());
        QVERIFY(ChangeSet::recover(m_test.folder()));
        QCOMPARE(filesOf(m_test), before);
    }

    void showsWhatStandsInBetween()
    {
        ChangeSet set(m_test.folder());
        set.replace(whole, "new", "between");
        {
            const FailingDisk disk(DiskFailure::TheEnd, 6);
            QVERIFY(!set.commit());
        }
        QCOMPARE(m_test.bytes(whole), "between");
        QVERIFY(ChangeSet::recover(m_test.folder()));
        QCOMPARE(m_test.bytes(whole), "new");
    }

    void dropsWhatIsNoJournal_data()
    {
        rows<QByteArray>({{"empty", ""},
                          {"foreign", "Quillery was here, long enough to have room for a checksum."},
                          {"cut short", "cut"},
                          {"a bit turned", "bit"}});
    }

    void dropsWhatIsNoJournal()
    {
        auto [content] = row<QByteArray>();
        if (content.size() == 3) {
            // The program ends when the journal is on the disk.
            {
                const FailingDisk disk(DiskFailure::TheEnd, 5);
                QVERIFY(!change().commit());
            }
            QByteArray journal = m_test.bytes(ChangeSet::journalName);
            QVERIFY(!journal.isEmpty());
            if (content == "cut")
                journal.chop(1);
            else
                journal[20] = char(journal[20] ^ 1);
            content = journal;
        }
        m_test.put(ChangeSet::journalName, content);
        QVERIFY(ChangeSet::recover(m_test.folder()));
        QCOMPARE(filesOf(m_test), before);
    }

private:
    static Files filesOf(const TestFolder &folder)
    {
        Files files;
        for (const QString &name :
             QDir(folder.folder().path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
            files[name] = folder.bytes(name);
        files.remove(ChangeSet::layingFolder); // it belongs to those who lay files down
        return files;
    }

    /// The change that makes `after` from `before`.
    ChangeSet change() const
    {
        const DataFolder &folder = m_test.folder();
        ChangeSet set(folder);
        set.write(RecordFile(folder, first, 8), 2, "aaa");
        set.write(RecordFile(folder, second, 8), 1, "12345678");
        set.replace(whole, "new");
        set.write(RecordFile(folder, first, 8), 3, "bb");
        return set;
    }

    /// A change with two files that lie there already.
    ChangeSet layDown() const
    {
        if (!QDir(m_test.folder().path()).mkpath(ChangeSet::layingFolder))
            QTest::qFail("no folder", __FILE__, __LINE__);
        m_test.put(ChangeSet::layingFolder + u"/1"_s, "laid");
        m_test.put(ChangeSet::layingFolder + u"/2"_s, "picture");
        ChangeSet set(m_test.folder());
        set.takeLaid(u"1"_s, whole);
        set.takeLaid(u"2"_s, u"Pictures/Anne.jpg"_s);
        set.write(RecordFile(m_test.folder(), second, 8), 1, "12345678");
        return set;
    }

    TestFolder m_test;
};

QTEST_APPLESS_MAIN(TestChangeSet)
#include "tst_changeset.moc"
