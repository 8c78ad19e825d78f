// How the planner's window is put together.

#include "planner/window/plannerwindow.h"

#include "planner/model/lines.h"
#include "planner/window/calendaroptionspanel.h"
#include "planner/window/comingup.h"
#include "planner/window/dayform.h"
#include "planner/window/monthgrid.h"
#include "planner/window/plannercalendar.h"
#include "planner/window/recurrencepanel.h"
#include "planner/window/searchpanel.h"
#include "planner/window/steptitle.h"
#include "planner/window/weekview.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/settingskeys.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"

#include <QAction>
#include <QButtonGroup>
#include <QRadioButton>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The left pane: with one month, whose days keep their names, and with two months side by side.
constexpr int leftPaneWidth = 328;
constexpr int narrowPaneWidth = 272;
constexpr int twoMonthsWidth = 596;
/// Windows from this width on have room for two months and for all tools; those below the other shorten
/// words.
constexpr int wideFrom = 1200;
constexpr int narrowBelow = 1000;
/// In windows lower than this the left pane scrolls.
constexpr int shortBelow = 700;
constexpr int scrollBarRoom = 20;

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

/// The days of a year that hold more than blank rows.
QSet<QDate> daysWithEntries(const PlannerFiles &files, int year)
{
    QSet<QDate> days;
    files.forEachDay(year, [&days](QDate date, const PlannerDay &day) {
        if (!day.isEmpty())
            days.insert(date);
    });
    return days;
}

} // namespace

Zcalandar1::Zcalandar1(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_files(program.folder)
    , m_importWork(new SlicedWork(this))
{
    m_splitter = named(new QSplitter(Qt::Horizontal), u"leftPaneSplitter"_s);
    m_splitter->addWidget(makeLeftPane());
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
    const int placement = program.settings.number(SettingsKeys::plannerPlacement);
    m_placement->button(placement == int(UntimedPlacement::First) ? 1 : 0)->setChecked(true);
    loadDay(clock().today());
    setOptions(CalendarOptions::read(program.settings));
    refreshCommands();
    m_form->focusRow(m_form->firstEmptyRow());
}

Zcalandar1::~Zcalandar1() = default;

QWidget *Zcalandar1::makeLeftPane()
{
    m_leftPane = named(new QWidget(this), u"leftPane"_s);
    m_leftPane->setMinimumWidth(leftPaneWidth - 4);
    auto *content = new QWidget;
    // As wide as the pane, whatever the calendar would like.
    content->setMinimumWidth(1);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    m_searchBox = named(new QLineEdit(m_leftPane), u"plannerSearch"_s);
    m_searchBox->setPlaceholderText(u"Search all years"_s);
    m_searchBox->setAccessibleName(u"Search all years"_s);
    m_searchBox->setClearButtonEnabled(true);
    m_searchBox->addAction(Icons::icon("search"_L1, Theme::of(this).scheme), QLineEdit::LeadingPosition);
    m_searchBox->setToolTip(u"Type a part of an appointment and press Enter"_s);

    QWidget *calendarPanel = makePanel(u"calendarPanel"_s);
    auto *calendarLayout = new QVBoxLayout(calendarPanel);
    calendarLayout->setContentsMargins(12, 10, 12, 12);
    m_calendar = new PlannerCalendar(
        clock(), [this](int year) { return daysWithEntries(m_files, year); }, calendarPanel);
    calendarLayout->addWidget(m_calendar);

    QWidget *comingPanel = makePanel(u"comingUpPanel"_s);
    auto *comingLayout = new QVBoxLayout(comingPanel);
    comingLayout->setContentsMargins(18, 14, 12, 12);
    m_comingUp = new ComingUp(program(), comingPanel);
    comingLayout->addWidget(m_comingUp);
    layout->addWidget(calendarPanel);
    layout->addWidget(comingPanel, 1);
    auto *rows = new QVBoxLayout(m_leftPane);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    rows->addWidget(m_searchBox);
    QScrollArea *scroll = makeScrolling(content, u"leftPaneScroll"_s, m_leftPane);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rows->addWidget(scroll, 1);
    return m_leftPane;
}

QWidget *Zcalandar1::makeWorkPanel()
{
    QWidget *panel = makePanel(u"dayPanel"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    m_views = new QStackedWidget(panel);
    layout->addWidget(m_views);
    const DateStyle style = program().state.dateStyle;
    m_dayView = makeDayView();
    m_week = new WeekView(m_files, style);
    m_month = new MonthGrid(m_files, style);
    m_searchPanel = new SearchPanel(style);
    m_recurrence = named(new RecurrencePanel(program()), u"recurrencePanel"_s);
    m_optionsPanel = named(new CalendarOptionsPanel, u"calendarOptionsPanel"_s);
    for (QWidget *view : std::initializer_list<QWidget *>{m_dayView, m_week, m_month, m_searchPanel,
                                                          m_recurrence, m_optionsPanel})
        m_views->addWidget(view);
    return panel;
}

QWidget *Zcalandar1::makeDayView()
{
    auto *view = new QWidget;
    auto *rows = new QVBoxLayout(view);
    rows->setContentsMargins(20, 10, 20, 14);
    rows->setSpacing(4);
    m_caption = new StepTitle({u"SSPanel4"_s, u"day"_s, u"Today"_s}, view);
    m_form = new DayForm;
    rows->addWidget(m_caption);
    rows->addWidget(makeRowHeads());
    rows->addWidget(makeScrolling(m_form, u"dayScroll"_s, view), 1);
    rows->addWidget(makeLine(view));
    rows->addSpacing(4);
    rows->addWidget(makeDayFoot());
    return view;
}

/// The heads of the two columns, and where entries without AM or PM stand.
QWidget *Zcalandar1::makeRowHeads()
{
    auto *line = new QWidget;
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    QFont head = TypeScale::label();
    head.setWeight(QFont::DemiBold);
    QLabel *time = makeQuietLabel(u"Time"_s, line);
    QLabel *text = named(makeQuietLabel({}, line), u"textHead"_s);
    QLabel *without = named(makeQuietLabel(u"Without AM/PM:"_s, line), u"placementHead"_s);
    time->setFont(head);
    text->setFont(head);
    time->setFixedWidth(112);
    layout->addSpacing(28);
    layout->addWidget(time);
    layout->addWidget(text);
    layout->addStretch(1);
    layout->addWidget(without);
    m_placement = new QButtonGroup(this);
    for (const auto &[id, caption] :
         {std::pair{UntimedPlacement::Last, u"Last"_s}, {UntimedPlacement::First, u"First"_s}}) {
        auto *button = named(new QRadioButton(caption, line), u"Option7_"_s + QString::number(int(id)));
        button->setAccessibleName(u"Entries without AM/PM: "_s + caption);
        button->setToolTip(u"Where entries without AM or PM stand when the day is saved"_s);
        button->setFont(TypeScale::label());
        m_placement->addButton(button, int(id));
        layout->addWidget(button);
    }
    return line;
}

QWidget *Zcalandar1::makeDayFoot()
{
    auto *foot = new QWidget;
    QPushButton *clear = makeButton(u"clearDay"_s, u"&Clear Day"_s, foot);
    QPushButton *save = makeButton(u"saveDay"_s, u"&Save Day"_s, foot, ButtonKind::Main);
    QPushButton *exit = makeButton(u"exitPlanner"_s, u"E&xit"_s, foot);
    m_unsaved = named(makeQuietLabel({}, foot), u"unsavedWords"_s);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(clear);
    layout->addWidget(m_unsaved);
    layout->addStretch(1);
    layout->addWidget(save);
    layout->addWidget(exit);
    connect(clear, &QPushButton::clicked, this, &Zcalandar1::clearDay);
    connect(save, &QPushButton::clicked, this, &Zcalandar1::saveDay);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    return foot;
}

void Zcalandar1::connectParts()
{
    connect(m_searchBox, &QLineEdit::returnPressed, this, &Zcalandar1::search);
    connect(m_calendar, &PlannerCalendar::dateChosen, this, &Zcalandar1::goTo);
    connect(m_calendar, &PlannerCalendar::dayEntered, this, [this] {
        showDayView();
        m_form->focusRow(m_form->firstEmptyRow());
    });
    connect(&activity(), &ActivityBar::dayBegan, this, [this] {
        m_calendar->showToday();
        m_comingUp->setDate(m_loadedDate);
        for (DaysView *view : std::initializer_list<DaysView *>{m_week, m_month})
            if (view->isVisible())
                view->show(view->date(), m_options, clock().today());
    });
    connect(m_placement, &QButtonGroup::idClicked, this, &Zcalandar1::setPlacement);
    connect(m_caption, &StepTitle::stepped, this, &Zcalandar1::stepDay);
    connect(m_caption, &StepTitle::todayRequested, this, &Zcalandar1::goToToday);
    connect(m_form, &DayForm::edited, this, &Zcalandar1::refreshModified);
    connect(m_form, &DayForm::said, &activity(), &ActivityBar::say);
    auto *scroll = m_dayView->findChild<QScrollArea *>(u"dayScroll"_s);
    connect(m_form, &DayForm::rowEntered, this, [this, scroll](int row) {
        scroll->ensureWidgetVisible(m_form->textBox(row), 0, 40);
        activity().say(PlannerLines::row(row));
    });
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
            [this] { activity().showProgress(int(m_import.next), int(m_import.items.size()), true); });
    connect(m_importWork, &SlicedWork::finished, this, &Zcalandar1::finishImport);
    connect(&activity(), &ActivityBar::stopRequested, m_importWork, &SlicedWork::stop);
}

void Zcalandar1::setOptions(const CalendarOptions &options)
{
    m_options = options;
    m_calendar->setOptions(options);
    placeSplitter();
}

/// Until the user moves it, the left pane is as wide as suits the window and the months in it.
void Zcalandar1::placeSplitter()
{
    if (!m_weekTool)
        return; // still being put together
    const bool isWide = width() >= wideFrom;
    fitToolbar(isWide);
    m_dayView->findChild<QLabel *>(u"textHead"_s)
        ->setText(width() < narrowBelow ? QString() : u"Appointment or activity"_s);
    const int pane = width() < narrowBelow ? narrowPaneWidth : leftPaneWidth;
    m_leftPane->setMinimumWidth(pane - 4);
    if (isPlaced(m_splitter))
        return;
    const int scrollBar = height() < shortBelow ? scrollBarRoom : 0;
    const int left = (isWide && m_options.shownMonths() == 2 ? twoMonthsWidth : pane) + scrollBar;
    m_splitter->setSizes({left, std::max(1, m_splitter->width() - left - m_splitter->handleWidth())});
}
