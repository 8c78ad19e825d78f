// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/refusedcommands.h"

#include "shell/controls/activitybar.h"
#include "shell/frame/commands.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMouseEvent>
#include <QStatusTipEvent>

#include <utility>

RefusedCommands::RefusedCommands(const Commands &commands, ActivityBar &activity, QWidget *window)
    : QObject(window)
    , m_commands(commands)
    , m_activity(activity)
    , m_window(window)
{
    window->installEventFilter(this);
}

void RefusedCommands::followMenus()
{
    for (QMenu *menu : m_window->findChildren<QMenu *>())
        menu->installEventFilter(this);
}

bool RefusedCommands::tell(const QKeySequence &key)
{
    const QString reason = m_commands.whyNot(key);
    if (!reason.isEmpty())
        m_activity.say(reason);
    return !reason.isEmpty();
}

bool RefusedCommands::eventFilter(QObject *watched, QEvent *event)
{
    if (const auto *menu = qobject_cast<const QMenu *>(watched)) {
        follow(*menu, *event);
    } else if (event->type() == QEvent::ChildPolished) {
        if (auto *menu = qobject_cast<QMenu *>(static_cast<QChildEvent *>(event)->child()))
            menu->installEventFilter(this);
    }
    return false;
}

/// A menu tells nothing itself of an entry that cannot be chosen.
void RefusedCommands::follow(const QMenu &menu, const QEvent &event)
{
    QString tip;
    if (event.type() == QEvent::MouseMove) {
        const QAction *entry = menu.actionAt(static_cast<const QMouseEvent &>(event).position().toPoint());
        tip = entry && !entry->isEnabled() ? entry->statusTip() : QString();
    } else if (event.type() != QEvent::Leave && event.type() != QEvent::Hide) {
        return;
    }
    if (std::exchange(m_tip, tip) == tip)
        return;
    // Behind what the menu itself takes back of the entry before.
    QCoreApplication::postEvent(m_window, new QStatusTipEvent(tip));
}
