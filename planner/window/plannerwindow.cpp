#include "planner/window/plannerwindow.h"

#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/model/todoimportrun.h"
#include "planner/window/calendaroptionspanel.h"
#include "planner/window/dayeditor.h"
#include "planner/window/monthgrid.h"
#include "planner/window/plannersidepane.h"
#include "planner/window/recurrencepanel.h"
#include "planner/window/searchpanel.h"
#include "planner/window/weekview.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/dates.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"
#include "shell/core/slicedwork.h"

#include <QAction>
#include <QKeyEvent>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Windows from this width on have room for all tools.
constexpr int wideFrom = 1200;

WindowTraits traits()
{
    WindowTraits traits;
    traits.name = u"Zcalandar1"_s;
    traits.caption = u"Personal Planner"_s;
    traits.activity = u"Personal Planner"_s;
    traits.colors = {SettingsKeys::plannerColor, SettingsKeys::plannerProgramColor, {}};
    traits.helpContext = HelpContext::Planner;
    traits.topToolbar = SettingsKeys::topToolbar;
    return traits;
}

} // namespace

Zcalandar1::Zcalandar1(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_files(program.folder)
    , m_importWork(new SlicedWork(this))
    , m_side(new PlannerSidePane(program, colors(), m_files, this))
{
    m_splitter = named(new QSplitter(Qt::Horizontal), u"leftPaneSplitter"_s);
    m_splitter->addWidget(m_side);
    m_splitter->addWidget(makeWorkPanel());
    m_splitter->setStretchFactor(1, 1);
    setWork(m_splitter);
    makeMenus();
    makeToolbar();
    connectParts();
    connectViews();
    connectWalks();
    rememberSplitter(m_splitter);
    finishFrame();
    m_day->load(clock().today());
    setOptions(CalendarOptions::read(program.settings));
    refreshCommands();
    m_day->focusFirstEmptyRow();
}

Zcalandar1::~Zcalandar1() = default;

QWidget *Zcalandar1::makeWorkPanel()
{
    QWidget *panel = makePanel(u"dayPanel"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    m_views = new QStackedWidget(panel);
    layout->addWidget(m_views);
    const DateStyle style = program().state.dateStyle;
    m_day = new DayEditor(program(), m_files);
    m_week = new WeekView(m_files, style);
    m_month = new MonthGrid(m_files, style);
    m_searchPanel = new SearchPanel(style);
    m_recurrence = new RecurrencePanel(program());
    m_optionsPanel = new CalendarOptionsPanel;
    for (QWidget *view : std::initializer_list<QWidget *>{m_day, m_week, m_month, m_searchPanel, m_recurrence,
                                                          m_optionsPanel})
        m_views->addWidget(view);
    return panel;
}

void Zcalandar1::connectParts()
{
    connect(m_side, &PlannerSidePane::searchRequested, this, &Zcalandar1::search);
    connect(m_side, &PlannerSidePane::dateChosen, this, &Zcalandar1::goTo);
    connect(m_side, &PlannerSidePane::dayEntered, this, [this] {
        showDayView();
        m_day->focusFirstEmptyRow();
    });
    connect(&activity(), &ActivityBar::dayBegan, this, [this] {
        m_side->showToday();
        for (DaysView *view : std::initializer_list<DaysView *>{m_week, m_month})
            if (view->isVisible())
                view->show(view->date(), m_options, clock().today());
    });
    connect(m_day, &DayEditor::loaded, m_side, &PlannerSidePane::setDate);
    connect(m_day, &DayEditor::saved, m_side, &PlannerSidePane::refreshMarks);
    connect(m_day, &DayEditor::stepped, this, &Zcalandar1::stepDay);
    connect(m_day, &DayEditor::todayRequested, this, &Zcalandar1::goToToday);
    connect(m_day, &DayEditor::said, &activity(), &ActivityBar::say);
}

void Zcalandar1::connectViews()
{
    const auto today = [this] { return clock().today(); };
    connect(m_week, &WeekView::dayOpened, this, &Zcalandar1::goTo);
    connect(m_week, &WeekView::left, this, &Zcalandar1::showDayView);
    connect(m_week, &WeekView::stepped, this,
            [this, today](int weeks) { openWeek(weeks == 0 ? today() : m_week->date().addDays(7 * weeks)); });
    connect(m_month, &MonthGrid::dayOpened, this, &Zcalandar1::goTo);
    connect(m_month, &MonthGrid::left, this, &Zcalandar1::showDayView);
    connect(m_month, &MonthGrid::stepped, this, [this, today](int months) {
        openMonth(months == 0 ? today() : m_month->date().addMonths(months));
    });
    connect(m_searchPanel, &SearchPanel::hitOpened, this, &Zcalandar1::openHit);
    connect(m_searchPanel, &SearchPanel::left, this, &Zcalandar1::showDayView);
    connect(m_optionsPanel, &CalendarOptionsPanel::accepted, this, &Zcalandar1::takeOptions);
    connect(m_optionsPanel, &CalendarOptionsPanel::left, this, &Zcalandar1::showDayView);
}

void Zcalandar1::connectWalks()
{
    connect(m_recurrence, &RecurrencePanel::busyChanged, this, &Zcalandar1::setWorking);
    connect(m_recurrence, &RecurrencePanel::filesChanged, this, &Zcalandar1::filesChanged);
    connect(m_recurrence, &RecurrencePanel::left, this, &Zcalandar1::showDayView);
    connect(m_recurrence, &RecurrencePanel::said, &activity(), &ActivityBar::say);
    connect(m_importWork, &SlicedWork::progressed, this,
            [this] { activity().showProgress(m_import->done(), m_import->count(), true); });
    connect(m_importWork, &SlicedWork::finished, this, &Zcalandar1::finishImport);
    connect(&activity(), &ActivityBar::stopRequested, m_importWork, &SlicedWork::stop);
}

void Zcalandar1::setOptions(const CalendarOptions &options)
{
    m_options = options;
    m_side->setOptions(options);
    placeSplitter();
}

/// Until the user moves it, the left pane is as wide as suits the window and the months in it.
void Zcalandar1::placeSplitter()
{
    fitToolbar(width() >= wideFrom);
    const int left = m_side->fitWindow(size());
    if (!isPlaced(m_splitter))
        m_splitter->setSizes({left, std::max(1, m_splitter->width() - left - m_splitter->handleWidth())});
}

bool Zcalandar1::isModified() const
{
    return m_day->isModified();
}

bool Zcalandar1::mayReplaceDay(const Message &question)
{
    if (!isModified())
        return true;
    if (ask(question) == Answer::Yes)
        return m_day->save();
    m_day->reload();
    return true;
}

bool Zcalandar1::mayDiscard()
{
    return mayReplaceDay(PlannerMessages::saveBeforeExiting());
}

void Zcalandar1::goTo(QDate date)
{
    // Nothing is replaced by the day that is there.
    if (date.isValid() && date == m_day->date() && isModified()) {
        m_side->setDate(date);
        showDayView();
        return;
    }
    if (!date.isValid() || !mayReplaceDay(PlannerMessages::saveBeforeNextAction())) {
        m_side->setDate(m_day->date());
        return;
    }
    activity().say({});
    m_day->load(date);
    showDayView();
}

void Zcalandar1::stepDay(int days)
{
    const QDate date = viewedDate();
    if (m_views->currentWidget() == m_day)
        goTo(date.addDays(days));
    else if (m_views->currentWidget() == m_week)
        openWeek(date.addDays(7 * days));
    else
        openMonth(date.addMonths(days));
}

void Zcalandar1::goToToday()
{
    goTo(clock().today());
}

void Zcalandar1::askForDate()
{
    const DateStyle style = program().state.dateStyle;
    const auto answer = program().dialogs.input(this, u"Go to Date"_s, u"Which day do you want to see?"_s,
                                                Dates::boxText(m_day->date(), style));
    if (!answer || answer->trimmed().isEmpty())
        return;
    if (const auto date = Dates::parse(*answer, style, clock().today()))
        goTo(*date);
    else
        activity().say(PlannerLines::noSuchDate(*answer));
}

void Zcalandar1::saveDay()
{
    m_day->saveByCommand();
}

void Zcalandar1::clearDay()
{
    m_day->clear();
}

void Zcalandar1::copyDay()
{
    m_day->copy();
    refreshCommands();
}

void Zcalandar1::pasteDay()
{
    m_day->paste();
}

void Zcalandar1::choosePanelColor()
{
    colors().choosePanelColor();
}

void Zcalandar1::openBackup()
{
    program().functions.open(Function::Backup, program());
}

void Zcalandar1::showHelp()
{
    emit program().changes.helpRequested(HelpContext::Planner);
}

void Zcalandar1::keyPressEvent(QKeyEvent *event)
{
    const bool isOverDay = m_views->currentWidget() != m_day;
    if (event->key() != Qt::Key_Escape || isPreviewShown() || !isOverDay)
        FunctionWindow::keyPressEvent(event);
    else if (!m_recurrence->isRunning())
        showDayView();
}

void Zcalandar1::resizeEvent(QResizeEvent *event)
{
    FunctionWindow::resizeEvent(event);
    placeSplitter();
}
