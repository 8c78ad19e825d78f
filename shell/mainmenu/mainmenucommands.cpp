#include "shell/mainmenu/mainmenuwindow.h"

#include "shell/access/gate.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/frame/toolbars.h"
#include "shell/look/colortext.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/about.h"
#include "shell/mainmenu/backgroundchoice.h"
#include "shell/mainmenu/backgroundselector.h"
#include "shell/mainmenu/carddesk.h"
#include "shell/mainmenu/listfile.h"
#include "shell/mainmenu/menupicture.h"
#include "shell/program/functionfaces.h"
#include "shell/program/sharedprocedures.h"

#include <QAction>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The maker's home page.
constexpr auto webAddress = "https://quillery.example/";

template <typename... Deeds>
struct Either : Deeds... {
    using Deeds::operator()...;
};

} // namespace

/// A click on a button of the top toolbar, by the button's position.
void Startfrm::press(int position)
{
    m_activity->setActivity(u"Loading"_s);
    HINFO1::hourglassOn();
    std::visit(
        Either{[this](const TopButtons::OpensFunction &deed) { openFunction(deed.function, deed.area); },
               [this](const TopButtons::SameAsEntry &deed) {
                   if (auto *same = findChild<QAction *>(QString::fromLatin1(deed.entry)))
                       same->trigger();
               },
               [this](const TopButtons::OtherEdition &deed) { openForeignFunction(deed.area); },
               [this](const TopButtons::ShowsListFile &deed) { showListFile(deed); },
               [](const TopButtons::Gap &) {}},
        TopButtons::all()[std::size_t(position)].deed);
    HINFO1::hourglassOff();
    showMainMenu();
}

/// As the function's menu entry and its card do.
void Startfrm::openFunction(Function function)
{
    if (function == Function::PasswordControl)
        openWhenAllowed(function, [this] { return m_program.gate.mayOpenPasswordControl(m_program, this); });
    else
        openFunction(function, FunctionFaces::of(function).area);
}

void Startfrm::openFunction(Function function, int area)
{
    openWhenAllowed(function, [this, area] { return m_program.gate.mayOpen(m_program, area, this); });
}

void Startfrm::openWhenAllowed(Function function, const std::function<bool()> &mayOpen)
{
    if (!m_program.functions.has(function))
        return;
    m_activity->setActivity(u"Loading"_s);
    m_activity->say({});
    HINFO1::hourglassOn();
    if (mayOpen())
        m_program.functions.open(function, m_program);
    HINFO1::hourglassOff();
    showMainMenu();
}

/// A function that another edition has: its guard is asked, and there is no window to show.
void Startfrm::openForeignFunction(int area)
{
    (void)m_program.gate.mayOpen(m_program, area, this);
}

void Startfrm::showListFile(const TopButtons::ShowsListFile &button)
{
    const QString file = m_program.folder.existingFile({}, QString::fromLatin1(button.file));
    if (ListFile::hasUsableLine(file)) {
        openForeignFunction(button.area);
        return;
    }
    HINFO1::hourglassOff();
    m_program.dialogs.ask(this, TopButtons::emptyListNotice(button));
}

void Startfrm::askFamilyName()
{
    m_activity->setActivity(u"Family Name"_s);
    const bool isSaved = HINFO1::askFamilyName(m_program, this);
    showMainMenu();
    if (!isSaved)
        tellSettingNotSaved();
}

void Startfrm::tellSettingNotSaved()
{
    m_activity->say(FrameLines::settingNotSaved());
}

void Startfrm::showAbout()
{
    m_activity->setActivity(u"About Quillery"_s);
    About1 box(this);
    m_program.dialogs.run(box);
    showMainMenu();
}

void Startfrm::openWebSite()
{
    m_activity->setActivity(u"Launching Web Site"_s);
    m_surroundings.openAddress(QUrl(QString::fromLatin1(webAddress)));
    showMainMenu();
}

void Startfrm::openOverview()
{
    emit m_program.changes.helpRequested(HelpContext::ProgramOverview);
}

void Startfrm::openBackupHelp()
{
    emit m_program.changes.helpRequested(HelpContext::BackupAndRestore);
}

void Startfrm::toggleTopToolbar()
{
    const bool isRemoved = TopToolbar::isRemoved(m_program, SettingsKeys::topToolbar);
    const bool isSaved = TopToolbar::setRemoved(m_program, !isRemoved);
    setUp();
    if (!isSaved)
        tellSettingNotSaved();
}

void Startfrm::showTopToolbarMenu(const QPoint &place)
{
    auto *menu = named(new QMenu(this), u"toolbarMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *remove = makeAction(u"removeTopToolbar"_s, u"&Remove Top Toolbar"_s, menu);
    QAction *customize = makeAction(u"customizeToolbar"_s, u"&Customize Toolbar"_s, menu);
    connect(remove, &QAction::triggered, this, &Startfrm::toggleTopToolbar);
    connect(customize, &QAction::triggered, this, &Startfrm::customizeTopToolbar);
    menu->addActions({remove, customize});
    menu->popup(m_topBar->mapToGlobal(place));
}

void Startfrm::customizeTopToolbar()
{
    if (TopToolbar::isRemoved(m_program, SettingsKeys::topToolbar)) {
        m_program.dialogs.ask(this, ShellMessages::topToolbarIsRemoved());
        return;
    }
    ToolbarCustomizer customizer(*m_topLayout, this);
    m_program.dialogs.run(customizer);
}

void Startfrm::useDefaultPanelColor()
{
    QString pending = ColorText::encode(Theme::of(this).panel);
    if (HINFO1::updateProgramColors(m_program, this, pending, HINFO1::updateWithoutAsking))
        m_activity->say(u"The default panel color is set for the whole program."_s);
    else
        tellSettingNotSaved();
}

void Startfrm::openBackgroundSelector()
{
    if (m_selector)
        return;
    const BusyCursor busy;
    m_activity->setActivity(u"Background Selector"_s);
    m_selector = new BackgroundSelector(
        m_background, [this](const BackgroundChoice &choice) { return picturePath(choice); }, m_picture);
    m_colors->addPanel(m_selector->panel());
    connect(m_selector, &BackgroundSelector::chosen, this, &Startfrm::showBackground);
    connect(m_selector, &BackgroundSelector::accepted, this, &Startfrm::chooseBackground);
    connect(m_selector, &BackgroundSelector::cancelled, this, &Startfrm::closeBackgroundSelector);
    m_picture->showSelector(m_selector);
    showTopToolbar();
    showSideToolbars(m_sideToolbarsShown);
    m_selector->focusChoice();
}

/// The selector's OK. A choice that cannot be written holds for this run.
void Startfrm::chooseBackground()
{
    m_background = m_selector->choice();
    const bool isSaved = m_program.settings.setTagged(SettingsKeys::background, m_background.recordText());
    closeBackgroundSelector();
    if (!isSaved)
        tellSettingNotSaved();
}

/// Back to the main menu with the background that was chosen last.
void Startfrm::closeBackgroundSelector()
{
    m_picture->closeSelector();
    m_selector->deleteLater();
    m_selector = nullptr;
    showBackground(m_background);
    showTopToolbar();
    showSideToolbars(m_sideToolbarsShown);
    showMainMenu();
    m_picture->desk().focusFirstCard();
    HINFO1::hourglassOff();
}
