// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmainmenu.h"

#include "shell/controls/flowtoolbar.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/mainmenu/mainmenumessages.h"
#include "shell/program/sharedprocedures.h"

#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The menu as text: "name caption", a dash for a separator, submenus indented.
void listMenu(const QMenu &menu, const QString &indent, QStringList &lines)
{
    for (const QAction *action : menu.actions()) {
        lines << indent + action->objectName() + (action->isSeparator() ? u" -"_s : u' ' + action->text());
        if (action->menu())
            listMenu(*action->menu(), indent + u"  "_s, lines);
    }
}

} // namespace

class TestStartfrm : public OpenMainMenu
{
    Q_OBJECT
private slots:
    void init() { make(); }
    void cleanup() { close(); }

    void startsWithoutAnyFile()
    {
        show();
        QCOMPARE(m_window->windowTitle(), u"Quillery"_s);
        QCOMPARE(activity(), u"Main Menu"_s);
        QVERIFY(m_window->isMaximized());
        QCOMPARE(m_test->state.screenMode, ScreenMode::FullScreen);
        QCOMPARE(m_test->state.startup, StartupDone);
        QVERIFY(find<QAction>("mOPF")->isChecked());
        for (const char *shown : {"Toolbar1", "StatusBar1_RestoreSide"})
            QVERIFY2(find<QWidget>(shown)->isVisible(), shown);
        for (const char *hidden : {"Toolbar2", "Toolbar3", "StatusBar1_RestoreTop"})
            QVERIFY2(!find<QWidget>(hidden)->isVisible(), hidden);
        QCOMPARE(labelText("Label4"), u"10:24 AM"_s);
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(asked().isEmpty());
    }

    void startsWithTheHousehold()
    {
        make(TestProgram::Household);
        show();
        QCOMPARE(m_window->windowTitle(), u"Holm and Castle Quillery"_s);
        QCOMPARE(m_test->state.screenMode, ScreenMode::Smaller);
        QVERIFY(!m_window->isMaximized());
        QCOMPARE(m_window->size(), QSize(1192, 736));
        QVERIFY(find<QAction>("mOPS")->isChecked());
        // Looking changes nothing.
        QCOMPARE(m_test->bytes(u"GHINV1.Fil"_s).size(), 92);
    }

    void decidesTheDateStyle_data()
    {
        rows<QLocale, DateStyle, QString>({
            {"month first", QLocale(u"en_US"_s), DateStyle::Usa, u"Saturday, November 21, 2026"_s},
            {"day first", QLocale(u"de_DE"_s), DateStyle::Other, u"Saturday, 21 November 2026"_s},
            {"year first", QLocale(u"sv_SE"_s), DateStyle::Other, u"Saturday, 21 November 2026"_s},
        });
    }

    void decidesTheDateStyle()
    {
        const auto [locale, style, date] = row<QLocale, DateStyle, QString>();
        m_given.locale = locale;
        show();
        QCOMPARE(m_test->state.dateStyle, style);
        QCOMPARE(labelText("dateLabel"), date);
    }

    void hasItsMenus()
    {
        show();
        QStringList lines;
        for (const QAction *action : m_window->menuBar()->actions()) {
            lines << action->objectName() + u' ' + action->text();
            listMenu(*action->menu(), u"  "_s, lines);
        }
        const QString expected = uR"(mO &Options
  searchEverything Search E&verything
  mO0 -
  mOBC &Background Selector
  mOP &Program Display
    mOPF &Full Screen Display
    mOPS &Smaller Screen Display
    mO67 -
    mOPDefault &Default Screen Size
  mO2 -
  mOPCDefault Default Panel Color
  mO12 -
  mOOpening Show &Opening Picture
  mO1 -
  mOE E&xit
Mf &Program Functions
  mIMain &Automobile Tracker
  mO22 -
  mFCal &Calendar Maker
  mO25 -
  mFB &Family/Friends Data
  MfViewer &Family/Friends Viewer
  mO7 -
  mMB &Personal Budget
  mO40 -
  mFJour &Personal Journal
  mFP &Personal Planner
  mFToDo &Personal To Do List
  mO8 -
  mUPhoto &Photo Album
  mO9 -
  mPWKpr &Passowrd Keerper
  mO23 -
  mUP &Password Control
  mO24 -
  mFWeight &Weight Tracker
mH &Help
  mHI &Program Overview
  mH1 -
  mHBR &Backup and Restore Option
  mH4 -
  mHA &About Quillery
  mO21 -
  mHWeb &Quillery on the Web)"_s;
        QCOMPARE(lines, expected.split(u'\n'));
        QCOMPARE(find<QAction>("mFP")->toolTip(), u"Daily Planner is not part of this program yet."_s);
    }

    void aSharedAccessKeyPassesOverWhatCannotBeUsed()
    {
        for (const Function there : {Function::Budget, Function::Planner, Function::PasswordControl})
            addFunction(there);
        show();
        auto *menu = qobject_cast<QMenu *>(find<QAction>("mFJour")->associatedObjects().value(0));
        QVERIFY(menu);
        menu->popup({});
        for (const QString &name : {u"mMB"_s, u"mFP"_s, u"mUP"_s, u"mMB"_s}) {
            QTest::keyClick(menu, Qt::Key_P);
            QVERIFY(menu->activeAction());
            QCOMPARE(menu->activeAction()->objectName(), name);
        }
        menu->close();
    }

    void asksForTheFamilyName()
    {
        show();
        m_test->dialogs.willInput(u"Featherstone-Brookfield"_s);
        trigger("Toolbar2_2");
        QCOMPARE(m_window->windowTitle(), u"Featherstone-Br Quillery"_s);
        m_test->dialogs.willInput(std::nullopt);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("Toolbar2_2");
        QCOMPARE(m_window->windowTitle(), u"Quillery"_s);
        QCOMPARE(activity(), u"Main Menu"_s);
    }

    void removesAndRestoresTheToolbars()
    {
        show();
        auto *bar = find<FlowToolBar>("Toolbar1");
        auto *side = find<FlowToolBar>("Toolbar2");
        auto *link = find<QToolButton>("StatusBar1_RestoreTop");
        auto *right = find<FlowToolBar>("Toolbar3");
        auto *sideLink = find<QToolButton>("StatusBar1_RestoreSide");
        QTest::mouseClick(sideLink, Qt::LeftButton);
        QVERIFY(side->isVisible() && right->isVisible() && !sideLink->isVisible());
        QVERIFY(record(u"GHINV1.Fil"_s, 10, 10).isEmpty());

        QTest::mouseClick(side->button(find<QAction>("Toolbar2_4")), Qt::LeftButton);
        QVERIFY(!bar->isVisible() && link->isVisible() && side->isVisible());
        for (const int number : {55, 81})
            QCOMPARE(record(u"GColor1.Fil"_s, 20, number).left(5), "\x03\0OFF"_ba);
        trigger("Toolbar2_3"); // to customize it
        QCOMPARE(asked(), {ShellMessages::topToolbarIsRemoved()});

        QTest::mouseClick(link, Qt::LeftButton);
        QVERIFY(bar->isVisible() && !link->isVisible());
        for (const int number : {55, 81})
            QCOMPARE(record(u"GColor1.Fil"_s, 20, number).left(4), "\x02\0ON"_ba);
        QVERIFY(bar->button(find<QAction>("Toolbar1_40")));

        QTest::mouseClick(side->button(find<QAction>("Toolbar2_5")), Qt::LeftButton);
        QVERIFY(!side->isVisible() && !right->isVisible() && sideLink->isVisible());
        QCOMPARE(record(u"GHINV1.Fil"_s, 10, 10), "\x58\0"_ba);
    }

    void keepsACustomizedToolbar()
    {
        m_test->store.setValue(u"User1/Toolbar1"_s,
                               QStringList{u"Toolbar1_41"_s, u"Toolbar1_24"_s, u"gone"_s});
        show();
        QStringList names;
        for (const QAction *action : find<FlowToolBar>("Toolbar1")->actions())
            names << action->objectName();
        QCOMPARE(names, (QStringList{u"Toolbar1_41"_s, u"Toolbar1_24"_s}));
        // The position decides, not the place on the bar.
        trigger("Toolbar1_24");
        QCOMPARE(asked().value(0).title, u"Home Inventory View"_s);
    }

    void writesTheDefaultPanelColorEverywhere()
    {
        make(TestProgram::Household);
        show();
        trigger("mOPCDefault");
        for (const int number : SettingsKeys::programColors1)
            QCOMPARE(record(u"GColor1.Fil"_s, 20, number).left(10), "\x08\0"_ba + "16383487");
        QVERIFY(asked().isEmpty());
    }

    void checksTheScreenOnce()
    {
        m_given.screen = QSize(799, 599);
        show();
        QList<Message> shown;
        QTRY_VERIFY(!(shown += asked()).isEmpty());
        QCoreApplication::processEvents();
        QCOMPARE(shown + asked(), QList<Message>{StartMessages::screenTooSmall()});
    }

    void opensTheWebSite()
    {
        show();
        trigger("mHWeb");
        trigger("Toolbar2_7");
        QCOMPARE(m_done.addresses, QStringList(2, u"https://quillery.example/"_s));
        QCOMPARE(activity(), u"Main Menu"_s);
    }

    void showsTheAboutBox()
    {
        show();
        m_test->dialogs.willRun([&](QDialog &box) {
            [&] {
                QCOMPARE(activity(), u"About Quillery"_s);
                QCOMPARE(box.windowTitle(), u"About Quillery"_s);
                QTest::mouseClick(control<QPushButton>(box, "Command1"), Qt::LeftButton);
                QVERIFY(!box.isVisible());
                box.show();
                control<QAction>(box, "mOOK")->trigger();
                QVERIFY(!box.isVisible());
            }();
            return int(QDialog::Accepted);
        });
        trigger("mHA");
        QCOMPARE(activity(), u"Main Menu"_s);
    }

    void survivesDamagedSettings()
    {
        const QByteArray noise(1000, char(0xff));
        for (const QString &file : {u"GHINV1.Fil"_s, u"GColor1.Fil"_s, u"HINVNAME.FIL"_s})
            m_test->setBytes(file, noise);
        QDir().mkpath(m_test->path(u"GColor3.Fil"_s)); // a folder in its place
        show();
        QCOMPARE(m_window->windowTitle(), u"Quillery"_s);
        QVERIFY(m_window->isMaximized());
        trigger("mOPS");
        QCOMPARE(m_window->size(), QSize(800, 600));
    }
};

QTEST_MAIN(TestStartfrm)
#include "tst_mainmenuwindow.moc"
