// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/functionopener.h"
#include "shell/mainmenu/surroundings.h"

#include <QMainWindow>

class ActivityBar;
class BackgroundFlow;
class Commands;
class DayBoard;
class DisplayMode;
class EverythingBox;
class MenuPicture;
class MenuToolBars;
class PanelColors;
class QMenu;

/// The main menu (`Startfrm`): the window from which every function opens, by its menus, its three toolbars
/// and the cards on its picture. It lives for the whole run.
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
    void makeMenus();
    void makeOptionsMenu(QMenu &menu);
    void makeHelpMenu(QMenu &menu);
    void makeSideTools();
    void layOut();
    void listen();
    void load();
    void activate();
    void setUp();
    void decideDateStyle();
    void checkScreen();
    void showMainMenu();
    void orderTabs();

    void askFamilyName();
    void tellUnless(bool isSaved);
    void showAbout();
    void openWebSite();
    void openManual(int context);
    void useDefaultPanelColor();
    bool mayExit();

    Program &m_program;
    Surroundings m_surroundings;
    ActivityBar *m_activity;
    MenuPicture *m_picture;
    EverythingBox *m_search;
    Commands *m_commands;
    DisplayMode *m_displayMode = nullptr;
    PanelColors *m_colors;
    BackgroundFlow *m_background;
    FunctionOpener m_opener;
    MenuToolBars *m_toolBars;
    DayBoard *m_day;
    bool m_isExiting = false;
};
