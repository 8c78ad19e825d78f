// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weighttracker.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/emptypage.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"
#include "weight/model/messages.h"
#include "weight/model/weightpaperlines.h"
#include "weight/window/datecheck.h"
#include "weight/window/openperson.h"
#include "weight/window/personchanges.h"
#include "weight/window/personpane.h"
#include "weight/window/personpictures.h"
#include "weight/window/personprint.h"
#include "weight/window/personviews.h"
#include "weight/window/planview.h"
#include "weight/window/toldchoice.h"
#include "weight/window/weighinfiles.h"
#include "weight/window/weighinsview.h"
#include "weight/window/windowlines.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"WeightTracker"_s,
            .caption = u"Individual Weight Tracker"_s,
            .activity = u"Weight Tracker"_s,
            .colors = {SettingsKeys::weightColor, SettingsKeys::weightProgramColor, {}},
            .helpContext = HelpContext::WeightTracker,
            .topToolbar = SettingsKeys::weightTopToolbar};
}

} // namespace

WeightTracker::WeightTracker(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_person(new OpenPerson(
          program, [this](const Message &message) { return ask(message); }, this))
    , m_dateCheck(new DateCheck(program.clock, this))
    , m_list(new PersonPane({[this] { return isModified(); }, [this] { return mayReplace(leaveQuestion()); }},
                            this))
    , m_stack(new WorkViews(this))
    , m_views(new PersonViews(desk(), this))
    , m_changes(new PersonChanges(desk(),
                                  {undoStack(), *m_views, [this](const QString &name) { openList(name); },
                                   [this] { return mayReplace(leaveQuestion()); }},
                                  this))
    , m_pictures(new PersonPictures(desk(), *m_views, this))
    , m_print(new PersonPrint(desk(), *m_views, this))
    , m_files(new WeighInFiles(desk(), *m_views, this))
    , m_emptyPage(new EmptyPage("weight"_L1, u"Nobody is in the list yet"_s,
                                u"A name is enough to begin; the first weight is typed then."_s, this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_list, makeWorkPanel(),
                             [](QSize window) { return window.width() < 1200 ? 212 : 252; }));
    makeCommands();
    setViews(m_stack);
    connectParts();
    finishFrame();
    openList({});
    offerUnlisted();
}

WeightDesk WeightTracker::desk()
{
    return {program(), *this, *m_person, *m_dateCheck, commands(), *m_stack};
}

QWidget *WeightTracker::makeWorkPanel()
{
    QWidget *panel = makePanel(u"weightPanel"_s, m_stack);
    m_stack->addHome(m_emptyPage);
    return panel;
}

/// The tools stand in the order in which their commands are made.
void WeightTracker::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    m_views->addCommands(view);
    m_pictures->addCommand(view);
    view->addSeparator();
    commands().add(view, u"mVFile"_s, u"&View Existing File"_s, [this] { viewExisting(); });
    undoStack().addCommands(edit);
    m_changes->addEditCommands(edit);
    edit->addSeparator();
    makeRowCommands(edit);
    m_print->addCommand(options);
    options->addAction(standard(Standard::PanelColor));
    options->addSeparator();
    m_commands.create = m_changes->addCreate(options);
    m_commands.saveNew = m_changes->addSaveNew(options);
    m_commands.remove = m_changes->addDelete(options);
    options->addSeparator();
    m_commands.dates = m_dateCheck->addCommand(commands(), options);
    connect(new ToldChoice(desk(), options, this), &ToldChoice::said, &activity(), &ActivityBar::say);
    options->addSeparator();
    m_commands.save = m_changes->addSave(options);
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    utilities->addActions({standard(Standard::Backup), standard(Standard::Restore)});
    utilities->addSeparator();
    m_files->addCommands(utilities);
    addHelpEntry();
    commands().separateTools();
    addUsualTools();
    makeFoot();
    makeListButtons();
}

void WeightTracker::makeRowCommands(QMenu *edit)
{
    WeighInsView &rows = m_views->weighIns();
    const auto unless = [this] { return m_person->whyLocked(); };
    m_commands.addRow = commands().writing(commands().add(
        edit, u"mEAdd"_s, u"&Add Additional Row"_s, [&rows] { rows.addRow(); }, unless));
    m_commands.deleteRow = commands().writing(commands().add(
        edit, u"mEDel"_s, u"Delete Selected &Row"_s, [&rows] { rows.deleteRow(); },
        [this] { return whyNoRow(); }));
    commands().setKeyIn(&rows.table(), m_commands.deleteRow, CommonKeys::remove);
    commands().writing(commands().add(
        edit, u"mESort"_s, u"&Sort by Date"_s, [&rows] { rows.sortRows(); }, unless));
    commands().add(
        edit, u"mEWeight"_s, u"Show by &Weight"_s, [&rows] { rows.turnByWeight(); },
        [this] { return m_person->sheet().weighIns.isEmpty() ? WeightPaperLines::noWeighIns() : QString(); });
    rows.setAddButton(commands().button(m_commands.addRow, u"addRow"_s, m_commands.addRow->text(), &rows));
    connect(&rows, &WeighInsView::rowChosen, &commands(), &Commands::refresh);
}

QString WeightTracker::whyNoRow() const
{
    const QString why = m_person->whyLocked();
    return !why.isEmpty() || m_views->weighIns().isRowChosen() ? why : TrackerLines::noRowChosen();
}

/// What is rare or dangerous stands at the left, where it belongs to the view.
void WeightTracker::makeFoot()
{
    ButtonRow &rows = m_views->weighIns().foot();
    rows.addLeft(
        commands().button(m_commands.deleteRow, u"deleteRow"_s, m_commands.deleteRow->text(), &rows));
    rows.addLeft(commands().button(m_commands.dates, u"dateChecker"_s, m_commands.dates->text(), &rows));
    QAction *graph = m_views->command(PersonViews::Graph);
    rows.addRight(commands().button(graph, u"graphDisplay"_s, graph->text(), &rows));
    ButtonRow &plan = m_views->plan().foot();
    plan.addLeft(commands().button(m_commands.remove, u"Command8"_s, m_commands.remove->text(), &plan));
    plan.addRight(commands().button(m_commands.saveNew, u"Command11"_s, m_commands.saveNew->text(), &plan));
    for (PersonView *view : m_views->all()) {
        ButtonRow &foot = view->foot();
        const QString name = view->objectName();
        const QString saveName = view == &m_views->weighIns() ? u"Command10"_s : QString(name + u"Save"_s);
        foot.addRight(commands().button(m_commands.save, saveName, u"&Save"_s, &foot, ButtonKind::Main));
        foot.addRight(commands().button(standard(Standard::Exit), name + u"Exit"_s, u"E&xit"_s, &foot));
    }
}

void WeightTracker::makeListButtons()
{
    QAction *create = m_commands.create;
    m_list->addButton(commands().button(create, u"createNew"_s, create->text(), m_list));
    m_emptyPage->addButton(
        commands().button(create, u"emptyCreate"_s, create->text(), m_emptyPage, ButtonKind::Main));
    m_emptyPage->addButton(commands().button(standard(Standard::Restore), u"emptyRestore"_s,
                                             standard(Standard::Restore)->text(), m_emptyPage));
    // Del works in the list alone, and stands in no menu for it: there it is that of the rows.
    QAction *remove = m_commands.remove;
    QAction *key = commands().writing(
        commands().add(nullptr, u"deletePersonKey"_s, remove->text(), [remove] { remove->trigger(); }));
    commands().setKeyIn(m_list->focusProxy(), key, CommonKeys::remove);
}

void WeightTracker::connectParts()
{
    connect(m_list, &PersonPane::chosen, this, &WeightTracker::openPerson);
    connect(m_list, &PersonPane::entered, m_stack, [this] { m_stack->currentWidget()->setFocus(); });
    connect(m_person, &OpenPerson::said, &activity(), &ActivityBar::say);
    connect(m_person, &OpenPerson::renamed, m_list, [this] {
        m_list->setNames(m_person->files().names());
        m_list->show(m_person->name());
    });
    connect(m_person, &OpenPerson::loaded, this, &WeightTracker::refreshHome);
    connect(m_person, &OpenPerson::loaded, &undoStack(), &UndoStack::forgetTyped);
    connect(m_person, &OpenPerson::edited, &undoStack(), qOverload<UndoStep>(&UndoStack::push));
    connect(m_person, &OpenPerson::fileTouched, this, [this] { watchFiles(m_person->fileNames()); });
    connect(m_person, &OpenPerson::changed, &commands(), &Commands::refresh);
    connect(&activity(), &ActivityBar::dayBegan, &m_views->weighIns(), &WeighInsView::beginDay);
    connect(m_dateCheck, &DateCheck::said, &activity(), &ActivityBar::say);
    connect(m_changes, &PersonChanges::said, &activity(), &ActivityBar::say);
    connect(m_pictures, &PersonPictures::said, &activity(), &ActivityBar::say);
    connect(m_print, &PersonPrint::said, &activity(), &ActivityBar::say);
    connect(m_files, &WeighInFiles::said, &activity(), &ActivityBar::say);
    connect(m_views, &PersonViews::said, &activity(), &ActivityBar::say);
    const auto done = [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
    };
    connect(m_views, &PersonViews::done, this, done);
    connect(m_files, &WeighInFiles::done, this, done);
}

bool WeightTracker::isModified() const
{
    m_views->finishEdit();
    return m_person->isModified();
}

void WeightTracker::showPlace(const Place &place)
{
    const QString name = m_person->files().names().value(place.record - 1);
    if (name.isEmpty() || (name != m_person->name() && !mayReplace(leaveQuestion())))
        return;
    if (name != m_person->name())
        openList(name);
    m_views->open(PersonViews::WeighIns);
    if (place.row >= 0)
        m_views->weighIns().showRow(place.row);
}

bool WeightTracker::save()
{
    return m_changes->save();
}

/// A person who was being created is given up.
void WeightTracker::drop()
{
    m_person->reload();
    if (!m_person->isOpen())
        openList({});
}

Message WeightTracker::leaveQuestion() const
{
    return WeightMessages::saveChanges();
}

void WeightTracker::filesChanged()
{
    m_views->finishEdit();
    // Its pages would show what the files had before.
    closePreview();
    const QString name = m_person->name();
    if (m_person->isModified()) {
        activity().say(TrackerLines::changedElsewhereToo(name));
        return;
    }
    openList(name);
    activity().say(TrackerLines::changedElsewhere(name));
}

/// Reads the list anew and opens the person of that name; the first one where there is no such person.
void WeightTracker::openList(const QString &name)
{
    const QStringList names = m_person->files().names();
    m_list->setNames(names);
    openPerson(names.contains(name) ? name : names.value(0));
    m_stack->currentWidget()->setFocus();
}

void WeightTracker::openPerson(const QString &name)
{
    activity().say({});
    m_list->show(name);
    m_person->load(name);
}

void WeightTracker::refreshHome()
{
    if (m_person->isNew())
        m_list->show({});
    m_stack->setHome(m_person->isOpen() ? static_cast<QWidget *>(&m_views->weighIns()) : m_emptyPage);
    if (!m_person->isOpen())
        m_stack->goHome();
    commands().refresh();
}

void WeightTracker::viewExisting()
{
    if (m_list->names().isEmpty()) {
        ask(WeightMessages::noFiles());
        return;
    }
    m_list->setFocus();
}

/// Whoever has a file and was lost from the list can be added again.
void WeightTracker::offerUnlisted()
{
    const QStringList names = m_person->files().unlisted();
    if (names.isEmpty() || !program().folder.whyReadOnly().isEmpty())
        return;
    activity().say(TrackerLines::unlisted(names));
    activity().offerWay(TrackerLines::addUnlisted(), [this, names] { m_changes->addToList(names); });
}
