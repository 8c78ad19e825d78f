// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/messages.h"
#include "journal/window/journalcodepanel.h"
#include "journal/window/journalfront.h"
#include "journal/window/journaltext.h"
#include "journal/window/journalwindow.h"
#include "tests/support/failingdisk.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDirIterator>
#include <QGuiApplication>
#include <QListView>
#include <QListWidget>
#include <QProcess>

#include <chrono>
#include <functional>
#include <iostream>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString password = u"correct horse"_s;
const QString sentence = u"Gr\u00fcne \u00c4pfel von Marie"_s;
const QByteArray sealedLine = "Quillery journal sealed 1\r\n";
const QByteArray year2019 =
    "Quillery journal 1\r\n=== 2019-11-21\r\ntags sea\r\n\r\n" + sentence.toUtf8() + "\r\n";
const QByteArray year2026 =
    "Quillery journal 1\r\n=== 2026-11-20\r\n\r\nYesterday, " + sentence.toUtf8() +
    "\r\n=== 2026-11-20 earlier\r\n\r\n" + sentence.toUtf8() +
    " again\r\n=== 2026-11-21\r\ntags sea, market\r\n\r\nToday: " + sentence.toUtf8() + "\r\n";

/// The files below `folder` that hold the marked sentence, in one encoding or another.
[[maybe_unused]] QStringList marked(const QString &folder)
{
    const QByteArray wide(reinterpret_cast<const char *>(sentence.utf16()), sentence.size() * 2);
    QStringList names;
    QDirIterator entries(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (bytes.contains(sentence.toUtf8()) || bytes.contains(wide) || bytes.contains(sentence.toLatin1()))
            names += entries.filePath();
    }
    return names;
}

} // namespace

/// The seal of the journal in its window, with a password that takes no time.
class TestJournalDoor : public OpenWindow<DJournal>
{
    Q_OBJECT
private slots:
    void init() { m_test = std::make_unique<TestProgram>(); }
    void cleanup() { close(); }

    /// From a plain journal to a sealed one, locked and opened again: by keys alone.
    void sealsAndOpensByKeys()
    {
        m_test->setBytes(u"DJour2019.Fil"_s, year2019);
        openAgain();
        keys(u"We took the ferry."_s);
        trigger("mUSeal");
        keys(password);
        key(Qt::Key_Tab);
        keys(u"another"_s);
        key(Qt::Key_Return);
        QCOMPARE(labelText("sealRefusal"), u"The two passwords differ"_s);
        keys(password);
        key(Qt::Key_Return);
        QTRY_VERIFY(isSeen("journalCodePanel"));
        QVERIFY(find<QLineEdit>("typedCode")->hasFocus());
        const QString code = find<JournalCodePanel>("journalCodePanel")->code();
        QCOMPARE(labelText("journalCode"), code);
        keys(code.chopped(2));
        key(Qt::Key_Return);
        QVERIFY(isSeen("journalCodePanel") && !isOffered("codeKept"));
        QCOMPARE(labelText("codeRefusal"), u"That is not the code. Compare it with your paper."_s);
        QVERIFY(!labelText("journalCode").contains(code.first(4))); // it is typed from paper
        QVERIFY(file(2026).startsWith("Quillery journal 1") && !m_test->folder.exists(u"DJourKey.Fil"_s));
        keys(code.last(2));
        key(Qt::Key_Return);
        QTRY_COMPARE(said(), u"The journal is sealed"_s);
        QVERIFY(file(2019).startsWith(sealedLine) && file(2026).startsWith(sealedLine));
        QCOMPARE(page()->text(), u"We took the ferry."_s);
        QVERIFY(page()->hasFocus());
        trigger("mOLock");
        QVERIFY(isLocked());
        QVERIFY(find<QLineEdit>("journalPassword")->hasFocus());
        keys(password);
        key(Qt::Key_Return);
        QTRY_COMPARE(page()->text(), u"We took the ferry."_s);
        QVERIFY(page()->hasFocus() && isSeen("journalPane"));
    }

    /// Who leaves the code has changed nothing.
    void sealsNothingBeforeTheCodeIsTypedIn()
    {
        begin();
        askToSeal();
        QTRY_VERIFY(isSeen("journalCodePanel"));
        const QString code = find<JournalCodePanel>("journalCodePanel")->code();
        click("printJournalCode");
        QTRY_VERIFY(isSeen("previewDesk") || m_window->isPreviewShown());
        key(Qt::Key_Escape);
        QVERIFY(isSeen("journalCodePanel"));
        key(Qt::Key_Escape);
        QCOMPARE(said(), u"Nothing was changed"_s);
        QCOMPARE(file(2026), year2026);
        QCOMPARE(find<JournalCodePanel>("journalCodePanel")->code(), QString());
        askToSeal();
        QTRY_VERIFY(isSeen("journalCodePanel"));
        QVERIFY(find<JournalCodePanel>("journalCodePanel")->code() != code);
    }

    /// Of another program, of a later version, no text, and set aside before.
    void namesWhatItLeavesReadable()
    {
        const std::vector<std::pair<QString, QByteArray>> left = {
            {u"DJour2013.Fil"_s, "Quillery journal 2\r\n=== 2013-05-05\r\n\r\nMay.\r\n"},
            {u"DJour2014 set aside.Fil"_s, "Quillery journal 1\r\n=== 2014-05-05\r\n\r\nMay.\r\n"},
            {u"DJour2016.Fil"_s, "Quillery journal 1\r\n" + QByteArray(700, '-') + QByteArray(1, '\0')},
            {u"DJour2018.Fil"_s, "Dear diary"},
        };
        for (const auto &[name, bytes] : left)
            m_test->setBytes(name, bytes);
        m_test->setBytes(u"DJour2015.Fil"_s, {});
        begin();
        trigger("mUSeal");
        const QString names = u"DJour2013.Fil, DJour2014 set aside.Fil, DJour2016.Fil and DJour2018.Fil"_s;
        QVERIFY(labelText("sealFacts").contains(u"Not sealed, and readable as before: "_s + names + u'.'));
        typeNewPassword(password);
        QTRY_VERIFY(isSeen("journalCodePanel"));
        typeCode();
        QTRY_COMPARE(said(), u"The journal is sealed, but %1 are left readable"_s.arg(names));
        for (const auto &[name, bytes] : left)
            QCOMPARE(m_test->bytes(name), bytes);
    }

    void leavesNoWayOutWhileTheKeyIsMade()
    {
        begin();
        const int interval = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(60'000);
        askToSeal();
        QVERIFY(!isOffered("sealClose"));
        QTRY_VERIFY(isSeen("journalCodePanel"));
        QTest::mouseClick(find<QPushButton>("codeGivenUp"), Qt::LeftButton); // meant for the other one
        QApplication::setDoubleClickInterval(interval);
        QVERIFY(isSeen("journalCodePanel"));
    }

    void countsWrongAnswersAndTellsOfThem()
    {
        beginSealed();
        trigger("mOLock");
        answer(u"wrong"_s);
        QTRY_VERIFY(labelText("unlockRefusal").startsWith(u"That is not the password."_s));
        QTRY_VERIFY(isOffered("openJournal"));
        answer(password);
        QTRY_VERIFY(!isLocked());
        QVERIFY2(said().startsWith(u"1 wrong answer since "_s), qPrintable(said()));
    }

    void opensByTheRecoveryCodeAndThenWantsANewPassword()
    {
        beginSealed();
        openAgain(); // as on another morning
        QVERIFY(isLocked());
        click("useRecoveryCode");
        answer(m_code.chopped(1));
        QVERIFY(labelText("unlockRefusal").contains(u"missing"_s));
        answer(m_code.toLower().remove(u'-'));
        QTRY_VERIFY(isSeen("sealPanel"));
        QVERIFY(!find<QLineEdit>("oldJournalPassword")->isVisible());
        typeNewPassword(u"new"_s);
        QTRY_COMPARE(said(), u"The password was changed"_s);
        trigger("mOLock");
        answer(password);
        QTRY_VERIFY(!labelText("unlockRefusal").isEmpty());
        QTRY_VERIFY(isOffered("openJournal"));
        answer(u"new"_s);
        QTRY_VERIFY(!isLocked());
    }

    void changesThePasswordAndTheCode()
    {
        beginSealed();
        trigger("mUPassword");
        find<QLineEdit>("oldJournalPassword")->setText(u"wrong"_s);
        typeNewPassword(u"new"_s);
        QTRY_COMPARE(labelText("sealRefusal"), u"That is not the password."_s);
        find<QLineEdit>("oldJournalPassword")->setText(password);
        typeNewPassword(u"new"_s);
        QTRY_COMPARE(said(), u"The password was changed"_s);
        const QByteArray head = file(2026).mid(27, 512);
        trigger("mUCode");
        QTRY_VERIFY(isSeen("journalCodePanel"));
        const QString former = m_code;
        typeCode();
        QTRY_VERIFY(said().startsWith(u"The new recovery code is in force"_s));
        QVERIFY(file(2026).mid(27, 512) != head);
        trigger("mOLock");
        click("useRecoveryCode");
        answer(former);
        QTRY_VERIFY(!labelText("unlockRefusal").isEmpty());
        QTRY_VERIFY(isOffered("openJournal"));
        answer(m_code);
        QTRY_VERIFY(isSeen("sealPanel"));
    }

    void opensTheSealWithItsPasswordOnly()
    {
        beginSealed();
        trigger("mUOpenSeal");
        find<QLineEdit>("oldJournalPassword")->setText(u"wrong"_s);
        click("sealGo");
        QTRY_COMPARE(labelText("sealRefusal"), u"That is not the password."_s);
        QVERIFY(file(2026).startsWith(sealedLine));
        find<QLineEdit>("oldJournalPassword")->setText(password);
        click("sealGo");
        QTRY_VERIFY(said().startsWith(u"The seal is open"_s));
        QCOMPARE(file(2026), year2026);
        QVERIFY(!m_test->folder.exists(u"DJourKey.Fil"_s));
        QVERIFY(!find<QAction>("mOLock")->isEnabled() && find<QAction>("mUSeal")->isEnabled());
    }

    void locksByEveryRule_data()
    {
        using Happens = std::function<void(TestJournalDoor &)>;
        rows<Happens, bool>({
            {"asked to", [](TestJournalDoor &test) { test.trigger("mOLock"); }, true},
            {"Ctrl+L, session lock, sleep",
             [](TestJournalDoor &test) { emit test.m_test->changes.lockRequested(); }, true},
            {"closed", [](TestJournalDoor &test) { test.m_window->hide(); }, true},
            {"minimised", [](TestJournalDoor &test) { test.m_window->showMinimized(); }, false},
            {"minimised, by choice",
             [](TestJournalDoor &test) {
                 test.trigger("mOLockWhen");
                 test.find<QCheckBox>("lockMinimised")->setChecked(true);
                 test.click("keepLock");
                 test.m_window->showMinimized();
             },
             true},
        });
    }
    void locksByEveryRule()
    {
        const auto [happens, isLockedThen] = row<std::function<void(TestJournalDoor &)>, bool>();
        beginSealed();
        keys(u"Not saved yet. "_s);
        happens(*this);
        QTRY_COMPARE(m_window->journal().isLocked(), isLockedThen);
        m_window->showNormal();
        QCoreApplication::processEvents(); // the window system's own word of it comes late
        if (!isLockedThen)
            return;
        answer(password);
        QTRY_VERIFY(page()->text().endsWith(u"Not saved yet. "_s));
    }

    void locksWhatALateAnswerOpens()
    {
        beginSealed();
        trigger("mOLock");
        answer(password);
        emit m_test->changes.lockRequested();
        QTRY_VERIFY(isOffered("openJournal"));
        QVERIFY(isLocked());
        answer(password);
        QTRY_VERIFY(!isLocked());
    }

    /// Where one was before, but for today.
    void comesBackToTheDay()
    {
        beginSealed();
        trigger("mVBefore");
        trigger("mOLock");
        answer(password);
        QTRY_VERIFY(page()->text().startsWith(u"Yesterday"_s));
        trigger("mVAfter");
        trigger("mOLock");
        m_test->clock.time = m_test->clock.time.addDays(1);
        answer(password);
        QTRY_VERIFY(!isLocked());
        QCOMPARE(page()->text(), QString());
    }

    /// In whatever part of the window it stood.
    void forgetsAllThatItShows()
    {
        beginSealed();
        trigger("mVBefore");
        trigger("mEEarlier");
        trigger("mUExport");
        trigger("mOPrt");
        click("journalPrintShow");
        QVERIFY(m_window->isPreviewShown());
        key(Qt::Key_Escape);
        find<QLineEdit>("journalSearch")->setText(u"marie"_s);
        QTRY_VERIFY(find<QListView>("journalHits")->model()->rowCount() > 0);
        page()->insertPlainText(sentence);
        QVERIFY(!remains().isEmpty());
        trigger("mOLock");
        QCOMPARE(remains(), QStringList());
        for (const char *command : {"mEUndo", "mOCopy", "mVPrevious", "mSpCheck", "mUSeal", "mOSave"})
            QVERIFY2(!find<QAction>(command)->isEnabled(), command);
        answer(password);
        QTRY_VERIFY(!isLocked());
        QVERIFY(!page()->document()->isUndoAvailable());
    }

#ifdef Q_OS_UNIX
    /// Another run of this test, which seals, writes, searches, looks at a page, locks, opens, and is killed.
    void leavesNoTrace()
    {
        const QTemporaryDir place;
        QProcess run;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto *name : {"TMPDIR", "HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            environment.insert(QString::fromLatin1(name), place.path());
        environment.insert(u"QUILLERY_TEST_RUN"_s, u"1"_s);
        run.setProcessEnvironment(environment);
        run.start(QCoreApplication::applicationFilePath(), {u"writesUntilItIsKilled"_s});
        QByteArray said;
        while (!said.contains("waiting") && run.waitForReadyRead(60'000))
            said += run.readAllStandardOutput();
        QVERIFY2(said.contains("waiting"), QByteArray(said + run.readAllStandardError()));
        run.kill();
        QVERIFY(run.waitForFinished());
        QStringList sealed;
        QDirIterator years(place.path(), {u"DJour20*.Fil"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (years.hasNext())
            sealed += years.next();
        QCOMPARE(sealed.size(), 2);
        QCOMPARE(marked(place.path()), QStringList());
    }
#endif

    void writesUntilItIsKilled()
    {
        if (!qEnvironmentVariableIsSet("QUILLERY_TEST_RUN"))
            QSKIP("run by leavesNoTrace");
        beginSealed();
        for (int round = 0; round < 2; ++round) {
            key(Qt::Key_End, Qt::ControlModifier);
            typeInto(page(), u'\n' + sentence);
            find<QLineEdit>("entryTags")->setText(sentence);
            key(Qt::Key_S, Qt::ControlModifier);
            find<QLineEdit>("journalSearch")->setText(sentence.toLower());
            QTRY_VERIFY(find<QListView>("journalHits")->model()->rowCount() > 0);
            trigger("mOPrt");
            click("journalPrintShow");
            typeInto(page(), u" and more"_s);
            trigger("mOLock");
            answer(password);
            QTRY_VERIFY(!isLocked());
        }
        const QByteArray before = file(2026);
        typeInto(page(), sentence);
        QTRY_VERIFY_WITH_TIMEOUT(file(2026) != before, 8000);
        std::cout << "waiting" << std::endl;
        QTest::qWait(60'000);
    }

#ifdef Q_OS_UNIX
    void finishesAWalkThatWasCutShort()
    {
        begin();
        askToSeal();
        QTRY_VERIFY(isSeen("journalCodePanel"));
        {
            const FileSizeLimit full(1500);
            typeCode();
            QTRY_COMPARE(said(), u"The disk refused 2026; this is finished at the next unlocking"_s);
        }
        QVERIFY(file(2019).startsWith(sealedLine));
        QCOMPARE(file(2026), year2026);
        openAgain();
        QVERIFY(isLocked()); // the plain year, too
        answer(password);
        QTRY_COMPARE(said(), u"The journal is sealed"_s);
        QVERIFY(file(2026).startsWith(sealedLine));
        QVERIFY(page()->text().startsWith(u"Today"_s));
    }
#endif

    /// Which ends behind the year that it is at.
    void locksInTheMiddleOfAWalk()
    {
        for (int year = 2001; year < 2009; ++year)
            m_test->setBytes(nameOf(year), QByteArray("Quillery journal 1\r\n=== " +
                                                      QByteArray::number(year) + "-05-05\r\n\r\nMay.\r\n"));
        begin();
        askToSeal();
        QTRY_VERIFY(isSeen("journalCodePanel"));
        bool isLockDue = true;
        connect(m_window->findChild<JournalFront *>(), &JournalFront::progressed, m_window, [&] {
            if (std::exchange(isLockDue, false))
                emit m_test->changes.lockRequested();
        });
        typeCode();
        QTRY_VERIFY(isLocked());
        QVERIFY(file(2001).startsWith(sealedLine) && file(2026) == year2026);
        answer(password);
        QTRY_COMPARE(said(), u"The journal is sealed"_s);
        QVERIFY(file(2008).startsWith(sealedLine) && file(2026).startsWith(sealedLine));
    }

    /// Sealed in memory, and back at the unlocking.
    void keepsWhatTheDiskRefuses()
    {
        beginSealed();
        keys(u"Kept. "_s);
        {
            const FailingDisk full(DiskFailure::TheEnd, 1);
            trigger("mOLock");
        }
        QVERIFY2(said().startsWith(u"The disk refused what was typed"_s), qPrintable(said()));
        m_test->dialogs.willAnswer(Answer::No);
        QVERIFY(!m_window->close());
        QCOMPARE(asked(), {JournalMessages::leaveUnsaved()});
        answer(password);
        QTRY_VERIFY(page()->text().endsWith(u"Kept. "_s));
        QVERIFY(!m_window->isModified());
    }

    void namesDamagedRecordsByDate()
    {
        beginSealed();
        m_window->close();
        QByteArray torn = file(2026);
        torn[torn.size() - 10] = char(torn[torn.size() - 10] ^ 2);
        m_test->setBytes(u"DJour2026.Fil"_s, torn);
        openAgain();
        answer(password);
        const QString words = u"November 21, 2026: the entry is damaged and does not open"_s;
        QTRY_COMPARE(said(), words);
        QCOMPARE(labelText("dayDamage"), words);
        trigger("mVBefore");
        QVERIFY(page()->text().startsWith(u"Yesterday"_s));
        QVERIFY(!find<QLabel>("dayDamage")->isVisible());
        trigger("mUDamage");
        QCOMPARE(find<QListWidget>("damageList")->item(0)->text(), words);
        click("showDamaged");
        QVERIFY(find<QLabel>("dayDamage")->isVisible());
        keys(u"Anew."_s);
        trigger("mOSave");
        QVERIFY(file(2026).contains(torn.last(296)));
    }

    /// And of wrong answers before that, and of the seal that it leaves half open.
    void tellsOfDamageBehindWhatElseThereIsToSay()
    {
        beginSealed();
        m_window->close();
        for (const int year : {2019, 2026}) {
            QByteArray torn = file(year);
            torn[torn.size() - 10] = char(torn[torn.size() - 10] ^ 2);
            m_test->setBytes(nameOf(year), torn);
        }
        openAgain();
        answer(u"wrong"_s);
        QTRY_VERIFY(isOffered("openJournal"));
        answer(password);
        const QString damaged = u". 2 records are damaged; November 21, 2019: "_s;
        QTRY_VERIFY2(said().contains(damaged), qPrintable(said()));
        QVERIFY2(said().startsWith(u"1 wrong answer since "_s), qPrintable(said()));
        trigger("mUOpenSeal");
        find<QLineEdit>("oldJournalPassword")->setText(password);
        click("sealGo");
        QTRY_VERIFY2(
            said().startsWith(
                u"The seal is half open: 2019 and 2026 stay sealed, for they hold records that do not open"_s),
            qPrintable(said()));
        QTRY_VERIFY2(said().contains(damaged), qPrintable(said()));
    }

    void setsAsideWhatNobodyCanOpen()
    {
        beginSealed();
        m_window->close();
        m_test->setBytes(u"DJourKey.Fil"_s, {});
        for (const int year : {2019, 2026})
            m_test->setBytes(nameOf(year), file(year).replace(100, 1, "?"));
        const QByteArray before = file(2026);
        openAgain();
        QVERIFY(isSeen("journalTrouble") && !isSeen("journalPane"));
        m_test->dialogs.willAnswer(Answer::No);
        click("setAside");
        QCOMPARE(file(2026), before);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("setAside");
        QCOMPARE(asked().last(), JournalMessages::setSealedAside({nameOf(2019), nameOf(2026)}));
        QVERIFY(page()->isVisible());
        keys(u"A new beginning."_s);
        trigger("mOSave");
        QVERIFY(file(2026).startsWith("Quillery journal 1\r\n"));
        QCOMPARE(m_test->bytes(u"DJour2026 set aside.Fil"_s), before);
    }

    void opensAHouseholdThatIsForReadingOnly()
    {
        beginSealed();
        delete m_window;
        auto locked = std::make_unique<TestProgram>(TestProgram::Empty, u"The folder is for reading only."_s);
        for (const QString &name : {u"DJourKey.Fil"_s, nameOf(2019), nameOf(2026)})
            locked->setBytes(name, m_test->bytes(name));
        const QByteArray keyFile = m_test->bytes(u"DJourKey.Fil"_s);
        m_test = std::move(locked);
        openAgain();
        answer(u"wrong"_s);
        QTRY_VERIFY(!labelText("unlockRefusal").isEmpty());
        QTRY_VERIFY(isOffered("openJournal"));
        answer(password);
        QTRY_VERIFY(page()->text().startsWith(u"Today"_s));
        QVERIFY(page()->isReadOnly());
        for (const char *command : {"mUSeal", "mUOpenSeal", "mUPassword", "mUCode"})
            QVERIFY2(!find<QAction>(command)->isEnabled(), command);
        QCOMPARE(m_test->bytes(u"DJourKey.Fil"_s), keyFile);
    }

    /// On another computer that has the same folder.
    void followsASealMadeElsewhere()
    {
        beginSealed();
        const QByteArray sealed = file(2026);
        const QByteArray keyFile = m_test->bytes(u"DJourKey.Fil"_s);
        m_window->close();
        QVERIFY(QFile::remove(m_test->path(u"DJourKey.Fil"_s)));
        m_test->setBytes(u"DJour2019.Fil"_s, year2019);
        m_test->setBytes(u"DJour2026.Fil"_s, year2026);
        openAgain();
        QVERIFY(page()->isVisible());
        m_test->setBytes(u"DJourKey.Fil"_s, keyFile);
        changeElsewhere(u"DJour2026.Fil"_s, sealed);
        QTRY_VERIFY(isLocked());
        QCOMPARE(remains(), QStringList());
        answer(password);
        QTRY_VERIFY(page()->text().startsWith(u"Today"_s));
    }

private:
    JournalText *page() const
    {
        return find<JournalText>("entryText");
    }
    static QString nameOf(int year)
    {
        return u"DJour%1.Fil"_s.arg(year);
    }
    QByteArray file(int year) const
    {
        return m_test->bytes(nameOf(year));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(m_window->focusWidget(), key, held);
    }
    void keys(const QString &text) const
    {
        typeInto(m_window->focusWidget(), text);
    }
    /// Panels are made when they are first asked for.
    bool isSeen(const char *name) const
    {
        const auto *part = m_window->findChild<QWidget *>(QString::fromLatin1(name));
        return part && part->isVisible();
    }
    bool isLocked() const
    {
        return isSeen("unlockView") && !isSeen("journalPane") && page()->text().isEmpty();
    }
    /// The parts of the window that still know the sentence.
    QStringList remains() const
    {
        QStringList names;
        const auto look = [&names](const QObject *part, const QString &text) {
            if (text.contains(u"Marie"_s, Qt::CaseInsensitive) || text.contains(u"market"_s))
                names += part->objectName() + u": "_s + text;
        };
        for (const auto *box : m_window->findChildren<QLineEdit *>())
            look(box, box->text() + box->accessibleName());
        for (const auto *label : m_window->findChildren<QLabel *>())
            look(label, label->text() + label->toolTip());
        for (const auto *box : m_window->findChildren<QComboBox *>()) {
            for (int i = 0; i < box->count(); ++i)
                look(box, box->itemText(i));
        }
        for (const auto *document : m_window->findChildren<QTextDocument *>())
            look(document, document->toPlainText());
        for (const auto *model : m_window->findChildren<QAbstractItemModel *>()) {
            for (int i = 0; i < model->rowCount(); ++i)
                look(model, model->index(i, 0).data().toString() +
                                model->index(i, 0).data(Qt::AccessibleTextRole).toString());
        }
        look(m_window, said());
        return names;
    }

    void openAgain()
    {
        delete m_window;
        m_window = new DJournal(m_test->program, nullptr, PasswordCost::minimum(), 10ms);
        showActive(*m_window);
    }
    void begin()
    {
        m_test->setBytes(u"DJour2019.Fil"_s, year2019);
        m_test->setBytes(u"DJour2026.Fil"_s, year2026);
        openAgain();
    }
    void beginSealed()
    {
        begin();
        askToSeal();
        QTRY_VERIFY(isSeen("journalCodePanel"));
        typeCode();
        QTRY_COMPARE(said(), u"The journal is sealed"_s);
    }
    void askToSeal()
    {
        trigger("mUSeal");
        typeNewPassword(password);
    }
    void typeNewPassword(const QString &typed)
    {
        find<QLineEdit>("newJournalPassword")->setText(typed);
        find<QLineEdit>("newJournalPasswordAgain")->setText(typed);
        click("sealGo");
    }
    void typeCode()
    {
        m_code = find<JournalCodePanel>("journalCodePanel")->code();
        find<QLineEdit>("typedCode")->setText(m_code);
        click("codeKept");
    }
    void answer(const QString &text)
    {
        find<QLineEdit>("journalPassword")->setText(text);
        click("openJournal");
    }

    QString m_code;
};

QTEST_MAIN(TestJournalDoor)
#include "tst_journaldoor.moc"
