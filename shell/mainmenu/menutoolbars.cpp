// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/menutoolbars.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/framelines.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/frame/toolbarcustomizer.h"
#include "shell/frame/toolbarlayout.h"
#include "shell/frame/toptoolbar.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/functionopener.h"
#include "shell/mainmenu/sidetoolbar.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QAction>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int topIconSide = 24;
/// Of a button of the top toolbar, while there is room.
constexpr int widestTopButton = 88;

/// Object names of the designed top toolbar, in order.
QStringList designedTop()
{
    QStringList names;
    for (const int position : TopButtons::designedLayout())
        names << (position < 0 ? QString::fromLatin1(ToolbarLayout::separatorName)
                               : TopButtons::objectName(position));
    return names;
}

} // namespace

MenuToolBars::MenuToolBars(Program &program, ActivityBar &activity, const FunctionOpener &opener,
                           QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_activity(activity)
    , m_window(window)
    , m_top(named(new FlowToolBar(Qt::Horizontal, window), u"Toolbar1"_s))
    , m_left(new SideToolbar(u"Toolbar2"_s, SideToolbar::Left, window))
    , m_right(new SideToolbar(u"Toolbar3"_s, SideToolbar::Right, window))
{
    makeTop(opener);
    connect(&activity, &ActivityBar::restoreTopToolbarRequested, this,
            [this] { tellUnless(TopToolbar::setRemoved(m_program, false)); });
    connect(&activity, &ActivityBar::restoreSideToolbarsRequested, this, [this] { showSides(true); });
    connect(&program.changes, &ProgramSignals::topToolbarChanged, this, &MenuToolBars::showTop);
}

void MenuToolBars::makeTop(const FunctionOpener &opener)
{
    const Icons::Scheme scheme = Theme::of(m_window).scheme;
    QList<QAction *> actions;
    QStringList ofOthers;
    for (int position = 0; position < TopButtons::count; ++position) {
        const TopButtons::TopButton &button = TopButtons::all()[std::size_t(position)];
        QAction *action = makeAction(TopButtons::objectName(position), button.wordText(), m_window);
        connect(action, &QAction::triggered, this, [&opener, &button] { opener.press(button); });
        if (button.isGap())
            continue;
        action->setToolTip(button.descriptionText());
        action->setIcon(Icons::icon(QLatin1StringView(button.icon), scheme));
        if (button.needs && !m_program.functions.has(*button.needs))
            setUnavailable(action, FunctionFaces::of(*button.needs).missingReason());
        actions << action;
        if (button.isOfOtherEdition())
            ofOthers << action->objectName();
    }
    m_firstButton = actions.first();
    m_top->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_top->setIconSize(topIconSide);
    m_top->setEqualWidths(widestTopButton);
    m_top->setStyleSheet(u"QToolButton { padding: 0 1px; }"_s); // words as wide as they need
    m_top->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_top, &QWidget::customContextMenuRequested, this, &MenuToolBars::showTopMenu);
    m_topLayout = new ToolbarLayout(m_program, m_top, u"Toolbar1"_s, actions, designedTop());
    m_topLayout->setOfOtherEditions(ofOthers);
}

QAction *MenuToolBars::addTool(const SideToolbar &bar, int position, QLatin1StringView icon,
                               const QString &word, const QString &tip, std::function<void()> run)
{
    const QString name = bar.bar().objectName() + u'_' + QString::number(position);
    QAction *action = makeAction(name, word, m_window);
    action->setIcon(Icons::icon(icon, Theme::of(m_window).scheme));
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, std::move(run));
    bar.bar().addAction(action);
    return action;
}

void MenuToolBars::setFirstButtonEnabled(bool enabled)
{
    m_firstButton->setEnabled(enabled);
}

void MenuToolBars::setCovered(bool covered)
{
    m_isCovered = covered;
    showTop();
    showSides(m_areSidesShown);
}

void MenuToolBars::showTop()
{
    const bool isRemoved = TopToolbar::isRemoved(m_program, SettingsKeys::topToolbar);
    if (!isRemoved && (m_top->isHidden() || m_top->actions().isEmpty()))
        m_topLayout->restore();
    m_top->setVisible(!isRemoved && !m_isCovered);
    m_activity.offerTopToolbar(isRemoved && !m_isCovered);
}

void MenuToolBars::showSides(bool shown)
{
    m_areSidesShown = shown;
    m_left->setVisible(shown && !m_isCovered);
    m_right->setVisible(shown && !m_isCovered);
    m_activity.offerSideToolbars(!shown && !m_isCovered);
}

void MenuToolBars::toggleTop()
{
    const bool isRemoved = TopToolbar::isRemoved(m_program, SettingsKeys::topToolbar);
    const bool isSaved = TopToolbar::setRemoved(m_program, !isRemoved);
    emit rearranged();
    tellUnless(isSaved);
}

void MenuToolBars::removeSides()
{
    showSides(false);
    const bool isSaved =
        m_program.settings.setNumber(SettingsKeys::sideToolbarMarker, SettingsKeys::sideToolbarsRemoved);
    emit rearranged();
    tellUnless(isSaved);
}

void MenuToolBars::tellUnless(bool isSaved)
{
    m_activity.say(isSaved ? QString() : FrameLines::settingNotSaved());
}

void MenuToolBars::customizeTop()
{
    if (TopToolbar::isRemoved(m_program, SettingsKeys::topToolbar)) {
        m_program.dialogs.ask(m_window, ShellMessages::topToolbarIsRemoved());
        return;
    }
    ToolbarCustomizer customizer(*m_topLayout, m_window);
    m_program.dialogs.run(customizer);
    tellUnless(customizer.isSaved());
}

void MenuToolBars::showTopMenu(const QPoint &place)
{
    auto *menu = named(new QMenu(m_window), u"toolbarMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction *remove = makeAction(u"removeTopToolbar"_s, u"&Remove Top Toolbar"_s, menu);
    QAction *customize = makeAction(u"customizeToolbar"_s, u"&Customize Toolbar"_s, menu);
    connect(remove, &QAction::triggered, this, &MenuToolBars::toggleTop);
    connect(customize, &QAction::triggered, this, &MenuToolBars::customizeTop);
    menu->addActions({remove, customize});
    menu->popup(m_top->mapToGlobal(place));
}
