// SPDX-License-Identifier: GPL-3.0-or-later
#include "startwindow.h"

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

class TestStartfrm : public QObject
{
    Q_OBJECT

private slots:
    void startsWithoutAnyFile();
    void startsWithTheHousehold();
    void decidesTheDateStyle_data();
    void decidesTheDateStyle();
    void hasItsMenus();
    void asksForTheFamilyName();
    void removesAndRestoresTheTopToolbar();
    void keepsACustomizedToolbar();
    void removesAndRestoresTheSideToolbars();
    void writesTheDefaultPanelColorEverywhere();
    void checksTheScreenOnce();
    void opensTheWebSite();
    void showsTheAboutBox();
    void survivesDamagedSettings();
};

void TestStartfrm::startsWithoutAnyFile()
{
    StartWindow start;
    Startfrm &window = start.show();
    QCOMPARE(window.windowTitle(), u"Quillery"_s);
    QCOMPARE(start.activity(), u"Main Menu"_s);
    QVERIFY(window.isMaximized());
    QCOMPARE(start.test.state.screenMode, ScreenMode::FullScreen);
    QCOMPARE(start.test.state.startup, StartupDone);
    QVERIFY(control<QAction>(window, "mOPF")->isChecked());
    for (const char *shown : {"Toolbar1", "StatusBar1_RestoreSide"})
        QVERIFY2(control<QWidget>(window, shown)->isVisible(), shown);
    for (const char *hidden : {"Toolbar2", "Toolbar3", "StatusBar1_RestoreTop"})
        QVERIFY2(!control<QWidget>(window, hidden)->isVisible(), hidden);
    QCOMPARE(control<QLabel>(window, "Label4")->text(), u"10:24 AM"_s);
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(start.test.dialogs.takeShown().isEmpty());
}

void TestStartfrm::startsWithTheHousehold()
{
    StartWindow start(TestProgram::Household);
    Startfrm &window = start.show();
    QCOMPARE(window.windowTitle(), u"Holm and Castle Quillery"_s);
    QCOMPARE(start.test.state.screenMode, ScreenMode::Smaller);
    QVERIFY(!window.isMaximized());
    QCOMPARE(window.size(), QSize(1192, 736));
    QVERIFY(control<QAction>(window, "mOPS")->isChecked());
    // Looking changes nothing.
    QCOMPARE(start.test.bytes(u"GHINV1.Fil"_s).size(), 92);
}

void TestStartfrm::decidesTheDateStyle_data()
{
    rows<QLocale, DateStyle, QString>({
        {"month first", QLocale(u"en_US"_s), DateStyle::Usa, u"Saturday, November 21, 2026"_s},
        {"day first", QLocale(u"de_DE"_s), DateStyle::Other, u"Saturday, 21 November 2026"_s},
        {"year first", QLocale(u"sv_SE"_s), DateStyle::Other, u"Saturday, 21 November 2026"_s},
    });
}

void TestStartfrm::decidesTheDateStyle()
{
    const auto [locale, style, date] = row<QLocale, DateStyle, QString>();
    StartWindow start;
    start.systemLocale = locale;
    Startfrm &window = start.show();
    QCOMPARE(start.test.state.dateStyle, style);
    QCOMPARE(control<QLabel>(window, "dateLabel")->text(), date);
}

void TestStartfrm::hasItsMenus()
{
    StartWindow start;
    Startfrm &window = start.show();
    QStringList lines;
    for (const QAction *action : window.menuBar()->actions()) {
        lines << action->objectName() + u' ' + action->text();
        listMenu(*action->menu(), u"  "_s, lines);
    }
    const QString expected = uR"(mO &Options
  mOBC &Background Selector
  mOP &Program Display
    mOPF &Full Screen Display
    mOPS &Smaller Screen Display
    mO67 -
    mOPDefault &Default Screen Size
  mO2 -
  mOPCDefault Default Panel Color
  mO12 -
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
    QCOMPARE(control<QAction>(window, "mFP")->toolTip(), u"Daily Planner is not part of this program yet."_s);
}

void TestStartfrm::asksForTheFamilyName()
{
    StartWindow start;
    Startfrm &window = start.show();
    start.test.dialogs.willInput(u"Featherstone-Brookfield"_s);
    start.trigger("Toolbar2_2");
    QCOMPARE(window.windowTitle(), u"Featherstone-Br Quillery"_s);
    QCOMPARE(start.test.bytes(u"HINVNAME.FIL"_s), "\x0f\0"_ba + "Featherstone-Br");
    start.test.dialogs.willInput(std::nullopt);
    start.test.dialogs.willAnswer(Answer::Yes);
    start.trigger("Toolbar2_2");
    QCOMPARE(window.windowTitle(), u"Quillery"_s);
    QCOMPARE(start.activity(), u"Main Menu"_s);
}

void TestStartfrm::removesAndRestoresTheTopToolbar()
{
    StartWindow start;
    Startfrm &window = start.show();
    auto *bar = control<FlowToolBar>(window, "Toolbar1");
    auto *side = control<FlowToolBar>(window, "Toolbar2");
    auto *link = control<QToolButton>(window, "StatusBar1_RestoreTop");
    QTest::mouseClick(control<QToolButton>(window, "StatusBar1_RestoreSide"), Qt::LeftButton);
    QVERIFY(side->isVisible());

    QTest::mouseClick(side->button(control<QAction>(window, "Toolbar2_4")), Qt::LeftButton);
    QVERIFY(!bar->isVisible() && link->isVisible() && side->isVisible());
    for (const int number : {55, 81})
        QCOMPARE(start.record(u"GColor1.Fil"_s, 20, number).left(5), "\x03\0OFF"_ba);
    start.trigger("Toolbar2_3"); // to customize it
    QCOMPARE(start.test.dialogs.takeShown(), QList<Message>{ShellMessages::topToolbarIsRemoved()});

    QTest::mouseClick(link, Qt::LeftButton);
    QVERIFY(bar->isVisible() && !link->isVisible());
    for (const int number : {55, 81})
        QCOMPARE(start.record(u"GColor1.Fil"_s, 20, number).left(4), "\x02\0ON"_ba);
    QVERIFY(bar->button(control<QAction>(window, "Toolbar1_40")));
}

void TestStartfrm::keepsACustomizedToolbar()
{
    StartWindow start;
    start.test.store.setValue(u"User1/Toolbar1"_s,
                              QStringList{u"Toolbar1_41"_s, u"Toolbar1_24"_s, u"gone"_s});
    Startfrm &window = start.show();
    QStringList names;
    for (const QAction *action : control<FlowToolBar>(window, "Toolbar1")->actions())
        names << action->objectName();
    QCOMPARE(names, (QStringList{u"Toolbar1_41"_s, u"Toolbar1_24"_s}));
    // The position decides, not the place on the bar.
    start.trigger("Toolbar1_24");
    QCOMPARE(start.test.dialogs.takeShown().value(0).title, u"Home Inventory View"_s);
}

void TestStartfrm::removesAndRestoresTheSideToolbars()
{
    StartWindow start;
    Startfrm &window = start.show();
    auto *link = control<QToolButton>(window, "StatusBar1_RestoreSide");
    auto *left = control<FlowToolBar>(window, "Toolbar2");
    auto *right = control<FlowToolBar>(window, "Toolbar3");
    QTest::mouseClick(link, Qt::LeftButton);
    QVERIFY(left->isVisible() && right->isVisible() && !link->isVisible());
    QVERIFY(start.record(u"GHINV1.Fil"_s, 10, 10).isEmpty());

    QTest::mouseClick(left->button(control<QAction>(window, "Toolbar2_5")), Qt::LeftButton);
    QVERIFY(!left->isVisible() && !right->isVisible() && link->isVisible());
    QCOMPARE(start.record(u"GHINV1.Fil"_s, 10, 10), "\x58\0"_ba);
}

void TestStartfrm::writesTheDefaultPanelColorEverywhere()
{
    StartWindow start(TestProgram::Household);
    start.show();
    start.trigger("mOPCDefault");
    const auto isWritten = [&](const QString &file, int number) {
        return start.record(file, 20, number).left(10) == "\x08\0"_ba + "16383487";
    };
    int written = 0;
    for (const int number : SettingsKeys::programColors1)
        written += isWritten(u"GColor1.Fil"_s, number);
    for (const int number : SettingsKeys::programColors2)
        written += isWritten(u"GColor2.Fil"_s, number);
    for (const int number : SettingsKeys::programColors3)
        written += isWritten(u"GColor3.Fil"_s, number);
    QCOMPARE(written, 37);
    QVERIFY(start.test.dialogs.takeShown().isEmpty());
}

void TestStartfrm::checksTheScreenOnce()
{
    StartWindow start;
    start.screen = QSize(799, 599);
    start.show();
    QList<Message> shown;
    QTRY_VERIFY(!(shown += start.test.dialogs.takeShown()).isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(shown + start.test.dialogs.takeShown(), QList<Message>{StartMessages::screenTooSmall()});
}

void TestStartfrm::opensTheWebSite()
{
    StartWindow start;
    start.show();
    start.trigger("mHWeb");
    start.trigger("Toolbar2_7");
    QCOMPARE(start.addresses, QStringList(2, u"https://quillery.example/"_s));
    QCOMPARE(start.activity(), u"Main Menu"_s);
}

void TestStartfrm::showsTheAboutBox()
{
    StartWindow start;
    start.show();
    start.test.dialogs.willRun([&](QDialog &box) {
        [&] {
            QCOMPARE(start.activity(), u"About Quillery"_s);
            QCOMPARE(box.windowTitle(), u"About Quillery"_s);
            QTest::mouseClick(control<QPushButton>(box, "Command1"), Qt::LeftButton);
            QVERIFY(!box.isVisible());
            box.show();
            control<QAction>(box, "mOOK")->trigger();
            QVERIFY(!box.isVisible());
        }();
        return int(QDialog::Accepted);
    });
    start.trigger("mHA");
    QCOMPARE(start.activity(), u"Main Menu"_s);
}

void TestStartfrm::survivesDamagedSettings()
{
    StartWindow start;
    const QByteArray noise(1000, char(0xff));
    for (const QString &file : {u"GHINV1.Fil"_s, u"GColor1.Fil"_s, u"HINVNAME.FIL"_s})
        start.test.setBytes(file, noise);
    QDir().mkpath(start.test.path(u"GColor3.Fil"_s)); // a folder in its place
    Startfrm &window = start.show();
    QCOMPARE(window.windowTitle(), u"Quillery"_s);
    QVERIFY(window.isMaximized());
    start.trigger("mOPS");
    QCOMPARE(window.size(), QSize(800, 600));
}

QTEST_MAIN(TestStartfrm)
#include "tst_mainmenuwindow.moc"
