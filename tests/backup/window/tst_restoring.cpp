// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restoremessages.h"
#include "backup/window/backup1.h"
#include "backup/window/copypasswordbox.h"
#include "backup/window/householdsources.h"
#include "shell/access/passwordcheck.h"
#include "shell/core/area.h"
#include "shell/program/backupplace.h"
#include "storage/changeset.h"
#include "tests/backup/model/testset.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTableView>

namespace {

const QString book = u"Addbk1.Fil"_s;
const QString budget = u"2026.Fil"_s;
const QString passwords = u"PCtrl1.Fil"_s;

/// A password's file that guards the address book.
QByteArray passwordFile(const QString &password)
{
    const TestFolder folder;
    PasswordCheck check(folder.folder(), PasswordCost::minimum());
    ProtectedAreas areas;
    areas.setFlag(Area::AddressBook, u"YES"_s);
    const bool isMade = check.setPassword(password) && check.saveAreas(areas);
    return isMade ? folder.bytes(passwords) : QByteArray();
}

/// Says of the file `name` whether it is there.
std::function<QStringList(const Program &)> thereOf(const QString &name)
{
    return [name](const Program &program) {
        return program.folder.exists(name) ? QStringList{name} : QStringList();
    };
}

} // namespace

/// The side "Restore" on a household of two functions.
class TestRestoring : public OpenWindow<Backup1>
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>();
        m_told.clear();
        m_test->setBytes(book, "Anne\n");
        m_test->setBytes(budget, "rent");
        m_test->functions.add(Function::AddressBook, {.files = thereOf(book)});
        m_test->functions.add(Function::Budget, {.files = thereOf(budget)});
        m_test->functions.add(
            Function::Backup,
            {.open = [](Program &program) { return new Backup1(program, [] { return QList<Drive>(); }); },
             .show = [](QWidget &window,
                        const Place &place) { static_cast<Backup1 &>(window).showPlace(place); }});
    }
    void cleanup() { close(); }

    void restoresWhatThePlanShows()
    {
        const TestSet set({{book, "Anne\nBert\n"}, {budget, "rent"}, {u"notes.txt"_s, "note"}});
        openOn(set);
        QCOMPARE(
            labelText("restoreSummary"),
            u"1 new, 1 replaced by an older one, 1 the same, 2 only here. 14 bytes to be restored. What is only here stays."_s);
        click("restoreNow");
        QTRY_VERIFY(isTold());
        QCOMPARE(m_told.first().text.section(u'\n', 0, 0),
                 u"2 files are restored, each as it was backed up."_s);
        QCOMPARE(m_test->bytes(book), "Anne\n"); // the next start puts it in its place
        QCOMPARE(QDir(m_test->folder.path() + u"/Snapshots"_s).entryList(QDir::Files).size(), 1);
        QVERIFY(ChangeSet::recover(m_test->folder));
        QCOMPARE(m_test->bytes(book), "Anne\nBert\n");
        QCOMPARE(m_test->bytes(u"notes.txt"_s), "note");
    }

    void comparesTheSettings()
    {
        m_test->store.setValue(u"Windows/Backup1/geometry"_s, 7);
        const TestSet set({{u"Desk.conf"_s, HouseholdSources::desk(m_test->program)}});
        openSide();
        choose(set.drive(1));
        QTRY_VERIFY(isOffered("restoreStart"));
        m_test->store.remove(u"Windows/Backup1/folders"_s); // one more since the backup
        click("restoreStart");
        QTRY_VERIFY(isSeen("restorePanel"));
        QVERIFY(labelText("restoreSummary").startsWith(u"1 the same"_s));
    }

    void restoresOneFunctionAlone()
    {
        const TestSet set({{book, "Bert\n"}, {budget, "heating"}});
        openOn(set, Function::Budget);
        QCOMPARE(find<QComboBox>("restoreFunctions")->currentText(), u"Personal Budget"_s);
        QCOMPARE(rowCount("restoreFiles"), 1);
        click("restoreNow");
        QTRY_VERIFY(isTold());
        QVERIFY(ChangeSet::recover(m_test->folder));
        QCOMPARE(m_test->bytes(book) + m_test->bytes(budget), "Anne\nheating");
    }

    void restoresIntoAnotherFolder()
    {
        const TestSet set({{book, "Bert\n"}, {budget, "rent"}});
        openOn(set);
        const QTemporaryDir other;
        m_test->dialogs.willChooseFile(other.path());
        click("restoreFolder");
        QTRY_VERIFY(isTold());
        QCOMPARE(contentOf(other.filePath(book)) + contentOf(other.filePath(budget)), "Bert\nrent");
        QVERIFY(!ChangeSet::isPending(m_test->folder));
        QCOMPARE(m_test->bytes(book), "Anne\n");
    }

    /// What is asked, what is typed, and whether anything is restored then.
    void asksForThePassword_data()
    {
        rows<bool, bool, bool, QStringList, bool>({
            {"one here, given", true, false, true, {}, true},
            {"one here, not given", true, false, false, {}, false},
            {"one here, not given, into another folder", true, true, false, {}, false},
            {"the copy's, right", false, false, false, {u"wrong"_s, u"secret"_s}, true},
            {"the copy's, wrong", false, false, false, {u"wrong"_s, u""_s}, false},
            {"the copy's, wrong and at once the right one",
             false,
             false,
             false,
             {u"wrong"_s, u"!secret"_s},
             false},
            {"the copy's, not given", false, false, false, {}, false},
            {"the copy's, not given, into another folder", false, true, false, {}, false},
        });
    }

    void asksForThePassword()
    {
        const auto [isHere, isFolder, isGiven, typed, isRestored] =
            row<bool, bool, bool, QStringList, bool>();
        const QByteArray file = passwordFile(u"secret"_s);
        QVERIFY(!file.isEmpty());
        if (isHere)
            m_test->setBytes(passwords, file);
        int prompts = 0;
        m_test->gate = AccessGate([&prompts, given = isGiven](Program &program, QWidget *) {
            ++prompts;
            program.state.passwordGateResult = given ? PasswordGateResult::Open : PasswordGateResult::Refused;
        });
        const TestSet set({{book, "Bert\n"}, {passwords, isHere ? QByteArray(140, '\0') : file}});
        openOn(set, Function::AddressBook);
        const QTemporaryDir other;
        if (isFolder)
            m_test->dialogs.willChooseFile(other.path());
        if (!isHere)
            m_test->dialogs.willRun([typed = typed](QDialog &dialog) { return answer(dialog, typed); });
        QCOMPARE(labelText("restoreSummary").endsWith(u"comes along all the same if it guards any of it."_s),
                 !isHere);
        click(isFolder ? "restoreFolder" : "restoreNow");
        QTRY_VERIFY(m_test->dialogs.isDone());
        QTRY_VERIFY(!isSeen("runPanel"));
        QCOMPARE(isSeen("restorePanel"), !isRestored); // what was refused can be tried again
        QCOMPARE(prompts, isHere ? 1 : 0);
        QCOMPARE(ChangeSet::isPending(m_test->folder), isRestored);
        QVERIFY(ChangeSet::recover(m_test->folder));
        QCOMPARE(m_test->bytes(book), isRestored ? "Bert\n" : "Anne\n");
        // The copy's file comes along where it guards; the one here stays unless it is chosen.
        QCOMPARE(m_test->bytes(passwords), isHere || isRestored ? file : QByteArray());
        QCOMPARE(QDir(other.path()).entryList(QDir::Files), QStringList());
    }

    void asksForThePasswordOfWhatIsTheSameHere()
    {
        const TestSet set({{book, "Anne\n"}, {passwords, passwordFile(u"secret"_s)}});
        openOn(set, Function::AddressBook);
        const QTemporaryDir other;
        m_test->dialogs.willChooseFile(other.path());
        m_test->dialogs.willRun([](QDialog &dialog) { return answer(dialog, {}); });
        click("restoreFolder");
        QTRY_VERIFY(m_test->dialogs.isDone());
        QTRY_VERIFY(!isSeen("runPanel"));
        QCOMPARE(QDir(other.path()).entryList(QDir::Files), QStringList());
    }

    void asksOnceForAllThatIsDamaged()
    {
        const TestSet set({{book, "Bert\n"}, {budget, "heating"}, {u"notes.txt"_s, "note"}});
        for (const QString &name : {book, budget})
            QVERIFY(makeFile(set.path(1, name), contentOf(set.path(1, name)).replace('e', 'a')));
        openOn(set);
        m_test->dialogs.willAnswer(Answer::Yes);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("restoreNow");
        QTRY_VERIFY(isTold() && !isSeen("runPanel"));
        m_told += asked();
        QCOMPARE(m_told.first(2), (QList<Message>{RestoreMessages::takeTheRest({book, budget}),
                                                  RestoreMessages::takeAllDamaged()}));
        QCOMPARE(m_told.size(), 3);
        QVERIFY(ChangeSet::recover(m_test->folder));
        QCOMPARE(m_test->bytes(book) + m_test->bytes(budget), "Bart\nhaating");
    }

    void knowsWhoseTheFilesOfOtherDisksAre()
    {
        for (const QString &name : {book, budget})
            QVERIFY(QFile::remove(m_test->folder.filePath(name)));
        const TestSet set({{book, "Bert\n"}, {passwords, passwordFile(u"secret"_s)}, {budget, "rent"}}, 10);
        const int disks = set.record().disks;
        QVERIFY(disks > 1 && set.record().files[0].lastDisk < disks);
        openSide(Function::AddressBook);
        choose(set.drive(disks));
        QTRY_VERIFY(isOffered("restoreStart"));
        click("restoreStart");
        QTRY_VERIFY(isSeen("restorePanel"));
        QCOMPARE(find<QComboBox>("restoreFunctions")->currentText(), u"Address Book"_s);
        QCOMPARE(rowCount("restoreFiles"), 1);
    }

    void offersNothingOfASetThatIsNotComplete()
    {
        const TestSet set({{book, QByteArray(100, 'b')}}, 60);
        openSide();
        choose(set.drive(1));
        QTRY_COMPARE(rowCount("sets"), 1);
        QVERIFY(!isOffered("restoreStart"));
        choose(set.drive(2));
        QTRY_VERIFY(isOffered("restoreStart"));
    }

private:
    static int answer(QDialog &dialog, const QStringList &typed)
    {
        auto *box = dialog.findChild<QLineEdit *>(u"copyPassword"_s);
        for (QString word : typed) {
            // Each wrong one waits, unless somebody goes past the box by force.
            if (word.startsWith(u'!'))
                word.remove(0, 1);
            else if (!QTest::qWaitFor([box] { return box->isEnabled(); }))
                return QDialog::Rejected;
            box->setText(word);
            QTest::keyClick(box, Qt::Key_Return);
        }
        return dialog.result();
    }

    /// A panel is not in the window before it is opened.
    bool isSeen(const char *panel) const
    {
        const auto *found = m_window->findChild<QWidget *>(QString::fromLatin1(panel));
        return found && found->isVisible();
    }

    /// A box has come; they are gathered.
    bool isTold()
    {
        m_told += asked();
        return !m_told.isEmpty();
    }

    void openSide(std::optional<Function> function = {})
    {
        m_window = qobject_cast<Backup1 *>(m_test->functions.open(
            Function::Backup, m_test->program, BackupPlace::of(BackupPlace::Side::Restore, function)));
        showActive(*m_window);
    }

    void choose(const QString &drive)
    {
        m_test->dialogs.willChooseFile(drive);
        click("otherFolder");
    }

    /// The plan for the set.
    void openOn(const TestSet &set, std::optional<Function> function = {})
    {
        openSide(function);
        choose(set.drive(1));
        QTRY_VERIFY(isOffered("restoreStart"));
        click("restoreStart");
        QTRY_VERIFY(isSeen("restorePanel"));
    }

    int rowCount(const char *name) const
    {
        const auto *view = m_window->findChild<QTableView *>(QString::fromLatin1(name));
        return view ? view->model()->rowCount() : 0;
    }

    QList<Message> m_told;
};

QTEST_MAIN(TestRestoring)
#include "tst_restoring.moc"
