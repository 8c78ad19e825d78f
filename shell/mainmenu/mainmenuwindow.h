#pragma once

#include "shell/frame/panelcolors.h"
#include "shell/mainmenu/backgroundchoice.h"
#include "shell/mainmenu/displaymode.h"
#include "shell/mainmenu/menunews.h"
#include "shell/mainmenu/topbuttons.h"

#include <QLocale>
#include <QMainWindow>
#include <QUrl>

#include <array>
#include <functional>

class ActivityBar;
class BackgroundSelector;
class FlowToolBar;
class MenuPicture;
class QMenu;
class QTimer;
class SideToolbar;
class ToolbarLayout;

/// What the main window asks of the desktop around it; a test hands in its own.
struct Surroundings {
    /// Opens an address in the web browser. A failure is ignored.
    std::function<void(const QUrl &)> openAddress;
    /// The system's way of writing dates, as it is now.
    std::function<QLocale()> locale;
    /// The pixels of the screen that the window is on.
    std::function<QSize(const QWidget &)> screenPixels;

    static Surroundings ofDesktop();
};

/// The main menu: the window from which every function opens, by its menus, its three toolbars and the cards
/// on its picture. It lives for the whole run.
class Startfrm final : public QMainWindow
{
    Q_OBJECT
public:
    explicit Startfrm(Program &program, Surroundings surroundings = Surroundings::ofDesktop(),
                      QWidget *parent = nullptr);
    ~Startfrm() override;

    /// The first time this is also the window's activation: mode and size, toolbars, picture and colours.
    void setVisible(bool visible) override;

signals:
    /// The user has left the program: settings are saved, all windows are closed.
    void exited();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    // startmenus.cpp
    void makeMenus();
    void makeOptionsMenu(QMenu &menu);
    void makeFunctionsMenu(QMenu &menu);
    void makeHelpMenu(QMenu &menu);
    void makeToolbars();
    void makeTopBar();
    void makeLeftBar();
    void makeRightBar();
    QAction *addEntry(QMenu &menu, const char *name, const QString &caption, void (Startfrm::*deed)());
    void addFunction(QMenu &menu, const char *name, const QString &caption, Function function);
    void addTool(FlowToolBar &bar, int position, QLatin1StringView icon, const QString &word,
                 const QString &tip, std::function<void()> deed);

    // startdeeds.cpp
    void press(int position);
    void openFunction(Function function);
    void openFunction(Function function, int area);
    void openWhenAllowed(Function function, const std::function<bool()> &mayOpen);
    void openForeignFunction(int area);
    void showListFile(const TopButtons::ShowsListFile &button);
    void askFamilyName();
    void tellSettingNotSaved();
    void showAbout();
    void openWebSite();
    void openOverview();
    void openBackupHelp();
    void customizeTopToolbar();
    void toggleTopToolbar();
    void showTopToolbarMenu(const QPoint &place);
    void useDefaultPanelColor();
    void openBackgroundSelector();
    void closeBackgroundSelector();
    void chooseBackground();

    // startfrm.cpp
    void load();
    void activate();
    void setUp();
    void decideDateStyle();
    void listen();
    void checkScreen();
    void showMainMenu();
    QString picturePath(const BackgroundChoice &choice) const;
    void showBackground(const BackgroundChoice &choice);
    void showTopToolbar();
    void showSideToolbars(bool shown);
    void removeSideToolbars();
    void refreshNews();
    void orderTabs();
    bool mayExit();
    bool closeFunctionWindows();

    Program &m_program;
    Surroundings m_surroundings;
    ActivityBar *m_activity;
    MenuPicture *m_picture;
    FlowToolBar *m_topBar;
    SideToolbar *m_leftBar;
    SideToolbar *m_rightBar;
    DisplayMode *m_displayMode = nullptr;
    PanelColors *m_colors;
    ToolbarLayout *m_topLayout = nullptr;
    BackgroundSelector *m_selector = nullptr; ///< while it is open
    BackgroundChoice m_background;
    std::array<QAction *, TopButtons::count> m_topActions{};
    MenuNews m_news;
    QTimer *m_dayWatch; ///< a new day has other news
    bool m_sideToolbarsShown = false;
    bool m_newsShown = false;
    bool m_exiting = false;
};
