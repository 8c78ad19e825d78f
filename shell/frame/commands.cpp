// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/commands.h"

#include "shell/frame/toolbarlayout.h"
#include "shell/look/theme.h"

#include <QApplication>
#include <QMenu>

#include <algorithm>
#include <utility>

Commands::Commands(QWidget *window, QString whyReadOnly)
    : QObject(window)
    , m_window(window)
    , m_whyReadOnly(std::move(whyReadOnly))
{}

QAction *Commands::add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                       Reason unless, const QKeySequence &shortcut)
{
    QAction *action = makeAction(name, caption, m_window);
    action->setShortcut(shortcut);
    if (menu)
        menu->addAction(action);
    connect(action, &QAction::triggered, this, [run = std::move(run)] { run(); });
    m_commands.push_back({action, std::move(unless), false, {}, {}, {}});
    return action;
}

QAction *Commands::writing(QAction *command)
{
    find(command).isWriting = true;
    return command;
}

void Commands::setKeyIn(QWidget *view, QAction *command, const QKeySequence &key)
{
    command->setShortcut(key);
    command->setShortcutContext(Qt::WidgetShortcut);
    (view->focusProxy() ? view->focusProxy() : view)->addAction(command);
}

bool Commands::hasKey(const QKeySequence &key) const
{
    return std::ranges::any_of(
        m_commands, [&key](const Command &command) { return command.action->shortcuts().contains(key); });
}

QString Commands::whyNot(const QKeySequence &key) const
{
    for (const Command &command : m_commands) {
        const QAction *action = command.action;
        const bool isMeant = action->shortcutContext() != Qt::WidgetShortcut ||
                             action->associatedObjects().contains(QApplication::focusWidget());
        if (isMeant && !action->isEnabled() && action->shortcuts().contains(key))
            return action->statusTip();
    }
    return {};
}

QAction *Commands::repeat(QAction *command, QMenu *menu, const QString &name, const QString &caption)
{
    QAction *twin = addTwin(find(command), name, caption);
    menu->addAction(twin);
    return twin;
}

QAction *Commands::tool(QAction *command, QLatin1StringView icon, const QString &word, const QString &name)
{
    QAction *tool = name.isEmpty() ? command : addTwin(find(command), name, {});
    tool->setIcon(Icons::icon(icon, Theme::of(m_window).scheme));
    tool->setIconVisibleInMenu(false);
    tool->setIconText(word);
    m_tools.append(tool);
    m_toolNames.append(tool->objectName());
    return tool;
}

void Commands::separateTools()
{
    m_toolNames.append(QString::fromLatin1(ToolbarLayout::separatorName));
}

QPushButton *Commands::button(QAction *command, const QString &name, const QString &caption, QWidget *parent,
                              ButtonKind kind)
{
    QPushButton *button = addButton(command, makeButton(name, caption, parent, kind));
    if (caption == command->text())
        find(command).sameCaption.push_back(button);
    return button;
}

QPushButton *Commands::addButton(QAction *command, QPushButton *button)
{
    connect(button, &QPushButton::clicked, command, &QAction::trigger);
    find(command).buttons.push_back(button);
    return button;
}

void Commands::setCaption(QAction *command, const QString &caption)
{
    command->setText(caption);
    for (QObject *shown : find(command).sameCaption)
        shown->setProperty("text", caption);
}

void Commands::refresh()
{
    for (const Command &command : m_commands)
        show(command);
}

void Commands::show(const Command &command) const
{
    const bool isForbidden = command.isWriting && !m_whyReadOnly.isEmpty();
    if (!isForbidden && !command.unless)
        return;
    const QString reason = isForbidden ? m_whyReadOnly : command.unless();
    setUnavailable(command.action, reason);
    for (QAction *twin : command.twins)
        setUnavailable(twin, reason);
    for (QPushButton *button : command.buttons)
        setUnavailable(button, reason);
}

Commands::Command &Commands::find(const QAction *action)
{
    const auto found = std::ranges::find(m_commands, action, &Command::action);
    Q_ASSERT_X(found != m_commands.end(), "Commands", "an action that is no command of this window");
    return *found;
}

QAction *Commands::addTwin(Command &command, const QString &name, const QString &caption)
{
    QAction *twin = makeAction(name, caption.isEmpty() ? command.action->text() : caption, m_window);
    connect(twin, &QAction::triggered, command.action, &QAction::trigger);
    command.twins.push_back(twin);
    if (caption.isEmpty())
        command.sameCaption.push_back(twin);
    return twin;
}
