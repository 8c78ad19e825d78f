// SPDX-License-Identifier: GPL-3.0-or-later
// A household of 2 GiB in pictures and 5,000 small files put on a drive and read back, and once more when
// nothing has changed, and restored; beside `cp` with a flush and `sha256sum` over both sides, and a look at
// all files.

#include "backup/model/backuprun.h"
#include "backup/model/filehash.h"
#include "backup/model/restorerun.h"
#include "backup/model/setsource.h"
#include "benchmarks/limit.h"
#include "storage/changeset.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pictureCount = 512;
constexpr qsizetype pictureBytes = qsizetype(4) * 1024 * 1024;
constexpr int smallCount = 5000;
constexpr int recordCount = 60;   ///< files of records in the household that is backed up twice
constexpr double mostMemory = 16; ///< MiB above what there was before

/// Answers nothing: no question comes.
class NoAsker final : public RestoreAsker
{
public:
    DiskAnswer ask(const DiskQuestion &) override { return {}; }
    bool takeTheRest(const QStringList &) override { return false; }
    bool takeDamaged(const QString &) override { return false; }
};

void write(const QString &path, qsizetype size, quint32 seed)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator random(seed);
    random.fillRange(reinterpret_cast<quint32 *>(bytes.data()), size / 4);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != size)
        qFatal("cannot write the household");
}

/// A household with so many pictures, small files and files of records, made once.
class Household
{
public:
    Household(int pictures, qsizetype eachPicture, int files)
    {
        QDir(m_dir.path()).mkpath(u"house/Pictures"_s);
        for (int i = 0; i < pictures; ++i)
            write(path(u"house/Pictures/%1.jpg"_s.arg(i)), eachPicture, quint32(i + 1));
        for (int i = 0; i < files; ++i)
            write(path(u"house/%1.Fil"_s.arg(i)), 4 * (256 + i % 1792), quint32(100'000 + i));
        QProcess::execute(u"sync"_s, {u"-f"_s, m_dir.path()});
    }

    QString path(const QString &name) const { return m_dir.filePath(name); }

    BackupReport backUp(const QString &drive)
    {
        QDir().mkpath(drive);
        BackupJob job;
        job.household = DataFolder(path(u"house"_s));
        job.items = Holdings::of(job.household, {}, {}).items;
        job.folder = drive;
        job.drive = u"SILVER"_s;
        job.begun = QDateTime({2026, 11, 23}, {19, 30}, Qt::UTC).addDays(++m_runs);
        job.now = [begun = job.begun] { return begun.addSecs(60); };
        NoAsker asker;
        BackupReport report = BackupRun(job, asker, {}).run();
        if (report.end != BackupReport::End::Complete)
            qFatal("not backed up");
        return report;
    }

    /// What any program has to do to know that nothing has changed.
    void look() const
    {
        QDirIterator files(path(u"house"_s), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            benchmark::DoNotOptimize(files.fileInfo().lastModified());
            if (files.fileName().endsWith(u".jpg"_s))
                continue;
            QFile file(files.filePath());
            if (file.open(QIODevice::ReadOnly))
                benchmark::DoNotOptimize(FileHash::of(file.readAll()));
        }
    }

private:
    QTemporaryDir m_dir;
    int m_runs = 0;
};

double memoryNow(const char *name)
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith(name))
            return line.mid(6).trimmed().split(' ').constFirst().toDouble() / 1024;
    return 0;
}

/// Where the peak of the memory begins now.
double beginPeak()
{
    if (QFile refs(u"/proc/self/clear_refs"_s); refs.open(QIODevice::WriteOnly))
        refs.write("5");
    return memoryNow("VmRSS:");
}

void copyAndSum(const QString &from, const QString &to)
{
    const QString command = u"cp -r \"$0\" \"$1\" && sync -f \"$1\" && "
                            "find \"$0\" \"$1\" -type f -print0 | xargs -0 sha256sum > /dev/null"_s;
    if (QProcess::execute(u"sh"_s, {u"-c"_s, command, from, to}) != 0)
        qFatal("cannot copy");
}

void backUp(benchmark::State &state)
{
    Household household(pictureCount, pictureBytes, smallCount);
    const QString drive = household.path(u"drive"_s);
    const QString copy = household.path(u"copy"_s);
    Limit limit(state, 2);
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] { copyAndSum(household.path(u"house"_s), copy); });
        QDir(copy).removeRecursively();
        const double before = beginPeak();
        limit.measure([&] { household.backUp(drive); });
        const double peak = memoryNow("VmHWM:") - before;
        state.counters["peak_MiB"] = peak;
        if (peak > mostMemory)
            state.SkipWithError("takes too much memory");
        QDir(drive).removeRecursively();
        QFile::remove(household.path(u"house/DiskInfo.Abk"_s));
    }
}

void backUpAgain(benchmark::State &state)
{
    Household household(smallCount, 4096, recordCount);
    const QString drive = household.path(u"drive"_s);
    household.backUp(drive);
    Limit limit(state, 3);
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] { household.look(); });
        limit.measure([&] { household.backUp(drive); });
    }
}

/// All of it into an empty folder, laid down, read back and put in its place.
void restore(benchmark::State &state)
{
    Household household(pictureCount, pictureBytes, smallCount);
    const QString drive = household.path(u"drive"_s);
    const SetRecord set = household.backUp(drive).set;
    const QString copy = household.path(u"copy"_s);
    const QString target = household.path(u"target"_s);
    Limit limit(state, 2);
    for ([[maybe_unused]] auto round : state) {
        limit.reference([&] { copyAndSum(drive, copy); });
        QDir(copy).removeRecursively();
        QDir().mkpath(target);
        const double before = beginPeak();
        limit.measure([&] {
            const std::atomic<bool> isStopped = false;
            RestoreRun::Order order{.aim = {DataFolder(target)}, .set = set, .drive = drive, .items = {}};
            order.items = RestorePlan::made(order.aim, set.files, {}, {}, isStopped);
            SetSource source(set.set, set.begun);
            NoAsker asker;
            if (RestoreRun(order, source, asker, {}).run().end != RestoreResult::End::AtNextStart ||
                !ChangeSet::recover(order.aim.folder))
                qFatal("not restored");
        });
        const double peak = memoryNow("VmHWM:") - before;
        state.counters["peak_MiB"] = peak;
        if (peak > mostMemory)
            state.SkipWithError("takes too much memory");
        QDir(target).removeRecursively();
    }
}

BENCHMARK(backUp)->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(backUpAgain)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(restore)->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
