// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/listcommands.h"

#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/trashpanel.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"
#include "todo/model/listtrash.h"
#include "todo/model/messages.h"
#include "todo/window/itemsview.h"
#include "todo/window/listspane.h"
#include "todo/window/newlistpanel.h"
#include "todo/window/openlists.h"
#include "todo/window/panellines.h"
#include "todo/window/windowlines.h"

#include <QMenu>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

ListCommands::ListCommands(const ToDoDesk &desk, ListsPane &pane, ItemsView &view, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_pane(pane)
    , m_view(view)
{
    connect(&m_pane, &ListsPane::renamed, this, &ListCommands::rename);
    connect(&m_pane, &ListsPane::ordered, this, &ListCommands::moveBefore);
}

QAction *ListCommands::add(QMenu *menu, const QString &name, const QString &caption,
                           std::function<void()> run, const QKeySequence &key)
{
    return m_desk.commands.writing(m_desk.commands.add(
        menu, name, caption, std::move(run), [this] { return whyNone(); }, key));
}

void ListCommands::addCommands(QMenu *menu)
{
    Commands &commands = m_desk.commands;
    const auto unlessLocked = [this] { return m_desk.lists.whyLocked(); };
    m_create = commands.writing(commands.add(
        menu, u"mLNew"_s, u"&New List"_s, [this] { startNew(false); }, unlessLocked,
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N)));
    commands.writing(commands.add(
        menu, u"mLFrom"_s, u"New List from &Template"_s, [this] { startNew(true); }, unlessLocked));
    menu->addSeparator();
    add(menu, u"mLName"_s, u"&Rename List"_s, [this] { m_pane.rename(list()->id); });
    addOrderCommands(menu);
    menu->addSeparator();
    add(menu, u"mLKeep"_s, u"&Save List as a Template"_s, [this] { startTemplate(); });
    commands.writing(commands.add(menu, u"mEBack"_s, u"Bring &Back Deleted..."_s, [this] { openTrash(); }));
    menu->addSeparator();
    add(menu, u"mLDel"_s, u"&Delete List"_s, [this] { remove(); });
}

void ListCommands::addOrderCommands(QMenu *menu)
{
    add(
        menu, u"mLUp"_s, u"Move List &Up"_s, [this] { moveBy(-1); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Up));
    add(
        menu, u"mLDown"_s, u"Move List Do&wn"_s, [this] { moveBy(1); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Down));
}

/// The list that is shown; null while something else is.
const ToDoList *ListCommands::list() const
{
    const Shown &shown = m_view.shown();
    return shown.kind == Shown::List ? m_desk.lists.sheet().list(shown.list) : nullptr;
}

QString ListCommands::whyNone() const
{
    const QString why = m_desk.lists.whyLocked();
    return !why.isEmpty() || list() ? why : ToDoWindowLines::noListChosen();
}

bool ListCommands::make(const ToDoActions::Result &result)
{
    if (!result.isChange() || !m_desk.lists.change(result.title, result.sheet))
        return false;
    emit done(result.title);
    return true;
}

void ListCommands::makePanel()
{
    if (!m_panel) {
        m_panel = new NewListPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &NewListPanel::accepted, this, &ListCommands::create);
        connect(m_panel, &TaskPanel::left, &m_desk.views, &WorkViews::goHome);
    }
    m_view.finishEdit();
    m_desk.window.closePreview();
}

void ListCommands::openPanel()
{
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void ListCommands::startNew(bool isFromTemplate)
{
    makePanel();
    m_panel->start(m_desk.lists.sheet(), isFromTemplate);
    openPanel();
}

void ListCommands::startTemplate()
{
    makePanel();
    const ToDoList &kept = *list();
    m_panel->startKeeping(m_desk.lists.sheet(), kept.id,
                          ToDoWindowLines::templateName(m_desk.lists.sheet(), kept.name));
    openPanel();
}

void ListCommands::create()
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const QString name = m_panel->name();
    const QString why = ListActions::whyNotNamed(sheet, name);
    const std::optional<QDate> day = m_panel->day();
    if (!why.isEmpty() || !day) {
        m_panel->refuse(!why.isEmpty() ? why : NewListLines::noDay());
        return;
    }
    const NewListPanel::Beginning beginning = m_panel->beginning();
    const QDate today = m_desk.program.clock.today();
    ToDoActions::Result made;
    switch (beginning.kind) {
    case NewListPanel::Beginning::OwnTemplate:
        made = ListActions::fromTemplate(sheet, beginning.place, name, *day, today);
        break;
    case NewListPanel::Beginning::KeptList:
        made = ListActions::saveAsTemplate(sheet, beginning.place, name, *day);
        break;
    case NewListPanel::Beginning::BuiltIn:
        made = ListActions::fromBuiltIn(sheet, beginning.place, name, *day, today);
        break;
    default: {
        const bool isShopping = beginning.kind == NewListPanel::Beginning::Shopping;
        made = ListActions::add(sheet, isShopping ? ListKind::Shopping : ListKind::Plain, name);
    }
    }
    if (!make(made))
        return;
    m_desk.views.goHome();
    if (!made.ids.empty() && beginning.kind != NewListPanel::Beginning::KeptList)
        emit wanted({Shown::List, made.ids.front(), {}});
    emit done(made.title); // another list says nothing as it comes
}

void ListCommands::rename(int id, const QString &name)
{
    const QString why = ListActions::whyNotNamed(m_desk.lists.sheet(), name, id);
    if (why.isEmpty())
        make(ListActions::rename(m_desk.lists.sheet(), id, name));
    else
        emit said(why);
}

/// `before` is 0 for the end of the lists as they are shown, behind which only templates stand.
void ListCommands::moveBefore(int id, int before)
{
    if (const QString why = m_desk.lists.whyLocked(); !why.isEmpty()) {
        emit said(why);
        return;
    }
    const std::vector<ToDoList> &lists = m_desk.lists.sheet().lists();
    int from = -1;
    int to = int(lists.size());
    int behindLast = 0;
    for (int place = 0; place < int(lists.size()); ++place) {
        const ToDoList &list = lists[std::size_t(place)];
        from = list.id == id ? place : from;
        to = list.id == before ? place : to;
        behindLast = list.kind != ListKind::Template ? place + 1 : behindLast;
    }
    to = std::min(to, behindLast);
    if (from >= 0)
        make(ListActions::move(m_desk.lists.sheet(), id, from < to ? to - 1 : to));
}

/// Among the lists as they are shown, between which templates may stand.
void ListCommands::moveBy(int direction)
{
    const std::vector<ToDoList> &lists = m_desk.lists.sheet().lists();
    const int id = list()->id;
    int place = 0;
    while (lists[std::size_t(place)].id != id)
        ++place;
    do {
        place += direction;
    } while (place >= 0 && place < int(lists.size()) && lists[std::size_t(place)].kind == ListKind::Template);
    if (place >= 0 && place < int(lists.size()))
        make(ListActions::move(m_desk.lists.sheet(), id, place));
}

void ListCommands::remove()
{
    const ToDoList gone = *list();
    const QStringList open = ListActions::openTexts(m_desk.lists.sheet(), gone.id);
    if (m_desk.program.dialogs.ask(&m_desk.window, ToDoMessages::deleteList(gone.name, open)) != Answer::Yes)
        return;
    emit wanted({});
    const ToDoSheet before = m_desk.lists.sheet();
    const ToDoActions::Result result = ListActions::remove(before, gone.id);
    if (!result.isChange() || !m_desk.lists.change(result.title, result.sheet))
        return;
    const Trash::State trash =
        ListTrash::put(m_desk.program.folder, before, gone.id, m_desk.program.clock.now());
    emit done(FrameLines::withTrash(result.title, trash));
}

void ListCommands::openTrash()
{
    m_view.finishEdit();
    if (!m_trash) {
        m_trash = new TrashPanel(m_desk.program.state.dateStyle, &m_desk.views);
        m_desk.views.addPanel(m_trash);
        connect(m_trash, &TrashPanel::chosen, this, &ListCommands::bringBack);
        connect(m_trash, &TaskPanel::left, &m_desk.views, &WorkViews::goHome);
    }
    m_desk.window.closePreview();
    m_trash->setItems(
        ListTrash::items(m_desk.program.folder, m_desk.lists.sheet(), m_desk.program.clock.now()));
    m_desk.views.open(m_trash);
    m_trash->setFocus();
}

void ListCommands::bringBack(const Trash::Item &item)
{
    const ToDoActions::Result result = ListTrash::bringBack(m_desk.lists.sheet(), item);
    if (!make(result))
        return;
    m_desk.views.goHome();
    emit wanted({Shown::List, result.ids.front(), {}});
    emit done(result.title);
}
