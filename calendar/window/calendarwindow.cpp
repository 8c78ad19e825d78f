// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/calendarwindow.h"

#include "calendar/model/messages.h"
#include "calendar/window/barcommands.h"
#include "calendar/window/calendarcommands.h"
#include "calendar/window/calendarprint.h"
#include "calendar/window/calendarspane.h"
#include "calendar/window/calendarspelling.h"
#include "calendar/window/cellcommands.h"
#include "calendar/window/celltyping.h"
#include "calendar/window/fillcommands.h"
#include "calendar/window/monthcells.h"
#include "calendar/window/monthpage.h"
#include "calendar/window/opencalendars.h"
#include "calendar/window/photocommands.h"
#include "calendar/window/windowlines.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/emptypage.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/windowwriting.h"
#include "shell/frame/workviews.h"

#include <QHideEvent>
#include <QMenu>
#include <QPushButton>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Words on an upright sheet are too small to be read where all of it is shown.
QString zoomKey(const CalendarLook &look)
{
    return u"Windows/Calendar/"_s + (look.isLandscape ? u"wholeSheet"_s : u"wholeUprightSheet"_s);
}

WindowTraits traits()
{
    return {.name = u"Calendar"_s,
            .caption = u"Calendar Maker"_s,
            .activity = u"Calendar Maker"_s,
            .colors = {SettingsKeys::calendarColor, SettingsKeys::calendarProgramColor,
                       SettingsKeys::calendarTextColor},
            .helpContext = HelpContext::CalendarMaker};
}

} // namespace

Calendar::Calendar(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_calendars(new OpenCalendars(program, this))
    , m_writing(WindowWriting::make(program, this))
    , m_stack(new WorkViews(this))
    , m_page(new MonthPage(program, *m_calendars))
    , m_empty(new EmptyPage("calendar"_L1, u"There is no calendar yet"_s,
                            u"A calendar is filled from what the household has planned, and by hand."_s))
    , m_pane(new CalendarsPane(*m_calendars, m_page->sheets(), this))
    , m_typing(new CellTyping(desk(), this))
    , m_cells(new CellCommands(desk(), *m_typing, this))
    , m_bars(new BarCommands(desk(), *m_typing, this))
    , m_photos(new PhotoCommands(desk(), *m_typing, this))
    , m_filling(new FillCommands(desk(), *m_typing, this))
    , m_commands(new CalendarCommands(desk(), *m_typing, *m_filling, this))
    , m_spelling(new CalendarSpelling(desk(), *m_typing, this))
    , m_print(new CalendarPrint(desk(), *m_typing,
                                {[this]() -> PreviewPane & { return preview(); }, activity()}, this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_pane, makeWorkPanel(),
                             [](QSize window) { return window.width() < 1200 ? 212 : 272; }));
    makeCommands();
    setViews(m_stack);
    connectParts();
    connectPage();
    finishFrame();
    m_calendars->refresh();
    m_calendars->show(m_calendars->nearest(clock().today()));
    showCalendar();
    watchCalendars();
}

CalendarDesk Calendar::desk()
{
    return {program(), *this, *m_calendars, commands(), *m_stack, *m_writing, *m_page};
}

QWidget *Calendar::makeWorkPanel()
{
    QWidget *panel = makePanel(u"calendarPanel"_s, m_stack);
    m_stack->addHome(m_page);
    m_stack->addHome(m_empty);
    m_empty->hide();
    return panel;
}

/// The tools stand in the order in which their commands are made.
void Calendar::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    QMenu *calendar = addMenu(u"mC"_s, u"Calen&dar"_s);
    m_commands->addCommands(calendar);
    m_filling->addCommands(calendar);
    calendar->addSeparator();
    m_photos->addCommands(calendar);
    calendar->addSeparator();
    m_commands->addTrashCommands(calendar);
    undoStack().addCommands(edit);
    connect(edit, &QMenu::aboutToShow, this, [this] { m_typing->finish(); });
    edit->addSeparator();
    m_cells->addCommands(edit);
    edit->addSeparator();
    m_bars->addCommands(edit);
    makeView(view);
    addUsualOptions(options, [this](QMenu *menu) { addOptions(menu); });
    m_spelling->addCommands(addMenu(u"mSp"_s, u"&Spelling"_s));
    addUtilitiesMenu();
    addHelpEntry();
    commands().separateTools();
    addUsualTools();
    makeButtons();
}

void Calendar::addOptions(QMenu *options)
{
    m_print->addCommands(options);
    options->addSeparator();
    commands().writing(commands().add(
        options, u"mOSave"_s, u"&Save"_s, [this] { saveByCommand(); },
        [this] { return m_calendars->whyLocked(); }, CommonKeys::save));
}

void Calendar::makeView(QMenu *view)
{
    const auto needsCalendar = [this] {
        return m_calendars->current() ? QString() : CalendarWindowLines::noCalendar();
    };
    commands().add(
        view, u"mVPrev"_s, u"&Previous Month\tPgUp"_s, [this] { m_page->step(-1); }, needsCalendar);
    commands().add(
        view, u"mVNext"_s, u"&Next Month\tPgDown"_s, [this] { m_page->step(1); }, needsCalendar);
    commands().add(
        view, u"mVToday"_s, u"&This Month"_s, [this] { m_page->showDay(clock().today()); }, needsCalendar);
    view->addSeparator();
    m_whole =
        commands().add(view, u"mVWhole"_s, u"&Whole Sheet"_s, [this] { setZoom(m_whole->isChecked()); });
    m_whole->setCheckable(true);
    connect(view, &QMenu::aboutToShow, m_whole, [this] { m_whole->setChecked(m_page->cells().isWhole()); });
    view->addSeparator();
    commands().add(
        view, u"mVSearch"_s, u"&Search"_s, [this] { m_pane->startSearch(); }, needsCalendar,
        CommonKeys::search);
}

void Calendar::setZoom(bool isWhole)
{
    program().store.setValue(zoomKey(m_calendars->calendar().look), isWhole);
    followZoom();
}

void Calendar::followZoom()
{
    const CalendarLook &look = m_calendars->calendar().look;
    const QVariant chosen = program().store.value(zoomKey(look));
    const bool isWhole = chosen.isValid() ? chosen.toBool() : look.isLandscape;
    m_page->cells().setZoom(!isWhole           ? DrawnSheet::Zoom::SheetWidth
                            : chosen.isValid() ? DrawnSheet::Zoom::WholeSheet
                                               : DrawnSheet::Zoom::Readable);
    m_whole->setChecked(m_page->cells().isWhole());
}

void Calendar::makeButtons()
{
    ButtonRow &foot = m_page->foot();
    for (const auto &[command, name] : {std::pair(m_cells->removeCommand(), u"removeLine"_s),
                                        std::pair(m_cells->dateCommand(), u"moveLine"_s)})
        foot.addLeft(commands().button(command, name, command->text(), &foot));
    foot.addRight(commands().button(m_filling->command(), u"fillButton"_s, m_filling->command()->text(),
                                    &foot, ButtonKind::Main));
    QAction *create = m_commands->createCommand();
    m_create = commands().button(create, u"newCalendarButton"_s, u"&New Calendar"_s, m_pane);
    m_pane->addButton(m_create);
    m_empty->addButton(
        commands().button(create, u"firstCalendarButton"_s, u"&New Calendar"_s, m_empty, ButtonKind::Main));
    foot.addRight(commands().button(standard(Standard::Exit), u"exitButton"_s, u"E&xit"_s, &foot));
}

void Calendar::connectParts()
{
    const auto say = [this](const QString &line) { activity().say(line); };
    const auto done = [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
    };
    connect(m_calendars, &OpenCalendars::shown, this, &Calendar::showCalendar);
    connect(m_calendars, &OpenCalendars::changed, this, &Calendar::follow);
    connect(m_calendars, &OpenCalendars::edited, &undoStack(), qOverload<UndoStep>(&UndoStack::push));
    connect(m_calendars, &OpenCalendars::fileTouched, this, &Calendar::watchCalendars);
    connect(m_calendars, &OpenCalendars::said, this, say);
    connect(m_typing, &CellTyping::said, this, say);
    connect(m_typing, &CellTyping::done, this, done);
    connect(m_typing, &CellTyping::changed, &commands(), &Commands::refresh);
    connect(m_cells, &CellCommands::said, this, say);
    connect(m_cells, &CellCommands::done, this, done);
    connect(m_bars, &BarCommands::said, this, say);
    connect(m_bars, &BarCommands::done, this, done);
    connect(m_photos, &PhotoCommands::said, this, say);
    connect(m_photos, &PhotoCommands::done, this, done);
    connect(m_filling, &FillCommands::said, this, say);
    connect(m_filling, &FillCommands::done, this, done);
    connect(m_commands, &CalendarCommands::said, this, say);
    connect(m_commands, &CalendarCommands::done, this, done);
    connect(m_spelling, &CalendarSpelling::said, this, say);
    connect(m_stack, &WorkViews::changed, this, [this] {
        m_typing->finish();
        if (!m_stack->isHome())
            activity().say({}); // it was said of the month
        else if (activity().message().isEmpty())
            activity().say(m_leftOver);
        m_calendars->setHeld(m_commands->isEditing() ? CalendarWindowLines::keepFirst() : QString());
        commands().refresh();
    });
    connect(&activity(), &ActivityBar::dayBegan, this, &Calendar::follow);
}

void Calendar::connectPage()
{
    connect(m_page, &MonthPage::said, this, [this](const QString &line) { activity().say(line); });
    connect(m_page, &MonthPage::leftOverChanged, this, [this](const QString &line) {
        m_leftOver = line;
        activity().say(line);
    });
    connect(m_page, &MonthPage::monthChanged, this, [this] { m_pane->setMonth(m_page->month()); });
    connect(m_page, &MonthPage::moved, this, [this] {
        commands().refresh();
        m_cells->follow();
    });
    connect(m_pane, &CalendarsPane::calendarChosen, this, [this](int number) {
        if (leavePanel())
            m_calendars->show(number);
        else
            m_calendars->refresh(); // the mark goes back
    });
    connect(m_pane, &CalendarsPane::monthChosen, this, [this](QDate month) {
        if (leavePanel())
            m_page->showDay(month);
        else
            m_pane->setMonth(m_page->month());
    });
    connect(m_pane, &CalendarsPane::hitOpened, this, [this](QDate date, int line) {
        if (!leavePanel())
            return;
        m_page->showLine(date, line);
        m_page->setFocus();
    });
    connect(m_pane, &CalendarsPane::entered, m_page, [this] {
        if (leavePanel())
            m_page->setFocus();
    });
    connect(&m_page->cells(), &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        findChild<QMenu *>(u"mE"_s)->popup(m_page->cells().viewport()->mapToGlobal(place));
    });
}

/// Before another month is shown: what stands over this one is left, and may refuse.
bool Calendar::leavePanel()
{
    m_typing->finish();
    closePreview();
    if (!m_stack->isHome())
        m_stack->leave();
    return m_stack->isHome();
}

void Calendar::showCalendar()
{
    const bool isThere = m_calendars->current();
    m_stack->setHome(isThere ? static_cast<QWidget *>(m_page) : m_empty);
    m_create->setVisible(isThere); // without one, the same button stands in the middle
    closePreview();
    m_stack->goHome();
    followZoom();
    m_page->startOver();
    const CalendarHead *head = m_calendars->head();
    QString why = isThere ? m_calendars->whyLocked() : QString();
    if (why.isEmpty() && head && !head->from.isValid())
        why = head->isEmpty ? CalendarWindowLines::emptyFile() : CalendarWindowLines::noFirstMonth();
    if (!why.isEmpty() || !isThere)
        activity().say(why);
    if (!isThere || !m_pane->isAncestorOf(focusWidget())) // one may walk through the list
        m_stack->home()->setFocus();
    commands().refresh();
    m_filling->checkSoon();
}

void Calendar::follow()
{
    followZoom();
    m_page->follow();
    m_cells->follow();
    if (m_calendars->isListStale())
        m_calendars->refresh();
    commands().refresh();
}

bool Calendar::isModified() const
{
    m_typing->finish();
    const bool isSaved = m_calendars->isSaved() || m_calendars->save();
    return !isSaved || m_commands->isModified();
}

bool Calendar::save()
{
    return m_calendars->save();
}

void Calendar::drop()
{
    m_calendars->reread();
}

/// The disk has refused; Yes leaves all the same.
Answer Calendar::askToLeave()
{
    return ask(CalendarMessages::leaveUnsaved()) == Answer::Yes ? Answer::No : Answer::Cancel;
}

/// What other windows have changed meanwhile may be missing here.
void Calendar::changeEvent(QEvent *event)
{
    FunctionWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    if (m_calendars->fileNames() != m_watched) { // one came, or has gone
        m_calendars->refresh();
        watchCalendars();
    }
    m_filling->checkAgain();
}

void Calendar::watchCalendars()
{
    m_watched = m_calendars->fileNames();
    watchFiles(m_watched);
}

/// What was deleted leaves the disk with the window.
void Calendar::hideEvent(QHideEvent *event)
{
    FunctionWindow::hideEvent(event);
    if (!event->spontaneous() && !m_calendars->throwAway())
        emit program().changes.settingNotSaved();
}

void Calendar::saveByCommand()
{
    m_typing->finish();
    if (m_calendars->save())
        activity().say(CalendarWindowLines::saved());
}

void Calendar::filesChanged()
{
    m_typing->finish();
    closePreview();
    const bool isWhole = m_calendars->reread();
    activity().say(isWhole ? CalendarWindowLines::changedElsewhere()
                           : CalendarWindowLines::changedElsewhereToo());
}

void Calendar::showPlace(const Place &place)
{
    if (!leavePanel())
        return;
    m_calendars->show(place.record);
    m_page->showLine(place.date, place.row);
    m_page->setFocus();
}
