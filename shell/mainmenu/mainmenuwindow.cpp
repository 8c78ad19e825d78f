// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/mainmenuwindow.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/everythingbox.h"
#include "shell/frame/leaving.h"
#include "shell/frame/menufocus.h"
#include "shell/frame/panelcolors.h"
#include "shell/look/colortext.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/about.h"
#include "shell/mainmenu/backgroundflow.h"
#include "shell/mainmenu/carddesk.h"
#include "shell/mainmenu/dayboard.h"
#include "shell/mainmenu/displaymode.h"
#include "shell/mainmenu/firstlook.h"
#include "shell/mainmenu/functionsmenu.h"
#include "shell/mainmenu/mainmenumessages.h"
#include "shell/mainmenu/menupicture.h"
#include "shell/mainmenu/menutoolbars.h"
#include "shell/mainmenu/sidetoolbar.h"
#include "shell/mainmenu/splash.h"
#include "shell/program/functionfaces.h"
#include "shell/program/locking.h"
#include "shell/program/sharedprocedures.h"

#include <QCloseEvent>
#include <QDir>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PanelColorSettings menuColors{SettingsKeys::mainMenuColor, SettingsKeys::mainMenuColor,
                                        std::nullopt};
/// The maker's home page.
constexpr auto webAddress = "https://quillery.example/";

/// A menu whose own entry has the same object name.
QMenu *makeMenu(const QString &name, const QString &caption, QWidget *parent)
{
    auto *menu = named(new QMenu(caption, parent), name);
    menu->menuAction()->setObjectName(name);
    menu->setToolTipsVisible(true);
    return menu;
}

void addSeparator(QMenu &menu, const QString &name)
{
    menu.addSeparator()->setObjectName(name);
}

} // namespace

Startfrm::Startfrm(Program &program, Surroundings surroundings, QWidget *parent)
    : QMainWindow(parent)
    , m_program(program)
    , m_surroundings(std::move(surroundings))
    , m_activity(new ActivityBar(program.clock, program.state.dateStyle, this))
    , m_picture(new MenuPicture(this))
    , m_search(new EverythingBox(program, m_picture))
    , m_commands(new Commands(this, program.folder.whyReadOnly()))
    , m_colors(new PanelColors(program, menuColors, this, *m_activity))
    , m_background(new BackgroundFlow(program, *m_picture, *m_colors, *m_activity, this))
    , m_opener(program, *m_activity, this)
    , m_toolBars(new MenuToolBars(program, *m_activity, m_opener, this))
    , m_day(new DayBoard(program, *m_picture, m_opener, this))
{
    named(this, u"Startfrm"_s);
    setStatusBar(m_activity);
    m_activity->showReadOnly(program.folder.whyReadOnly());
    Locking::offer(program, *m_activity);
    makeMenus();
    makeSideTools();
    layOut();
    orderTabs();
    for (QWidget *card : m_picture->desk().panels())
        m_colors->addPanel(card);
    listen();
    load();
}

Startfrm::~Startfrm()
{
    Hourglass::off();
}

void Startfrm::makeMenus()
{
    QMenu *options = makeMenu(u"mO"_s, u"&Options"_s, this);
    QMenu *functions = makeMenu(u"Mf"_s, u"&Program Functions"_s, this);
    QMenu *help = makeMenu(u"mH"_s, u"&Help"_s, this);
    for (QMenu *menu : {options, functions, help})
        menuBar()->addMenu(menu);
    new MenuFocus(menuBar());
    m_commands->add(
        options, u"searchEverything"_s, u"Search E&verything"_s, [this] { m_search->start(); }, {},
        CommonKeys::everything);
    addSeparator(*options, u"mO0"_s);
    makeOptionsMenu(*options);
    fillFunctionsMenu(*functions, *m_commands, m_program, m_opener);
    makeHelpMenu(*help);
    m_commands->refresh();
}

void Startfrm::makeOptionsMenu(QMenu &menu)
{
    m_commands->writing(m_commands->add(&menu, u"mOBC"_s, u"&Background Selector"_s,
                                        [this] { m_background->openSelector(); }));
    QMenu *display = makeMenu(u"mOP"_s, u"&Program Display"_s, &menu);
    menu.addMenu(display);
    QAction *fullScreen = m_commands->add(display, u"mOPF"_s, u"&Full Screen Display"_s,
                                          [this] { m_displayMode->useFullScreen(); });
    QAction *smaller = m_commands->add(display, u"mOPS"_s, u"&Smaller Screen Display"_s,
                                       [this] { m_displayMode->useSmallerScreen(); });
    m_displayMode = new DisplayMode(m_program, this, fullScreen, smaller);
    connect(m_displayMode, &DisplayMode::notSaved, this, [this] { tellUnless(false); });
    addSeparator(*display, u"mO67"_s);
    m_commands->add(display, u"mOPDefault"_s, u"&Default Screen Size"_s,
                    [this] { m_displayMode->useDefaultSize(); });
    addSeparator(menu, u"mO2"_s);
    m_commands->writing(m_commands->add(&menu, u"mOPCDefault"_s, u"Default Panel Color"_s,
                                        [this] { useDefaultPanelColor(); }));
    addSeparator(menu, u"mO12"_s);
    QSettings &store = m_program.store;
    QAction *opening = m_commands->add(&menu, u"mOOpening"_s, u"Show &Opening Picture"_s,
                                       [&store] { Splash1::setWanted(store, !Splash1::isWanted(store)); });
    opening->setCheckable(true);
    opening->setChecked(Splash1::isWanted(store));
    addSeparator(menu, u"mO1"_s);
    m_commands->add(&menu, u"mOE"_s, u"E&xit"_s, [this] { close(); });
}

void Startfrm::makeHelpMenu(QMenu &menu)
{
    m_commands->add(
        &menu, u"mHI"_s, u"&Program Overview"_s, [this] { openManual(HelpContext::ProgramOverview); }, {},
        CommonKeys::help);
    addSeparator(menu, u"mH1"_s);
    m_commands->add(&menu, u"mHBR"_s, u"&Backup and Restore Option"_s,
                    [this] { openManual(HelpContext::BackupAndRestore); });
    addSeparator(menu, u"mH4"_s);
    m_commands->add(&menu, u"mHA"_s, u"&About Quillery"_s, [this] { showAbout(); });
    addSeparator(menu, u"mO21"_s);
    m_commands->add(&menu, u"mHWeb"_s, u"&Quillery on the Web"_s, [this] { openWebSite(); });
}

/// Position 6 of the left bar is the line between what changes the window and what leads out of it.
void Startfrm::makeSideTools()
{
    const auto left = [this](int position, QLatin1StringView icon, const QString &word, const QString &tip,
                             std::function<void()> run) {
        return m_toolBars->addTool(m_toolBars->left(), position, icon, word, tip, std::move(run));
    };
    QAction *background = left(0, "palette"_L1, u"Background"_s, u"Chooses the picture of the main menu"_s,
                               [this] { m_background->openSelector(); });
    left(1, "screen-size"_L1, u"Screen Size"_s, u"Switches between full screen and a smaller window"_s,
         [this] { m_displayMode->toggle(); });
    QAction *familyName =
        left(2, "family-name"_L1, u"Family Name"_s, u"Asks for the name in the title of the program"_s,
             [this] { askFamilyName(); });
    left(3, "edit"_L1, u"Customize"_s, u"Customize Toolbar"_s, [this] { m_toolBars->customizeTop(); });
    left(4, "top-toolbar"_L1, u"Top Toolbar"_s, u"Removes or restores the top toolbar"_s,
         [this] { m_toolBars->toggleTop(); });
    left(5, "side-toolbars"_L1, u"Side Toolbars"_s, u"Removes both side toolbars"_s, [this] {
        m_toolBars->removeSides();
        m_picture->desk().focusFirstCard();
    });
    m_toolBars->left().bar().addSeparator();
    left(7, "web"_L1, u"Web Site"_s, u"Opens Quillery's web site"_s, [this] { openWebSite(); });
    left(8, "help"_L1, u"Overview"_s, u"Opens the manual at its first page"_s,
         [this] { openManual(HelpContext::ProgramOverview); });
    left(9, "exit"_L1, u"Exit"_s, u"Exit Quillery"_s, [this] { close(); });

    const SideToolbar &right = m_toolBars->right();
    QAction *color =
        m_toolBars->addTool(right, 0, "palette"_L1, u"Panel Color"_s, u"Chooses the color of the cards"_s,
                            [this] { m_colors->choosePanelColor(); });
    m_toolBars->addTool(right, 1, "backup-command"_L1, u"Backup Help"_s,
                        u"Opens the manual at backup and restore"_s,
                        [this] { openManual(HelpContext::BackupAndRestore); });
    m_toolBars->addTool(right, 2, "about"_L1, u"About"_s, u"About Quillery"_s, [this] { showAbout(); });
    for (QAction *writing : {background, familyName, color})
        setUnavailable(writing, m_program.folder.whyReadOnly());
}

void Startfrm::layOut()
{
    auto *work = new QWidget(this);
    auto *column = new QVBoxLayout(work);
    auto *row = new QHBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    row->setSpacing(0);
    m_picture->setTopWidget(m_search);
    column->addWidget(&m_toolBars->top());
    column->addLayout(row, 1);
    row->addWidget(&m_toolBars->left());
    row->addWidget(m_picture, 1);
    row->addWidget(&m_toolBars->right());
    setCentralWidget(work);
    setMinimumSize(640, 400);
}

void Startfrm::listen()
{
    connect(m_picture, &MenuPicture::firstPainted, this, &Startfrm::checkScreen);
    connect(m_background, &BackgroundFlow::selectorOpened, this, [this] {
        m_toolBars->setCovered(true);
        showMainMenu();
    });
    connect(m_background, &BackgroundFlow::selectorClosed, this, [this] {
        m_toolBars->setCovered(false);
        m_picture->desk().focusFirstCard();
        showMainMenu();
    });
    connect(&m_day->firstLook(), &FirstLook::nameWanted, this, &Startfrm::askFamilyName);
    connect(&m_day->firstLook(), &FirstLook::pictureWanted, m_background, &BackgroundFlow::openSelector);
    connect(m_toolBars, &MenuToolBars::rearranged, this, &Startfrm::setUp);
    connect(&m_program.changes, &ProgramSignals::familyNameChanged, this, &Startfrm::showMainMenu);
    connect(&m_program.changes, &ProgramSignals::placeRequested, this,
            [this](Function function, const Place &place) { m_opener.open(function, place); });
    connect(&m_program.changes, &ProgramSignals::mainMenuRequested, this, [this] { bringToFront(*this); });
    connect(&m_program.changes, &ProgramSignals::settingNotSaved, this, [this] { tellUnless(false); });
}

/// What comes before the window is seen.
void Startfrm::load()
{
    Hourglass::on();
    decideDateStyle();
    m_program.state.familyName = FamilyName(m_program.settings.text(SettingsKeys::familyName));
    showMainMenu();
    m_toolBars->setFirstButtonEnabled(false);
    QDir::setCurrent(m_program.folder.path());
}

void Startfrm::setVisible(bool visible)
{
    if (visible && m_program.state.startup != StartupDone)
        activate();
    QMainWindow::setVisible(visible);
}

/// The first activation, done once.
void Startfrm::activate()
{
    m_displayMode->load();
    m_background->load();
    m_colors->load();
    setUp();
    m_toolBars->showSides(false); // whatever the record of the side toolbars says
    m_program.state.startup = StartupDone;
    m_picture->desk().focusFirstCard();
    m_activity->say(m_program.folder.whyReadOnly());
}

/// The part of the activation that removing a toolbar repeats.
void Startfrm::setUp()
{
    decideDateStyle();
    m_toolBars->showTop();
    for (const FunctionFace &face : FunctionFaces::cards())
        m_picture->desk().setAvailable(face.function, m_program.functions.has(face.function));
    m_background->show();
    m_day->show();
    m_activity->startClock();
    m_program.state.passwordGateResult = PasswordGateResult::Open;
    QDir::setCurrent(m_program.folder.path());
    m_toolBars->setFirstButtonEnabled(m_program.functions.has(Function::AddressBook));
    Hourglass::off();
}

void Startfrm::decideDateStyle()
{
    m_program.state.dateStyle = Dates::styleOf(m_surroundings.locale());
}

void Startfrm::checkScreen()
{
    if (const auto notice = StartMessages::screenCheck(m_surroundings.screenPixels(*this)))
        m_program.dialogs.ask(this, *notice);
}

void Startfrm::showMainMenu()
{
    setWindowTitle(m_program.state.familyName.caption());
    m_day->firstLook().refresh();
    m_activity->setActivity(m_background->isSelectorOpen() ? u"Background Selector"_s : u"Main Menu"_s);
}

/// The Tab key comes to the cards first, then to the links of the status bar.
void Startfrm::orderTabs()
{
    QWidget *before = m_picture->desk().lastStop();
    for (QToolButton *link : m_activity->findChildren<QToolButton *>()) {
        setTabOrder(before, link);
        before = link;
    }
}

void Startfrm::askFamilyName()
{
    m_activity->setActivity(u"Family Name"_s);
    const bool isSaved = HINFO1::askFamilyName(m_program, this);
    showMainMenu();
    tellUnless(isSaved);
}

void Startfrm::tellUnless(bool isSaved)
{
    m_activity->say(isSaved ? QString() : FrameLines::settingNotSaved());
}

void Startfrm::showAbout()
{
    m_activity->setActivity(u"About Quillery"_s);
    About1 box(m_program.folder, this);
    m_program.dialogs.run(box);
    showMainMenu();
}

void Startfrm::openWebSite()
{
    m_activity->setActivity(u"Launching Web Site"_s);
    m_surroundings.openAddress(QUrl(QString::fromLatin1(webAddress)));
    showMainMenu();
}

void Startfrm::openManual(int context)
{
    emit m_program.changes.helpRequested(context);
}

void Startfrm::useDefaultPanelColor()
{
    QString pending = ColorText::encode(Theme::of(this).panel);
    if (HINFO1::updateProgramColors(m_program, this, pending, HINFO1::updateWithoutAsking))
        m_activity->say(u"The default panel color is set for the whole program."_s);
    else
        tellUnless(false);
}

void Startfrm::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_displayMode && m_program.state.startup == StartupDone)
        m_displayMode->windowStateChanged(static_cast<QWindowStateChangeEvent *>(event)->oldState());
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_day->refresh();
}

/// However the window is closed, the same questions are asked.
void Startfrm::closeEvent(QCloseEvent *event)
{
    m_isExiting = m_isExiting || mayExit();
    event->setAccepted(m_isExiting);
    if (!m_isExiting)
        return;
    m_displayMode->save();
    emit exited();
}

/// Nothing happens to the other windows before the exit was asked for.
bool Startfrm::mayExit()
{
    Hourglass::off();
    return m_program.dialogs.ask(this, StartMessages::exit()) == Answer::Yes && leaveAllWindows(m_program);
}
