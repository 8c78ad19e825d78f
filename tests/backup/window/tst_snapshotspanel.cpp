// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/messages.h"
#include "backup/model/snapshotreader.h"
#include "backup/model/snapshots.h"
#include "backup/window/backup1.h"
#include "backup/window/dailysnapshot.h"
#include "backup/window/guardedsnapshots.h"
#include "backup/window/snapshotchoice.h"
#include "shell/core/area.h"
#include "storage/changeset.h"
#include "tests/support/openwindow.h"

#include <QComboBox>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// One address.
class OneAddress final : public FunctionRecords
{
public:
    QString counted(int) const override { return u"1 address"_s; }
    std::vector<FunctionRecord> all() const override { return {{u"2"_s, u"Anne"_s, {}}}; }
    QStringList lines(const QString &) const override { return {u"Telephone: 555-0142"_s}; }
    RecordsBack bringBack(const FunctionRecords &, const QStringList &) override { return {}; }
};

} // namespace

/// Snapshots as the program makes them by itself, and as they are looked after.
class TestSnapshotsPanel : public OpenWindow<Backup1>
{
    Q_OBJECT
private slots:
    void init()
    {
        makeProgram({});
        m_test->setBytes(u"Addbk1.Fil"_s, "Anne");
        m_test->setBytes(u"2026.Fil"_s, "rent");
    }

    void theDaysTakesTheHouseholdAlong()
    {
        m_test->state.protectedAreas.setFlag(Area::Budget, u"YES"_s);
        const QList<Snapshot> made = daily();
        QCOMPARE(made.size(), 1);
        QCOMPARE(made.first().path, m_test->path(u"Snapshots/2026-11-21.zip"_s));
        const auto files = SnapshotReader(made.first().path).files();
        QVERIFY(files);
        QMap<QString, KeptAs> kept;
        for (const SnapshotFile &file : *files)
            kept.insert(file.function, file.keptAs);
        QVERIFY(kept.value(u"AddressBook"_s, KeptAs::Sealed) == KeptAs::Readable);
        QVERIFY(kept.value(u"Budget"_s) == KeptAs::Guarded);
        const QByteArray bytes = contentOf(made.first().path);
        QVERIFY(bytes.contains("Readable/AddressBook.csv") && !bytes.contains("Readable/Budget.csv"));
        // The same day, and the next with nothing changed.
        QCOMPARE(daily().size(), 1);
        m_test->clock.time = m_test->clock.time.addDays(1);
        QCOMPARE(daily().size(), 1);
        m_test->setBytes(u"2026.Fil"_s, "rents");
        QCOMPARE(daily().size(), 2);
    }

    void whoMarksAFunctionIsToldOfOlderOnes()
    {
        QCOMPARE(daily().size(), 1);
        GuardedSnapshots guarded(m_test->program);
        guarded.begin();
        m_test->state.protectedAreas.setFlag(Area::Budget, u"YES"_s);
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            m_test->dialogs.willAnswer(answer);
            emit m_test->changes.guardsChanged();
            QTRY_VERIFY(m_test->dialogs.isDone());
            QCOMPARE(m_test->dialogs.takeShown(), {BackupMessages::olderSnapshots(u"Personal Budget"_s, 1)});
            QCOMPARE(Snapshots::in(m_test->path(u"Snapshots"_s)).size(), answer == Answer::No ? 1 : 0);
            // The mark taken away tells nothing; set again, it does.
            m_test->state.protectedAreas.setFlag(Area::Budget, {});
            emit m_test->changes.guardsChanged();
            QTest::qWait(50);
            m_test->state.protectedAreas.setFlag(Area::Budget, u"YES"_s);
        }
        // What was guarded then is no news.
        QCOMPARE(daily().size(), 1);
        emit m_test->changes.guardsChanged();
        QTRY_VERIFY(!guarded.isRunning());
        QVERIFY(m_test->dialogs.takeShown().isEmpty());
    }

    void theDaysIsNotMadeWhereNothingCanBe()
    {
        makeProgram({});
        QVERIFY(daily().isEmpty());
        makeProgram(u"for reading only"_s);
        m_test->setBytes(u"Addbk1.Fil"_s, "Anne");
        QVERIFY(daily().isEmpty());
    }

    void theyAreMadeAndDeletedByHand()
    {
        open();
        QVERIFY(labelText("snapshotWords").startsWith(u"There are no snapshots yet in "_s));
        QVERIFY(!isOffered("snapshotDelete"));
        click("snapshotNow");
        QTRY_COMPARE(rows(), 1);
        QCOMPARE(said(), u"Snapshot made"_s);
        click("snapshotNow");
        QTRY_COMPARE(rows(), 2);
        QVERIFY(labelText("snapshotWords").startsWith(u"2 snapshots, "_s));
        QVERIFY(QFileInfo::exists(m_test->path(u"Snapshots/2026-11-21 10.24.00.zip"_s)));
        m_test->dialogs.willAnswer(Answer::No);
        click("snapshotDelete");
        QCOMPARE(rows(), 2);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("snapshotDelete");
        QCOMPARE(rows(), 1);
        QVERIFY(!QFileInfo::exists(m_test->path(u"Snapshots/2026-11-21 10.24.00.zip"_s)));
        close();
    }

    void theyAreRestoredWhole()
    {
        QCOMPARE(daily().size(), 1);
        m_test->setBytes(u"Addbk1.Fil"_s, "Berta");
        QVERIFY(QFile::remove(m_test->path(u"2026.Fil"_s)));
        open();
        click("snapshotRestore");
        QTRY_VERIFY(m_window->findChild<QTableView *>(u"restoreFiles"_s));
        click("restoreNow");
        QTRY_VERIFY(ChangeSet::isPending(m_test->folder));
        QTRY_VERIFY(!find<QTableView>("restoreFiles")->isVisible());
        QVERIFY(ChangeSet::recover(m_test->folder));
        QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s) + m_test->bytes(u"2026.Fil"_s), "Annerent");
        // It is no backup on a drive.
        QVERIFY(!m_test->folder.exists(u"DiskInfo.Abk"_s));
        close();
    }

    void theyGoWhereTheUserWantsThem()
    {
        const QString elsewhere = m_test->temporary.filePath(u"elsewhere"_s);
        open();
        m_test->dialogs.willChooseFile(elsewhere);
        click("snapshotFolder");
        auto *limit = find<QComboBox>("snapshotLimit");
        limit->setFocus();
        QTest::keyClick(limit, Qt::Key_Down);
        QCOMPARE(SnapshotChoice::read(m_test->store, m_test->folder),
                 (SnapshotChoice{elsewhere, qint64(50'000'000)}));
        close();
        QCOMPARE(daily().size(), 1);
        QVERIFY(!QFileInfo::exists(m_test->path(u"Snapshots"_s)));
        // The household's own goes with it.
        SnapshotChoice{m_test->path(u"Snapshots"_s), 0}.write(m_test->store, m_test->folder);
        QCOMPARE(SnapshotChoice::read(m_test->store, DataFolder(u"/moved"_s)).folder, u"/moved/Snapshots"_s);
    }

private:
    void makeProgram(const QString &whyReadOnly)
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty, whyReadOnly);
        m_test->functions.add(
            Function::AddressBook,
            {.files = [](const Program &) { return QStringList{u"Addbk1.Fil"_s}; },
             .records = [](const Program &, const DataFolder &) { return std::make_unique<OneAddress>(); }});
        m_test->functions.add(
            Function::Budget,
            {.files = [](const Program &) { return QStringList{u"2026.Fil"_s}; },
             .records = [](const Program &, const DataFolder &) { return std::make_unique<OneAddress>(); }});
    }

    void open()
    {
        m_window = new Backup1(m_test->program, [] { return QList<Drive>(); });
        showActive(*m_window);
        trigger("mBSnapshots");
    }
    int rows() const { return find<QTableView>("snapshotList")->model()->rowCount(); }

    QList<Snapshot> daily() const
    {
        DailySnapshot snapshot(m_test->program);
        snapshot.begin();
        if (!QTest::qWaitFor([&] { return !snapshot.isRunning(); }, 60'000))
            qWarning("still running");
        return Snapshots::in(SnapshotChoice::read(m_test->store, m_test->folder).folder);
    }
};

QTEST_MAIN(TestSnapshotsPanel)
#include "tst_snapshotspanel.moc"
