// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/dueview.h"

#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"
#include "cars/model/duewords.h"
#include "cars/model/historylines.h"
#include "cars/model/lines.h"
#include "cars/window/cargrid.h"
#include "cars/window/duecards.h"
#include "cars/window/opencar.h"
#include "cars/window/schedulemodel.h"
#include "shell/controls/controls.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/linkbutton.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/scrollpart.h"
#include "shell/controls/titleline.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QHBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// So many cards stand there while nothing is due.
constexpr qsizetype comingCards = 2;
/// In a lower view cards, or a second row of them, would leave no room for the schedule.
constexpr int linesForCards = 20;
constexpr int linesForTwoRows = 26;
constexpr int aroundLines = 124;         ///< what has no words
constexpr qsizetype longestReading = 20; ///< of one that is no number
constexpr int gap = 12;

/// Where there is much room, the intervals have some of it.
std::vector<CarColumns::Width> widths(DistanceUnit unit)
{
    using enum CarColumns::Room;
    return {{u"Inspect Brake Linings"_s, Words},
            {u"99999"_s, Growing},
            {u"Months"_s, Growing},
            {CarWords::mileage(unit)},
            {u"12/30/2026"_s},
            {u"999.99"_s},
            {u"-99999"_s},
            {u"-180 days___"_s}};
}

} // namespace

DueView::DueView(const CarDesk &desk)
    : CarView(u"due"_s, desk)
    , m_model(new ScheduleModel(desk.program, desk.car, this))
    , m_odometer(new LinkButton(u"newReading"_s, {}, this))
    , m_cards(new DueCards(this))
    , m_advice(named(makeQuietLabel({}, this), u"dueAdvice"_s))
    , m_rate(named(makeQuietLabel({}, this), u"drivingRate"_s))
    , m_schedule(makeSchedule())
{
    m_advice->setFont(TypeScale::body());
    m_advice->setWordWrap(true);
    titleLine().addAtRight(m_odometer);
    m_cards->setTabBehind(m_odometer);
    m_heading = makeScheduleHeading();
    auto *rows = new WholeRows(m_schedule, nullptr, this);
    rows->setGivesWay(true);
    for (QWidget *part : std::initializer_list<QWidget *>{m_advice, m_cards, m_heading})
        addContent(part);
    addContent(rows, 1);
    connect(m_schedule, &CarGrid::currentMoved, this, &DueView::showCurrentRow);
    setFocusProxy(m_schedule);
    addClearing();
    connect(m_cards, &DueCards::chosen, this, &DueView::doneRequested);
    connect(m_odometer, &LinkButton::clicked, this, &DueView::odometerRequested);
}

/// With the rate of driving at the end of the line.
QWidget *DueView::makeScheduleHeading()
{
    auto *heading = new QWidget(this);
    auto *row = new QHBoxLayout(heading);
    row->setContentsMargins(0, 4, 0, 0);
    row->setSpacing(gap);
    row->addWidget(makeHeading(u"Maintenance Schedule"_s, heading), 1);
    row->addWidget(m_rate, 0, Qt::AlignBottom);
    return heading;
}

/// Where there is little height, the cards are lines and the schedule goes without its heading: what is due
/// and some rows of the schedule are in sight anywhere.
void DueView::fit()
{
    const int line = QFontMetrics(TypeScale::body()).height();
    const bool isFlat = height() < aroundLines + linesForCards * line;
    m_cards->setFlat(isFlat);
    m_cards->setRows(isFlat || height() >= aroundLines + linesForTwoRows * line ? 2 : 1);
    m_heading->setVisible(!isFlat);
    setTight(isFlat);
}

/// The row that is worked on is in sight, with the ones beside it.
void DueView::showCurrentRow()
{
    const QRect row = m_schedule->visualRect(m_schedule->currentIndex());
    const QPoint place = m_schedule->viewport()->mapTo(scroll().widget(), row.center());
    if (m_schedule->isInUse())
        scroll().ensureVisible(0, place.y(), 0, 2 * CarGrid::usualRowHeight());
}

CarGrid *DueView::makeSchedule()
{
    const Program &program = desk().program;
    auto *picker = new DatePicker(program.clock, program.settings, &desk().window, u"MonthView4"_s);
    auto *grid = new CarGrid(program, u"Grid4"_s, picker, this);
    grid->setModel(m_model);
    grid->setAccessibleName(u"Maintenance schedule"_s);
    connect(grid, &CarGrid::said, this, &DueView::said);
    connect(grid, &CarGrid::refused, this, [this] { emit said(car().whyLocked(CarPart::Sheet)); });
    const auto goBack = [this](const QModelIndex &cell) {
        // Behind the box in which that is told, and behind the way that the key leads.
        QMetaObject::invokeMethod(
            this, [this, cell] { m_schedule->setCurrentIndex(cell); }, Qt::QueuedConnection);
    };
    connect(m_model, &ScheduleModel::noticed, this,
            [this, goBack](const Message &message, const QModelIndex &cell) {
                emit noticed(message);
                goBack(cell);
            });
    connect(m_model, &ScheduleModel::refused, this,
            [this, goBack](const QString &reason, const QModelIndex &cell) {
                emit said(reason);
                goBack(cell);
            });
    return grid;
}

/// Del empties the chosen cells, as in any worksheet: an action of the schedule is no entry of a history.
void DueView::addClearing()
{
    Commands &all = desk().commands;
    QAction *clear = all.writing(all.add(
        nullptr, u"clearCells"_s, u"Clear Cells"_s,
        [this] {
            if (const qsizetype cleared = m_model->clear(m_schedule->selectionModel()->selection()))
                emit said(HistoryLines::cleared(cleared));
        },
        [this] { return car().whyLocked(CarPart::Sheet); }));
    all.setKeyIn(m_schedule, clear, CommonKeys::remove);
}

void DueView::finishEdit()
{
    m_schedule->finishEdit();
}

void DueView::showRow(int row)
{
    m_schedule->setCurrentIndex(m_model->index(row, ScheduleColumn::action));
    m_schedule->scrollTo(m_schedule->currentIndex());
    m_schedule->setFocus();
}

void DueView::typeInterval()
{
    const auto &actions = car().record().sheet.actions;
    const auto next = std::ranges::find_if(actions, [](const ScheduledAction &action) {
        return !action.name.isEmpty() && action.distance.isEmpty() && action.months.isEmpty();
    });
    if (next == actions.end())
        return;
    showRow(int(next - actions.begin()));
    m_schedule->setCurrentIndex(m_schedule->currentIndex().siblingAtColumn(ScheduleColumn::intervalDistance));
}

void DueView::resizeEvent(QResizeEvent *event)
{
    fit();
    CarView::resizeEvent(event);
}

void DueView::refresh()
{
    m_model->refresh();
    m_schedule->setWidths(widths(car().unit()));
    showNeeds();
    const QString &reading = car().record().sheet.field(VehicleSheet::Odometer);
    const auto number = CarNumbers::number(reading);
    m_odometer->setText(CarLines::odometer(number ? DueWords::distance(*number, car().unit())
                                                  : reading.left(longestReading)));
    const QString rate = DueWords::rate(car().drivingLog(), car().unit(), desk().program.state.dateStyle,
                                        desk().program.clock.today());
    m_rate->setText(rate);
    m_odometer->setToolTip(rate.isEmpty() ? CarLines::newReading() : rate + u'\n' + CarLines::newReading());
}

/// What is due; where nothing is, what comes next.
void DueView::showNeeds()
{
    const QList<CarNeed> needs = CarNeeds::byUrgency(car().needs());
    QList<CarNeed> shown;
    std::ranges::copy_if(needs, std::back_inserter(shown), &CarNeed::isUrgent);
    if (shown.isEmpty()) {
        std::ranges::copy_if(needs, std::back_inserter(shown),
                             [](const CarNeed &need) { return need.state == CarNeed::State::Ahead; });
        shown.resize(std::min(shown.size(), comingCards));
    }
    titleLine().setTitle(DueWords::title(car().needs()), DueWords::shortTitle(car().needs()));
    m_advice->setText(shown.isEmpty() ? CarLines::howToBegin() : QString());
    m_advice->setVisible(shown.isEmpty());
    m_cards->setVisible(!shown.isEmpty());
    m_cards->show(shown, {car().unit(), desk().program.state.dateStyle, desk().program.clock.today()});
}
