// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordchange.h"
#include "tests/support/failingdisk.h"
#include "tests/support/testfiles.h"

#include <QLoggingCategory>

using namespace Qt::Literals::StringLiterals;

class TestRecordChange : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_test.put(name, "aaaaabbbbbcc"); }

    void takesBackWhatItWroteAndWritesItAgain()
    {
        RecordChange change;
        change.write(file(), 1, "xyz");
        change.write(file(), 3, "12345"); // beyond the end of the file
        QVERIFY(!change.isEmpty() && change.commit(folder()));
        QCOMPARE(m_test.bytes(name), QByteArray("xyzaabbbbb12345"));
        QCOMPARE(change.undo(folder()), ChangeResult::Done);
        QCOMPARE(m_test.bytes(name), QByteArray("aaaaabbbbbcc\0\0\0", 15));
        QCOMPARE(change.redo(folder()), ChangeResult::Done);
        QCOMPARE(m_test.bytes(name), QByteArray("xyzaabbbbb12345"));
    }

    void comesBackToWhatStoodThereFirst()
    {
        RecordChange change;
        change.write(file(), 1, "x");
        QVERIFY(change.commit(folder()));
        change.write(file(), 1, "1234"); // more than the first time
        change.write(file(), 3, "??", "!!!");
        QVERIFY(change.commit(folder()));
        QCOMPARE(m_test.bytes(name), QByteArray("1234abbbbb??"));
        QCOMPARE(change.undo(folder()), ChangeResult::Done);
        QCOMPARE(m_test.bytes(name), QByteArray("aaaaabbbbb!!"));
    }

    void isEmptyWhereNothingChanges()
    {
        RecordChange change;
        QVERIFY(change.isEmpty());
        change.write(file(), 1, "aaa");
        QVERIFY(change.isEmpty());
        change.write(file(), 2, "aaa");
        QVERIFY(!change.isEmpty());
    }

    void neverOverwritesWhatWasWrittenSince()
    {
        RecordChange change;
        change.write(file(), 1, "xyz");
        change.write(file(), 2, "xyz");
        QVERIFY(change.commit(folder()));
        m_test.put(name, "xyzaaxyQbbcc");
        QCOMPARE(change.undo(folder()), ChangeResult::Outdated);
        QCOMPARE(m_test.bytes(name), QByteArray("xyzaaxyQbbcc"));
        QVERIFY(QFile::remove(m_test.path(name)));
        QCOMPARE(change.undo(folder()), ChangeResult::Outdated);
        QVERIFY(!QFile::exists(m_test.path(name)));
    }

    void isTakenBackWhollyOrNotAtAll()
    {
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        RecordChange change;
        change.write(file(), 1, "xyz");
        change.write(file(), 2, "xyz");
        failAtEachStep(
            folder(), [this] { m_test.put(name, "xyzaaxyzbbcc"); },
            [&] { return change.undo(folder()) == ChangeResult::Done; },
            [this] { return m_test.bytes(name); });
    }

    /// What a disk refused in the middle, and would not even take back, is done at the next try.
    void isTakenBackOnceTheDiskTakesMore()
    {
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        for (int refused = 1; refused <= 8; ++refused) {
            init();
            RecordChange change;
            change.write(file(), 1, "xyz");
            change.write(file(), 2, "xyz");
            QVERIFY(change.commit(folder()));
            {
                const FailingDisk disk(DiskFailure::TheEnd, refused);
                if (change.undo(folder()) == ChangeResult::Done)
                    continue;
                QCOMPARE(change.undo(folder()), ChangeResult::Refused);
            }
            QCOMPARE(change.undo(folder()), ChangeResult::Done);
            QCOMPARE(m_test.bytes(name), QByteArray("aaaaabbbbbcc"));
            QCOMPARE(change.redo(folder()), ChangeResult::Done);
        }
    }

private:
    const QString name = u"Five.Fil"_s;
    const DataFolder &folder() const { return m_test.folder(); }
    RecordFile file() const { return RecordFile(folder(), name, 5); }

    TestFolder m_test;
};

QTEST_APPLESS_MAIN(TestRecordChange)
#include "tst_recordchange.moc"
