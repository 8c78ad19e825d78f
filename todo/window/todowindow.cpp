// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/todowindow.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/searchbox.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/windowwriting.h"
#include "shell/frame/workviews.h"
#include "todo/model/messages.h"
#include "todo/window/entryline.h"
#include "todo/window/itemcommands.h"
#include "todo/window/itemgrid.h"
#include "todo/window/itemsview.h"
#include "todo/window/listcommands.h"
#include "todo/window/listspane.h"
#include "todo/window/notebox.h"
#include "todo/window/openlists.h"
#include "todo/window/ordercommands.h"
#include "todo/window/todoprint.h"
#include "todo/window/todospelling.h"
#include "todo/window/windowlines.h"

#include <QListView>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"ToDo1"_s,
            .caption = u"Personal To Do List"_s,
            .activity = u"To Do List"_s,
            .colors = {SettingsKeys::toDoColor, SettingsKeys::toDoProgramColor, SettingsKeys::toDoTextColor},
            .helpContext = HelpContext::ToDoList};
}

struct ViewFace {
    Shown::Kind kind;
    QString name;
    QString caption;
    QLatin1StringView icon;
};

const std::array<ViewFace, 4> &viewFaces()
{
    static const std::array<ViewFace, 4> faces{
        {{Shown::Today, u"mVToday"_s, u"&Today"_s, "day-view"_L1},
         {Shown::Coming, u"mVComing"_s, u"&Coming"_s, "week-view"_L1},
         {Shown::ByPerson, u"mVPerson"_s, u"By &Person"_s, "family-name"_L1},
         {Shown::Done, u"mVDone"_s, u"&Done"_s, "goal-reached"_L1}}};
    return faces;
}

} // namespace

ToDo1::ToDo1(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_lists(new OpenLists(program, this))
    , m_writing(WindowWriting::make(program, this))
    , m_pane(new ListsPane(program, *m_lists, this))
    , m_stack(new WorkViews(this))
    , m_view(new ItemsView(desk()))
    , m_items(new ItemCommands(desk(), *m_view, this))
    , m_order(new OrderCommands(desk(), *m_view, this))
    , m_spelling(new ToDoSpelling(desk(), *m_view, this))
    , m_print(new ToDoPrint(desk(), *m_view, this))
    , m_listCommands(new ListCommands(desk(), *m_pane, *m_view, this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_pane, makeWorkPanel(),
                             [](QSize window) { return window.width() < 1200 ? 212 : 252; }));
    makeCommands();
    setViews(m_stack);
    connectParts();
    connectLists();
    finishFrame();
    bring(Shown());
    load();
    m_view->setFocus();
}

ToDoDesk ToDo1::desk()
{
    return {program(), *this, *m_lists, commands(), *m_stack, *m_writing};
}

QWidget *ToDo1::makeWorkPanel()
{
    QWidget *panel = makePanel(u"toDoPanel"_s, m_stack);
    m_stack->addHome(m_view);
    return panel;
}

/// The tools stand in the order in which their commands are made.
void ToDo1::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    QMenu *lists = addMenu(u"mL"_s, u"&Lists"_s);
    makeViewCommands(view);
    undoStack().addCommands(edit);
    m_items->addCommands(edit);
    m_order->addCommands(edit);
    m_listCommands->addCommands(lists);
    addUsualOptions(options, [this](QMenu *menu) { addOptions(menu); });
    m_spelling->addCommands(addMenu(u"mSp"_s, u"&Spelling"_s));
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_print->addExportCommand(utilities);
    utilities->addSeparator();
    utilities->addActions({standard(Standard::Backup), standard(Standard::Restore)});
    addHelpEntry();
    commands().separateTools();
    addUsualTools();
    makeButtons();
}

void ToDo1::makeViewCommands(QMenu *view)
{
    for (std::size_t i = 0; i < viewFaces().size(); ++i) {
        const ViewFace &face = viewFaces()[i];
        QAction *command = commands().add(
            view, face.name, face.caption,
            [this, kind = face.kind] {
                bring({kind, 0, {}});
                m_view->setFocus();
            },
            {}, CommonKeys::views[i]);
        command->setCheckable(true);
        m_viewActions.emplace_back(face.kind, command);
    }
    view->addSeparator();
    commands().add(
        view, u"mVSearch"_s, u"&Search"_s, [this] { m_pane->startSearch(); }, {}, CommonKeys::search);
}

void ToDo1::addOptions(QMenu *options)
{
    m_print->addCommands(options);
    options->addSeparator();
    commands().writing(commands().add(
        options, u"mOSave"_s, u"&Save"_s, [this] { saveByCommand(); },
        [this] { return m_lists->whyLocked(); }, CommonKeys::save));
}

void ToDo1::makeButtons()
{
    ButtonRow &foot = m_view->foot();
    QPushButton *add =
        commands().button(m_items->addCommand(), u"addItemButton"_s, u"&Add"_s, m_view, ButtonKind::Main);
    m_view->setAddButton(add);
    foot.addLeft(commands().button(m_items->removeCommand(), u"removeItem"_s,
                                   m_items->removeCommand()->text(), &foot));
    QPushButton *overdue = commands().button(m_items->overdueCommand(), u"moveOverdue"_s,
                                             m_items->overdueCommand()->text(), &foot);
    foot.addLeft(overdue);
    m_view->setOverdueButton(overdue);
    foot.addRight(
        commands().button(m_items->tickCommand(), u"tickItem"_s, m_items->tickCommand()->text(), &foot));
    foot.addRight(commands().button(standard(Standard::Exit), u"exitButton"_s, u"E&xit"_s, &foot));
    QAction *create = m_listCommands->createCommand();
    QPushButton *newList = commands().button(create, u"newListButton"_s, create->text(), m_pane);
    m_pane->addButton(newList);
    setTabOrder(&m_pane->lists(), newList);
    setTabOrder(&m_view->entry(), add);
    setTabOrder(add, &m_view->grid());
}

void ToDo1::connectParts()
{
    const auto say = [this](const QString &line) { activity().say(line); };
    const auto done = [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
    };
    connect(m_pane, &ListsPane::chosen, this, [this](const Shown &shown) { bring(shown); });
    connect(m_pane, &ListsPane::entered, m_view, [this] {
        closePreview();
        if (!m_stack->isHome())
            m_stack->goHome();
        m_view->setFocus();
    });
    connect(m_pane, &ListsPane::dropped, this,
            [this](int list, const std::vector<int> &ids) { m_order->moveToList(ids, list); });
    connect(m_lists, &OpenLists::changed, this, &ToDo1::followLists);
    connect(m_lists, &OpenLists::edited, &undoStack(), qOverload<UndoStep>(&UndoStack::push));
    connect(m_lists, &OpenLists::fileTouched, this, [this] { watchFiles(m_lists->fileNames()); });
    connect(m_lists, &OpenLists::said, this, say);
    connect(m_view, &ItemsView::said, this, say);
    connect(m_view, &ItemsView::moved, &commands(), &Commands::refresh);
    connect(&m_view->note(), &NoteBox::said, this, say);
    connect(m_view, &ItemsView::done, this, done);
    connect(m_print, &ToDoPrint::said, this, say);
    connect(m_spelling, &ToDoSpelling::said, this, say);
    connect(m_listCommands, &ListCommands::said, this, say);
    connect(m_listCommands, &ListCommands::done, this, done);
    connect(&m_view->grid(), &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        findChild<QMenu *>(u"mE"_s)->popup(m_view->grid().viewport()->mapToGlobal(place));
    });
    connect(&activity(), &ActivityBar::dayBegan, this, &ToDo1::followLists);
}

/// What leads to another list.
void ToDo1::connectLists()
{
    const auto bringList = [this](int list) { bring({Shown::List, list, {}}); };
    connect(m_order, &OrderCommands::listWanted, this, bringList);
    const auto goTo = [this](const Shown &shown) {
        bring(shown);
        m_view->setFocus();
    };
    connect(m_listCommands, &ListCommands::wanted, this, goTo);
    // Not while the grid is still about the click.
    connect(
        m_view, &ItemsView::listWanted, this,
        [goTo](int list) {
            goTo({Shown::List, list, {}});
        },
        Qt::QueuedConnection);
}

void ToDo1::bring(const Shown &shown)
{
    activity().say(m_lists->whyLocked());
    if (shown != m_view->shown())
        m_items->takeLine(); // where it was typed
    if (!m_stack->isHome())
        m_stack->goHome();
    closePreview();
    if (shown.kind != Shown::Search)
        m_pane->clearSearch();
    m_view->show(shown);
    m_pane->show(shown);
    for (const auto &[kind, action] : m_viewActions)
        action->setChecked(kind == shown.kind);
    commands().refresh();
}

void ToDo1::followLists()
{
    m_pane->refresh();
    const Shown shown = m_view->shown();
    if (shown.kind == Shown::List && !m_lists->sheet().list(shown.list))
        bring(Shown());
    else
        m_view->followLists();
    emit m_view->moved();
}

void ToDo1::load()
{
    if (const int taken = m_lists->load(); taken > 0) {
        activity().say(ToDoWindowLines::takenIn(taken));
        undoStack().offer();
    } else if (const QString why = m_lists->whyLocked(); !why.isEmpty()) {
        activity().say(why);
    }
}

bool ToDo1::isModified() const
{
    m_view->finishEdit();
    m_items->takeLine();
    return !m_lists->isSaved() && !m_lists->save();
}

bool ToDo1::save()
{
    return m_lists->save();
}

void ToDo1::drop()
{
    load();
}

/// The disk has refused; Yes leaves all the same.
Answer ToDo1::askToLeave()
{
    return ask(ToDoMessages::leaveUnsaved()) == Answer::Yes ? Answer::No : Answer::Cancel;
}

void ToDo1::saveByCommand()
{
    m_view->finishEdit();
    m_items->takeLine();
    if (m_lists->save())
        activity().say(ToDoWindowLines::saved());
}

void ToDo1::filesChanged()
{
    m_view->finishEdit();
    closePreview();
    if (!m_lists->isSaved()) {
        activity().say(ToDoWindowLines::changedElsewhereToo());
        return;
    }
    load();
    activity().say(ToDoWindowLines::changedElsewhere());
}

void ToDo1::showPlace(const Place &place)
{
    const ToDoSheet &sheet = m_lists->sheet();
    const int row = sheet.rowOf(place.record);
    if (row < 0)
        return;
    bring(sheet.isDone(row) ? Shown{Shown::Done, 0, {}} : Shown{Shown::List, sheet.listOf(row), {}});
    m_view->choose({place.record});
    m_view->grid().setFocus();
}
