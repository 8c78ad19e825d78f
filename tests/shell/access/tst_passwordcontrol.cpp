// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordcontrol.h"
#include "shell/access/passwordmessages.h"
#include "shell/access/passwordpage.h"
#include "shell/controls/activitybar.h"
#include "shell/core/area.h"
#include "storage/sealing/recoverycode.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class TestForm31 : public OpenWindow<Form31>
{
    Q_OBJECT
private slots:
    void init() { m_test = std::make_unique<TestProgram>(); }

    void cleanup() { close(); }

    void setsAPasswordAndGuardsAFunction()
    {
        open();
        QVERIFY(!find<QPushButton>("changePassword")->isVisible());
        QVERIFY(!isOffered("Command1"));
        for (int area = 0; area < ProtectedAreas::count; ++area)
            QVERIFY(!mark(area)->isEnabled() && !mark(area)->toolTip().isEmpty());
        click("setPassword");
        type("Text1_1", u"Tulips"_s);
        QTest::keyClick(find<QLineEdit>("Text1_1"), Qt::Key_Return);
        QVERIFY(find<QLineEdit>("Text1_2")->hasFocus() && labelText("refusal").isEmpty());
        type("Text1_2", u"Tulips"_s);
        QTest::keyClick(find<QLineEdit>("Text1_2"), Qt::Key_Return);
        QVERIFY(file().matches(u"Tulips"_s));
        QCOMPARE(said(), PasswordMessages::passwordSet());
        QVERIFY(find<QLineEdit>("Text1_1")->text().isEmpty());

        QVERIFY(find<QPushButton>("printCode")->hasFocus());
        QVERIFY(file().matchesRecoveryCode(shownCode()));
        click("codeDone");
        QVERIFY(labelText("recoveryCodeShown").isEmpty());

        QVERIFY(!m_window->isModified());
        m_test->dialogs.willAnswer(Answer::No);
        QTest::keyClick(mark(Area::AddressBook), Qt::Key_Space);
        QVERIFY(m_window->isModified());
        QVERIFY(!m_test->state.protectedAreas.isProtected(Area::AddressBook));
        click("Command1");
        QVERIFY(m_test->state.protectedAreas.isProtected(Area::AddressBook));
        QVERIFY(file().areas().isProtected(Area::AddressBook));
        QVERIFY(!m_window->isModified());
        QVERIFY(m_window->close());
    }

    void refusesNewPasswords_data()
    {
        rows<QString, QString, QString>({
            {"empty", {}, {}, PasswordMessages::newPasswordMissing()},
            {"different", u"Tulips"_s, u"Tulip"_s, PasswordMessages::passwordsDiffer()},
            {"typed once", u"Tulips"_s, {}, PasswordMessages::passwordsDiffer()},
        });
    }

    void refusesNewPasswords()
    {
        const auto [first, second, reason] = row<QString, QString, QString>();
        open();
        click("setPassword");
        answer(1, {first, second});
        QCOMPARE(refusal(), reason);
        QCOMPARE(file().state(), PasswordCheck::State::NotSet);
    }

    void changesThePassword()
    {
        guard(Area::Planner);
        open();
        click("changePassword");
        answer(0, {u"Sesame"_s, u"Tulips"_s, u"Tulips"_s});
        QVERIFY(file().matches(u"Tulips"_s));
        QVERIFY(file().areas().isProtected(Area::Planner));
    }

    void printsANewRecoveryCodeAfterThePassword()
    {
        guard(Area::Planner);
        open();
        click("newRecoveryCode");
        answer(0, {u"Sesame"_s});
        const QString first = shownCode();
        QVERIFY(file().matchesRecoveryCode(first));
        click("printCode");
        QVERIFY(m_window->isPreviewShown());
        m_window->closePreview();
        click("newRecoveryCode");
        QVERIFY(!find<QPushButton>("printCode")->isVisible() && labelText("recoveryCodeShown").isEmpty());
        answer(0, {u"Sesame"_s});
        QVERIFY(file().matchesRecoveryCode(shownCode()) && !file().matchesRecoveryCode(first));
        click("changePassword");
        answer(0, {u"Sesame"_s, u"Tulips"_s, u"Tulips"_s});
        QVERIFY(file().hasRecoveryCode() && !find<QPushButton>("printCode")->isVisible());
    }

    void aCodeThatIsNoneAnyMoreIsNotShown()
    {
        guard(Area::Planner);
        open();
        click("newRecoveryCode");
        answer(0, {u"Sesame"_s});
        const auto comeBack = [this] {
            QWidget other;
            showActive(other);
            showActive(*m_window);
        };
        comeBack();
        QVERIFY(find<QPushButton>("printCode")->isVisible());
        QTest::qWait(20);                                          // for the file's time
        QVERIFY(file().setRecoveryCode(RecoveryCode::generate())); // with the help of the one before
        comeBack();
        QVERIFY(!find<QPushButton>("printCode")->isVisible() && labelText("recoveryCodeShown").isEmpty());
    }

    void offersLockNowAsSoonAsThereIsAPassword()
    {
        open();
        QVERIFY(!find<QToolButton>("statusLock")->isVisible());
        click("setPassword");
        answer(1, {u"Tulips"_s, u"Tulips"_s});
        QVERIFY(find<QToolButton>("statusLock")->isVisible());
        click("removePassword");
        answer(0, {u"Tulips"_s});
        QVERIFY(!find<QToolButton>("statusLock")->isVisible());
    }

    void saysWhatTheWrongAnswersWere()
    {
        guard(Area::Planner);
        file().addWrongAnswer(m_test->clock.now());
        open();
        click("changePassword");
        QTRY_VERIFY(isOffered("passwordOk"));
        answer(0, {u"Sesame"_s, u"Tulips"_s, u"Tulips"_s});
        QCOMPARE(said(), u"The password is changed. 1 wrong answer since Saturday, November 21, 10:24 AM."_s);
    }

    void askingForTheOldPasswordIsLimited()
    {
        guard(Area::Planner);
        open();
        for (int round = 1; round <= 3; ++round) {
            click("removePassword");
            QTRY_VERIFY(isOffered("passwordOk"));
            answer(0, {u"Roses"_s});
        }
        QVERIFY(!isOffered("removePassword"));
        QCOMPARE(find<QPushButton>("changePassword")->toolTip(), PasswordMessages::answersSpent());
        QVERIFY(!find<QLineEdit>("Text1_0")->isVisible());
        QVERIFY(file().matches(u"Sesame"_s));
    }

    void removesThePasswordWithAllMarks()
    {
        guard(Area::Planner);
        open();
        QVERIFY(mark(Area::Planner)->isChecked());
        click("removePassword");
        answer(0, {u"Sesame"_s});
        QCOMPARE(file().state(), PasswordCheck::State::NotSet);
        QVERIFY(!mark(Area::Planner)->isChecked());
        QVERIFY(!m_test->state.protectedAreas.isProtected(Area::Planner));
        QVERIFY(!m_window->isModified());
    }

    void keepsTheFlagsOfOtherEditions()
    {
        guard(6);
        const qsizetype ofBudget = 140 * (1 + Area::Budget);
        QByteArray before = m_test->bytes(u"PCtrl1.Fil"_s);
        open();
        QVERIFY(mark(6)->isChecked());
        QVERIFY(!mark(6)->isEnabled() && !mark(6)->isVisible());
        find<QCheckBox>("showOthers")->click();
        QVERIFY(mark(6)->isVisible());
        mark(Area::Budget)->click();
        click("Command1");
        QCOMPARE(m_test->bytes(u"PCtrl1.Fil"_s), before.replace(ofBudget, 5, QByteArray("\3\0YES", 5)));
    }

    void offersToMarkTheOtherWay()
    {
        guard(Area::Planner);
        open();
        mark(Area::Budget)->click(); // there is one way only
        QVERIFY(asked().isEmpty());
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            m_test->dialogs.willAnswer(answer);
            mark(Area::AddressViewerButton)->click();
            QCOMPARE(asked().size(), 1);
            QCOMPARE(mark(Area::AddressViewer)->isChecked(), answer == Answer::Yes);
            mark(Area::AddressViewerButton)->click();
        }
        mark(Area::AddressViewerButton)->click(); // the other one is marked
        QVERIFY(asked().isEmpty());
    }

    void saysWhatAMarkDoesAndWhatStillOpens()
    {
        guard(Area::AddressBook);
        bool isSealed = false;
        m_test->functions.add(Function::Journal, {.isSealed = [&](const Program &) { return isSealed; }});
        open();
        QCOMPARE(labelText("level_14"), u"Asks for the password; the files stay readable"_s);
        isSealed = true;
        emit m_test->changes.guardsChanged();
        QCOMPARE(labelText("level_14"), u"Sealed"_s);
        QCOMPARE(labelText("level_2"), u"Asks for the password; the files stay readable"_s);
        QCOMPARE(labelText("level_0"),
                 u"Asks for the password; the files stay readable. Still opens by the toolbar button."_s);
        mark(Area::AddressBookButton)->click();
        QCOMPARE(labelText("level_0"), u"Asks for the password; the files stay readable"_s);
        mark(Area::AddressBook)->click();
        QCOMPARE(
            labelText("level_15"),
            u"Asks for the password; the files stay readable. Still opens by the menu entry and card."_s);
        mark(Area::AddressBook)->click();
    }

    void choosesWhenWindowsAreCovered()
    {
        guard(Area::Planner);
        const QSignalSpy changed(&m_test->changes, &ProgramSignals::guardsChanged);
        open();
        auto *minutes = find<QComboBox>("Combo1");
        QCOMPARE(minutes->currentText(), u"10 minutes"_s);
        const qsizetype before = changed.size();
        QTest::keyClick(minutes, Qt::Key_Down);
        QCOMPARE(minutes->currentText(), u"30 minutes"_s);
        QCOMPARE(m_test->bytes(u"GColor3.Fil"_s).mid(209 * 20), QByteArray("\x1E\0", 2));
        QCOMPARE(changed.size(), before + 1);
    }

    void asksBeforeMarksAreLost_data()
    {
        rows<Answer, bool, bool>({
            {"Yes", Answer::Yes, true, true},
            {"No", Answer::No, true, false},
            {"Cancel", Answer::Cancel, false, false},
        });
    }

    void asksBeforeMarksAreLost()
    {
        const auto [answer, closes, saved] = row<Answer, bool, bool>();
        guard(Area::Planner);
        open();
        mark(Area::Journal)->click();
        m_test->dialogs.willAnswer(answer);
        QCOMPARE(m_window->close(), closes);
        QCOMPARE(asked(), {PasswordMessages::saveChanges()});
        QCOMPARE(file().areas().isProtected(Area::Journal), saved);
    }

    void doesNotWriteIntoADamagedFile()
    {
        guard(Area::Planner);
        open();
        mark(Area::Journal)->click();
        const QByteArray cut = m_test->bytes(u"PCtrl1.Fil"_s).left(1000);
        m_test->setBytes(u"PCtrl1.Fil"_s, cut);
        click("Command1");
        QCOMPARE(asked(), {PasswordMessages::fileDamaged(m_test->folder.path())});
        QCOMPARE(m_test->bytes(u"PCtrl1.Fil"_s), cut);
        QVERIFY(!mark(Area::Journal)->isEnabled());

        delete m_window;
        open();
        QCOMPARE(labelText("passwordState"), u"Damaged"_s);
        QVERIFY(!isOffered("setPassword"));
    }

    void printsWhatIsGuarded()
    {
        guard(Area::CarLog);
        open();
        trigger("mOPrt");
        QVERIFY(m_window->isPreviewShown());
        const QString text = passwordPage(true, file().areas(), {Area::PasswordKeeper},
                                          PageContext{.today = QDate(2026, 11, 21)})
                                 .toText();
        QVERIFY(text.contains("A password is set."_L1));
        QVERIFY(
            text.contains("Automobile Tracker\tasked\tAsks for the password; the files stay readable"_L1));
        QVERIFY(text.contains("Personal Journal\tnot asked"_L1));
        QVERIFY(!text.contains("Video Library"_L1));
    }

private:
    PasswordCheck file() const { return PasswordCheck(m_test->folder, PasswordCost::minimum()); }

    /// Sets the password "Sesame" and one flag before the window opens.
    void guard(int area) const
    {
        QVERIFY(file().setPassword(u"Sesame"_s));
        ProtectedAreas areas = file().areas();
        areas.setFlag(area, u"YES"_s);
        QVERIFY(file().saveAreas(areas));
    }

    void open()
    {
        m_window = new Form31(m_test->program, PasswordCost::minimum(), 1ms);
        showActive(*m_window);
    }

    QCheckBox *mark(int area) const { return find<QCheckBox>("Check1_" + QByteArray::number(area)); }

    void type(const char *box, const QString &text) const
    {
        auto *edit = find<QLineEdit>(box);
        edit->clear();
        QTest::keyClicks(edit, text);
    }

    /// Types into the boxes from `box` on: the old password, the new one, the new one again.
    void answer(int box, const QStringList &texts) const
    {
        for (const QString &text : texts)
            type(qPrintable(u"Text1_%1"_s.arg(box++)), text);
        click("passwordOk");
    }

    QString shownCode() const
    {
        return RecoveryCode::read(labelText("recoveryCodeShown")).value_or(QString());
    }
    QString refusal() const { return labelText("refusal"); }
};

QTEST_MAIN(TestForm31)
#include "tst_passwordcontrol.moc"
