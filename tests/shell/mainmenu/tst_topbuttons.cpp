// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmainmenu.h"

#include "shell/controls/flowtoolbar.h"
#include "shell/core/helpcontexts.h"
#include "shell/mainmenu/mainmenumessages.h"

#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Nothing opens, nobody is asked.
constexpr int none = -1;

constexpr int opens(Function function)
{
    return int(function);
}

QList<int> listOf(int number)
{
    return number == none ? QList<int>{} : QList<int>{number};
}

} // namespace

class TestStartDispatch : public OpenMainMenu
{
    Q_OBJECT
private slots:
    void init() { make(); }
    void cleanup() { close(); }

    /// What opens, and the area that the password is asked for while every area is protected.
    void opensBehindItsGuard_data()
    {
        rows<QByteArray, int, int>({
            {"car", "mIMain", opens(Function::CarLog), 13},
            {"calendar", "mFCal", opens(Function::CalendarMaker), none},
            {"address book", "mFB", opens(Function::AddressBook), 0},
            {"viewer", "MfViewer", opens(Function::AddressViewer), 1},
            {"budget", "mMB", opens(Function::Budget), 9},
            {"journal", "mFJour", opens(Function::Journal), 14},
            {"planner", "mFP", opens(Function::Planner), 2},
            {"to do", "mFToDo", opens(Function::ToDoList), none},
            {"photos", "mUPhoto", opens(Function::PhotoAlbum), none},
            {"keeper", "mPWKpr", opens(Function::PasswordKeeper), 11},
            {"control, which asks only while a password is set", "mUP", opens(Function::PasswordControl),
             none},
            {"weight", "mFWeight", opens(Function::WeightTracker), none},
            {"address book button", "Toolbar1_0", opens(Function::AddressBook), 15},
            {"viewer button", "Toolbar1_1", opens(Function::AddressViewer), 16},
            {"family button", "Toolbar1_2", opens(Function::AddressBook), 0},
            {"calendar button", "Toolbar1_3", opens(Function::CalendarMaker), none},
            {"weight button", "Toolbar1_7", opens(Function::WeightTracker), none},
            {"journal button", "Toolbar1_8", opens(Function::Journal), 14},
            {"planner button", "Toolbar1_9", opens(Function::Planner), 2},
            {"to do button", "Toolbar1_10", opens(Function::ToDoList), none},
            {"budget button", "Toolbar1_17", opens(Function::Budget), 9},
            {"car button", "Toolbar1_18", opens(Function::CarLog), 13},
            {"control button", "Toolbar1_37", opens(Function::PasswordControl), none},
            {"keeper button", "Toolbar1_38", opens(Function::PasswordKeeper), 11},
            {"photo button", "Toolbar1_39", opens(Function::PhotoAlbum), none},
        });
        // Buttons of another edition: some ask for their area, nothing opens.
        const QMap<int, int> areas{{4, 0},  {12, 3}, {13, 12}, {19, 4}, {20, 5}, {21, 7}, {22, 12},
                                   {23, 6}, {24, 6}, {25, 6},  {26, 8}, {27, 8}, {28, 8}, {29, 10}};
        for (const int button : {4,  5,  6,  11, 12, 13, 14, 15, 16, 19, 20, 21, 22, 23,
                                 24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 40})
            QTest::addRow("button %d", button) << std::tuple<QByteArray, int, int>(
                "Toolbar1_" + QByteArray::number(button), none, areas.value(button, none));
    }

    void opensBehindItsGuard()
    {
        const auto [action, function, area] = row<QByteArray, int, int>();
        addAllFunctions();
        protectAll();
        m_test->setBytes(u"HINV2.Fil"_s, "Kitchen\r\n");
        m_test->setBytes(u"VIDEO2.FIL"_s, "Films\r\n");
        show();
        trigger(action);
        QCOMPARE(m_done.opened, listOf(function));
        QCOMPARE(m_done.guards, listOf(area));
        QCOMPARE(activity(), u"Main Menu"_s);
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(asked().isEmpty());
    }

    void opensNothingWhenThePromptRefuses()
    {
        addAllFunctions();
        protectAll();
        m_given.verdict = PasswordGateResult::Refused;
        show();
        trigger("mFB");
        trigger("Toolbar1_0");
        QCOMPARE(m_done.opened, QList<int>());
        QCOMPARE(m_test->state.passwordGateResult, PasswordGateResult::Open);

        m_given.verdict = PasswordGateResult::Open;
        trigger("mFB");
        QCOMPARE(m_done.opened, QList<int>{opens(Function::AddressBook)});
        // The open window is raised; there is never a second one.
        trigger("mFB");
        QCOMPARE(m_done.opened.size(), 1);
    }

    void tellsAnEmptyList_data()
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

    void tellsAnEmptyList()
    {
        const auto [position, content, title, text] = row<int, QByteArray, QString, QString>();
        protectAll();
        if (!content.isEmpty())
            m_test->setBytes(position < 26 ? u"HINV2.Fil"_s : u"Video2.Fil"_s, content);
        show();
        trigger(qPrintable(u"Toolbar1_%1"_s.arg(position)));
        const QList<Message> shown = asked();
        QCOMPARE(shown.size(), 1);
        QCOMPARE(shown.first().title, title);
        QCOMPARE(shown.first().text, text);
        QVERIFY(m_done.guards.isEmpty());
    }

    void helpsAndLeaves()
    {
        show();
        QSignalSpy help(&m_test->changes, &ProgramSignals::helpRequested);
        QSignalSpy exited(m_window, &Startfrm::exited);
        trigger("Toolbar1_40");
        trigger("mHI");
        trigger("mHBR");
        QTest::keyClick(m_window, Qt::Key_F1);
        const QList<int> contexts{HelpContext::ProgramOverview, HelpContext::ProgramOverview,
                                  HelpContext::BackupAndRestore, HelpContext::ProgramOverview};
        QList<int> asked;
        for (const QList<QVariant> &request : help)
            asked << request.first().toInt();
        QCOMPARE(asked, contexts);

        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("Toolbar1_41");
        QCOMPARE(exited.size(), 1);
        QVERIFY(!m_window->isVisible());
    }

    void showsTheDesignedBar()
    {
        addFunction(Function::AddressBook);
        show();
        const auto *bar = find<FlowToolBar>("Toolbar1");
        QStringList words;
        for (const QAction *action : bar->actions())
            words << (action->isSeparator() ? u"|"_s : action->iconText());
        QCOMPARE(
            words.join(u' '),
            u"Address Viewer Calendar Weight Journal Planner To Do Budget Car Log Protect Keeper Photos | "
            "Help Exit"_s);
        QTest::mouseClick(bar->button(find<QAction>("Toolbar1_1")),
                          Qt::LeftButton); // not built in
        QCOMPARE(m_done.opened, QList<int>());
        QTest::mouseClick(bar->button(find<QAction>("Toolbar1_0")), Qt::LeftButton);
        QCOMPARE(m_done.opened, QList<int>{opens(Function::AddressBook)});
    }
};

QTEST_MAIN(TestStartDispatch)
#include "tst_topbuttons.moc"
