// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/donepanel.h"

#include "cars/model/cardates.h"
#include "cars/model/carentry.h"
#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"
#include "cars/model/duewords.h"
#include "cars/model/lines.h"
#include "cars/window/opencar.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/core/dates.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int boxWidthUsual = 150;
constexpr int boxGap = 14;
} // namespace

DonePanel::DonePanel(const CarDesk &desk)
    : TaskPanel(u"donePanel"_s, {})
    , m_desk(desk)
    , m_picker(new DatePicker(desk.program.clock, desk.program.settings, &desk.window, u"MonthView5"_s))
    , m_date(named(new DateBox({desk.program.state.dateStyle, desk.program.clock}, m_picker, this),
                   u"doneDate"_s))
    , m_odometer(named(new FieldBox(this), u"doneOdometer"_s))
    , m_cost(named(new FieldBox(this), u"doneCost"_s))
    , m_odometerLabel(makeQuietLabel({}, this))
    , m_last(named(makeQuietLabel({}, this), u"doneLast"_s))
    , m_hint(makeQuietLabel(CarLines::whereDoneGoes(), this))
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *boxes = new QHBoxLayout;
    boxes->setSpacing(boxGap);
    boxes->addLayout(labelled(m_odometerLabel, m_odometer));
    boxes->addLayout(labelled(u"Cost:"_s, m_cost));
    boxes->addLayout(labelled(u"Date:"_s, m_date)); // the last: its calendar has room beside it
    setTabOrder(m_odometer, m_cost);
    setTabOrder(m_cost, m_date);
    for (FieldBox *box : {m_odometer, m_cost})
        box->selectOnFirstClick();
    for (FieldBox *box : {static_cast<FieldBox *>(m_date), m_odometer, m_cost}) {
        box->setFixedWidth(boxWidth(u"12/30/2026 99"_s, boxWidthUsual));
        connect(box, &FieldBox::refused, this, &DonePanel::said);
        connect(box, &QLineEdit::returnPressed, this, &DonePanel::enter);
    }
    boxes->addStretch(1);
    m_odometerLabel->setBuddy(m_odometer);
    m_last->setFont(TypeScale::body());
    m_hint->setFont(TypeScale::body());
    m_hint->setWordWrap(true);
    rows->addWidget(m_last);
    rows->addLayout(boxes);
    rows->addWidget(m_hint);
    rows->addStretch(1);
    setContent(content);
    QPushButton *enter = addButton(u"doneEnter"_s, u"E&nter"_s, ButtonKind::Main);
    connect(enter, &QPushButton::clicked, this, &DonePanel::enter);
    setLeaveButton(u"doneCancel"_s, u"Cance&l"_s);
    setFocusProxy(m_odometer);
}

void DonePanel::start(int row)
{
    m_row = row;
    const CarRecord &car = m_desk.car.record();
    const ScheduledAction &action = car.sheet.actions[std::size_t(row)];
    setTitle(DueWords::name({.row = row, .name = action.name.trimmed()}));
    const QString caption = CarWords::mileage(m_desk.car.unit()) + u':';
    m_odometerLabel->setText(caption);
    m_odometer->setAccessibleName(caption.chopped(1));
    const auto last = CarNumbers::number(action.odometer);
    m_last->setText(
        CarLines::lastDone(CarDates::shown(action.date.trimmed(), m_desk.program.state.dateStyle),
                           last ? DueWords::distance(*last, m_desk.car.unit()) : action.odometer));
    m_date->setText(Dates::numbers(m_desk.program.clock.today(), m_desk.program.state.dateStyle));
    m_odometer->setText(car.sheet.field(VehicleSheet::Odometer));
    m_cost->setText(CarNumbers::shownCost(action.cost));
    m_desk.views.open(this);
    m_odometer->setFocus();
    m_odometer->selectAll();
}

bool DonePanel::isRefused(const Message &refusal, FieldBox *box)
{
    m_picker->dismiss();
    m_desk.program.dialogs.ask(&m_desk.window, refusal);
    box->setFocus();
    box->selectAll();
    return true;
}

/// Whether `box` holds no number, or one that cannot be; that is told then.
bool DonePanel::isSaid(const CarEntry &entry, FieldBox *box)
{
    if (!entry.isRefused())
        return false;
    emit said(entry.reason);
    box->setFocus();
    box->selectAll();
    return true;
}

void DonePanel::enter()
{
    const Program &program = m_desk.program;
    const CarEntry date = CarEntry::date(m_date->text(), {}, program.state.dateStyle, program.clock.today());
    if (date.refusal && isRefused(*date.refusal, m_date))
        return;
    CarRecord wanted = m_desk.car.record();
    const CarEntry reading = CarEntry::reading(m_odometer->text(), {}, wanted.sheet);
    const CarEntry cost = CarEntry::money(m_cost->text(), {});
    if (isSaid(reading, m_odometer) || isSaid(cost, m_cost))
        return;
    ScheduledAction &action = wanted.sheet.actions[std::size_t(m_row)];
    const auto number = CarNumbers::number(reading.text);
    QString &current = wanted.sheet.field(VehicleSheet::Odometer);
    if (number && *number > CarNumbers::number(current).value_or(0))
        current = reading.text;
    action.odometer = reading.text;
    action.date = date.text;
    action.cost = cost.text;
    wanted.maintenance.append({action.odometer, action.date, action.name.trimmed(), action.cost});
    const QString line = CarLines::done(DueWords::name({.row = m_row, .name = action.name.trimmed()}));
    m_picker->dismiss();
    emit left();
    m_desk.car.change(line, wanted);
    emit done(line);
}
