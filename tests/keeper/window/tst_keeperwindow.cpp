// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/messages.h"
#include "keeper/window/codepanel.h"
#include "keeper/window/entrycommands.h"
#include "keeper/window/keeperwindow.h"
#include "keeper/window/secretbox.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QGuiApplication>
#include <QListView>
#include <QListWidget>
#include <QMenuBar>

using namespace Qt::Literals::StringLiterals;

/// The password keeper on 21 November 2026, with a master password that takes no time.
class TestKeeperWindow : public OpenWindow<Form4>
{
    Q_OBJECT
private slots:
    void init() { m_test = std::make_unique<TestProgram>(); }
    void cleanup() { close(); }

    /// From nothing to a saved entry, locked and opened again: by keys alone.
    void isBegunAndOpenedByKeys()
    {
        openAgain();
        QVERIFY(isSeen("setUpView"));
        keys(u"correct horse"_s);
        key(Qt::Key_Tab);
        keys(u"correct horse"_s);
        key(Qt::Key_Return);
        QTRY_VERIFY(isSeen("codePanel"));
        key(Qt::Key_Escape); // the code is shown once: only its button leaves it
        QVERIFY(isSeen("codePanel"));
        QVERIFY(find<QPushButton>("codeWritten")->hasFocus());
        key(Qt::Key_Return);
        trigger("mENew");
        keys(u"Power company"_s);
        for (int i = 0; i < 2; ++i)
            key(Qt::Key_Tab);
        keys(u"anne"_s);
        key(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(titles(), QStringList{u"Power company"_s});
        trigger("mOLock");
        QVERIFY(isSeen("unlockView"));
        QVERIFY(!isSeen("keeperPane"));
        QCOMPARE(titles(), QStringList());
        keys(u"correct horse"_s);
        key(Qt::Key_Return);
        QTRY_COMPARE(titles(), QStringList{u"Power company"_s});
        key(Qt::Key_Down);
        QCOMPARE(find<QLineEdit>("entryBox_3")->text(), u"anne"_s);
    }

    void countsWrongAnswersAndTellsOfThem()
    {
        begin();
        trigger("mOLock");
        answer(u"wrong"_s);
        QTRY_COMPARE(labelText("unlockRefusal"), u"That is not the password."_s);
        QCOMPARE(titles(), QStringList());
        QTRY_VERIFY(find<QPushButton>("openKeeper")->isEnabled());
        answer(u"master"_s);
        QTRY_VERIFY(isSeen("keeperPane"));
        QVERIFY2(said().startsWith(u"1 wrong answer since "_s), qPrintable(said()));
    }

    /// While an answer is tried and after: a blank on "Show password" would let the right one stand in clear.
    void showsNothingOfWhatIsTypedOn()
    {
        begin();
        trigger("mOLock");
        click("showPassword");
        answer(u"wrong"_s);
        keys(u"mas ter"_s);
        QVERIFY(find<QLineEdit>("masterPassword")->hasFocus());
        QCOMPARE(find<QLineEdit>("masterPassword")->text(), u"wrong"_s);
        QTRY_COMPARE(labelText("unlockRefusal"), u"That is not the password."_s);
        QTRY_VERIFY(find<QPushButton>("openKeeper")->isEnabled());
        keys(u"mas ter"_s);
        QCOMPARE(find<QLineEdit>("masterPassword")->text(), u"mas ter"_s);
        QCOMPARE(find<QLineEdit>("masterPassword")->echoMode(), QLineEdit::Password);
    }

    void locksWhatALateAnswerOpens()
    {
        begin();
        trigger("mOLock");
        answer(u"master"_s);
        emit m_test->changes.lockRequested();
        QTRY_VERIFY(find<QPushButton>("openKeeper")->isEnabled());
        QVERIFY(!isSeen("keeperPane") && isSeen("unlockView"));
        answer(u"master"_s);
        QTRY_VERIFY(isSeen("keeperPane"));
    }

    /// The key of another master password is still being made then.
    void takesAnAnswerBehindAnotherStep()
    {
        begin();
        trigger("mUMaster");
        find<QLineEdit>("oldMaster")->setText(u"master"_s);
        const QWidget &panel = *find<QWidget>("masterPanel");
        control<QLineEdit>(panel, "newMaster")->setText(u"new"_s);
        control<QLineEdit>(panel, "newMasterAgain")->setText(u"new"_s);
        click("changeMaster");
        emit m_test->changes.lockRequested();
        answer(u"master"_s);
        QTRY_VERIFY(isSeen("keeperPane"));
    }

    /// Whoever is called away before the code is on paper finds it again.
    void showsACodeAgainUntilItIsKept()
    {
        begin();
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mUCode");
        QTRY_VERIFY(isSeen("codePanel"));
        const QString code = find<CodePanel>("codePanel")->code();
        QVERIFY(code != m_code);
        emit m_test->changes.lockRequested();
        QCOMPARE(find<CodePanel>("codePanel")->code(), QString());
        answer(u"master"_s);
        QTRY_VERIFY(isSeen("codePanel"));
        QCOMPARE(find<CodePanel>("codePanel")->code(), code);
        click("codeWritten");
        trigger("mOLock");
        answer(u"master"_s);
        QTRY_VERIFY(isSeen("keeperPane"));
        QVERIFY(!isSeen("codePanel"));
        asked();
    }

    /// Both are said, and what was typed is not lost by the wrong answer.
    void tellsOfWrongAnswersBesideADraft()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QLineEdit>("entryBox_3")->setText(u"nils"_s);
        trigger("mOLock");
        answer(u"wrong"_s);
        QTRY_COMPARE(labelText("unlockRefusal"), u"That is not the password."_s);
        QTRY_VERIFY(find<QPushButton>("openKeeper")->isEnabled());
        answer(u"master"_s);
        QTRY_VERIFY(m_window->isModified());
        QVERIFY2(said().startsWith(u"1 wrong answer since "_s) && said().endsWith(u"is back"_s),
                 qPrintable(said()));
        trigger("mEDel"); // and the draft goes with its entry
        trigger("mOLock");
        answer(u"master"_s);
        QTRY_VERIFY(isSeen("keeperPane"));
        QVERIFY(!m_window->isModified());
        QCOMPARE(titles(), QStringList());
    }

#ifdef Q_OS_UNIX
    /// Where the disk refuses what was typed, it is neither gone nor left without a question.
    void keepsADraftThatTheDiskRefuses()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QLineEdit>("entryBox_3")->setText(u"nils"_s);
        {
            const FileSizeLimit full(0);
            trigger("mOLock");
        }
        QVERIFY2(said().startsWith(u"The disk refused"_s), qPrintable(said()));
        m_test->dialogs.willAnswer(Answer::Cancel);
        QVERIFY(!m_window->close());
        QCOMPARE(asked(), QList{KeeperMessages::saveChanges()});
        answer(u"master"_s);
        QTRY_VERIFY(isSeen("keeperPane"));
        QCOMPARE(find<QLineEdit>("entryBox_3")->text(), u"nils"_s);
        trigger("mESave");
        QVERIFY(!m_window->isModified());
    }
#endif

    /// By its access key, though an empty keeper offers it twice, and with what is typed at once behind it.
    void beginsANewEntryAtOnce()
    {
        begin();
        QVERIFY(find<QPushButton>("emptyNew")->hasFocus());
        QTest::keyClick(m_window->windowHandle(), Qt::Key_N, Qt::AltModifier);
        keys(u"Power"_s);
        QCOMPARE(find<QLineEdit>("entryTitle")->text(), u"Power"_s);
        m_test->dialogs.willAnswer(Answer::No);
        QVERIFY(m_window->close());
        asked();
    }

    void opensByTheRecoveryCodeAndThenWantsANewMaster()
    {
        begin();
        const QString code = m_code;
        trigger("mOLock");
        click("useRecoveryCode");
        answer(code.chopped(1)); // a slip is told at once and is no wrong answer
        QVERIFY(labelText("unlockRefusal").contains(u"missing"_s));
        answer(code.toLower().remove(u'-'));
        QTRY_VERIFY(isSeen("masterPanel"));
        QVERIFY(!find<QLineEdit>("oldMaster")->isVisible());
        const QWidget &panel = *find<QWidget>("masterPanel");
        control<QLineEdit>(panel, "newMaster")->setText(u"new"_s);
        control<QLineEdit>(panel, "newMasterAgain")->setText(u"other"_s);
        click("changeMaster");
        QVERIFY(isSeen("masterPanel"));
        control<QLineEdit>(panel, "newMasterAgain")->setText(u"new"_s);
        click("changeMaster");
        QTRY_VERIFY(!isSeen("masterPanel"));
        trigger("mOLock");
        answer(u"new"_s);
        QTRY_VERIFY(isSeen("keeperPane"));
    }

    /// What was being typed is sealed, and nothing of it is left in the window.
    void bringsBackWhatWasTypedWhenItLockedItself()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QLineEdit>("entryBox_3")->setText(u"anne.lind"_s);
        QVERIFY(m_window->isModified());
        emit m_test->changes.lockRequested();
        QVERIFY(!m_window->isModified());
        for (const QLineEdit *box : m_window->findChildren<QLineEdit *>())
            QVERIFY2(!box->text().contains(u"anne"_s) && !box->text().contains(u"Power"_s),
                     qPrintable(box->objectName()));
        QVERIFY(!m_test->bytes(u"Secfile1.Fil"_s).contains("anne"));
        answer(u"master"_s);
        QTRY_VERIFY(m_window->isModified());
        QCOMPARE(find<QLineEdit>("entryBox_3")->text(), u"anne.lind"_s);
        QCOMPARE(find<SecretBox>("entrySecret_4")->secret(), u"hunter2"_s);
        trigger("mESave");
        QVERIFY(!m_window->isModified());
    }

    void copiesFromTheListForAWhile()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QListView>("keeperList")->setFocus();
        key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"hunter2"_s);
        key(Qt::Key_B, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"anne"_s);
        trigger("mOLock");
        QCOMPARE(clipboard(), QString());
    }

    /// What the list does not show any more is neither open nor copied.
    void copiesNothingThatIsNotListed()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        typeInto(find<QLineEdit>("keeperSearch"), u"bank"_s);
        QCOMPARE(titles(), QStringList());
        QVERIFY(isSeen("noEntryChosen"));
        QVERIFY(!find<QAction>("mECopyPass")->isEnabled());
        QGuiApplication::clipboard()->setText(u"mine"_s);
        find<QListView>("keeperList")->setFocus();
        key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboard(), u"mine"_s);
        click("SSCommand2");
        choose(0);
        auto *list = find<QListView>("keeperList");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->viewport()->rect().bottomLeft());
        QTRY_VERIFY(list->selectionModel()->hasSelection()); // a click beside the rows takes nothing away
        find<QLineEdit>("entryBox_3")->setText(u"nils"_s);   // typing stays in sight
        typeInto(find<QLineEdit>("keeperSearch"), u"bank"_s);
        QCOMPARE(find<QLineEdit>("entryBox_3")->text(), u"nils"_s);
        QVERIFY(!find<QAction>("mECopyPass")->isEnabled());
        trigger("mESave");
    }

    /// The focus stands behind it then: on the line itself, the next letter would take its place.
    void takesAMadePasswordAndGoesOn()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QLineEdit>("entryBox_3")->setFocus();
        click("makePassword");
        click("takeMade");
        const QString made = find<SecretBox>("entrySecret_4")->secret();
        QCOMPARE(made.size(), 20);
        key(Qt::Key_Tab);
        QVERIFY(find<QLineEdit>("entryBox_5")->hasFocus());
        keys(u"x"_s);
        QCOMPARE(find<SecretBox>("entrySecret_4")->secret(), made);
        trigger("mESave");
    }

    /// While it is typed alone: of a password that is there not even the length is told.
    void tellsWhatIsKnownOfATypedPassword()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        trigger("mENew");
        find<QComboBox>("entryKind")->setCurrentIndex(2);
        QCOMPARE(labelText("entryChip"), u"Card"_s);
        find<QComboBox>("entryKind")->setCurrentIndex(0);
        QVERIFY(!isOffered("entrySecret_4Show") && !isOffered("entrySecret_4Copy"));
        QVERIFY(!find<QAction>("mEDup")->isEnabled());
        find<QLineEdit>("entryTitle")->setText(u"Bank"_s);
        typeInto(find<QLineEdit>("entrySecret_4Line"), u"hunter2"_s);
        const QString words = labelText("entrySecret_4Words");
        QVERIFY2(words.startsWith(u"7 characters"_s) && words.endsWith(u", used before"_s),
                 qPrintable(words));
        trigger("mESave");
        QCOMPARE(labelText("entrySecret_4Words"), QString());
    }

    void opensOnlyWhatABrowserShows_data()
    {
        rows<QString, QUrl>({
            {"with its scheme", u"https://example.org/in"_s, QUrl(u"https://example.org/in"_s)},
            {"without", u"example.org"_s, QUrl(u"http://example.org"_s)},
            {"a file", u"file:///etc/passwd"_s, QUrl()},
            {"a program", u"javascript:alert(1)"_s, QUrl()},
        });
    }
    void opensOnlyWhatABrowserShows()
    {
        const auto [address, opened] = row<QString, QUrl>();
        begin();
        QUrl asked;
        m_window->entryCommands().openAddress = [&asked](const QUrl &url) {
            asked = url;
            return true;
        };
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QLineEdit>("entryBox_5")->setText(address);
        click("openAddress_5");
        QCOMPARE(asked, opened);
        trigger("mESave");
    }

    void deletesAndTakesItBack()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        addEntry(u"Bank"_s, u"anne"_s, u"hunter3"_s);
        find<QListView>("keeperList")->selectAll();
        QCOMPARE(labelText("severalTitle"), u"2 entries chosen"_s);
        find<QListView>("keeperList")->setFocus();
        key(Qt::Key_Delete);
        QCOMPARE(titles(), QStringList());
        trigger("mEUndo");
        QCOMPARE(titles().size(), 2);
        trigger("mERedo");
        trigger("mVTrash");
        QCOMPARE(titles().size(), 2);
        find<QListView>("keeperList")->selectAll();
        m_test->dialogs.willAnswer(Answer::No);
        key(Qt::Key_Delete);
        QCOMPARE(titles().size(), 2);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mEDel");
        QCOMPARE(titles(), QStringList());
        trigger("mEUndo"); // what is gone for good does not come back
        QVERIFY2(said().contains(u"nothing undone"_s), qPrintable(said()));
        QCOMPARE(titles(), QStringList());
    }

    void tagsSeveralAtOnce()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        addEntry(u"Bank"_s, u"anne"_s, u"hunter3"_s);
        find<QListView>("keeperList")->selectAll();
        find<QLineEdit>("severalTag")->setText(u"money"_s);
        click("giveTag");
        auto *filter = find<QComboBox>("keeperFilter");
        filter->setCurrentIndex(filter->findText(u"Tag: money"_s));
        QCOMPARE(titles(), (QStringList{u"Bank"_s, u"Power company"_s}));
        typeInto(find<QLineEdit>("keeperSearch"), u"pow"_s);
        QCOMPARE(titles(), QStringList{u"Power company"_s});
        click("SSCommand2");
        QCOMPARE(titles().size(), 2);
    }

    void asksBeforeWhatWasTypedGivesWay()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        addEntry(u"Bank"_s, u"anne"_s, u"hunter3"_s);
        find<QLineEdit>("entryBox_3")->setText(u"nils"_s);
        m_test->dialogs.willAnswer(Answer::Cancel);
        choose(1);
        QTRY_VERIFY(m_test->dialogs.isDone());
        QCOMPARE(asked(), QList{KeeperMessages::saveChanges()});
        QCOMPARE(find<QLineEdit>("entryBox_3")->text(), u"nils"_s);
        m_test->dialogs.willAnswer(Answer::No);
        choose(1);
        QTRY_COMPARE(find<QLineEdit>("entryTitle")->text(), u"Power company"_s);
        choose(0);
        QCOMPARE(find<QLineEdit>("entryBox_3")->text(), u"anne"_s);
    }

    void bringsAnEarlierVersionBack()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<SecretBox>("entrySecret_4")->replace(u"hunter3"_s);
        trigger("mESave");
        trigger("mEVersions");
        QCOMPARE(find<QListWidget>("versionsList")->count(), 1);
        click("bringBackVersion");
        QCOMPARE(control<SecretBox>(*find<QWidget>("entryView"), "entrySecret_4")->secret(), u"hunter2"_s);
    }

    /// The typing stays where the disk refuses.
    void keepsWhatTheDiskRefuses()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QLineEdit>("entryTitle")->clear();
        trigger("mESave");
        QVERIFY(m_window->isModified());
        QVERIFY(find<QLineEdit>("entryTitle")->hasFocus());
        find<QLineEdit>("entryTitle")->setText(u"Power"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        QVERIFY(m_window->close());
        m_test->dialogs.takeShown();
    }

    /// On paper, in a PDF and on the clipboard too, and each is asked about.
    void printsDotsUntilSecretsAreAskedFor()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        trigger("mOPrt");
        click("keeperPrintShow");
        const auto copied = [this] {
            m_test->dialogs.willAnswer(Answer::Ok);
            click("SSCommand80_3");
            return clipboard();
        };
        QVERIFY(copied().contains(u"Power company"_s));
        QVERIFY(!copied().contains(u"hunter2"_s));
        click("showSecrets");
        QVERIFY(copied().contains(u"hunter2"_s));
        m_test->dialogs.takeShown();
        m_test->dialogs.willAnswer(Answer::Ok);
        m_test->dialogs.willAnswer(Answer::No);
        click("SSCommand80_4");
        QCOMPARE(asked(), (QList{KeeperMessages::beforePrinting(), KeeperMessages::savePdf()}));
        trigger("mOLock");
        QCOMPARE(clipboard(), QString());
        QVERIFY(!m_window->isPreviewShown());
    }

    /// Nothing is written before the button, and what is there already is not taken twice.
    void bringsInAFileOfAnotherProgram()
    {
        begin();
        addEntry(u"Bank"_s, u"anne"_s, u"hunter2"_s);
        m_test->setBytes(u"in.csv"_s,
                         "title,username,password\r\nBank,anne,hunter2\r\nMail,nils,hunter3\r\n");
        m_test->dialogs.willChooseFile(m_test->path(u"in.csv"_s));
        trigger("mUImport");
        QTRY_VERIFY(isOffered("keeperImportTake"));
        QCOMPARE(titles(), QStringList{u"Bank"_s});
        click("keeperImportTake");
        QCOMPARE(titles(), (QStringList{u"Bank"_s, u"Mail"_s}));
    }

    /// Where the lines of the file before stood.
    void saysInThePreviewThatAFileIsTooLong()
    {
        begin();
        m_test->setBytes(u"in.csv"_s, "title,username,password\r\nMail,nils,hunter3\r\n");
        m_test->dialogs.willChooseFile(m_test->path(u"in.csv"_s));
        trigger("mUImport");
        QTRY_VERIFY(isOffered("keeperImportTake"));
        QVERIFY(QFile::resize(m_test->path(u"in.csv"_s), qint64(64) * 1024 * 1024 + 1));
        m_test->dialogs.willChooseFile(m_test->path(u"in.csv"_s));
        trigger("mUImport");
        QTRY_COMPARE(labelText("keeperImportHint"),
                     u"in.csv: not read from line 1 on, since it is longer than 64 MiB"_s);
        QVERIFY(!find<QPushButton>("keeperImportTake")->isEnabled());
        QCOMPARE(find<QAbstractItemView>("keeperImportList")->model()->rowCount(), 0);
    }

    /// The master password is asked for once more, and what the file is: No leaves everything as it is.
    void exportsOnlyBehindTheMasterPassword()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        const QString path = m_test->path(u"out.csv"_s);
        const auto answerWith = [](const QString &master) {
            return [master](QDialog &dialog) {
                control<QLineEdit>(dialog, "masterAgain")->setText(master);
                control<QPushButton>(dialog, "masterAgainOk")->click();
                std::ignore =
                    QTest::qWaitFor([&dialog] { return dialog.result() == QDialog::Accepted; }, 500);
                return dialog.result();
            };
        };
        m_test->dialogs.willRun(answerWith(u"wrong"_s));
        trigger("mUExport");
        m_test->dialogs.willRun(answerWith(u"master"_s));
        m_test->dialogs.willAnswer(Answer::No);
        trigger("mUExport");
        QCOMPARE(asked(), {KeeperMessages::exportOpen(1)});
        QVERIFY(!QFile::exists(path));
        m_test->dialogs.willRun(answerWith(u"master"_s));
        m_test->dialogs.willAnswer(Answer::Yes);
        m_test->dialogs.willChooseFile(path);
        trigger("mUExport");
        QVERIFY(m_test->bytes(u"out.csv"_s).contains("hunter2"));
#ifdef Q_OS_UNIX
        constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QCOMPARE(QFile::permissions(path) & others, QFile::Permissions());
#endif
    }

    /// Two that want the same key would leave it without effect.
    void noAccessKeyIsTakenTwice_data()
    {
        rows<QByteArray>({{"an entry", {}},
                          {"a password", "mUMake"},
                          {"the sheet", "mUSheet"},
                          {"paper", "mOPrt"},
                          {"settings", "mOSet"},
                          {"the check-up", "mVCheck"},
                          {"versions", "mEVersions"},
                          {"the master password", "mUMaster"}});
    }
    void noAccessKeyIsTakenTwice()
    {
        const auto [command] = row<QByteArray>();
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        find<QLineEdit>("entryTitle")->setText(u"Power"_s);
        trigger("mESave");
        if (!command.isEmpty())
            trigger(command.constData());
        QHash<QKeySequence, QString> taken;
        const auto take = [&taken](const QString &caption) {
            const QKeySequence key = QKeySequence::mnemonic(caption);
            if (!key.isEmpty() && taken.contains(key))
                QFAIL(qPrintable(caption + u" and "_s + taken.value(key)));
            taken.insert(key, caption);
        };
        for (const QAction *menu : m_window->menuBar()->actions())
            take(menu->text());
        for (const QAbstractButton *button : m_window->findChildren<QAbstractButton *>()) {
            if (button->isVisible())
                take(button->text());
        }
        for (const QMenu *menu : m_window->menuBar()->findChildren<QMenu *>()) {
            taken.clear();
            for (const QAction *entry : menu->actions())
                take(entry->text());
        }
    }

    /// They are listed by their place, and nothing writes over them that does not say so.
    void leavesDamagedEntriesAlone()
    {
        begin();
        addEntry(u"Power company"_s, u"anne"_s, u"hunter2"_s);
        trigger("mOLock");
        QByteArray bytes = m_test->bytes(u"Secfile1.Fil"_s);
        for (qsizetype at = 100; at < bytes.size(); at += 2048)
            bytes[at] = char(bytes[at] ^ 1);
        m_test->setBytes(u"Secfile1.Fil"_s, bytes);
        answer(u"master"_s);
        QTRY_COMPARE(titles().value(0), u"Damaged, place 1"_s);
        choose(0);
        QVERIFY(isSeen("damagedEntry"));
        QVERIFY(!find<QAction>("mEDel")->isEnabled() && !find<QAction>("mUExport")->isEnabled());
        m_test->dialogs.willAnswer(Answer::No);
        trigger("mEGiveUp");
        QCOMPARE(m_test->bytes(u"Secfile1.Fil"_s), bytes);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mEGiveUp");
        QCOMPARE(titles(), QStringList());
        asked();
    }

    void saysWhatIsWrongWithTheFiles_data()
    {
        rows<QString, QByteArray, QString>({
            {"the key file is damaged", u"Secfile2.fil"_s, "QKEEPER\1 and nothing that is whole"_ba,
             u"The keeper's key file Secfile2.fil is damaged."_s},
            {"the key file is missing",
             u"Secfile2.fil"_s,
             {},
             u"The keeper's file Secfile2.fil is missing."_s},
            {"the entries are missing",
             u"Secfile1.Fil"_s,
             {},
             u"The keeper's file Secfile1.Fil is missing."_s},
        });
    }
    void saysWhatIsWrongWithTheFiles()
    {
        const auto [name, bytes, sentence] = row<QString, QByteArray, QString>();
        begin();
        delete m_window;
        if (bytes.isEmpty())
            QVERIFY(QFile::remove(m_test->path(name)));
        else
            m_test->setBytes(name, bytes);
        openAgain();
        QStringList texts;
        for (const QLabel *label : find<QWidget>("keeperTrouble")->findChildren<QLabel *>())
            texts.append(label->text());
        QVERIFY2(texts.contains(sentence), qPrintable(texts.join(u'|')));
        QVERIFY(!find<QAction>("mENew")->isEnabled());
    }

private:
    void openAgain()
    {
        m_window = new Form4(m_test->program, nullptr, PasswordCost::minimum(), std::chrono::milliseconds(1));
        showActive(*m_window);
    }

    /// A keeper that opens with "master"; its code is remembered.
    void begin()
    {
        openAgain();
        find<QLineEdit>("newMaster")->setText(u"master"_s);
        find<QLineEdit>("newMasterAgain")->setText(u"master"_s);
        click("makeKeeper");
        QTRY_VERIFY(m_window->findChild<QWidget *>(u"codePanel"_s));
        m_code = find<CodePanel>("codePanel")->code();
        click("codeWritten");
    }

    void addEntry(const QString &title, const QString &user, const QString &password)
    {
        trigger("mENew");
        find<QLineEdit>("entryTitle")->setText(title);
        find<QLineEdit>("entryBox_3")->setText(user);
        find<SecretBox>("entrySecret_4")->replace(password);
        trigger("mESave");
        QVERIFY(!m_window->isModified());
    }

    void answer(const QString &text)
    {
        find<QLineEdit>("masterPassword")->setText(text);
        click("openKeeper");
    }

    /// Panels are made when they are first asked for.
    bool isSeen(const char *name) const
    {
        const auto *part = m_window->findChild<QWidget *>(QString::fromLatin1(name));
        return part && part->isVisible();
    }

    void keys(const QString &text) const
    {
        QTest::keyClicks(m_window->focusWidget(), text);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(m_window->focusWidget(), key, modifiers);
    }

    QStringList titles() const
    {
        const QAbstractItemModel *model = find<QListView>("keeperList")->model();
        QStringList titles;
        for (int row = 0; row < model->rowCount(); ++row)
            titles.append(model->index(row, 0).data().toString());
        return titles;
    }

    void choose(int row) const
    {
        auto *list = find<QListView>("keeperList");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
    }

    static QString clipboard()
    {
        return QGuiApplication::clipboard()->text();
    }

    QString m_code;
};

QTEST_MAIN(TestKeeperWindow)
#include "tst_keeperwindow.moc"
