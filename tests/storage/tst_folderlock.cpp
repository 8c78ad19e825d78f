// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/folderlock.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

const bool isWindows = QSysInfo::kernelType() == "winnt"_L1;

} // namespace

class TestFolderLock : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void onlyOneHoldsAFolder()
    {
        {
            FolderLock first = lock();
            QVERIFY(first.take());
            QVERIFY(!lock().take());
            const QTemporaryDir other;
            QVERIFY(FolderLock(DataFolder(other.path())).take());
            // A damaged lock is respected while it is held.
            QCOMPARE(makeFile(lockPath(), ""), !isWindows);
            QVERIFY(!lock().take());
        }
        QVERIFY(lock().take());
    }

    void takesOverALockThatNobodyAnswersFor()
    {
        FolderLock held = lock();
        QVERIFY(held.take());
        // A copy of the folder brings the lock of the program that runs on the original.
        FolderLock copied = lock();
        QVERIFY(!copied.take());
        QVERIFY(copied.holder().contains(QString::number(QCoreApplication::applicationPid())));
        if (isWindows) { // what a program has open stays there until it ends
            QVERIFY(!copied.takeOver());
            held.release();
        }
        QVERIFY(copied.takeOver());
        QVERIFY(!lock().take());
    }

    void takesOverTheLockOfADeadProgram()
    {
        QProcess process;
        isWindows ? process.start(u"cmd"_s, {u"/c"_s, u"pause"_s}) : process.start(u"sleep"_s, {u"60"_s});
        if (!process.waitForStarted())
            QSKIP("needs a program to end");
        const QByteArray dead = QByteArray::number(process.processId());
        process.kill();
        QVERIFY(process.waitForFinished());
        // Its number may have gone to this program.
        for (const QByteArray &id : {dead, QByteArray::number(QCoreApplication::applicationPid())}) {
            QVERIFY(makeFile(lockPath(), linesOfLock(id)));
            QVERIFY(lock().take());
        }
    }

    void takesOverADamagedLock_data()
    {
        rows<QByteArray>({{"empty", {}}, {"zeros", QByteArray(64, '\0')}, {"noise", "\x9F\x01 no number\n"}});
    }

    void takesOverADamagedLock()
    {
        const auto [content] = row<QByteArray>();
        QVERIFY(makeFile(lockPath(), content));
        QVERIFY(lock().take());
    }

    void runsWhereNoLockCanBeMade()
    {
        expectWarning("^Running without a lock");
        QVERIFY(FolderLock(DataFolder(m_dir->filePath(u"missing"_s))).take());

        QVERIFY(QDir().mkdir(lockPath()));
        expectWarning("^Running without a lock");
        FolderLock first(DataFolder(m_dir->path()));
        QVERIFY(first.take());
        // The folder itself can be locked elsewhere.
        if (isWindows)
            expectWarning("^Running without a lock");
        QCOMPARE(lock().take(), isWindows);
        QVERIFY(QFileInfo(lockPath()).isDir());
    }

private:
    QString lockPath() const { return m_dir->filePath(u"Quillery.lock"_s); }
    FolderLock lock() const { return FolderLock(DataFolder(m_dir->path())); }

    /// A lock of this computer by the program of that number.
    QByteArray linesOfLock(const QByteArray &id) const
    {
        FolderLock own = lock();
        if (!own.take())
            return {};
        QByteArrayList lines = contentOf(lockPath()).split('\n');
        lines[0] = id;
        return lines.join('\n');
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(TestFolderLock)
#include "tst_folderlock.moc"
