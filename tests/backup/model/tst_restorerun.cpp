// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/setsource.h"
#include "storage/changeset.h"
#include "tests/backup/model/testset.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"

#include <QDirIterator>
#include <QStorageInfo>

namespace {

using End = RestoreResult::End;
using Files = QMap<QString, QByteArray>;
using Kind = DiskQuestion::Kind;

const std::atomic<bool> runsOn = false;

/// Takes the second disk away behind the first file of it.
class TakenAway final : public RestoreSource
{
public:
    TakenAway(const TestSet &set, std::function<void()> take)
        : m_source(set.record().set, set.record().begun)
        , m_take(std::move(take))
    {}

    Reading read(const QString &root, int number, Visitor &visitor) override
    {
        Watcher watcher{visitor, number == 2 ? std::exchange(m_take, {}) : nullptr};
        return m_source.read(root, number, watcher);
    }
    std::optional<DiskRecord> diskAt(const QString &root) const override { return m_source.diskAt(root); }

private:
    struct Watcher final : Visitor {
        Watcher(Visitor &visitor, std::function<void()> atFirst)
            : to(visitor)
            , first(std::move(atFirst))
        {}
        bool wants(const BackupPart &part) override { return to.wants(part); }
        bool take(QByteArrayView bytes) override { return to.take(bytes); }
        bool end(bool isWhole) override
        {
            // The next file is not there any more.
            if (first)
                std::exchange(first, {})();
            return to.end(isWhole);
        }
        Visitor &to;
        std::function<void()> first;
    };

    SetSource m_source;
    std::function<void()> m_take;
};

} // namespace

class TestRestoreRun : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QVERIFY(QDir(home().path()).removeRecursively() && QDir().mkpath(home().path()));
        m_snapshots = 0;
    }

    void bringsEverythingBack_data()
    {
        rows<qint64>(
            {{"from one disk", 1'000'000}, {"from five", 150'000}, {"from nine, each file cut", 80'000}});
    }

    void bringsEverythingBack()
    {
        const auto [room] = row<qint64>();
        const TestSet set(household(), room);
        QCOMPARE(set.record().disks, room == 1'000'000 ? 1 : room == 150'000 ? 5 : 9);
        m_home.put(u"pctrl1.fil"_s, "older");
        m_home.put(u"Mine.Fil"_s, "only here");
        ScriptedDesk desk;
        for (int disk = 2; disk <= set.record().disks; ++disk)
            desk.folders.append(set.drive(disk));
        const RestoreResult result = restore(set, desk);
        QCOMPARE(result.end, End::AtNextStart);
        QCOMPARE(result.files, int(household().size()));
        QCOMPARE(desk.asked.size(), set.record().disks - 1);
        QCOMPARE(m_snapshots, 1);
        QCOMPARE(m_home.bytes(u"pctrl1.fil"_s), "older"); // until the next start
        QVERIFY(ChangeSet::recover(home()));
        Files expected{{u"Mine.Fil"_s, "only here"}};
        for (const TestFile &file : household())
            expected[file.name == u"PCtrl1.Fil"_s ? u"pctrl1.fil"_s : file.name] = file.content;
        Files files = filesOf(home().path());
        QCOMPARE(files.take(SetRecord::fileName), DiskRecords::encoded(set.record()));
        QCOMPARE(files, expected);
        QCOMPARE(QFileInfo(m_home.path(u" 2026.Cal"_s)).lastModified().toUTC(), household().first().changed);
    }

    /// Disk full, and the end of the program, at every step.
    void leavesAllOfTheFolderOldOrNew()
    {
        const TestSet set(household(), 300'000);
        failAtEachStep(
            home(),
            [this] {
                init();
                m_home.put(u"PCtrl1.Fil"_s, "older");
                m_home.put(u"Mine.Fil"_s, "only here");
            },
            [&] {
                ScriptedDesk desk;
                desk.folders = {set.drive(2), set.drive(3)};
                return restore(set, desk).end == End::AtNextStart &&
                       (ChangeSet::recover(home()) || ChangeSet::recover(home()));
            },
            [this] { return filesOf(home().path()); });
    }

    void leavesOutWhatIsDamaged_data()
    {
        rows<QByteArray, bool, bool>({{"a bit turned", "bit", true, false},
                                      {"a bit turned, and taken all the same", "bit", true, true},
                                      {"cut short", "cut", false, false},
                                      {"not there", "gone", false, true}});
    }

    void leavesOutWhatIsDamaged()
    {
        const auto [damage, isOffered, isTaken] = row<QByteArray, bool, bool>();
        const TestSet set({{u"A.Fil"_s, "whole"}, {u"B.Fil"_s, "damaged"}, {u"C.Fil"_s, "whole too"}});
        const QString file = set.path(1, u"B.Fil"_s);
        if (damage == "gone")
            QVERIFY(QFile::remove(file));
        else
            QVERIFY(makeFile(file, damage == "cut" ? "damage" : "damaged"_ba.replace('g', 'c')));
        m_home.put(u"B.Fil"_s, "here");
        ScriptedDesk desk;
        QCOMPARE(restore(set, desk).end, End::Stopped); // the first question
        QCOMPARE(filesOf(home().path()), (Files{{u"B.Fil"_s, "here"}}));
        desk.takesRest = true;
        desk.takesDamaged = isTaken;
        const RestoreResult result = restore(set, desk);
        QCOMPARE(desk.damaged, QStringList{u"B.Fil"_s});
        QCOMPARE(desk.offered, isOffered ? desk.damaged : QStringList());
        const bool isThere = isOffered && isTaken;
        QCOMPARE(result.damaged, isThere ? QStringList() : desk.damaged);
        QVERIFY(ChangeSet::recover(home()));
        QCOMPARE(m_home.bytes(u"B.Fil"_s), isThere ? "damaced" : "here");
        QCOMPARE(m_home.bytes(u"A.Fil"_s) + m_home.bytes(u"C.Fil"_s), "wholewhole too");
    }

    void asksForDisks()
    {
        const TestSet set(household(), 300'000);
        const TestSet other({{u"A.Fil"_s, "of another household"}});
        QVERIFY(QFile::remove(set.path(3, DiskRecord::fileName)));
        ScriptedDesk desk;
        desk.folders = {set.drive(1), other.drive(1), set.drive(7), set.drive(2), set.drive(3)};
        QCOMPARE(restore(set, desk).end, End::Stopped);
        QCOMPARE(filesOf(home().path()), Files());
        QList<Kind> kinds;
        for (const DiskQuestion &question : std::as_const(desk.asked))
            kinds.append(question.kind);
        // One of this set, one of another, none, the right one; and one without a record.
        QCOMPARE(kinds, (QList{Kind::NextDisk, Kind::WrongDisk, Kind::WrongDisk, Kind::NextDisk,
                               Kind::NextDisk, Kind::WrongDisk}));
        QCOMPARE(desk.asked[1].foundNumber, 1);
        QCOMPARE(desk.asked[1].foundSet, set.record().begun);
    }

    /// The disk that was begun is begun anew.
    void goesOnWhenADiskIsBackAgain()
    {
        const TestSet set(household(), 300'000);
        const QString away = set.drive(2) + u" away"_s;
        TakenAway source(set, [&] { QVERIFY(QDir().rename(set.drive(2), away)); });
        ScriptedDesk desk;
        desk.folders = {set.drive(2), set.drive(2), set.drive(3)};
        desk.prepare = [&](const DiskQuestion &question) {
            if (question.kind == Kind::DiskGone)
                QVERIFY(QDir().rename(away, set.drive(2)));
        };
        QCOMPARE(RestoreRun(orderOf(set), source, desk, {}).run().end, End::AtNextStart);
        QCOMPARE(desk.asked.size(), 3);
        QVERIFY(ChangeSet::recover(home()));
        for (const TestFile &file : household())
            QCOMPARE(m_home.bytes(file.name), file.content);
    }

    void refusesBeforeAnythingIsWritten_data()
    {
        rows<qint64, QString, QString>(
            {{"no room",
              4'096,
              {},
              u"There is not enough room: 4.0 kB are needed on %1, and 4.0 kB are free. Nothing has been changed."_s},
             {"no snapshot", 1'000'000, u"The disk is full."_s, u"The disk is full."_s}});
    }

    void refusesBeforeAnythingIsWritten()
    {
        const auto [free, snapshot, refusal] = row<qint64, QString, QString>();
        const TestSet set({{u"A.Fil"_s, "of the backup"}});
        RestoreRun::Order order = orderOf(set);
        order.freeBytes = [room = free](const QString &) { return room; };
        order.snapshot = [text = snapshot] { return text; };
        ScriptedDesk desk;
        SetSource source(set.record().set, set.record().begun);
        const RestoreResult result = RestoreRun(order, source, desk, {}).run();
        QCOMPARE(result.end, End::Refused);
        const QString disk = QStorageInfo(home().path()).rootPath();
        QCOMPARE(result.refusal, refusal.contains(u'%') ? refusal.arg(disk) : refusal);
        QCOMPARE(filesOf(home().path()), Files());
    }

    void putsPicturesWhereTheyWere()
    {
        const QTemporaryDir photographs;
        const auto elsewhere = [&photographs](const QString &name) {
            return SetFolder::nameOf(u"/household"_s, photographs.filePath(name));
        };
        const TestSet set({{elsewhere(u"back.jpg"_s), "back"},
                           {elsewhere(u"other.jpg"_s), "other"},
                           {elsewhere(u"same.jpg"_s), "same"},
                           {elsewhere(u"gone/away.jpg"_s), "away"},
                           {elsewhere(u"start.desktop"_s), "no picture"},
                           {u"Pictures/anne.jpg"_s, "anne"},
                           {u"WP3.jpg"_s, "meadow"}});
        m_home.put(u"WP3.jpg"_s, "lake");
        QVERIFY(makeFile(photographs.filePath(u"other.jpg"_s), "not it"));
        QVERIFY(makeFile(photographs.filePath(u"same.jpg"_s), "same"));
        QVERIFY(QDir().mkpath(m_home.path(u"pictures"_s)));
        m_home.put(u"pictures/Anne.jpg"_s, "another Anne");
        m_home.put(u"pictures/away.jpg"_s, "away");
        ScriptedDesk desk;
        const RestoreResult result = restore(set, desk);
        QCOMPARE(result.files, 5);
        QCOMPARE(result.moved,
                 (QStringList{m_home.path(u"pictures/other.jpg"_s), m_home.path(u"pictures/start.desktop"_s),
                              m_home.path(u"pictures/Anne 2.jpg"_s), m_home.path(u"pictures/WP3.jpg"_s)}));
        QVERIFY(ChangeSet::recover(home()));
        QCOMPARE(filesOf(photographs.path()),
                 (Files{{u"back.jpg"_s, "back"}, {u"other.jpg"_s, "not it"}, {u"same.jpg"_s, "same"}}));
        Files files = filesOf(home().path());
        files.remove(SetRecord::fileName);
        QCOMPARE(files, (Files{{u"pictures/Anne.jpg"_s, "another Anne"},
                               {u"pictures/Anne 2.jpg"_s, "anne"},
                               {u"pictures/away.jpg"_s, "away"},
                               {u"pictures/other.jpg"_s, "other"},
                               {u"pictures/start.desktop"_s, "no picture"},
                               {u"pictures/WP3.jpg"_s, "meadow"},
                               {u"WP3.jpg"_s, "lake"}}));
    }

    void comparesTheSettings_data()
    {
        rows<QByteArray, bool, RestoreEffect>({{"the same", "view=1", true, RestoreEffect::Same},
                                               {"others", "view=22", true, RestoreEffect::ByOlder},
                                               {"none", {}, true, RestoreEffect::New},
                                               {"another folder", "view=1", false, RestoreEffect::New}});
    }
    void comparesTheSettings()
    {
        const auto [desk, isHousehold, effect] = row<QByteArray, bool, RestoreEffect>();
        const TestSet set({{u"Desk.conf"_s, "view=1"}});
        const RestorePlan::Aim aim{home(), isHousehold, isHousehold ? desk : QByteArray()};
        const QList<RestoreItem> plan = RestorePlan::made(aim, set.record().files, {}, {}, runsOn);
        QCOMPARE(plan.constFirst().effect, effect);
    }

    void restoresIntoAnotherFolder()
    {
        const TestSet set({{u"A.Fil"_s, "of the backup"}, {u"Elsewhere/home/anne/x.jpg"_s, "x"}});
        const TestFolder other;
        other.put(u"Mine.Fil"_s, "there before");
        RestoreRun::Order order = orderOf(set, {other.folder(), false});
        ScriptedDesk desk;
        SetSource source(set.record().set, set.record().begun);
        QCOMPARE(RestoreRun(order, source, desk, {}).run().end, End::Restored);
        QCOMPARE(filesOf(other.folder().path()), (Files{{u"A.Fil"_s, "of the backup"},
                                                        {u"Mine.Fil"_s, "there before"},
                                                        {u"Pictures/x.jpg"_s, "x"}}));
        QCOMPARE(QDir(other.folder().path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
        QCOMPARE(m_snapshots, 0);
        QCOMPARE(filesOf(home().path()), Files());
    }

    void stopsAtOnce()
    {
        const TestSet set(household());
        ScriptedDesk desk;
        SetSource source(set.record().set, set.record().begun);
        RestoreRun *running = nullptr;
        RestoreRun run(orderOf(set), source, desk, [&running](const DiskProgress &) { running->stop(); });
        running = &run;
        QCOMPARE(run.run().end, End::Stopped);
        QCOMPARE(QDir(home().path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

private:
    const DataFolder &home() const { return m_home.folder(); }

    /// About 700,000 bytes; the first names of both orders, a hole, an empty file, a folder.
    static QList<TestFile> household()
    {
        return {{u" 2026.Cal"_s, noiseOf(850)},   {u"PCtrl1.Fil"_s, QByteArray(140, '\0')},
                {u"Big.Fil"_s, noiseOf(500'000)}, {u"Empty.Fil"_s, {}},
                {u"José Ortega.Fil"_s, "José"},   {u"Pictures/Anne: at sea.jpg"_s, noiseOf(180'000)}};
    }

    RestoreRun::Order orderOf(const TestSet &set, const RestorePlan::Aim &aim)
    {
        RestoreRun::Order order{.aim = aim, .set = set.record(), .drive = set.drive(1), .items = {}};
        order.items = RestorePlan::made(aim, set.record().files, {}, {}, runsOn);
        order.snapshot = [this] {
            ++m_snapshots;
            return QString();
        };
        order.isAll = true;
        return order;
    }
    RestoreRun::Order orderOf(const TestSet &set) { return orderOf(set, {home()}); }

    RestoreResult restore(const TestSet &set, RestoreAsker &desk)
    {
        SetSource source(set.record().set, set.record().begun);
        return RestoreRun(orderOf(set), source, desk, {}).run();
    }

    /// By their names below `folder`.
    static Files filesOf(const QString &folder)
    {
        Files files;
        QDirIterator entries(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            files[path.sliced(folder.size() + 1)] = contentOf(path);
        }
        return files;
    }

    TestFolder m_home;
    int m_snapshots = 0;
};

QTEST_APPLESS_MAIN(TestRestoreRun)
#include "tst_restorerun.moc"
