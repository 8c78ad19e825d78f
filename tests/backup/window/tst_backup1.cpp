// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backuppages.h"
#include "backup/model/diskrecords.h"
#include "backup/model/messages.h"
#include "backup/model/restoremessages.h"
#include "backup/model/setfolder.h"
#include "backup/model/setlist.h"
#include "backup/window/backup1.h"
#include "backup/window/driveoffer.h"
#include "backup/window/holdingsmodel.h"
#include "shell/core/area.h"
#include "shell/core/settingskeys.h"
#include "shell/program/backupplace.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "tests/support/sampletraits.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Addresses, one for each line of a file.
class Lines final : public FunctionRecords
{
public:
    explicit Lines(const DataFolder &folder)
        : m_bytes(contentOf(folder.filePath(u"Addbk1.Fil"_s)))
    {}
    QString counted(int count) const override { return u"%1 addresses"_s.arg(count); }
    std::vector<FunctionRecord> all() const override
    {
        return std::vector<FunctionRecord>(std::size_t(m_bytes.count('\n')));
    }
    QStringList lines(const QString &) const override { return {}; }
    RecordsBack bringBack(const FunctionRecords &, const QStringList &) override { return {}; }

private:
    QByteArray m_bytes;
};

} // namespace

/// The window for backups on 21 November 2026, on a household of two functions.
class TestBackup1 : public OpenWindow<Backup1>
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>();
        m_test->setBytes(u"Addbk1.Fil"_s, "Anne\nBert\n");
        m_test->setBytes(u"2026.Fil"_s, "rent");
        m_test->setBytes(u"notes.txt"_s, QByteArray(3000, 'n'));
        m_test->functions.add(
            Function::AddressBook,
            {.files = [](const Program &) { return QStringList{u"Addbk1.Fil"_s}; },
             .records = [](const Program &,
                           const DataFolder &folder) { return std::make_unique<Lines>(folder); }});
        m_test->functions.add(Function::Budget,
                              {.files = [](const Program &) { return QStringList{u"2026.Fil"_s}; }});
        m_test->functions.add(
            Function::Backup,
            {.open = [](Program &program) { return new Backup1(program, [] { return QList<Drive>(); }); },
             .show = [](QWidget &window,
                        const Place &place) { static_cast<Backup1 &>(window).showPlace(place); }});
    }
    void cleanup() { close(); }

    void copiesEverythingToAFolderAndReadsItBack()
    {
        open(BackupPlace::of(BackupPlace::Side::BackUp));
        QCOMPARE(labelText("backUpTitle"), u"No backup yet"_s);
        chooseStick();
        QTRY_COMPARE(labelText("backUpWords").section(u',', 0, 0), u"To stick: 5 files"_s);
        click("backUpNow");
        QTRY_COMPARE(words("doneTitle"), u"The backup on stick is complete"_s);
        QCOMPARE(labelText("doneWords"), u"2 addresses: copied and read back."_s);
        const std::optional<SetRecord> noted = DiskRecords::readSet(m_test->folder.path());
        QVERIFY(noted && noted->ended.isValid());
        const QString set = SetFolder::path(stick(), noted->begun);
        for (const char *name : {"Addbk1.Fil", "2026.Fil", "notes.txt"})
            QCOMPARE(contentOf(set + u'/' + QString::fromLatin1(name)),
                     m_test->bytes(QString::fromLatin1(name)));
        QStringList names;
        for (const BackupFile &file : noted->files)
            names << file.name;
        QCOMPARE(names.join(u' '), u"Addbk1.Fil 2026.Fil GColor1.Fil GColor3.Fil notes.txt"_s);
        QCOMPARE(noted->counts, (QList<BackupCount>{{u"AddressBook"_s, 2}}));
        click("doneClose");
        QTRY_COMPARE(labelText("backUpTitle"), u"Last backup today, on stick"_s);
        trigger("mVRestore");
        QTRY_COMPARE(rowCount("sets"), 1);
        // The buttons act on what is highlighted, also behind a click beside the rows.
        auto *sets = find<QTableView>("sets");
        sets->clearSelection();
        QVERIFY(sets->selectionModel()->isRowSelected(0));
    }

    void knowsTheFolderAgain()
    {
        for (int window = 0; window < 2; ++window) {
            open(BackupPlace::of(BackupPlace::Side::BackUp));
            if (window == 0)
                chooseStick();
            QTRY_COMPARE(find<QListView>("places")->model()->rowCount(), 1);
            QTRY_VERIFY(isOffered("backUpNow"));
            delete m_window;
        }
    }

    void copiesTheFunctionWhoseWindowLedHere()
    {
        open(BackupPlace::of(BackupPlace::Side::BackUp, Function::Budget));
        chooseStick();
        QTRY_COMPARE(labelText("backUpWords").section(u',', 0, 0), u"To stick: 1 file"_s);
        // Ticked by hand, another one goes along.
        auto *model = find<QTableView>("holdings")->model();
        QVERIFY(model->setData(model->index(0, 0), Qt::Checked, Qt::CheckStateRole));
        QTRY_COMPARE(labelText("backUpWords").section(u',', 0, 0), u"To stick: 2 files"_s);
        for (int row = 0; row < model->rowCount(); ++row)
            QVERIFY(model->setData(model->index(row, 0), Qt::Unchecked, Qt::CheckStateRole));
        QTRY_VERIFY(!isOffered("backUpNow"));
    }

    void tellsNoCountsOfWhatIsGuarded()
    {
        m_test->state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
        open(BackupPlace::of(BackupPlace::Side::BackUp));
        chooseStick();
        QTRY_VERIFY(isOffered("backUpNow"));
        click("backUpNow");
        QTRY_VERIFY(!words("doneWords").isEmpty());
        QVERIFY(!labelText("doneWords").contains(u"addresses"_s));
    }

    void refusesPlacesThatAreNone()
    {
        open(BackupPlace::of(BackupPlace::Side::BackUp));
        QVERIFY(!isOffered("backUpNow"));
        m_test->dialogs.willChooseFile(m_test->folder.path());
        click("otherFolder");
        m_test->dialogs.willChooseFile(m_test->temporary.filePath(u"gone"_s));
        click("otherFolder");
        QCOMPARE(asked(), (QList<Message>{BackupMessages::ownFolder(), BackupMessages::folderUnavailable()}));
        chooseStick();
        QTRY_VERIFY(isOffered("backUpNow"));
        QVERIFY(QDir(stick()).removeRecursively());
        click("backUpNow"); // before the list has seen it
        QCOMPARE(asked(), {BackupMessages::folderUnavailable()});
    }

    void testsAndDeletesWhatLiesThere()
    {
        open(BackupPlace::of(BackupPlace::Side::BackUp));
        chooseStick();
        QVERIFY(!isOffered("backUpTest"));
        for (int minute = 0; minute < 2; ++minute) {
            m_test->clock.time = m_test->clock.time.addSecs(60);
            QTRY_VERIFY(isOffered("backUpNow"));
            click("backUpNow");
            QTRY_VERIFY(!words("doneTitle").isEmpty());
            click("doneClose");
        }
        trigger("mVRestore");
        QTRY_COMPARE(rowCount("sets"), 2);
        QTRY_VERIFY(isOffered("restoreTest"));
        click("restoreTest");
        QTRY_COMPARE(said(), u"Tested: all of it is as it was written"_s);
        const auto sets = SetList::on(stick());
        QVERIFY(makeFile(sets[0].folder + u"/notes.txt"_s, "other"));
        QTRY_VERIFY(isOffered("restoreTest"));
        click("restoreTest");
        QList<Message> shown;
        QTRY_VERIFY(!(shown += asked()).isEmpty());
        QCOMPARE(shown, {BackupMessages::damaged({u"notes.txt"_s})});
        // What belongs to the last backup stays, the other one goes.
        click("restoreDelete");
        QCOMPARE(asked(), {BackupMessages::notDeletable()});
        auto *view = find<QTableView>("sets");
        view->setCurrentIndex(view->model()->index(1, 0));
        m_test->dialogs.willAnswer(Answer::Yes);
        click("restoreDelete");
        QTRY_COMPARE(rowCount("sets"), 1);
    }

    void sealsWithAPassword()
    {
        m_test->setBytes(u"PCtrl1.Fil"_s, QByteArray(140, '\0'));
        open(BackupPlace::of(BackupPlace::Side::BackUp));
        chooseStick();
        QTRY_VERIFY(isOffered("backUpNow"));
        QCOMPARE(copies(), (QSet<QString>{u"Anybody can read it"_s, u"The password is not in it"_s}));
        click("sealSet");
        QCOMPARE(copies(), QSet<QString>{u"Sealed"_s});
        click("backUpNow");
        QTRY_VERIFY(m_window->findChild<QPushButton *>(u"sealAndBackUp"_s)->isVisible());
        typeInto(find<QLineEdit>("newBackupPassword"), u"plum tree"_s);
        click("sealAndBackUp");
        QCOMPARE(labelText("newBackupPasswordStrength"), u"The two passwords differ"_s);
        typeInto(find<QLineEdit>("newBackupPasswordAgain"), u"plum tree"_s);
        click("sealAndBackUp");
        QTRY_VERIFY_WITH_TIMEOUT(!words("doneTitle").isEmpty(), 30000);
        const QList<BackupSet> sets = SetList::on(stick());
        QCOMPARE(sets.size(), 1);
        QVERIFY(sets[0].isSealed());
        QCOMPARE(labelText("doneWords"), u"2 addresses: sealed and read back."_s);
        QVERIFY(QFile::exists(sets[0].folder + u"/Quillery.sealed"_s));
        QVERIFY(!QFile::exists(sets[0].folder + u"/notes.txt"_s));
        opensWhatIsSealed();
    }

    void offersABackupWhenTheKnownDriveIsPluggedIn()
    {
        SetRecord last;
        last.set = QByteArray(16, 's');
        last.begun = last.ended = m_test->clock.time.addDays(-34).toUTC();
        last.drive = u"SILVER"_s;
        m_test->setBytes(SetRecord::fileName, DiskRecords::encoded(last));
        QList<Drive> drives{{.name = u"OTHER"_s, .folder = u"/o"_s}};
        DriveOffer offer(m_test->program, [&drives] { return drives; });
        FunctionWindow other(m_test->program, sampleTraits());
        other.setAttribute(Qt::WA_DeleteOnClose, false);
        showActive(other);
        auto *bar = other.findChild<ActivityBar *>();
        const auto lookAgain = [&offer] {
            offer.look();
            QTest::qWait(100);
        };
        lookAgain();
        QCOMPARE(bar->message(), QString());
        drives.append({.name = u"SILVER"_s, .folder = u"/s"_s});
        lookAgain();
        QCOMPARE(bar->message(), u"SILVER is plugged in. No backup for 34 days"_s);
        bar->say({});
        lookAgain(); // once is enough
        QCOMPARE(bar->message(), QString());
    }

    void remindsAsItIsTold()
    {
        open(BackupPlace::of(BackupPlace::Side::BackUp));
        auto *reminder = find<QComboBox>("reminder");
        QCOMPARE(reminder->currentText(), u"After 30 days"_s);
        reminder->setFocus();
        QTest::keyClick(reminder, Qt::Key_Home);
        emit reminder->activated(0);
        QCOMPARE(m_test->settings.number(SettingsKeys::backupReminderDays), 7);
    }

private:
    QString stick() const { return m_test->temporary.filePath(u"stick"_s); }

    void open(const Place &place)
    {
        m_window = qobject_cast<Backup1 *>(m_test->functions.open(Function::Backup, m_test->program, place));
        showActive(*m_window);
    }

    /// Of a panel that may not be there yet.
    QString words(const char *name) const
    {
        const auto *label = m_window->findChild<QLabel *>(QString::fromLatin1(name));
        return label && label->isVisible() ? label->text() : QString();
    }
    /// What is said of who can read them.
    QSet<QString> copies() const
    {
        const QAbstractItemModel *model = find<QTableView>("holdings")->model();
        QSet<QString> copies;
        for (int row = 0; row < model->rowCount(); ++row)
            copies.insert(model->index(row, HoldingsModel::Copy).data().toString());
        return copies;
    }
    int rowCount(const char *name) const
    {
        const auto *view = m_window->findChild<QTableView *>(QString::fromLatin1(name));
        return view ? view->model()->rowCount() : 0;
    }

    /// Read through in sight of the user, who may stop it.
    void opensWhatIsSealed()
    {
        trigger("mVRestore");
        QStringList refusals;
        m_test->dialogs.willRun([&refusals](QDialog &dialog) {
            auto *box = dialog.findChild<QLineEdit *>(u"copyPassword"_s);
            for (const QString &typed : {u"pear tree"_s, u"plum tree"_s}) {
                box->clear();
                typeInto(box, typed);
                dialog.accept();
                std::ignore = QTest::qWaitFor([&] { return box->isEnabled(); }, 30000);
                refusals.append(dialog.findChild<QLabel *>(u"copyPasswordRefusal"_s)->text());
            }
            return dialog.result();
        });
        QTRY_VERIFY(isOffered("restoreStart"));
        click("restoreStart");
        QCOMPARE(refusals, (QStringList{u"That is not the password."_s, QString()}));
        QCOMPARE(words("runTitle"), u"Opening the sealed backup"_s);
        QTRY_VERIFY_WITH_TIMEOUT(words("runTitle").isEmpty(), 30000);
        QTRY_VERIFY(find<QWidget>("restoreFiles")->isVisible());
    }

    void chooseStick()
    {
        QVERIFY(QDir().mkpath(stick()));
        m_test->dialogs.willChooseFile(stick());
        click("otherFolder");
    }
};

QTEST_MAIN(TestBackup1)
#include "tst_backup1.moc"
