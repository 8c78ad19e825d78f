// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/windowtoolbar.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/frame/commands.h"
#include "shell/frame/toolbarcustomizer.h"
#include "shell/frame/toolbarlayout.h"
#include "shell/frame/toptoolbar.h"
#include "shell/program/program.h"

#include <QMenu>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

WindowToolbar::WindowToolbar(Program &program, TextSetting removal, Commands &commands, ActivityBar &activity,
                             QWidget *window)
    : FlowToolBar(Qt::Horizontal, window)
    , m_program(program)
    , m_removal(removal)
    , m_commands(commands)
    , m_activity(activity)
{
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &WindowToolbar::showMenu);
    connect(&activity, &ActivityBar::restoreTopToolbarRequested, this, &WindowToolbar::restore);
    connect(&program.changes, &ProgramSignals::topToolbarChanged, this, &WindowToolbar::showUnlessRemoved);
}

void WindowToolbar::complete(const QString &storeKey)
{
    m_layout = new ToolbarLayout(m_program, this, storeKey, m_commands.tools(), m_commands.toolNames());
    m_layout->restore();
    addToMenu();
    showUnlessRemoved();
}

void WindowToolbar::addToMenu()
{
    auto *options = window()->findChild<QMenu *>(u"mO"_s);
    if (!options || options->isEmpty())
        return;
    m_customize = m_commands.add(nullptr, u"mOCT"_s, u"Customi&ze Toolbar"_s, [this] { customize(); });
    const QList<QAction *> entries = options->actions();
    const auto isColor = [](const QAction *entry) {
        return entry->objectName() == "mOC"_L1 || entry->objectName() == "mOTC"_L1;
    };
    const auto other = std::ranges::find_if_not(entries, isColor);
    options->insertAction(other == entries.end() ? nullptr : *other, m_customize);
}

void WindowToolbar::customize()
{
    ToolbarCustomizer customizer(*m_layout, window());
    m_program.dialogs.run(customizer);
    if (!customizer.isSaved())
        m_activity.say(FrameLines::settingNotSaved());
}

void WindowToolbar::showUnlessRemoved()
{
    const bool isRemoved = TopToolbar::isRemoved(m_program, m_removal);
    setVisible(!isRemoved);
    m_activity.offerTopToolbar(isRemoved);
    if (m_customize)
        setUnavailable(m_customize, isRemoved ? ShellMessages::topToolbarIsRemoved().text : QString());
}

void WindowToolbar::restore()
{
    const bool isMarked =
        m_program.settings.setNumber(SettingsKeys::sideToolbarMarker, SettingsKeys::sideToolbarsRemoved);
    if (!TopToolbar::setRemoved(m_program, false) || !isMarked)
        m_activity.say(FrameLines::settingNotSaved());
    if (m_layout)
        m_layout->restore();
}

void WindowToolbar::showMenu(const QPoint &place)
{
    auto *menu = named(new QMenu(window()), u"toolbarMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *remove = makeAction(u"removeTopToolbar"_s, u"&Remove Top Toolbar"_s, menu);
    QAction *customize = makeAction(u"customizeToolbar"_s, u"&Customize Toolbar"_s, menu);
    menu->addActions({remove, customize});
    connect(remove, &QAction::triggered, this, [this] {
        if (!TopToolbar::setRemoved(m_program, true))
            m_activity.say(FrameLines::settingNotSaved());
    });
    connect(customize, &QAction::triggered, this, &WindowToolbar::customize);
    menu->popup(mapToGlobal(place));
}
