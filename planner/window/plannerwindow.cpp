// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/plannerwindow.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/window/calendaroptionspanel.h"
#include "planner/window/daysview.h"
#include "planner/window/plannerchanges.h"
#include "planner/window/plannerprint.h"
#include "planner/window/plannersidepane.h"
#include "planner/window/plannerviews.h"
#include "planner/window/recurrencepanel.h"
#include "planner/window/searchpanel.h"
#include "planner/window/todoimporter.h"
#include "shell/controls/activitybar.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/viewmarks.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"Zcalandar1"_s,
            .caption = u"Personal Planner"_s,
            .activity = u"Personal Planner"_s,
            .colors = {SettingsKeys::plannerColor, SettingsKeys::plannerProgramColor, {}},
            .helpContext = HelpContext::Planner};
}

} // namespace

Zcalandar1::Zcalandar1(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_files(program.folder)
    , m_options(CalendarOptions::read(program.settings))
    , m_import(new ToDoImporter(program, m_files, activity(), this))
    , m_side(new PlannerSidePane(program, colors(), m_files))
    , m_day(new DayEditor(program, m_files))
    , m_views(new PlannerViews(program, m_files, m_options, m_day))
    , m_hits(new SearchPanel(m_files, program.state.dateStyle))
    , m_recurrence(new RecurrencePanel(program))
    , m_changes(new PlannerChanges(
          program,
          {*m_day, *m_recurrence, *m_import, undoStack(), [this] { return mayReplaceDay(); },
           [this](QWidget *panel) { showView(panel); }, [this](QDate date) { showChanged(date); }},
          this))
    , m_optionsPanel(new CalendarOptionsPanel)
    , m_print(new PlannerPrint(program, this, {m_files, m_options, m_day, m_views},
                               [this] { return mayReplaceDay(); }))
    , m_splitter(new SideSplitter(u"leftPaneSplitter"_s, m_side, makeWorkPanel(),
                                  [this](QSize window) { return m_side->fitWindow(window); }))
{
    setWork(m_splitter);
    setViews(&m_views->stack());
    makeCommands();
    connectDay();
    connectViews();
    connectWalks();
    m_side->setOptions(m_options);
    finishFrame();
    m_day->load(clock().today());
    commands().refresh();
    m_day->focusFirstEmptyRow();
}

QWidget *Zcalandar1::makeWorkPanel()
{
    QWidget *panel = makePanel(u"dayPanel"_s, m_views);
    for (TaskPanel *task : std::initializer_list<TaskPanel *>{m_hits, m_recurrence, m_optionsPanel})
        m_views->stack().addPanel(task);
    return panel;
}

/// The tools stand in the order in which their commands are made: the View menu's first.
void Zcalandar1::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    addViewCommands(addMenu(u"mV"_s, u"&View"_s));
    addEditCommands(edit);
    addOptionCommands(options);
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    commands().writing(commands().add(utilities, u"mUImport"_s, u"&Import To Do List Items"_s,
                                      [this] { importToDoItems(); }));
    utilities->addSeparator();
    utilities->addActions({standard(Standard::Backup), standard(Standard::Restore)});
    addHelpEntry();
    addUsualTools();
    // The fourteen rows of the day need the height that a second row of tools would take.
    for (const char *name : {"mEPaste_tool", "mECopy", "mH_tool"})
        toolbar().giveWay(findChild<QAction *>(QLatin1StringView(name)));
}

void Zcalandar1::addViewCommands(QMenu *menu)
{
    const auto look = [this](DaysView *view) {
        if (!mayReplaceDay())
            return;
        closePreview();
        m_views->openDays(view, m_views->date());
    };
    const auto whyNot = [this] { return whyNoStep(); };
    Commands &all = commands();
    QAction *day = all.add(
        menu, u"mVDay"_s, u"&Day View"_s, [this] { showDay(); }, {}, CommonKeys::views[0]);
    QAction *week = all.add(
        menu, u"mVWeek"_s, u"&Week View"_s, [=, this] { look(m_views->week()); }, {}, CommonKeys::views[1]);
    QAction *month = all.add(
        menu, u"mVMonth"_s, u"&Month View"_s, [=, this] { look(m_views->month()); }, {},
        CommonKeys::views[2]);
    menu->addSeparator();
    all.add(
           menu, u"mVBack"_s, u"&Previous"_s, [this] { m_views->step(-1); }, whyNot)
        ->setShortcuts({Qt::Key_PageUp, Qt::CTRL | Qt::Key_Left});
    all.add(
           menu, u"mVNext"_s, u"&Next"_s, [this] { m_views->step(1); }, whyNot)
        ->setShortcuts({Qt::Key_PageDown, Qt::CTRL | Qt::Key_Right});
    all.add(menu, u"mVToday"_s, u"&Today"_s, [this] { goTo(clock().today()); })
        ->setShortcut(Qt::CTRL | Qt::Key_T);
    all.add(menu, u"mVGo"_s, u"&Go to Date"_s, [this] { m_day->askForDate(); })
        ->setShortcut(Qt::CTRL | Qt::Key_G);
    all.tool(day, "day-view"_L1, u"Day"_s);
    QAction *weekTool = all.tool(week, "week-view"_L1, u"Week"_s, u"mVWeek_tool"_s);
    all.tool(month, "month-view"_L1, u"Month"_s);
    all.separateTools();
    auto *marks = new ViewMarks(&m_views->stack());
    marks->add(m_day, {day});
    marks->add(m_views->week(), {week, weekTool});
    marks->add(m_views->month(), {month});
}

void Zcalandar1::addEditCommands(QMenu *menu)
{
    const auto dayOnly = [this] { return whyNoDay(); };
    const auto copy = [this] {
        m_day->copy();
        commands().refresh();
    };
    const auto whyNoPaste = [this] {
        return whyNoDay().isEmpty() && !m_day->hasCopy() ? PlannerLines::copyFirst() : whyNoDay();
    };
    m_changes->addCommands(menu, commands(), m_views->stack());
    Commands &all = commands();
    QAction *copyDay = all.add(menu, u"mECopy"_s, u"&Copy Day"_s, copy, dayOnly);
    QAction *paste = all.writing(all.add(
        menu, u"mEPaste"_s, u"&Paste Day"_s, [this] { m_day->paste(); }, whyNoPaste));
    menu->addSeparator();
    QAction *repeat = all.writing(all.add(
        menu, u"mERec"_s, u"&Recurrence Option"_s, [this] { showRecurrence(); },
        [this] { return whyNoStep(); }, Qt::CTRL | Qt::Key_R));
    menu->addSeparator();
    QAction *find = all.add(
        menu, u"mEFind"_s, u"&Search All Years"_s, [this] { startSearch(); }, {}, CommonKeys::search);
    all.tool(repeat, "repeat"_L1, u"Repeat"_s);
    all.tool(find, "search"_L1, u"Search"_s);
    all.separateTools();
    all.tool(copyDay, "copy"_L1, u"Copy Day"_s);
    all.tool(paste, "edit"_L1, u"Paste Day"_s, u"mEPaste_tool"_s);
}

void Zcalandar1::addOptionCommands(QMenu *menu)
{
    const auto dayOnly = [this] { return whyNoDay(); };
    Commands &all = commands();
    menu->addAction(standard(Standard::PanelColor));
    all.writing(all.add(menu, u"mOCal"_s, u"&Calendar Options"_s, [this] {
        m_optionsPanel->setOptions(CalendarOptions::read(program().settings));
        showView(m_optionsPanel);
    }));
    menu->addSeparator();
    all.writing(all.add(
        menu, u"mOSave"_s, u"&Save Day"_s, [this] { m_day->saveByCommand(); }, dayOnly, CommonKeys::save));
    all.writing(all.add(
        menu, u"mOClr"_s, u"C&lear Day"_s, [this] { m_day->clear(); }, dayOnly));
    menu->addSeparator();
    m_print->addCommands(all, menu);
    menu->addSeparator();
    menu->addAction(standard(Standard::Exit));
}

void Zcalandar1::connectDay()
{
    connect(m_side, &PlannerSidePane::searchRequested, this, &Zcalandar1::search);
    connect(m_side, &PlannerSidePane::dateChosen, this, &Zcalandar1::goTo);
    connect(m_side, &PlannerSidePane::said, &activity(), &ActivityBar::say);
    connect(m_side, &PlannerSidePane::dayEntered, this, [this] {
        showDay();
        m_day->focusFirstEmptyRow();
    });
    connect(m_day, &DayEditor::loaded, m_side, &PlannerSidePane::setDate);
    connect(m_day, &DayEditor::saved, m_side, &PlannerSidePane::refreshMarks);
    connect(m_day, &DayEditor::dateRequested, this, &Zcalandar1::goTo);
    connect(m_day, &DayEditor::said, &activity(), &ActivityBar::say);
}

void Zcalandar1::connectViews()
{
    connect(m_views, &PlannerViews::dayOpened, this, &Zcalandar1::goTo);
    connect(m_views, &PlannerViews::said, &activity(), &ActivityBar::say);
    connect(m_hits, &SearchPanel::hitOpened, this,
            [this](QDate date, int row) { showPlace({.date = date, .row = row}); });
    connect(m_optionsPanel, &CalendarOptionsPanel::accepted, this, &Zcalandar1::takeOptions);
    // A month and the recurrence panel need the whole width, and have calendars of their own.
    connect(&m_views->stack(), &WorkViews::changed, this,
            [this](QWidget *view) { m_side->setVisible(view != m_views->month() && view != m_recurrence); });
    connect(&activity(), &ActivityBar::dayBegan, m_side, &PlannerSidePane::showToday);
    connect(&activity(), &ActivityBar::dayBegan, m_views, &PlannerViews::showToday);
    connect(&program().changes, &ProgramSignals::guardsChanged, this, &Zcalandar1::refreshNotes);
}

void Zcalandar1::connectWalks()
{
    connect(m_recurrence, &RecurrencePanel::busyChanged, this, &Zcalandar1::setUpdating);
    connect(m_recurrence, &RecurrencePanel::filesChanged, this, &Zcalandar1::refreshFromFiles);
    connect(m_recurrence, &RecurrencePanel::said, &activity(), &ActivityBar::say);
    connect(m_import, &ToDoImporter::busyChanged, this, &Zcalandar1::setUpdating);
    connect(m_import, &ToDoImporter::filesChanged, this, &Zcalandar1::refreshFromFiles);
    connect(m_import, &ToDoImporter::filesChanged, m_day, &DayEditor::focusCurrentRow);
    connect(m_changes, &PlannerChanges::said, &activity(), &ActivityBar::say);
}

Message Zcalandar1::leaveQuestion() const
{
    return PlannerMessages::saveBeforeExiting();
}

Message Zcalandar1::replaceQuestion() const
{
    return PlannerMessages::saveBeforeNextAction();
}

bool Zcalandar1::mayReplaceDay()
{
    return mayReplace(replaceQuestion());
}

QString Zcalandar1::whyNoDay() const
{
    return m_views->stack().isHome() && !isPreviewShown() ? QString() : PlannerLines::inDayViewOnly();
}

/// In other views the page keys turn pages and scroll lists.
QString Zcalandar1::whyNoStep() const
{
    return m_views->areDatesShown() && !isPreviewShown() ? QString() : PlannerLines::inCalendarViewsOnly();
}

void Zcalandar1::goTo(QDate date)
{
    if (date.isValid() && !CalendarDates::has(date)) {
        m_side->setDate(m_day->date());
        activity().say(PlannerLines::beyondDates(program().state.dateStyle));
        return;
    }
    // Nothing is replaced by the day that is there.
    const bool isThere = date == m_day->date() && isModified();
    if (!date.isValid() || (!isThere && !mayReplaceDay())) {
        m_side->setDate(m_day->date());
        return;
    }
    if (isThere) {
        m_side->setDate(date);
    } else {
        activity().say({});
        m_day->load(date);
    }
    const bool wasElsewhere = !m_views->stack().isHome();
    showDay();
    wasElsewhere ? m_day->focusFirstEmptyRow() : m_day->leaveFilledRow();
}

/// A page on the screen gives way: nothing goes on behind it.
void Zcalandar1::showView(QWidget *view)
{
    closePreview();
    m_views->stack().open(view);
    view->setFocus();
    activity().say({});
}

void Zcalandar1::showDay()
{
    closePreview();
    m_views->stack().goHome();
}

void Zcalandar1::takeOptions()
{
    const bool hasOtherMonths = m_optionsPanel->options().months != m_options.months;
    m_options = m_optionsPanel->options();
    m_side->setOptions(m_options);
    if (hasOtherMonths)
        m_splitter->forgetPlace();
    showDay();
    if (!m_options.write(program().settings))
        activity().say(FrameLines::settingNotSaved());
}

void Zcalandar1::startSearch()
{
    closePreview();
    if (!m_side->isVisible())
        showDay();
    m_side->focusSearch();
}

void Zcalandar1::search(const QString &text)
{
    if (!m_hits->search(text, clock().today())) {
        activity().say(PlannerLines::nothingFound(text));
        return;
    }
    showView(m_hits);
}

void Zcalandar1::showPlace(const Place &place)
{
    goTo(place.date);
    if (place.row >= 0 && m_day->date() == place.date)
        m_day->focusRow(place.row);
}

void Zcalandar1::showRecurrence()
{
    if (m_views->shownDays() && !openToRepeat())
        return;
    Appointment appointment = m_day->currentAppointment();
    if (!appointment.isEmpty() && !mayReplaceDay())
        return;
    // What was saved may stand in another row now; what was dropped gives way to what the file has there.
    if (!m_day->has(appointment))
        appointment = m_day->currentAppointment();
    if (appointment.isEmpty()) {
        activity().say(PlannerLines::rowIsEmpty());
        return;
    }
    showView(m_recurrence);
    m_recurrence->open(appointment, m_day->date(), m_day->placement(), m_options);
}

/// Opens the day that a week or a month has in front; true when it is plain which entry is to be repeated.
bool Zcalandar1::openToRepeat()
{
    goTo(m_views->date());
    if (!m_views->stack().isHome())
        return false;
    if (m_day->typed().entryCount() != 1) {
        activity().say(PlannerLines::rowIsEmpty());
        return false;
    }
    m_day->focusRow(0);
    return true;
}

void Zcalandar1::importToDoItems()
{
    if (ask(PlannerMessages::importToDoItems()) == Answer::Yes && mayReplaceDay() &&
        m_import->start(m_day->placement(), m_day->date()))
        showDay();
}

void Zcalandar1::setUpdating(bool isUpdating)
{
    setBusy(isUpdating);
    m_day->setEnabled(!isUpdating);
}

void Zcalandar1::refreshFromFiles()
{
    m_side->refreshMarks();
    m_day->reload();
}

/// What other functions have for the days goes as soon as the password guards them.
void Zcalandar1::refreshNotes()
{
    m_side->refreshMarks();
    m_day->refreshNotes();
    m_views->showToday();
}

void Zcalandar1::showChanged(QDate date)
{
    m_side->refreshMarks();
    m_day->load(date.isValid() ? date : m_day->date());
    date.isValid() ? showDay() : m_views->showToday();
}
