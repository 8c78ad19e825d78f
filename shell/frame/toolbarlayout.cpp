// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/toolbarlayout.h"

#include "shell/controls/flowtoolbar.h"
#include "shell/program/program.h"
#include "shell/program/storedsettings.h"

#include <QAction>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

ToolbarLayout::ToolbarLayout(Program &program, FlowToolBar *bar, const QString &storeKey,
                             QList<QAction *> actions, QStringList defaults)
    : QObject(bar)
    , m_program(program)
    , m_bar(bar)
    , m_storeKey("User1/"_L1 + storeKey)
    , m_actions(std::move(actions))
    , m_defaults(std::move(defaults))
{}

void ToolbarLayout::restore()
{
    const QStringList stored = m_program.store.value(m_storeKey).toStringList();
    const bool isUsable = std::any_of(stored.begin(), stored.end(), [this](const QString &name) {
        return name != QLatin1StringView(separatorName) && action(name);
    });
    show(isUsable ? stored : m_defaults);
}

QStringList ToolbarLayout::shown() const
{
    QStringList names;
    const QList<QAction *> actions = m_bar->actions();
    for (const QAction *action : actions)
        names << (action->isSeparator() ? QString::fromLatin1(separatorName) : action->objectName());
    return names;
}

bool ToolbarLayout::setShown(const QStringList &names)
{
    show(names);
    m_program.store.setValue(m_storeKey, shown());
    return StoredSettings::areOnDisk(m_program.store);
}

bool ToolbarLayout::reset()
{
    show(m_defaults);
    m_program.store.remove(m_storeKey);
    return StoredSettings::areOnDisk(m_program.store);
}

QAction *ToolbarLayout::action(const QString &name) const
{
    const auto found = std::find_if(m_actions.begin(), m_actions.end(),
                                    [&name](const QAction *action) { return action->objectName() == name; });
    return found == m_actions.end() ? nullptr : *found;
}

void ToolbarLayout::show(const QStringList &names)
{
    m_bar->clear();
    for (const QString &name : names) {
        if (name == QLatin1StringView(separatorName))
            m_bar->addSeparator();
        else if (QAction *known = action(name); known && !m_bar->button(known))
            m_bar->addAction(known);
    }
    emit changed();
}
