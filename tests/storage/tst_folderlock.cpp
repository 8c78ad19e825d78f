// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/folderlock.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestFolderLock : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void onlyOneHoldsAFolder();
    void takesOverALockThatNobodyAnswersFor();
    void takesOverTheLockOfADeadProgram();
    void takesOverADamagedLock_data();
    void takesOverADamagedLock();
    void respectsADamagedLockThatIsHeld();
    void runsWhereNoLockCanBeMade();

private:
    QString lockPath() const { return m_dir->filePath(u"Quillery.lock"_s); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestFolderLock::onlyOneHoldsAFolder()
{
    const DataFolder folder(m_dir->path());
    {
        FolderLock first(folder);
        QVERIFY(first.take());
        FolderLock second(folder);
        QVERIFY(!second.take());
        const QTemporaryDir otherDir;
        FolderLock other{DataFolder(otherDir.path())};
        QVERIFY(other.take());
    }
    FolderLock next(folder);
    QVERIFY(next.take());
}

void TestFolderLock::takesOverALockThatNobodyAnswersFor()
{
    const DataFolder folder(m_dir->path());
    FolderLock held(folder);
    QVERIFY(held.take());
    // A copy of the folder brings the lock of the program that runs on the original.
    FolderLock lock(folder);
    QVERIFY(!lock.take());
    QVERIFY(lock.holder().contains(QString::number(QCoreApplication::applicationPid())));
    QVERIFY(lock.takeOver());
    FolderLock next(folder);
    QVERIFY(!next.take());
}

void TestFolderLock::takesOverTheLockOfADeadProgram()
{
    QProcess process;
    process.start(u"sleep"_s, {u"60"_s});
    if (!process.waitForStarted())
        QSKIP("needs a program to end");
    const qint64 id = process.processId();
    process.kill();
    QVERIFY(process.waitForFinished());
    QVERIFY(makeFile(lockPath(),
                     QByteArray::number(id) + "\nquillery\n" + QSysInfo::machineHostName().toUtf8() + '\n'));

    FolderLock lock{DataFolder(m_dir->path())};
    QVERIFY(lock.take());
}

void TestFolderLock::takesOverADamagedLock_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(64, '\0');
    QTest::newRow("noise") << "\x9F\x01 no number\n"_ba;
}

void TestFolderLock::takesOverADamagedLock()
{
    QFETCH(QByteArray, content);
    QVERIFY(makeFile(lockPath(), content));
    FolderLock lock{DataFolder(m_dir->path())};
    QVERIFY(lock.take());
}

void TestFolderLock::respectsADamagedLockThatIsHeld()
{
    FolderLock first{DataFolder(m_dir->path())};
    QVERIFY(first.take());
    QVERIFY(makeFile(lockPath(), ""));
    FolderLock second{DataFolder(m_dir->path())};
    QVERIFY(!second.take());
}

void TestFolderLock::runsWhereNoLockCanBeMade()
{
    expectWarning("^Running without a lock");
    FolderLock missing{DataFolder(m_dir->filePath(u"missing"_s))};
    QVERIFY(missing.take());

    QVERIFY(QDir().mkdir(lockPath()));
    expectWarning("^Running without a lock");
    FolderLock lock{DataFolder(m_dir->path())};
    QVERIFY(lock.take());
    QVERIFY(QFileInfo(lockPath()).isDir());
}

QTEST_GUILESS_MAIN(TestFolderLock)
#include "tst_folderlock.moc"
