// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/snapshotrun.h"
#include "backup/window/backup1.h"
#include "shell/access/passwordcheck.h"
#include "shell/core/area.h"
#include "storage/saving.h"
#include "tests/backup/model/testset.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QDialog>
#include <QLineEdit>
#include <QTableView>
#include <QTextBrowser>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString fileName = u"Addbk1.Fil"_s;

/// An address for each line of a file, "Anne 555-0142".
class Lines final : public FunctionRecords
{
public:
    explicit Lines(const DataFolder &folder)
        : m_folder(folder)
    {}
    QString counted(int count) const override { return u"%1 addresses"_s.arg(count); }
    std::vector<FunctionRecord> all() const override
    {
        std::vector<FunctionRecord> records;
        const QByteArrayList lines = contentOf(m_folder.filePath(fileName)).split('\n');
        for (const QByteArray &line : lines) {
            const QString name = QString::fromLatin1(line.left(line.indexOf(' ')));
            if (!name.isEmpty())
                records.push_back({name, name, line});
        }
        return records;
    }
    QStringList lines(const QString &key) const override
    {
        for (const FunctionRecord &record : all()) {
            if (record.key == key)
                return {u"Name: "_s + key,
                        u"Telephone: "_s + QString::fromLatin1(record.content).section(u' ', 1)};
        }
        return {};
    }
    /// Puts what comes at the end; a line "no" is refused.
    RecordsBack bringBack(const FunctionRecords &from, const QStringList &keys) override
    {
        const QByteArray before = contentOf(m_folder.filePath(fileName));
        QByteArray after = before;
        for (const FunctionRecord &record : from.all()) {
            if (keys.contains(record.key))
                after += record.content + '\n';
        }
        const auto write = [folder = m_folder](const QByteArray &bytes) {
            return Saving::replaceFile(folder, fileName, bytes) ? ChangeResult::Done : ChangeResult::Refused;
        };
        if (after.contains("no ") || write(after) != ChangeResult::Done)
            return {{}, u"The book is full"_s, {}};
        return {keys,
                {},
                UndoStep{u"Brought back: "_s + keys.join(u", "_s), [write, before] { return write(before); },
                         [write, after] { return write(after); }}};
    }

private:
    DataFolder m_folder;
};

} // namespace

/// The side "Bring Back" on a household of one function, with a snapshot of the day before.
class TestBringBack : public OpenWindow<Backup1>
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>();
        m_test->functions.add(Function::AddressBook,
                              {.records = [](const Program &, const DataFolder &folder) {
                                  return std::make_unique<Lines>(folder);
                              }});
    }
    void cleanup() { close(); }

    void bringsBackWhatIsTicked()
    {
        makeSnapshot("Anne 1\nBert 2\nTom 4\n");
        open("Anne 9\nZoe 3\nTom 4\n");
        QTRY_COMPARE(texts(), (QStringList{u"Anne, Address Book, Changed since"_s,
                                           u"Bert, Address Book, Not there any more"_s,
                                           u"Zoe, Address Book, New since"_s}));
        QCOMPARE(find<QTextBrowser>("versionThere")->toPlainText(), u"Name: Anne\nTelephone: 1"_s);
        QCOMPARE(find<QTextBrowser>("versionHere")->toPlainText(), u"Name: Anne\nTelephone: 9"_s);
        QVERIFY(!isOffered("bringBackNow"));
        tick(2); // what is new has no box
        QVERIFY(!isOffered("bringBackNow"));
        tick(1);
        QCOMPARE(find<QTextBrowser>("versionHere")->toPlainText(), u"Not there"_s);
        click("bringBackNow");
        QTRY_COMPARE(m_test->bytes(fileName), "Anne 9\nZoe 3\nTom 4\nBert 2\n");
        QTRY_COMPARE(texts().size(), 2);
        QCOMPARE(said(), u"Brought back: Bert"_s);
        trigger("mEUndo");
        QCOMPARE(m_test->bytes(fileName), "Anne 9\nZoe 3\nTom 4\n");
        QTRY_COMPARE(texts().size(), 3);
    }

    void saysWhatTheFunctionRefuses()
    {
        makeSnapshot("no 2\n");
        open("Tom 4\n");
        QTRY_COMPARE(texts().size(), 2);
        tick(0);
        click("bringBackNow");
        QTRY_COMPARE(said(), u"The book is full"_s);
        QCOMPARE(m_test->bytes(fileName), "Tom 4\n");
    }

    void saysWhyNothingIsThere_data()
    {
        rows<QByteArray, QByteArray, QString>({
            {"no snapshot",
             {},
             {},
             u"There is no snapshot yet. One is made on the first start of each day after something was changed"_s},
            {"nothing changed", "Tom 4\n", {}, u"Nothing has changed since"_s},
            {"no archive",
             {},
             "PK no ZIP",
             u"Not all of it could be compared. This file is no snapshot of a household. Nothing was taken from it."_s},
        });
    }
    void saysWhyNothingIsThere()
    {
        const auto [snapshot, archive, words] = row<QByteArray, QByteArray, QString>();
        if (!snapshot.isEmpty())
            makeSnapshot(snapshot);
        if (!archive.isEmpty()) {
            QVERIFY(QDir(m_test->folder.path()).mkpath(u"Snapshots"_s));
            m_test->setBytes(u"Snapshots/2026-11-20.zip"_s, archive);
        }
        open("Tom 4\n");
        QTRY_COMPARE(emptyWords(), words);
        QVERIFY(!find<QTableView>("differences")->isVisible());
        QVERIFY(texts().isEmpty() && !isOffered("bringBackNow") && !isOffered("uncover"));
    }

    void showsWhatIsGuardedBehindThePassword()
    {
        QVERIFY(PasswordCheck(m_test->folder).setPassword(u"secret"_s));
        makeSnapshot("Anne 1\n");
        m_test->state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
        auto verdict = PasswordGateResult::Refused;
        m_test->gate = AccessGate(
            [&verdict](Program &program, QWidget *) { program.state.passwordGateResult = verdict; });
        open("Anne 9\n");
        QTRY_COMPARE(emptyWords(), u"Nothing else has changed since. Guarded, and not shown: Address Book"_s);
        click("uncover");
        QVERIFY(texts().isEmpty());
        verdict = PasswordGateResult::Open;
        click("uncover");
        QTRY_COMPARE(texts().size(), 1);
    }

    /// Where no password is set here, what the snapshot guards is told behind its own alone.
    void asksForThePasswordOfTheSnapshot()
    {
        PasswordCheck check(m_test->folder);
        QVERIFY(check.setPassword(u"secret"_s));
        ProtectedAreas areas;
        areas.setFlag(Area::AddressBook, u"YES"_s);
        QVERIFY(check.saveAreas(areas));
        makeSnapshot("Anne 1\n");
        QVERIFY(QFile::remove(m_test->path(u"PCtrl1.Fil"_s)));
        open("Anne 9\n");
        QTRY_VERIFY(emptyWords().contains(u"Guarded"_s));
        for (const auto &[password, rows] : {std::pair(u"guess"_s, 0), std::pair(u"secret"_s, 1)}) {
            m_test->dialogs.willRun([password = password](QDialog &dialog) {
                auto *box = dialog.findChild<QLineEdit *>();
                if (QTest::qWaitFor([box] { return box->isEnabled(); })) // a wrong one waits
                    box->setText(password);
                dialog.accept();
                return dialog.result();
            });
            click("uncover");
            QTRY_COMPARE(texts().size(), rows);
        }
    }

    /// The disks are asked for in the panel of the run; nothing is, before the user says so.
    void comparesWithASetOfSeveralDisks()
    {
        const TestSet set({{fileName, "Anne 1\nBert 2\n"}}, 8);
        QCOMPARE(set.record().disks, 2);
        open("Anne 9\n");
        m_test->dialogs.willChooseFile(set.drive(2));
        click("otherFolder");
        QTRY_VERIFY(emptyWords().startsWith(u"This backup has not been opened yet. It lies on 2 disks"_s));
        click("openBackup");
        QTRY_VERIFY(isAsked());
        click("runStop");
        QTRY_COMPARE(said(), u"Stopped: the backup was not opened"_s);
        click("openBackup");
        QTRY_VERIFY(isAsked());
        m_test->dialogs.willChooseFile(set.drive(1));
        click("diskOther");
        QTRY_COMPARE(texts(), (QStringList{u"Anne, Address Book, Changed since"_s,
                                           u"Bert, Address Book, Not there any more"_s}));
        QVERIFY(!find<QPushButton>("openBackup")->isVisible());
    }

private:
    /// Of yesterday, with these addresses and the file of the password where there is one.
    void makeSnapshot(const QByteArray &addresses)
    {
        m_test->setBytes(fileName, addresses);
        QList<BackupItem> items;
        SnapshotJob job;
        job.folder = m_test->path(u"Snapshots"_s);
        job.now = QDateTime(QDate(2026, 11, 20), QTime(8, 0));
        for (const QString &name : {fileName, u"PCtrl1.Fil"_s}) {
            const QFileInfo file(m_test->path(name));
            if (file.exists())
                items.append({name, file.filePath(), u"AddressBook"_s, file.size(), file.lastModified(), {}});
        }
        job.items = [items] { return items; };
        QCOMPARE(SnapshotRun(job).run().refusal, QString());
    }
    void open(const QByteArray &addresses)
    {
        m_test->setBytes(fileName, addresses);
        m_window = new Backup1(m_test->program);
        showActive(*m_window);
        trigger("mVBringBack");
    }
    bool isAsked() const
    {
        const auto *question = m_window->findChild<QWidget *>(u"diskQuestion"_s);
        return question && question->isVisible();
    }
    /// What stands in the place of the panes.
    QString emptyWords() const
    {
        QStringList words;
        const auto *page = find<QWidget>("bringBackEmpty");
        for (const QLabel *label : page->findChildren<QLabel *>()) {
            if (page->isVisible() && !label->text().isEmpty())
                words.append(label->text());
        }
        return words.join(u". "_s);
    }
    QStringList texts() const
    {
        const QAbstractItemModel *model = find<QTableView>("differences")->model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells.append(model->index(row, column).data().toString());
            texts.append(cells.join(u", "_s));
        }
        return texts;
    }
    void tick(int row) const
    {
        auto *view = find<QTableView>("differences");
        view->setCurrentIndex(view->model()->index(row, 0));
        QTest::keyClick(view, Qt::Key_Space);
    }
};

QTEST_MAIN(TestBringBack)
#include "tst_bringback.moc"
