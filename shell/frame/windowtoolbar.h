// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/flowtoolbar.h"
#include "shell/core/settings.h"

class ActivityBar;
class Commands;
class ToolbarLayout;
struct Program;

/// The toolbar of a function window: laid out as the user arranged it, removed and restored along with those
/// of all other windows.
class WindowToolbar final : public FlowToolBar
{
    Q_OBJECT
public:
    /// `removal` says whether the toolbar is removed.
    WindowToolbar(Program &program, TextSetting removal, Commands &commands, ActivityBar &activity,
                  QWidget *window);

    /// Call once when `commands` has all the tools: restores the layout that is kept under `storeKey`.
    void complete(const QString &storeKey);

private:
    /// The customizer opens from the menu of the options as well, behind the colors.
    void addToMenu();
    void customize();
    void showUnlessRemoved();
    void restore();
    void showMenu(const QPoint &place);

    Program &m_program;
    TextSetting m_removal;
    Commands &m_commands;
    ActivityBar &m_activity;
    ToolbarLayout *m_layout = nullptr;
    QAction *m_customize = nullptr; ///< of the menu
};
