// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backuprun.h"
#include "storage/disk.h"
#include "tests/backup/model/backuphousehold.h"
#include "tests/support/rows.h"

#include <QProcess>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using End = BackupReport::End;
using Kind = DiskQuestion::Kind;

namespace {

bool execute(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

/// While it lives, the folder is a disk of so many bytes.
class SmallDisk
{
public:
    SmallDisk(const QString &folder, int bytes)
        : m_folder(folder)
        , m_isMounted(execute(u"mount"_s,
                              {u"-t"_s, u"tmpfs"_s, u"-o"_s, u"size=%1"_s.arg(bytes), u"tmpfs"_s, folder}))
    {}
    ~SmallDisk()
    {
        // At once, also where another program just asks all disks for their room.
        if (m_isMounted)
            execute(u"umount"_s, {u"-l"_s, m_folder});
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    bool isMounted() const { return m_isMounted; }

private:
    QString m_folder;
    bool m_isMounted;
};

} // namespace

/// Backups to disks that are really small, and really full; where nobody may mount any, `tst_backuprun` does
/// the same with folders.
class TestSmallDisks : public QObject
{
    Q_OBJECT

private slots:
    void takeAHouseholdInTurn_data()
    {
        // How large the disks are, which step somebody else fills the first one at, and what is asked first.
        rows<int, int, Kind>({{"64 KiB", 64, 0, Kind::NextDisk},
                              {"256 KiB", 256, 0, Kind::NextDisk},
                              {"1 MiB", 1024, 0, Kind::NextDisk},
                              {"full at the first file", 256, 3, Kind::NoRoom},
                              {"full in the middle", 256, 15, Kind::DiskFull},
                              {"full in a large file", 1024, 19, Kind::DiskFull}});
    }
    void takeAHouseholdInTurn()
    {
        const auto [kib, fullAt, first] = row<int, int, Kind>();
        const BackupHousehold house;
        for (int i = 0; i < 12; ++i)
            house.put(u"%1.Fil"_s.arg(2000 + i), noiseOf(i * 900));
        house.put(u"Large.dat"_s, noiseOf(kib * 1200));
        house.putElsewhere(u"Oak.jpg"_s, noiseOf(30'000));
        std::vector<std::unique_ptr<SmallDisk>> disks;
        for (int number = 1; number <= 5; ++number)
            disks.push_back(std::make_unique<SmallDisk>(house.disk(number), kib * 1024));
        if (!disks.front()->isMounted())
            QSKIP("this user mounts no disk");
        int steps = 0;
        Disk::setGate([&] {
            if (++steps == fullAt) {
                QFile filler(house.disk(1) + u"/filler"_s);
                if (filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
                    while (filler.write(QByteArray(4096, 'x')) == 4096) {}
                }
            }
            return true;
        });
        ScriptedAsker asker({[&](const DiskQuestion &question) {
            const bool isNext = question.kind == Kind::NextDisk || question.kind == Kind::DiskFull;
            if (!isNext) // somebody makes room again
                QFile::remove(house.disk(1) + u"/filler"_s);
            return isNext ? DiskAnswer{DiskAnswer::Action::UseFolder, house.disk(question.disk)}
                          : ScriptedAsker::tryAgain(question);
        }});
        const BackupReport report = BackupRun(house.job(), asker, {}).run();
        Disk::setGate({});
        QVERIFY(asker.asked.constFirst().kind == first);
        QVERIFY(report.end == End::Complete && report.set.disks > 1);
        QCOMPARE(house.stored(report.set.disks), house.wanted());
        for (int number = 1; number <= report.set.disks; ++number)
            QVERIFY(sumsAgree(house.setFolder(number)));
    }

    void areNotTakenForTheirMountPoint()
    {
        const BackupHousehold house;
        for (int i = 0; i < 12; ++i)
            house.put(u"%1.Fil"_s.arg(2000 + i), noiseOf(15'000));
        const QString place = house.disk(1);
        auto disk = std::make_unique<SmallDisk>(place, 128 * 1024);
        if (!disk->isMounted())
            QSKIP("this user mounts no disk");
        int gone = 0;
        bool isEmpty = true;
        ScriptedAsker asker({[&](const DiskQuestion &question) {
            if (disk) {
                disk.reset();
            } else {
                isEmpty = isEmpty && QDir(place).isEmpty();
                if (++gone % 2 == 0)
                    disk = std::make_unique<SmallDisk>(place, 128 * 1024);
            }
            // The same folder, chosen once more or tried again.
            return gone % 2 == 0 ? ScriptedAsker::tryAgain(question) : ScriptedAsker::use(place)(question);
        }});
        const BackupReport report = BackupRun(house.job(), asker, {}).run();
        QVERIFY(gone >= 2 && isEmpty);
        QVERIFY(report.end == End::Complete && report.set.disks > 1);
        disk.reset();
        QVERIFY(QDir(place).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestSmallDisks)
#include "tst_smalldisks_posix.moc"
