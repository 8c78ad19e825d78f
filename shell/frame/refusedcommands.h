// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class ActivityBar;
class Commands;
class QEvent;
class QMenu;

/// Says in the status bar why a command cannot be used: when its key is pressed, and while the mouse is over
/// its entry in a menu.
class RefusedCommands final : public QObject
{
    Q_OBJECT
public:
    RefusedCommands(const Commands &commands, ActivityBar &activity, QWidget *window);

    /// For the menus that the window has now; those that it opens for a click are followed anyway.
    void followMenus();
    /// Says why the command with `key` cannot be used; false where it can, and without one.
    bool tell(const QKeySequence &key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(const QMenu &menu, const QEvent &event);

    const Commands &m_commands;
    ActivityBar &m_activity;
    QWidget *m_window;
    QString m_tip; ///< of the entry that the mouse is over
};
