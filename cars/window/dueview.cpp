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

/// The action gives way first where there is little room; where there is much, its intervals have some of it.
std::vector<CarGrid::Width> widths(DistanceUnit unit)
{
    return {{u"Inspect Brake Linings"_s, true},
            {u"99999"_s, true},
            {u"Months_"_s, true},
            {CarWords::mileage(unit) + u'_'},
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
    m_odometer->setToolTip(u"Enter what the odometer reads now"_s);
    m_advice->setFont(TypeScale::body());
    m_advice->setWordWrap(true);
    auto *heading = new QWidget(this);
    auto *words = new QHBoxLayout(heading);
    words->setContentsMargins(0, 4, 0, 0);
    words->addWidget(makeHeading(u"Maintenance Schedule"_s, this), 1);
    words->setSpacing(12);
    words->addWidget(m_odometer, 0, Qt::AlignBottom);
    words->addWidget(m_rate, 0, Qt::AlignBottom);
    addContent(m_advice);
    addContent(m_cards);
    addContent(heading);
    addContent(new WholeRows(m_schedule, nullptr, this), 1);
    setFocusProxy(m_schedule);
    addClearing();
    connect(m_cards, &DueCards::chosen, this, &DueView::doneRequested);
    connect(m_odometer, &LinkButton::clicked, this, &DueView::odometerRequested);
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

void DueView::refresh()
{
    m_model->refresh();
    m_schedule->setWidths(widths(car().unit()));
    showNeeds();
    const QString &reading = car().record().sheet.field(VehicleSheet::Odometer);
    const auto number = CarNumbers::number(reading);
    m_odometer->setText(CarLines::odometer(number ? DueWords::distance(*number, car().unit()) : reading));
    m_rate->setText(DueWords::rate(car().drivingLog(), car().unit(), desk().program.state.dateStyle,
                                   desk().program.clock.today()));
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
    titleLine().setTitle(DueWords::title(car().needs()));
    m_advice->setText(shown.isEmpty() ? CarLines::howToBegin() : QString());
    m_advice->setVisible(shown.isEmpty());
    m_cards->setVisible(!shown.isEmpty());
    m_cards->show(shown, {car().unit(), desk().program.state.dateStyle, desk().program.clock.today()});
}
