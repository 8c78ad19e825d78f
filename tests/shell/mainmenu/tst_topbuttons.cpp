// SPDX-License-Identifier: GPL-3.0-or-later
#include "startwindow.h"

#include "shell/controls/flowtoolbar.h"
#include "shell/core/helpcontexts.h"
#include "shell/mainmenu/mainmenumessages.h"

#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Nothing opens, nobody is asked.
constexpr int none = -1;

struct Press {
    int position;
    int function; ///< that opens, or `none`
    int area;     ///< that the password is asked for while every area is protected, or `none`
};

constexpr int opens(Function function)
{
    return int(function);
}

/// All buttons that open a window here or would in another edition.
constexpr Press presses[] = {
    {0, opens(Function::AddressBook), 15},
    {1, opens(Function::AddressViewer), 16},
    {2, opens(Function::AddressBook), 0},
    {3, opens(Function::CalendarMaker), none},
    {4, none, 0},
    {5, none, none},
    {6, none, none},
    {7, opens(Function::WeightTracker), none},
    {8, opens(Function::Journal), 14},
    {9, opens(Function::Planner), 2},
    {10, opens(Function::ToDoList), none},
    {11, none, none},
    {12, none, 3},
    {13, none, 12},
    {14, none, none},
    {15, none, none},
    {16, none, none},
    {17, opens(Function::Budget), 9},
    {18, opens(Function::CarLog), 13},
    {19, none, 4},
    {20, none, 5},
    {21, none, 7},
    {22, none, 12},
    {23, none, 6},
    {24, none, 6},
    {25, none, 6},
    {26, none, 8},
    {27, none, 8},
    {28, none, 8},
    {29, none, 10},
    {30, none, none},
    {31, none, none},
    {32, none, none},
    {33, none, none},
    {34, none, none},
    {35, none, none},
    {36, none, none},
    {37, opens(Function::PasswordControl), none}, // asks only while a password is set
    {38, opens(Function::PasswordKeeper), 11},
    {39, opens(Function::PhotoAlbum), none},
    {40, none, none},
    {41, none, none},
};

} // namespace

class TestStartDispatch : public QObject
{
    Q_OBJECT

private slots:
    void pressesAButton_data();
    void pressesAButton();
    void opensAMenuEntryBehindItsGuard_data();
    void opensAMenuEntryBehindItsGuard();
    void opensNothingWhenThePromptRefuses();
    void tellsAnEmptyList_data();
    void tellsAnEmptyList();
    void helpsAndLeaves();
    void showsTheDesignedBar();
};

void TestStartDispatch::pressesAButton_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("area");
    for (const Press &press : presses)
        QTest::addRow("%d", press.position) << press.position << press.function << press.area;
}

void TestStartDispatch::pressesAButton()
{
    QFETCH(int, position);
    QFETCH(int, function);
    QFETCH(int, area);
    StartWindow start;
    start.addAllFunctions();
    start.protectAll();
    start.test.setBytes(u"HINV2.Fil"_s, "Kitchen\r\n");
    start.test.setBytes(u"VIDEO2.FIL"_s, "Films\r\n");
    start.show();
    if (position == 41)
        start.test.dialogs.willAnswer(Answer::No);
    start.trigger(qPrintable(u"Toolbar1_%1"_s.arg(position)));
    QCOMPARE(start.opened, function == none ? QList<int>{} : QList<int>{function});
    QCOMPARE(start.asked, area == none ? QList<int>{} : QList<int>{area});
    QCOMPARE(start.activity(), u"Main Menu"_s);
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(start.test.dialogs.isDone());
    // Nothing else is said, whatever the button.
    QCOMPARE(start.test.dialogs.takeShown().size(), position == 41 ? 1 : 0);
}

void TestStartDispatch::opensAMenuEntryBehindItsGuard_data()
{
    rows<QString, int, int>({
        {"car", u"mIMain"_s, opens(Function::CarLog), 13},
        {"calendar", u"mFCal"_s, opens(Function::CalendarMaker), none},
        {"address book", u"mFB"_s, opens(Function::AddressBook), 0},
        {"viewer", u"MfViewer"_s, opens(Function::AddressViewer), 1},
        {"budget", u"mMB"_s, opens(Function::Budget), 9},
        {"journal", u"mFJour"_s, opens(Function::Journal), 14},
        {"planner", u"mFP"_s, opens(Function::Planner), 2},
        {"to do", u"mFToDo"_s, opens(Function::ToDoList), none},
        {"photos", u"mUPhoto"_s, opens(Function::PhotoAlbum), none},
        {"keeper", u"mPWKpr"_s, opens(Function::PasswordKeeper), 11},
        {"control", u"mUP"_s, opens(Function::PasswordControl), none},
        {"weight", u"mFWeight"_s, opens(Function::WeightTracker), none},
    });
}

void TestStartDispatch::opensAMenuEntryBehindItsGuard()
{
    const auto [entry, function, area] = row<QString, int, int>();
    StartWindow start;
    start.addAllFunctions();
    start.protectAll();
    start.show();
    start.trigger(qPrintable(entry));
    QCOMPARE(start.opened, QList<int>{function});
    QCOMPARE(start.asked, area == none ? QList<int>{} : QList<int>{area});
}

void TestStartDispatch::opensNothingWhenThePromptRefuses()
{
    StartWindow start;
    start.addAllFunctions();
    start.protectAll();
    start.verdict = PasswordGateResult::Refused;
    start.show();
    start.trigger("mFB");
    start.trigger("Toolbar1_0");
    QCOMPARE(start.opened, QList<int>());
    QCOMPARE(start.test.state.passwordGateResult, PasswordGateResult::Open);

    start.verdict = PasswordGateResult::Open;
    start.trigger("mFB");
    QCOMPARE(start.opened, QList<int>{opens(Function::AddressBook)});
    // The open window is raised; there is never a second one.
    start.trigger("mFB");
    QCOMPARE(start.opened.size(), 1);
}

void TestStartDispatch::tellsAnEmptyList_data()
{
    const QString view = u"There are currently no files to view!"_s;
    const QString rollup = u"There are currently no files to display rollup information!"_s;
    rows<int, QByteArray, QString, QString>({
        {"no file", 24, {}, u"Home Inventory View"_s, view},
        {"only marked lines", 25, "N*Kitchen\r\n", u"Home Inventory Rollup"_s, rollup},
        {"videos", 27, "\r\n", u"Video Library View"_s, view},
        {"video rollup", 28, {}, u"Video Library Rollup"_s, rollup},
    });
}

void TestStartDispatch::tellsAnEmptyList()
{
    const auto [position, content, title, text] = row<int, QByteArray, QString, QString>();
    StartWindow start;
    start.protectAll();
    if (!content.isEmpty())
        start.test.setBytes(position < 26 ? u"HINV2.Fil"_s : u"Video2.Fil"_s, content);
    start.show();
    start.trigger(qPrintable(u"Toolbar1_%1"_s.arg(position)));
    const QList<Message> shown = start.test.dialogs.takeShown();
    QCOMPARE(shown.size(), 1);
    QCOMPARE(shown.first().title, title);
    QCOMPARE(shown.first().text, text);
    QVERIFY(start.asked.isEmpty());
}

void TestStartDispatch::helpsAndLeaves()
{
    StartWindow start;
    Startfrm &window = start.show();
    QSignalSpy help(&start.test.changes, &ProgramSignals::helpRequested);
    QSignalSpy exited(&window, &Startfrm::exited);
    start.trigger("Toolbar1_40");
    start.trigger("mHI");
    start.trigger("mHBR");
    QTest::keyClick(&window, Qt::Key_F1);
    const QList<int> contexts{HelpContext::ProgramOverview, HelpContext::ProgramOverview,
                              HelpContext::BackupAndRestore, HelpContext::ProgramOverview};
    QList<int> asked;
    for (const QList<QVariant> &request : help)
        asked << request.first().toInt();
    QCOMPARE(asked, contexts);

    start.test.dialogs.willAnswer(Answer::Yes);
    start.trigger("Toolbar1_41");
    QCOMPARE(exited.size(), 1);
    QVERIFY(!window.isVisible());
}

void TestStartDispatch::showsTheDesignedBar()
{
    StartWindow start;
    start.addFunction(Function::AddressBook);
    Startfrm &window = start.show();
    const auto *bar = control<FlowToolBar>(window, "Toolbar1");
    QStringList words;
    for (const QAction *action : bar->actions())
        words << (action->isSeparator() ? u"|"_s : action->iconText());
    QCOMPARE(words.join(u' '),
             u"Address Viewer Calendar Weight Journal Planner To Do Budget Car Log Protect Keeper Photos | "
             "Help Exit"_s);
    // What is not built in says so.
    auto *viewer = control<QAction>(window, "Toolbar1_1");
    QVERIFY(!viewer->isEnabled());
    QCOMPARE(viewer->toolTip(), u"Address Viewer is not part of this program yet."_s);
    QTest::mouseClick(bar->button(viewer), Qt::LeftButton);
    QCOMPARE(start.opened, QList<int>());
    QTest::mouseClick(bar->button(control<QAction>(window, "Toolbar1_0")), Qt::LeftButton);
    QCOMPARE(start.opened, QList<int>{opens(Function::AddressBook)});
}

QTEST_MAIN(TestStartDispatch)
#include "tst_topbuttons.moc"
