#include "shell/mainmenu/mainmenuwindow.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/dates.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/toolbars.h"
#include "shell/mainmenu/backgroundchoice.h"
#include "shell/mainmenu/carddesk.h"
#include "shell/mainmenu/mainmenumessages.h"
#include "shell/mainmenu/menupicture.h"
#include "shell/mainmenu/sidetoolbar.h"
#include "shell/program/functionfaces.h"
#include "shell/program/sharedprocedures.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PanelColorSettings menuColors{SettingsKeys::mainMenuColor, SettingsKeys::mainMenuColor,
                                        std::nullopt};
constexpr int dayCheckMilliseconds = 60 * 1000;

} // namespace

Surroundings Surroundings::ofDesktop()
{
    return {[](const QUrl &address) { QDesktopServices::openUrl(address); }, [] { return QLocale::system(); },
            [](const QWidget &window) {
                const QScreen &screen = *window.screen();
                return (QSizeF(screen.size()) * screen.devicePixelRatio()).toSize();
            }};
}

Startfrm::Startfrm(Program &program, Surroundings surroundings, QWidget *parent)
    : QMainWindow(parent)
    , m_program(program)
    , m_surroundings(std::move(surroundings))
    , m_activity(new ActivityBar(program.clock, program.state.dateStyle, this))
    , m_picture(new MenuPicture(this))
    , m_topBar(named(new FlowToolBar(Qt::Horizontal, this), u"Toolbar1"_s))
    , m_leftBar(new SideToolbar(u"Toolbar2"_s, SideToolbar::Left, this))
    , m_rightBar(new SideToolbar(u"Toolbar3"_s, SideToolbar::Right, this))
    , m_colors(new PanelColors(program, menuColors, this, *m_activity))
    , m_news(program)
    , m_dayWatch(new QTimer(this))
{
    named(this, u"Startfrm"_s);
    setStatusBar(m_activity);
    makeMenus();
    makeToolbars();

    auto *work = new QWidget(this);
    auto *column = new QVBoxLayout(work);
    auto *row = new QHBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    row->setSpacing(0);
    column->addWidget(m_topBar);
    column->addLayout(row, 1);
    row->addWidget(m_leftBar);
    row->addWidget(m_picture, 1);
    row->addWidget(m_rightBar);
    setCentralWidget(work);
    setMinimumSize(640, 400);
    orderTabs();
    for (QWidget *card : m_picture->desk().panels())
        m_colors->addPanel(card);
    listen();
    load();
}

Startfrm::~Startfrm()
{
    HINFO1::hourglassOff();
}

void Startfrm::listen()
{
    connect(&m_picture->desk(), &CardDesk::opened, this,
            [this](Function function) { openFunction(function); });
    connect(m_picture, &MenuPicture::firstPainted, this, [this] {
        m_newsShown = true;
        refreshNews();
        checkScreen();
    });
    connect(m_activity, &ActivityBar::restoreTopToolbarRequested, this, [this] {
        if (!TopToolbar::setRemoved(m_program, false))
            tellSettingNotSaved();
    });
    connect(m_activity, &ActivityBar::restoreSideToolbarsRequested, this, [this] { showSideToolbars(true); });
    connect(&m_program.changes, &ProgramSignals::topToolbarChanged, this, &Startfrm::showTopToolbar);
    connect(&m_program.changes, &ProgramSignals::familyNameChanged, this, &Startfrm::showMainMenu);
    connect(&m_program.changes, &ProgramSignals::mainMenuRequested, this, [this] { bringToFront(*this); });
    connect(m_dayWatch, &QTimer::timeout, this, [this] {
        if (m_newsShown)
            refreshNews();
    });
    m_dayWatch->setTimerType(Qt::VeryCoarseTimer);
}

/// What comes before the window is seen.
void Startfrm::load()
{
    HINFO1::hourglassOn();
    decideDateStyle();
    m_program.state.familyName = FamilyName(m_program.settings.text(SettingsKeys::familyName));
    showMainMenu();
    m_topActions.front()->setEnabled(false);
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
    m_background = BackgroundChoice::ofRecord(m_program.settings.tagged(SettingsKeys::background));
    m_colors->load();
    setUp();
    // Whatever the marker's record says: they always start removed.
    showSideToolbars(false);
    m_program.state.startup = StartupDone;
    m_picture->desk().focusFirstCard();
}

/// The part of the activation that removing a toolbar repeats.
void Startfrm::setUp()
{
    decideDateStyle();
    showTopToolbar();
    for (const FunctionFace &face : FunctionFaces::cards())
        m_picture->desk().setAvailable(face.function, m_program.functions.has(face.function));
    showBackground(m_background);
    m_picture->setDate(Dates::longText(m_program.clock.today(), m_program.state.dateStyle));
    m_picture->showNews(m_news);
    m_activity->startClock();
    m_dayWatch->start(dayCheckMilliseconds);
    m_program.state.passwordGateResult = PasswordGateResult::Open;
    QDir::setCurrent(m_program.folder.path());
    m_topActions.front()->setEnabled(m_program.functions.has(Function::AddressBook));
    HINFO1::hourglassOff();
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
    m_activity->setActivity(m_selector ? u"Background Selector"_s : u"Main Menu"_s);
}

/// The household's own picture of that name, else the one that came with the program; empty for none.
QString Startfrm::picturePath(const BackgroundChoice &choice) const
{
    if (choice.isPlain())
        return {};
    const QString own = m_program.folder.existingFile({}, choice.fileName());
    return own.isEmpty() ? m_program.programFolder.existingFile({}, choice.fileName()) : own;
}

void Startfrm::showBackground(const BackgroundChoice &choice)
{
    m_picture->setPicture(picturePath(choice));
}

void Startfrm::showTopToolbar()
{
    const bool removed = TopToolbar::isRemoved(m_program, SettingsKeys::topToolbar);
    if (!removed && (m_topBar->isHidden() || m_topBar->actions().isEmpty()))
        m_topLayout->restore();
    m_topBar->setVisible(!removed && !m_selector);
    m_activity->offerTopToolbar(removed && !m_selector);
}

void Startfrm::showSideToolbars(bool shown)
{
    m_sideToolbarsShown = shown;
    m_leftBar->setVisible(shown && !m_selector);
    m_rightBar->setVisible(shown && !m_selector);
    m_activity->offerSideToolbars(!shown && !m_selector);
}

void Startfrm::removeSideToolbars()
{
    showSideToolbars(false);
    const bool isSaved =
        m_program.settings.setNumber(SettingsKeys::sideToolbarMarker, SettingsKeys::sideToolbarsRemoved);
    setUp();
    m_picture->desk().focusFirstCard();
    if (!isSaved)
        tellSettingNotSaved();
}

void Startfrm::refreshNews()
{
    m_news.refresh();
    m_picture->setDate(Dates::longText(m_program.clock.today(), m_program.state.dateStyle));
    m_picture->showNews(m_news);
}

/// The cards come first on the way of the Tab key; then the links of the status bar and the toolbars.
void Startfrm::orderTabs()
{
    QWidget *before = m_picture->desk().panels().last();
    for (QToolButton *link : m_activity->findChildren<QToolButton *>()) {
        setTabOrder(before, link);
        before = link;
    }
}

void Startfrm::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && m_displayMode && m_program.state.startup == StartupDone)
        m_displayMode->windowStateChanged(static_cast<QWindowStateChangeEvent *>(event)->oldState());
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_newsShown)
        refreshNews();
}

/// However the window is closed, the same questions are asked.
void Startfrm::closeEvent(QCloseEvent *event)
{
    if (!m_exiting && !mayExit()) {
        event->ignore();
        return;
    }
    m_exiting = true;
    if (!closeFunctionWindows()) {
        m_exiting = false;
        event->ignore();
        return;
    }
    m_displayMode->save();
    event->accept();
    emit exited();
}

bool Startfrm::mayExit()
{
    HINFO1::hourglassOff();
    for (QWidget *window : m_program.functions.openWindows())
        if (auto *functionWindow = qobject_cast<FunctionWindow *>(window);
            functionWindow && !functionWindow->mayLeave()) {
            bringToFront(*functionWindow);
            return false;
        }
    return m_program.dialogs.ask(this, StartMessages::exit()) == Answer::Yes;
}

bool Startfrm::closeFunctionWindows()
{
    for (QWidget *window : m_program.functions.openWindows())
        if (!window->close())
            return false;
    return true;
}
