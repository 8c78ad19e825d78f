#include "shell/mainmenu/mainmenuwindow.h"

#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/toolbars.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/sidetoolbar.h"
#include "shell/program/functionfaces.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int topIconSide = 24;
/// Of a button of the top toolbar, while there is room.
constexpr int widestTopButton = 88;

/// A menu whose own entry has the same object name.
QMenu *makeMenu(const char *name, const QString &caption, QWidget *parent)
{
    auto *menu = named(new QMenu(caption, parent), QString::fromLatin1(name));
    menu->menuAction()->setObjectName(menu->objectName());
    menu->setToolTipsVisible(true);
    return menu;
}

void addSeparator(QMenu &menu, const char *name)
{
    menu.addSeparator()->setObjectName(QString::fromLatin1(name));
}

} // namespace

QAction *Startfrm::addEntry(QMenu &menu, const char *name, const QString &caption, void (Startfrm::*deed)())
{
    QAction *action = makeAction(QString::fromLatin1(name), caption, this);
    connect(action, &QAction::triggered, this, deed);
    menu.addAction(action);
    return action;
}

void Startfrm::addFunction(QMenu &menu, const char *name, const QString &caption, Function function)
{
    QAction *action = makeAction(QString::fromLatin1(name), caption, this);
    connect(action, &QAction::triggered, this, [this, function] { openFunction(function); });
    const FunctionFace &face = FunctionFaces::of(function);
    setUnavailable(action, m_program.functions.has(function) ? QString() : face.missingReason());
    menu.addAction(action);
}

void Startfrm::makeMenus()
{
    QMenu *options = makeMenu("mO", u"&Options"_s, this);
    QMenu *functions = makeMenu("Mf", u"&Program Functions"_s, this);
    QMenu *help = makeMenu("mH", u"&Help"_s, this);
    for (QMenu *menu : {options, functions, help})
        menuBar()->addMenu(menu);
    makeOptionsMenu(*options);
    makeFunctionsMenu(*functions);
    makeHelpMenu(*help);
    auto *overview = new QShortcut(Qt::Key_F1, this);
    connect(overview, &QShortcut::activated, this, &Startfrm::openOverview);
}

void Startfrm::makeOptionsMenu(QMenu &menu)
{
    addEntry(menu, "mOBC", u"&Background Selector"_s, &Startfrm::openBackgroundSelector);
    QMenu *display = makeMenu("mOP", u"&Program Display"_s, &menu);
    menu.addMenu(display);
    QAction *fullScreen = makeAction(u"mOPF"_s, u"&Full Screen Display"_s, this);
    QAction *smaller = makeAction(u"mOPS"_s, u"&Smaller Screen Display"_s, this);
    QAction *usualSize = makeAction(u"mOPDefault"_s, u"&Default Screen Size"_s, this);
    display->addActions({fullScreen, smaller});
    addSeparator(*display, "mO67");
    display->addAction(usualSize);
    m_displayMode = new DisplayMode(m_program, this, fullScreen, smaller);
    connect(m_displayMode, &DisplayMode::notSaved, this, [this] { tellSettingNotSaved(); });
    connect(fullScreen, &QAction::triggered, m_displayMode, &DisplayMode::useFullScreen);
    connect(smaller, &QAction::triggered, m_displayMode, &DisplayMode::useSmallerScreen);
    connect(usualSize, &QAction::triggered, m_displayMode, &DisplayMode::useDefaultSize);
    addSeparator(menu, "mO2");
    addEntry(menu, "mOPCDefault", u"Default Panel Color"_s, &Startfrm::useDefaultPanelColor);
    addSeparator(menu, "mO12");
    addSeparator(menu, "mO1");
    QAction *leave = makeAction(u"mOE"_s, u"E&xit"_s, this);
    connect(leave, &QAction::triggered, this, &QWidget::close);
    menu.addAction(leave);
}

void Startfrm::makeFunctionsMenu(QMenu &menu)
{
    addFunction(menu, "mIMain", u"&Automobile Tracker"_s, Function::CarLog);
    addSeparator(menu, "mO22");
    addFunction(menu, "mFCal", u"&Calendar Maker"_s, Function::CalendarMaker);
    addSeparator(menu, "mO25");
    addFunction(menu, "mFB", u"&Family/Friends Data"_s, Function::AddressBook);
    addFunction(menu, "MfViewer", u"&Family/Friends Viewer"_s, Function::AddressViewer);
    addSeparator(menu, "mO7");
    addFunction(menu, "mMB", u"&Personal Budget"_s, Function::Budget);
    addSeparator(menu, "mO40");
    addFunction(menu, "mFJour", u"&Personal Journal"_s, Function::Journal);
    addFunction(menu, "mFP", u"&Personal Planner"_s, Function::Planner);
    addFunction(menu, "mFToDo", u"&Personal To Do List"_s, Function::ToDoList);
    addSeparator(menu, "mO8");
    addFunction(menu, "mUPhoto", u"&Photo Album"_s, Function::PhotoAlbum);
    addSeparator(menu, "mO9");
    addFunction(menu, "mPWKpr", u"&Passowrd Keerper"_s, Function::PasswordKeeper);
    addSeparator(menu, "mO23");
    addFunction(menu, "mUP", u"&Password Control"_s, Function::PasswordControl);
    addSeparator(menu, "mO24");
    addFunction(menu, "mFWeight", u"&Weight Tracker"_s, Function::WeightTracker);
}

void Startfrm::makeHelpMenu(QMenu &menu)
{
    addEntry(menu, "mHI", u"&Program Overview"_s, &Startfrm::openOverview);
    addSeparator(menu, "mH1");
    addEntry(menu, "mHBR", u"&Backup and Restore Option"_s, &Startfrm::openBackupHelp);
    addSeparator(menu, "mH4");
    addEntry(menu, "mHA", u"&About Quillery"_s, &Startfrm::showAbout);
    addSeparator(menu, "mO21");
    addEntry(menu, "mHWeb", u"&Quillery on the Web"_s, &Startfrm::openWebSite);
}

void Startfrm::makeToolbars()
{
    makeTopBar();
    makeLeftBar();
    makeRightBar();
}

void Startfrm::makeTopBar()
{
    const Icons::Scheme scheme = Theme::of(this).scheme;
    QList<QAction *> actions;
    for (int position = 0; position < TopButtons::count; ++position) {
        const TopButtons::TopButton &button = TopButtons::all()[std::size_t(position)];
        QAction *action = makeAction(TopButtons::objectName(position), button.wordText(), this);
        m_topActions[std::size_t(position)] = action;
        connect(action, &QAction::triggered, this, [this, position] { press(position); });
        if (button.isGap())
            continue;
        action->setToolTip(button.descriptionText());
        action->setIcon(Icons::icon(QLatin1StringView(button.icon), scheme));
        if (button.needs && !m_program.functions.has(*button.needs))
            setUnavailable(action, FunctionFaces::of(*button.needs).missingReason());
        actions << action;
    }
    QStringList designed;
    for (const int position : TopButtons::designedLayout())
        designed << (position < 0 ? QString::fromLatin1(ToolbarLayout::separatorName)
                                  : TopButtons::objectName(position));
    m_topBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_topBar->setIconSize(topIconSide);
    m_topBar->setEqualWidths(widestTopButton);
    m_topBar->setStyleSheet(u"QToolButton { padding: 0 1px; }"_s); // words as wide as they need
    m_topBar->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_topBar, &QWidget::customContextMenuRequested, this, &Startfrm::showTopToolbarMenu);
    m_topLayout = new ToolbarLayout(m_program, m_topBar, u"Toolbar1"_s, actions, designed);
}

void Startfrm::addTool(FlowToolBar &bar, int position, QLatin1StringView icon, const QString &word,
                       const QString &tip, std::function<void()> deed)
{
    QAction *action = makeAction(bar.objectName() + u'_' + QString::number(position), word, this);
    action->setIcon(Icons::icon(icon, Theme::of(this).scheme));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, std::move(deed));
    bar.addAction(action);
}

/// Position 6 is the line between what changes the window and what leads out of it.
void Startfrm::makeLeftBar()
{
    FlowToolBar &bar = m_leftBar->bar();
    addTool(bar, 0, "palette"_L1, u"Background"_s, u"Chooses the picture of the main menu"_s,
            [this] { openBackgroundSelector(); });
    addTool(bar, 1, "screen-size"_L1, u"Screen Size"_s,
            u"Switches between full screen and a smaller window"_s, [this] { m_displayMode->toggle(); });
    addTool(bar, 2, "family-name"_L1, u"Family Name"_s, u"Asks for the name in the title of the program"_s,
            [this] { askFamilyName(); });
    addTool(bar, 3, "edit"_L1, u"Customize"_s, u"Customize Toolbar"_s, [this] { customizeTopToolbar(); });
    addTool(bar, 4, "top-toolbar"_L1, u"Top Toolbar"_s, u"Removes or restores the top toolbar"_s,
            [this] { toggleTopToolbar(); });
    addTool(bar, 5, "side-toolbars"_L1, u"Side Toolbars"_s, u"Removes both side toolbars"_s,
            [this] { removeSideToolbars(); });
    bar.addSeparator();
    addTool(bar, 7, "web"_L1, u"Web Site"_s, u"Opens Quillery's web site"_s, [this] { openWebSite(); });
    addTool(bar, 8, "help"_L1, u"Overview"_s, u"Opens the manual at its first page"_s,
            [this] { openOverview(); });
    addTool(bar, 9, "exit"_L1, u"Exit"_s, u"Exit Quillery"_s, [this] { close(); });
}

void Startfrm::makeRightBar()
{
    FlowToolBar &bar = m_rightBar->bar();
    addTool(bar, 0, "palette"_L1, u"Panel Color"_s, u"Chooses the color of the cards"_s,
            [this] { m_colors->choosePanelColor(); });
    addTool(bar, 1, "backup-command"_L1, u"Backup Help"_s, u"Opens the manual at backup and restore"_s,
            [this] { openBackupHelp(); });
    addTool(bar, 2, "about"_L1, u"About"_s, u"About Quillery"_s, [this] { showAbout(); });
}
