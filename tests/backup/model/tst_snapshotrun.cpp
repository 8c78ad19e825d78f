// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/archivefile.h"
#include "backup/model/snapshotreader.h"
#include "backup/model/snapshotrun.h"
#include "shell/core/recordlines.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

using End = SnapshotReport::End;
using State = SnapshotReader::State;

const QDateTime now(QDate(2026, 11, 23), QTime(8, 30));
const std::atomic_bool goOn = false;

/// Two entries; `whenRead` is what happens at the desk while they are read.
class TwoEntries : public FunctionRecords
{
public:
    explicit TwoEntries(std::function<void()> whenRead = {})
        : m_whenRead(std::move(whenRead))
    {}
    QString counted(int count) const override { return QString::number(count); }
    std::vector<FunctionRecord> all() const override
    {
        if (m_whenRead)
            m_whenRead();
        return {{u"2"_s, u"Anne"_s, {}}, {u"3"_s, u"Zoë, \"Z\""_s, {}}};
    }
    QStringList lines(const QString &key) const override
    {
        return key == u"2"_s ? QStringList{u"Telephone: 555-0142"_s, u"no name"_s}
                             : QStringList{u"City: Köln: Deutz"_s, u"Telephone: 1"_s, u"Telephone: 2"_s};
    }
    RecordsBack bringBack(const FunctionRecords &, const QStringList &) override { return {}; }

private:
    std::function<void()> m_whenRead;
};

/// Two of many entries, with lines that they have in common.
class TwoOfMany final : public TwoEntries, public RecordLines
{
public:
    void
    visitLines(const std::function<bool(const FunctionRecord &, const QStringList &)> &visit) const override
    {
        for (const FunctionRecord &record : all())
            visit(record, lines(record.key));
    }
};

QByteArray output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    return process.readAllStandardOutput();
}

/// By name the bytes of all files below `path`.
QMap<QString, QByteArray> filesBelow(const QString &path)
{
    QMap<QString, QByteArray> files;
    for (const QFileInfo &file : QDir(path).entryInfoList(QDir::Files | QDir::Hidden))
        files.insert(file.fileName(), contentOf(file.filePath()));
    return files;
}

} // namespace

/// Snapshots of a household: made, looked into, and nothing taken from what is none.
class TestSnapshotRun : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_folder->put(u" 2026.Cal"_s, noiseOf(150'000));
        m_folder->put(u"Addbk1.Fil"_s, "address");
        m_folder->put(u"Secfile1.Fil"_s, "sealed");
        m_folder->put(u"x.jpg"_s, "picture");
    }

    void allFilesAreInIt()
    {
        const SnapshotReport report = SnapshotRun(job()).run();
        QVERIFY2(report.end == End::Made, qPrintable(report.refusal));
        QCOMPARE(report.path, snapshots() + u"/2026-11-23.zip");

        SnapshotReader reader(report.path);
        const auto files = reader.files();
        QVERIFY(files);
        QCOMPARE(files->size(), 4);
        QCOMPARE(files->at(1).name, u"Addbk1.Fil"_s);
        QCOMPARE(files->at(1).function, u"AddressBook"_s);
        QVERIFY(files->at(1).keptAs == KeptAs::Readable && files->at(2).keptAs == KeptAs::Sealed);
        QCOMPARE(files->at(1).hash.toHex(), // of "address"
                 QByteArray("d80c9bf910f144738ef983724bc04bd6bd3f17c5c83ed57bedee1b1b9278e811"));
        QVERIFY(reader.unpack(m_folder->path(u"out"_s), {}, goOn));
        const QMap<QString, QByteArray> unpacked = filesBelow(m_folder->path(u"out"_s));
        QCOMPARE(unpacked.keys(),
                 QStringList({u" 2026.Cal"_s, u"Addbk1.Fil"_s, u"Desk.conf"_s, u"Secfile1.Fil"_s}));
        QVERIFY(unpacked[u" 2026.Cal"_s] == noiseOf(150'000) && unpacked[u"Desk.conf"_s] == "desk");
        QCOMPARE(QFileInfo(m_folder->path(u"out/Addbk1.Fil"_s)).lastModified(),
                 QFileInfo(m_folder->path(u"Addbk1.Fil"_s)).lastModified());
    }

    void itIsReadWithoutTheProgram()
    {
        if (QStandardPaths::findExecutable(u"unzip"_s).isEmpty())
            QSKIP("unzip is not installed");
        SnapshotJob job = this->job();
        job.functions.first().records = std::make_shared<TwoOfMany>();
        job.functions.append({u"Planner"_s, KeptAs::Guarded, std::make_shared<TwoEntries>()});
        job.functions.append({u"ToDoList"_s, KeptAs::Readable, std::make_shared<TwoEntries>()});
        const QString path = SnapshotRun(job).run().path;
        QCOMPARE(output(u"unzip"_s, {u"-p"_s, path, u"Household/Addbk1.Fil"_s}), QByteArray("address"));
        QCOMPARE(output(u"unzip"_s, {u"-p"_s, path, u"Readable/AddressBook.csv"_s}),
                 QByteArray("\xEF\xBB\xBFRecord,Telephone,Text,City\r\n"
                            "Anne,555-0142,no name,\r\n"
                            "\"Zo\u00eb, \"\"Z\"\"\",\"1\n2\",,K\u00f6ln: Deutz\r\n"));
        QCOMPARE(
            output(u"unzip"_s, {u"-p"_s, path, u"Readable/ToDoList.csv"_s}),
            QByteArray("\xEF\xBB\xBFRecord,Text\r\nAnne,Telephone: 555-0142\r\nAnne,no name\r\n"
                       "\"Zo\u00eb, \"\"Z\"\"\",City: K\u00f6ln: Deutz\r\n"
                       "\"Zo\u00eb, \"\"Z\"\"\",Telephone: 1\r\n\"Zo\u00eb, \"\"Z\"\"\",Telephone: 2\r\n"));
        QVERIFY(!output(u"unzip"_s, {u"-Z1"_s, path}).contains("Planner.csv"));
        const QByteArray manifest = output(u"unzip"_s, {u"-p"_s, path, u"manifest.csv"_s});
        QVERIFY(manifest.startsWith(
            "\xEF\xBB\xBFName,Bytes,Changed,SHA-256,Function,Kept as\r\n 2026.Cal,150000,"));
        QVERIFY(manifest.contains(",PasswordKeeper,sealed\r\nDesk.conf,4,2026-"));
        QVERIFY(manifest.endsWith("Z,49be417ad74080a0031b636b44cfc26fdd0065492d6cd3b033960c4414955cf7,"
                                  "Program settings,readable\r\nEND,4,,,,\r\n"));
    }

    void itIsOfOneMoment()
    {
        int reads = 0;
        SnapshotJob job = this->job();
        const auto write = [&] {
            if (++reads == 1)
                m_folder->put(u"Addbk1.Fil"_s, "a longer address");
        };
        job.functions.append({u"AddressBook"_s, KeptAs::Readable, std::make_shared<TwoEntries>(write)});
        const SnapshotReport report = SnapshotRun(job).run();
        QCOMPARE(report.end, End::Made);
        QVERIFY(SnapshotReader(report.path).unpack(m_folder->path(u"out"_s), {}, goOn));
        QCOMPARE(m_folder->bytes(u"out/Addbk1.Fil"_s), QByteArray("a longer address"));

        const auto always = [&] { m_folder->put(u"Addbk1.Fil"_s, QByteArray(++reads, 'x')); };
        job.functions.last().records = std::make_shared<TwoEntries>(always);
        const SnapshotReport refused = SnapshotRun(job).run();
        QCOMPARE(refused.end, End::NotMade);
        QCOMPARE(refused.refusal, u"No snapshot was made: Addbk1.Fil was changed each time it was read."_s);
        QCOMPARE(filesBelow(snapshots()).size(), 1);
    }

    void theDayHasOneWhereSomethingHasChanged()
    {
        SnapshotJob job = this->job();
        job.isDaily = true;
        QCOMPARE(SnapshotRun(job).run().end, End::Made);
        m_folder->put(u"Addbk1.Fil"_s, "changed the same day");
        QCOMPARE(SnapshotRun(job).run().end, End::NotDue);
        job.now = now.addDays(1);
        QCOMPARE(SnapshotRun(job).run().end, End::Made);
        job.now = now.addDays(2);
        QCOMPARE(SnapshotRun(job).run().end, End::NotDue);
        // Written, with what it had: nothing has changed. Nor have the places of windows.
        QTest::qWait(20);
        m_folder->put(u"Addbk1.Fil"_s, "changed the same day");
        job.items = [items = job.items()]() mutable {
            items.last().content = "moved";
            return items;
        };
        QCOMPARE(SnapshotRun(job).run().end, End::NotDue);
        job.items = [items = job.items()] { return items.first(1); };
        QCOMPARE(SnapshotRun(job).run().end, End::Made);
        job.now = now.addDays(4);
        job.items = [items = job.items()] { return items.last(1); };
        QCOMPARE(SnapshotRun(job).run().end, End::NotDue);
    }

    void aDiskThatRefusesLeavesNothing()
    {
        const auto before = filesBelow(m_folder->path({}));
        QVERIFY(QDir().mkpath(snapshots()));
        m_folder->put(u"Snapshots/2020-01-01.zip"_s, "old");
        const auto kept = filesBelow(snapshots());
        for (int step = 1; step < 100; ++step) {
            SnapshotReport report;
            int steps = 0;
            {
                const FailingDisk disk(DiskFailure::OneStep, step);
                report = SnapshotRun(job()).run();
                steps = disk.steps();
            }
            QVERIFY(filesBelow(m_folder->path({})) == before);
            if (report.end == End::Made) {
                QVERIFY(steps < step && step > 3);
                return;
            }
            QCOMPARE(report.refusal, u"The snapshot could not be written to "_s + snapshots() + u'.');
            QVERIFY(filesBelow(snapshots()) == kept);
        }
        QFAIL("it never comes to its end");
    }

    void nothingIsTakenFromWhatIsNone_data()
    {
        // What an archive holds, as name and bytes; the state; what of it is unpacked.
        const QString one = u"\uFEFFName,Bytes,Changed,SHA-256,Function,Kept as\r\n"_s;
        const QString hash(64, u'0');
        const QString line = u"%1,5,2026-11-23T08:30:00.000Z,"_s + hash + u",AddressBook,readable\r\n";
        const QString last = u"END,1,,,,\r\n"_s;
        rows<QString, QString, State>(
            {{"no list", u"Household/a"_s, {}, State::Refused},
             {"another hash", u"Household/a"_s, one + line.arg(u"a"_s) + last, State::Damaged},
             {"another size", u"Household/a"_s, one + line.arg(u"a"_s).replace(u",5,"_s, u",6,"_s) + last,
              State::Refused},
             {"more files than are listed", u"Household/a"_s, one + u"END,0,,,,\r\n"_s, State::Refused},
             {"a list that is cut", u"Household/a"_s, one + line.arg(u"a"_s), State::Refused},
             {"upwards", u"Household/a"_s, one + line.arg(u"../a"_s) + last, State::Refused},
             {"absolute", u"Household/a"_s, one + line.arg(u"/tmp/a"_s) + last, State::Refused},
             {"a device", u"Household/a"_s, one + line.arg(u"aux.Fil"_s) + last, State::Refused},
             {"elsewhere", u"a"_s, one + line.arg(u"a"_s) + last, State::Refused}});
    }
    void nothingIsTakenFromWhatIsNone()
    {
        const auto [name, manifest, state] = row<QString, QString, State>();
        QByteArray bytes;
        ArchiveWriter writer(ArchiveForm::Zip, [&bytes](QByteArrayView piece) {
            bytes += piece;
            return true;
        });
        const QByteArray list = manifest.toUtf8();
        QVERIFY(writer.add({name, 5, now}, "bytes"));
        QVERIFY(list.isEmpty() || writer.add({u"manifest.csv"_s, list.size(), now}, list));
        QVERIFY(writer.finish());
        m_folder->put(u"s.zip"_s, bytes);
        SnapshotReader reader(m_folder->path(u"s.zip"_s));
        QVERIFY(!reader.unpack(m_folder->path(u"out"_s), {}, goOn));
        QCOMPARE(reader.state(), state);
        QVERIFY(filesBelow(m_folder->path(u"out"_s)).isEmpty());
        QCOMPARE(reader.damaged(), state == State::Damaged ? QStringList{u"a"_s} : QStringList());
    }

    void theOthersComeOutOfADamagedOne()
    {
        const QString path = SnapshotRun(job()).run().path;
        QByteArray bytes = contentOf(path);
        bytes[1000] =
            char(bytes[1000] ^ 0x20); // in the first file, which is noise and not packed any smaller
        QVERIFY(makeFile(path, bytes));
        SnapshotReader reader(path);
        QVERIFY(!reader.unpack(m_folder->path(u"out"_s), {}, goOn));
        QCOMPARE(reader.damaged(), QStringList{u" 2026.Cal"_s});
        QCOMPARE(filesBelow(m_folder->path(u"out"_s)).keys(),
                 QStringList({u"Addbk1.Fil"_s, u"Desk.conf"_s, u"Secfile1.Fil"_s}));
    }

private:
    QString snapshots() const { return m_folder->path(u"Snapshots"_s); }
    BackupItem item(const QString &name, const QString &function) const
    {
        return {name, m_folder->path(name), function, 0, {}, {}};
    }
    SnapshotJob job() const
    {
        SnapshotJob job;
        job.folder = snapshots();
        job.now = now;
        const QList<BackupItem> items{item(u" 2026.Cal"_s, u"Planner"_s),
                                      item(u"Addbk1.Fil"_s, u"AddressBook"_s),
                                      item(u"Secfile1.Fil"_s, u"PasswordKeeper"_s),
                                      item(u"x.jpg"_s, u"AddressBook"_s),
                                      item(u"Snapshots/2020-01-01.zip"_s, u"Other files"_s),
                                      {u"Desk.conf"_s, {}, u"Program settings"_s, 4, {}, "desk"}};
        job.items = [items] { return items; };
        job.functions = {{u"AddressBook"_s, KeptAs::Readable, std::make_shared<TwoEntries>()},
                         {u"PasswordKeeper"_s, KeptAs::Sealed, nullptr}};
        return job;
    }

    std::unique_ptr<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestSnapshotRun)
#include "tst_snapshotrun.moc"
