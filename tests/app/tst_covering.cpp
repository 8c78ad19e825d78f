// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/functions.h"
#include "shell/access/windowguard.h"
#include "shell/controls/activitybar.h"
#include "shell/core/area.h"
#include "shell/mainmenu/functioncard.h"
#include "shell/mainmenu/mainmenuwindow.h"
#include "shell/program/covering.h"
#include "shell/program/messagebox.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPrinter>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QToolTip>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// All that a screen reader gets of `part` and of what is in it.
QString toldOf(QAccessibleInterface *part)
{
    QString told;
    for (const QAccessible::Text kind :
         {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
        told += part->text(kind) + u'\n';
    for (int i = 0; i < part->childCount(); ++i) {
        if (QAccessibleInterface *child = part->child(i))
            told += toldOf(child);
    }
    return told;
}

QString toldOf(const QObject *window)
{
    return toldOf(QAccessible::queryAccessibleInterface(const_cast<QObject *>(window)));
}

} // namespace

/// The whole program with a guarded planner and a guarded address book, and its main menu.
class TestCovering : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        m_prompts = 0;
        m_verdict = PasswordGateResult::Open;
        m_test->gate = AccessGate([this](Program &program, QWidget *) {
            ++m_prompts;
            program.state.passwordGateResult = m_verdict;
        });
        for (const int area : {Area::Planner, Area::AddressBook, Area::AddressBookButton, Area::AddressViewer,
                               Area::Budget, Area::CarLog, Area::PasswordKeeper})
            m_test->state.protectedAreas.setFlag(area, u"YES"_s);
        addFunctions(m_test->functions, m_test->clock);
        m_guard = std::make_unique<WindowGuard>(m_test->program);
        m_menu = std::make_unique<Startfrm>(m_test->program);
        showActive(*m_menu);
    }

    void cleanup()
    {
        for (QWidget *window : m_test->functions.openWindows())
            delete window;
        m_menu.reset();
        m_guard.reset();
        QVERIFY(m_test->dialogs.isDone());
    }

    void coversWhatIsGuardedAndKeepsTheTyping()
    {
        QWidget *planner = open(Function::Planner);
        const QWidget *lists = open(Function::ToDoList);
        const QString title = planner->windowTitle();
        auto *box = control<QLineEdit>(*planner, "Text2_3");
        showActive(*planner);
        box->setFocus();
        QTest::keyClicks(box, u"Chess club"_s);
        QVERIFY(toldOf(planner).contains("Chess club"_L1));
        const QImage before = planner->grab().toImage();
        QTest::keyClick(planner, Qt::Key_L, Qt::ControlModifier);

        QVERIFY(Covering::isCovered(*planner) && !Covering::isCovered(*lists) &&
                !Covering::isCovered(*m_menu));
        QCOMPARE(planner->windowTitle(), u"Protected"_s);
        QCOMPARE(
            toldOf(planner).simplified(),
            u"Protected Protected Type the password, and everything is here as you left it. Unlock..."_s);
        QVERIFY(toldOf(box).simplified().isEmpty());
        for (const QWidget *part : planner->findChildren<QWidget *>())
            QVERIFY2(!part->isVisible() || Covering::isCovered(*part) == (part->window() == planner),
                     qPrintable(part->objectName()));
        QVERIFY(!box->isVisible());
        // Two covered windows with other texts look alike.
        const QImage covered = planner->grab().toImage();
        box->setText(u"Something else"_s);
        QCOMPARE(planner->grab().toImage(), covered);
        QVERIFY(covered != before);
        box->setText(u"Chess club"_s);
        planner->setWindowTitle(u"Chess club"_s);
        QCOMPARE(planner->windowTitle(), u"Protected"_s);
        planner->setWindowTitle(title);

        m_verdict = PasswordGateResult::Refused;
        unlock(planner);
        QVERIFY(m_prompts == 1 && Covering::isCovered(*planner));
        m_verdict = PasswordGateResult::Open;
        unlock(planner);
        QVERIFY(m_prompts == 2 && !Covering::isCovered(*planner));
        QVERIFY(box->isVisible() && box->hasFocus());
        QCOMPARE(box->text(), u"Chess club"_s);
        QCOMPARE(planner->windowTitle(), title);
        QVERIFY(toldOf(planner).contains("Chess club"_L1));
        m_test->dialogs.willAnswer(Answer::No);
        QVERIFY(planner->close());
    }

    void everyWayAsksForThePassword_data()
    {
        using Way = std::function<void(const TestCovering &)>;
        rows<Function, Way>({
            {"its button", Function::Planner, [](const TestCovering &t) { t.unlock(t.window()); }},
            {"its card", Function::Planner,
             [](const TestCovering &t) {
                 QTest::keyClick(control<FunctionCard>(*t.m_menu, "card_planner"), Qt::Key_Return);
             }},
            {"its menu entry", Function::Planner,
             [](const TestCovering &t) { control<QAction>(*t.m_menu, "mFP")->trigger(); }},
            {"its toolbar button", Function::Planner,
             [](const TestCovering &t) { control<QAction>(*t.m_menu, "Toolbar1_9")->trigger(); }},
            {"a button with a guard of its own", Function::AddressBook,
             [](const TestCovering &t) { control<QAction>(*t.m_menu, "Toolbar1_0")->trigger(); }},
            {"a way that is not guarded", Function::AddressViewer,
             [](const TestCovering &t) { control<QAction>(*t.m_menu, "Toolbar1_1")->trigger(); }},
            {"the viewer", Function::AddressBook,
             [](const TestCovering &t) {
                 QWidget *viewer = t.m_test->functions.open(Function::AddressViewer, t.m_test->program);
                 control<QAction>(*viewer, "mOEntry")->trigger();
             }},
            {"a place found elsewhere", Function::Planner,
             [](const TestCovering &t) {
                 emit t.m_test->changes.placeRequested(Function::Planner, {.date = QDate(2026, 11, 20)});
             }},
            {"the keeper's button", Function::PasswordKeeper,
             [](const TestCovering &t) { t.unlock(t.window()); }},
            {"the keeper's card", Function::PasswordKeeper,
             [](const TestCovering &t) {
                 QTest::keyClick(control<FunctionCard>(*t.m_menu, "card_passwordKeeper"), Qt::Key_Return);
             }},
            {"the keeper's menu entry", Function::PasswordKeeper,
             [](const TestCovering &t) { control<QAction>(*t.m_menu, "mPWKpr")->trigger(); }},
            {"the keeper's toolbar button", Function::PasswordKeeper,
             [](const TestCovering &t) { control<QAction>(*t.m_menu, "Toolbar1_38")->trigger(); }},
            {"another guarded one beside it", Function::PasswordKeeper,
             [](const TestCovering &t) { control<QAction>(*t.m_menu, "mMB")->trigger(); }},
        });
    }

    void everyWayAsksForThePassword()
    {
        const auto [function, way] = row<Function, std::function<void(const TestCovering &)>>();
        m_function = function;
        const QWidget *budget = open(Function::Budget);
        open(function);
        emit m_test->changes.lockRequested();
        QVERIFY(Covering::isCovered(*window()) && Covering::isCovered(*budget));
        m_verdict = PasswordGateResult::Refused;
        way(*this);
        QVERIFY(m_prompts == 1 && Covering::isCovered(*window()) && Covering::isCovered(*budget));
        m_verdict = PasswordGateResult::Open;
        way(*this);
        QVERIFY(m_prompts == 2 && !Covering::isCovered(*window()) && !Covering::isCovered(*budget));
    }

    void aSecondStartLeavesItCovered()
    {
        const QList<QWidget *> windows{open(Function::Planner), open(Function::PasswordKeeper)};
        emit m_test->changes.lockRequested();
        emit m_test->changes.mainMenuRequested();
        QTRY_VERIFY(m_menu->isActiveWindow());
        for (const QWidget *window : windows)
            QVERIFY(Covering::isCovered(*window));
    }

    void theKeeperIsCoveredWithWhatIsTypedInIt()
    {
        QWidget *keeper = open(Function::PasswordKeeper);
        auto *box = control<QLineEdit>(*keeper, "newMaster");
        box->setEchoMode(QLineEdit::Normal);
        box->setText(u"Chess club"_s);
        MessageBox question({u"Password Keeper"_s, u"Chess club?"_s}, keeper);
        question.open();
        emit m_test->changes.lockRequested();
        QVERIFY(Covering::isCovered(*keeper) && Covering::isCovered(question));
        QVERIFY(!toldOf(keeper).contains("Chess"_L1) && !toldOf(&question).contains("Chess"_L1));
        auto *other = control<QLineEdit>(*keeper, "newMasterAgain");
        other->setFocus(); // it goes on behind its cover
        m_verdict = PasswordGateResult::Refused;
        unlock(&question);
        QVERIFY(m_prompts == 1 && Covering::isCovered(*keeper) && Covering::isCovered(question));
        m_verdict = PasswordGateResult::Open;
        unlock(&question);
        QVERIFY(!Covering::isCovered(*keeper) && !Covering::isCovered(question));
        QCOMPARE(box->text(), u"Chess club"_s);
        question.reject();
        showActive(*keeper);
        QVERIFY(other->hasFocus());
    }

    /// A window that goes on behind its cover, to lock itself say, gives the focus to a box there.
    void keysGoToTheCoverAlone()
    {
        QWidget *keeper = open(Function::PasswordKeeper);
        showActive(*keeper);
        emit m_test->changes.lockRequested();
        auto *box = control<QLineEdit>(*keeper, "newMaster");
        for (const Qt::Key key : {Qt::Key_P, Qt::Key_A, Qt::Key_Return}) {
            box->setFocus();
            QTest::keyClick(keeper->windowHandle(), key);
        }
        QVERIFY(box->text().isEmpty());
        QVERIFY(m_prompts == 1 && !Covering::isCovered(*keeper) && box->hasFocus());
    }

    void thePrintersQueueTellsNothing()
    {
        QWidget *cars = open(Function::CarLog);
        control<QAction>(*cars, "mOPrt")->trigger();
        const QString pdf = m_test->temporary.filePath(u"printed.pdf"_s);
        QString name;
        m_test->dialogs.setPrinter(true);
        m_test->dialogs.willChoosePrinter([&](QPrinter &printer) {
            name = printer.docName();
            printer.setOutputFileName(pdf);
            emit m_test->changes.lockRequested(); // the system's own box can still be answered
            return true;
        });
        QTest::mouseClick(control<QPushButton>(*cars, "SSCommand80_4"), Qt::LeftButton);
        QCOMPARE(name, u"Automobile Tracker"_s);
        QVERIFY(Covering::isCovered(*cars) && !QFile::exists(pdf));
    }

    void anOpenBoxIsCoveredAndHoldsNothingUp()
    {
        QWidget *planner = open(Function::Planner);
        const Message question{
            u"Planner"_s, u"Chess club?"_s, Message::Question, {Answer::Yes, Answer::No}, Answer::Yes};
        MessageBox box(question, planner);
        const QSignalSpy finished(&box, &QDialog::finished);
        box.open();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        control<QLineEdit>(*planner, "Text2_3")->setText(u"x"_s);
        QMenu menu(planner);
        menu.addAction(u"Chess club"_s);
        menu.popup({});
        QToolTip::showText({}, u"Chess club"_s, planner);
        emit m_test->changes.lockRequested();
        QVERIFY(!menu.isVisible() && !QToolTip::isVisible());
        QVERIFY(Covering::isCovered(*planner) && Covering::isCovered(box));
        QVERIFY(!toldOf(&box).contains("Chess club"_L1));
        for (const Qt::Key key : {Qt::Key_Y, Qt::Key_Escape})
            QTest::keyClick(box.focusWidget(), key);
        QTest::keyClick(&box, Qt::Key_Y);
        QVERIFY(!box.close() && finished.isEmpty() && m_prompts == 0);

        MessageBox late(question, planner); // something that was under way has come to its end
        late.open();
        QVERIFY(Covering::isCovered(late));

        unlock(&box);
        QVERIFY(m_prompts == 1 && !Covering::isCovered(*planner) && !Covering::isCovered(box) &&
                !Covering::isCovered(late));
        QTest::keyClick(&box, Qt::Key_Y);
        QCOMPARE(finished.size(), 1);
        QCOMPARE(box.answer(), Answer::Yes);
    }

    void whatTheGateSaysIsNotCovered()
    {
        QWidget *planner = open(Function::Planner);
        emit m_test->changes.lockRequested();
        bool isTold = false;
        m_test->gate = AccessGate([&isTold](Program &program, QWidget *parent) {
            program.state.passwordGateResult = PasswordGateResult::Refused;
            MessageBox box({u"Password Control"_s, u"The password file is damaged."_s}, parent);
            box.open();
            isTold = box.isVisible() && !Covering::isCovered(box);
        });
        unlock(planner);
        QVERIFY(isTold && Covering::isCovered(*planner));
    }

    void whatWasCopiedThereIsGone()
    {
        QWidget *planner = open(Function::Planner);
        showActive(*planner);
        QApplication::clipboard()->setText(u"Chess club"_s);
        emit m_test->changes.lockRequested();
        QVERIFY(QApplication::clipboard()->text().isEmpty());
        unlock(planner);
        showActive(*m_menu);
        QApplication::clipboard()->setText(u"Somebody else's"_s);
        emit m_test->changes.lockRequested();
        QCOMPARE(QApplication::clipboard()->text(), u"Somebody else's"_s);
        showActive(*planner);
        QApplication::clipboard()->setText(u"Chess club"_s);
        QVERIFY(planner->close()); // nothing is left to be covered
        emit m_test->changes.lockRequested();
        QVERIFY(QApplication::clipboard()->text().isEmpty());
    }

    void asksForThePasswordBeforeItAsksAboutTheTyping()
    {
        QWidget *planner = open(Function::Planner);
        typeInto(planner);
        emit m_test->changes.lockRequested();
        m_verdict = PasswordGateResult::Refused;
        QVERIFY(!planner->close());
        QVERIFY(m_test->dialogs.takeShown().isEmpty() && m_prompts == 1);
        m_verdict = PasswordGateResult::Open;
        m_test->dialogs.willAnswer(Answer::No);
        QVERIFY(planner->close());
        QCOMPARE(m_test->dialogs.takeShown().size(), 1);
    }

    void daysOfOthersGoWhenTheyAreGuarded()
    {
        m_test->state.protectedAreas = {};
        const QWidget *planner = open(Function::Planner);
        emit m_test->changes.placeRequested(Function::Planner, {.date = QDate(2027, 2, 28)});
        const auto *line = control<QWidget>(*planner, "dayNotes");
        QTRY_VERIFY(line->toolTip().contains("Josephine"_L1)); // read a little later
        m_test->state.protectedAreas.setFlag(Area::AddressBookButton, u"YES"_s);
        emit m_test->changes.guardsChanged();
        QTRY_VERIFY(!toldOf(planner).contains("Josephine"_L1));
    }

    void locksWhereTheStatusBarSaysSo()
    {
        QWidget *planner = open(Function::Planner);
        auto *link = control<QToolButton>(*planner, "statusLock");
        QVERIFY(link->isVisible() && control<QToolButton>(*m_menu, "statusLock")->isVisible());
        link->click();
        QVERIFY(Covering::isCovered(*planner));
        const QDateTime time = m_test->clock.now();
        m_test->state.dateStyle = DateStyle::Other;
        m_test->gate.noteRightAnswer({3, time, time});
        unlock(planner);
        QCOMPARE(planner->findChild<ActivityBar *>()->notice(),
                 u"3 wrong answers since Saturday, 21 November, 10:24"_s);
        m_test->state.protectedAreas = {};
        emit m_test->changes.guardsChanged();
        QVERIFY(!link->isVisible());
        emit m_test->changes.lockRequested();
        QVERIFY(!Covering::isCovered(*planner));
    }

private:
    QWidget *open(Function function)
    {
        QWidget *window = m_test->functions.open(function, m_test->program);
        [&] { QVERIFY(QTest::qWaitForWindowExposed(window)); }();
        return window;
    }
    static void typeInto(const QWidget *planner)
    {
        auto *box = control<QLineEdit>(*planner, "Text2_3");
        box->setFocus();
        QTest::keyClicks(box, u"Chess club"_s);
    }
    QWidget *window() const { return m_test->functions.window(m_function); }
    void unlock(QWidget *window) const
    {
        QTest::mouseClick(control<QPushButton>(*window, "coverUnlock"), Qt::LeftButton);
    }

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<WindowGuard> m_guard;
    std::unique_ptr<Startfrm> m_menu;
    Function m_function = Function::Planner;
    int m_prompts = 0;
    PasswordGateResult m_verdict = PasswordGateResult::Open;
};

QTEST_MAIN(TestCovering)
#include "tst_covering.moc"
