// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordcontrol.h"
#include "shell/access/passwordmessages.h"
#include "shell/access/passwordpage.h"
#include "shell/controls/activitybar.h"
#include "shell/core/area.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class TestForm31 : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void setsAPasswordAndGuardsAFunction();
    void refusesNewPasswords_data();
    void refusesNewPasswords();
    void changesThePassword();
    void askingForTheOldPasswordIsLimited();
    void removesThePasswordWithAllMarks();
    void keepsTheFlagsOfOtherEditions();
    void offersToMarkTheOtherWay();
    void asksBeforeMarksAreLost_data();
    void asksBeforeMarksAreLost();
    void doesNotWriteIntoADamagedFile();
    void printsWhatIsGuarded();

private:
    PasswordCheck file() const { return PasswordCheck(m_program->folder, PasswordCost::minimum()); }
    void guard(int area) const;
    void open();
    void click(const char *name) const
    {
        QTest::mouseClick(control<QPushButton>(*m_window, name), Qt::LeftButton);
    }
    QCheckBox *mark(int area) const;
    void type(const char *box, const QString &text) const;
    /// Types into the boxes from `box` on: the old password, the new one, the new one again.
    void answer(int box, const QStringList &texts) const;
    QString refusal() const { return control<QLabel>(*m_window, "refusal")->text(); }
    QString said() const { return m_window->findChild<ActivityBar *>()->message(); }

    std::unique_ptr<TestProgram> m_program;
    QPointer<Form31> m_window;
};

void TestForm31::init()
{
    m_program = std::make_unique<TestProgram>();
}

void TestForm31::cleanup()
{
    delete m_window;
    QVERIFY(m_program->dialogs.isDone());
}

/// Sets the password "Sesame" and one flag before the window opens.
void TestForm31::guard(int area) const
{
    QVERIFY(file().setPassword(u"Sesame"_s));
    ProtectedAreas areas = file().areas();
    areas.setFlag(area, u"YES"_s);
    QVERIFY(file().saveAreas(areas));
}

void TestForm31::open()
{
    m_window = new Form31(m_program->program, PasswordCost::minimum(), 1ms);
    showActive(*m_window);
}

QCheckBox *TestForm31::mark(int area) const
{
    return control<QCheckBox>(*m_window, qPrintable(u"Check1_%1"_s.arg(area)));
}

void TestForm31::type(const char *box, const QString &text) const
{
    auto *edit = control<QLineEdit>(*m_window, box);
    edit->clear();
    QTest::keyClicks(edit, text);
}

void TestForm31::answer(int box, const QStringList &texts) const
{
    for (const QString &text : texts)
        type(qPrintable(u"Text1_%1"_s.arg(box++)), text);
    click("passwordOk");
}

void TestForm31::setsAPasswordAndGuardsAFunction()
{
    open();
    QVERIFY(!control<QPushButton>(*m_window, "changePassword")->isVisible());
    QVERIFY(!control<QPushButton>(*m_window, "Command1")->isEnabled());
    for (int area = 0; area < ProtectedAreas::count; ++area)
        QVERIFY(!mark(area)->isEnabled() && !mark(area)->toolTip().isEmpty());
    click("setPassword");
    type("Text1_1", u"Tulips"_s);
    type("Text1_2", u"Tulips"_s);
    QTest::keyClick(control<QLineEdit>(*m_window, "Text1_2"), Qt::Key_Return);
    QVERIFY(file().matches(u"Tulips"_s));
    QCOMPARE(said(), PasswordMessages::passwordSet());
    QVERIFY(control<QLineEdit>(*m_window, "Text1_1")->text().isEmpty());

    QVERIFY(!m_window->isModified());
    m_program->dialogs.willAnswer(Answer::No);
    QTest::keyClick(mark(Area::AddressBook), Qt::Key_Space);
    QVERIFY(m_window->isModified());
    QVERIFY(!m_program->state.protectedAreas.isProtected(Area::AddressBook));
    click("Command1");
    QVERIFY(m_program->state.protectedAreas.isProtected(Area::AddressBook));
    QVERIFY(file().areas().isProtected(Area::AddressBook));
    QVERIFY(!m_window->isModified());
    QVERIFY(m_window->close());
}

void TestForm31::refusesNewPasswords_data()
{
    rows<QString, QString, QString>({
        {"empty", {}, {}, PasswordMessages::newPasswordMissing()},
        {"different", u"Tulips"_s, u"Tulip"_s, PasswordMessages::passwordsDiffer()},
        {"typed once", u"Tulips"_s, {}, PasswordMessages::passwordsDiffer()},
    });
}

void TestForm31::refusesNewPasswords()
{
    const auto [first, second, reason] = row<QString, QString, QString>();
    open();
    click("setPassword");
    answer(1, {first, second});
    QCOMPARE(refusal(), reason);
    QCOMPARE(file().state(), PasswordCheck::State::NotSet);
}

void TestForm31::changesThePassword()
{
    guard(Area::Planner);
    open();
    click("changePassword");
    answer(0, {u"Sesame"_s, u"Tulips"_s, u"Tulips"_s});
    QVERIFY(file().matches(u"Tulips"_s));
    QVERIFY(file().areas().isProtected(Area::Planner));
}

void TestForm31::askingForTheOldPasswordIsLimited()
{
    guard(Area::Planner);
    open();
    for (int round = 1; round <= 3; ++round) {
        click("removePassword");
        QTRY_VERIFY(control<QPushButton>(*m_window, "passwordOk")->isEnabled());
        answer(0, {u"Roses"_s});
    }
    QVERIFY(!control<QPushButton>(*m_window, "removePassword")->isEnabled());
    QCOMPARE(control<QPushButton>(*m_window, "changePassword")->toolTip(), PasswordMessages::answersSpent());
    QVERIFY(!control<QLineEdit>(*m_window, "Text1_0")->isVisible());
    QVERIFY(file().matches(u"Sesame"_s));
}

void TestForm31::removesThePasswordWithAllMarks()
{
    guard(Area::Planner);
    open();
    QVERIFY(mark(Area::Planner)->isChecked());
    click("removePassword");
    answer(0, {u"Sesame"_s});
    QCOMPARE(file().state(), PasswordCheck::State::NotSet);
    QVERIFY(!mark(Area::Planner)->isChecked());
    QVERIFY(!m_program->state.protectedAreas.isProtected(Area::Planner));
    QVERIFY(!m_window->isModified());
}

void TestForm31::keepsTheFlagsOfOtherEditions()
{
    guard(6);
    const qsizetype ofBudget = 140 * (1 + Area::Budget);
    QByteArray before = m_program->bytes(u"PCtrl1.Fil"_s);
    open();
    QVERIFY(mark(6)->isChecked());
    QVERIFY(!mark(6)->isEnabled() && !mark(6)->isVisible());
    control<QCheckBox>(*m_window, "showOthers")->click();
    QVERIFY(mark(6)->isVisible());
    mark(Area::Budget)->click();
    click("Command1");
    QCOMPARE(m_program->bytes(u"PCtrl1.Fil"_s), before.replace(ofBudget, 5, QByteArray("\3\0YES", 5)));
}

void TestForm31::offersToMarkTheOtherWay()
{
    guard(Area::Planner);
    open();
    mark(Area::Budget)->click(); // there is one way only
    QVERIFY(m_program->dialogs.takeShown().isEmpty());
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        m_program->dialogs.willAnswer(answer);
        mark(Area::AddressViewerButton)->click();
        QCOMPARE(m_program->dialogs.takeShown().size(), 1);
        QCOMPARE(mark(Area::AddressViewer)->isChecked(), answer == Answer::Yes);
        mark(Area::AddressViewerButton)->click();
    }
    mark(Area::AddressViewerButton)->click(); // the other one is marked
    QVERIFY(m_program->dialogs.takeShown().isEmpty());
}

void TestForm31::asksBeforeMarksAreLost_data()
{
    rows<Answer, bool, bool>({
        {"Yes", Answer::Yes, true, true},
        {"No", Answer::No, true, false},
        {"Cancel", Answer::Cancel, false, false},
    });
}

void TestForm31::asksBeforeMarksAreLost()
{
    const auto [answer, closes, saved] = row<Answer, bool, bool>();
    guard(Area::Planner);
    open();
    mark(Area::Journal)->click();
    m_program->dialogs.willAnswer(answer);
    QCOMPARE(m_window->close(), closes);
    QCOMPARE(m_program->dialogs.takeShown(), {PasswordMessages::saveChanges()});
    QCOMPARE(file().areas().isProtected(Area::Journal), saved);
}

void TestForm31::doesNotWriteIntoADamagedFile()
{
    guard(Area::Planner);
    open();
    mark(Area::Journal)->click();
    const QByteArray cut = m_program->bytes(u"PCtrl1.Fil"_s).left(1000);
    m_program->setBytes(u"PCtrl1.Fil"_s, cut);
    click("Command1");
    QCOMPARE(m_program->dialogs.takeShown(), {PasswordMessages::fileDamaged(m_program->folder.path())});
    QCOMPARE(m_program->bytes(u"PCtrl1.Fil"_s), cut);
    QVERIFY(!mark(Area::Journal)->isEnabled());

    delete m_window;
    open();
    QCOMPARE(control<QLabel>(*m_window, "passwordState")->text(), u"Damaged"_s);
    QVERIFY(!control<QPushButton>(*m_window, "setPassword")->isEnabled());
}

void TestForm31::printsWhatIsGuarded()
{
    guard(Area::CarLog);
    open();
    control<QAction>(*m_window, "mOPrt")->trigger();
    QVERIFY(m_window->isPreviewShown());
    const QString text =
        passwordPage(true, file().areas(), PageContext{.today = QDate(2026, 11, 21)}).toText();
    QVERIFY(text.contains("A password is set."_L1));
    QVERIFY(text.contains("Automobile Tracker\tasked"_L1));
    QVERIFY(text.contains("Personal Journal\tnot asked"_L1));
    QVERIFY(!text.contains("Video Library"_L1));
}

QTEST_MAIN(TestForm31)
#include "tst_passwordcontrol.moc"
