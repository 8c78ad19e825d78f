// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/schedulemodel.h"

#include "cars/model/cardates.h"
#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"
#include "cars/model/duewords.h"
#include "cars/model/historylines.h"
#include "cars/window/opencar.h"
#include "cars/window/signline.h"
#include "shell/controls/gridcell.h"
#include "shell/program/program.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The texts of an action in the order of their columns.
constexpr std::array texts{&ScheduledAction::name,     &ScheduledAction::distance, &ScheduledAction::months,
                           &ScheduledAction::odometer, &ScheduledAction::date,     &ScheduledAction::cost};

QString headingOf(int column, DistanceUnit unit)
{
    switch (column) {
    case ScheduleColumn::action:
        return u"Action"_s;
    case ScheduleColumn::intervalDistance:
    case ScheduleColumn::remainingDistance:
        return CarWords::miles(unit);
    case ScheduleColumn::intervalMonths:
        return u"Months"_s;
    case ScheduleColumn::lastReading:
        return CarWords::mileage(unit);
    case ScheduleColumn::lastDate:
        return u"Date"_s;
    case ScheduleColumn::lastCost:
        return u"Cost"_s;
    default:
        return u"Time"_s;
    }
}

QString groupOf(int column)
{
    if (column == ScheduleColumn::action)
        return {};
    if (column < ScheduleColumn::lastReading)
        return u"Interval Between Actions"_s;
    return column < ScheduleColumn::remainingDistance ? u"Last Action"_s : u"Remaining"_s;
}

QString shortGroupOf(int column)
{
    const bool isInterval = column > ScheduleColumn::action && column < ScheduleColumn::lastReading;
    return isInterval ? u"Interval"_s : groupOf(column);
}

GridCell::Kind kindOf(int column)
{
    if (column == ScheduleColumn::action)
        return GridCell::Kind::Words;
    return column == ScheduleColumn::lastDate ? GridCell::Kind::Date : GridCell::Kind::Number;
}

QStringList usualActions()
{
    VehicleSheet sheet;
    sheet.nameFirstActions();
    QStringList names;
    for (const ScheduledAction &action : sheet.actions) {
        if (!action.name.isEmpty())
            names.append(action.name);
    }
    return names;
}

} // namespace

ScheduleModel::ScheduleModel(const Program &program, OpenCar &car, QObject *parent)
    : QAbstractTableModel(parent)
    , m_program(program)
    , m_car(car)
{}

void ScheduleModel::refresh()
{
    m_kept = m_car.needs();
    m_needs.fill(nullptr);
    for (const CarNeed &need : std::as_const(m_kept)) {
        if (need.kind == CarNeed::Kind::Action)
            m_needs[std::size_t(need.row)] = &need;
    }
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int ScheduleModel::firstFree() const
{
    const auto &actions = m_car.record().sheet.actions;
    const auto found = std::ranges::find_if(actions, &ScheduledAction::isEmpty);
    return std::min(int(found - actions.begin()), rowCount() - 1);
}

int ScheduleModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(VehicleSheet::actionCount);
}

int ScheduleModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ScheduleColumn::count;
}

const CarNeed *ScheduleModel::need(int row) const
{
    return m_needs[std::size_t(row)];
}

QString ScheduleModel::text(const QModelIndex &index) const
{
    const auto column = std::size_t(index.column());
    if (column < texts.size()) {
        const QString &text = m_car.record().sheet.actions[std::size_t(index.row())].*texts[column];
        return column == ScheduleColumn::lastDate ? CarDates::shown(text, m_program.state.dateStyle) : text;
    }
    const CarNeed *need = this->need(index.row());
    if (!need)
        return {};
    return index.column() == ScheduleColumn::remainingDistance
               ? DueWords::remainingDistance(*need)
               : DueWords::remainingTime(*need, m_program.clock.today());
}

/// What is due marks the limit that comes first.
int ScheduleModel::alarm(const QModelIndex &index) const
{
    const CarNeed *need = this->need(index.row());
    if (!need || !need->isUrgent())
        return GridCell::NoAlarm;
    const auto limit = index.column() == ScheduleColumn::remainingDistance ? CarNeed::Limit::Distance
                       : index.column() == ScheduleColumn::remainingTime   ? CarNeed::Limit::Time
                                                                           : CarNeed::Limit::None;
    if (limit == CarNeed::Limit::None || limit != need->limit)
        return GridCell::NoAlarm;
    return need->state == CarNeed::State::Overdue ? GridCell::Overdue : GridCell::Due;
}

QVariant ScheduleModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const bool isComputed = index.column() >= ScheduleColumn::remainingDistance;
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == ScheduleColumn::lastCost ? CarNumbers::shownCost(text(index)) : text(index);
    case Qt::EditRole:
        return text(index);
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole: {
        const CarNeed *need = isComputed ? this->need(index.row()) : nullptr;
        return need ? DueWords::when(*need, m_car.unit(), m_program.state.dateStyle, m_program.clock.today())
                    : QString();
    }
    case GridCell::kindRole:
        return int(kindOf(index.column()));
    case GridCell::quietRole:
        return isComputed;
    case GridCell::alarmRole:
        return alarm(index);
    case GridCell::signRole:
        return alarm(index) == GridCell::NoAlarm ? QString()
                                                 : QString(SignLine::sign(need(index.row())->state));
    case GridCell::choicesRole:
        return index.column() == ScheduleColumn::action ? usualActions() : QStringList();
    default:
        return {};
    }
}

QVariant ScheduleModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return headingOf(section, m_car.unit());
    case GridCell::groupRole:
        return groupOf(section);
    case GridCell::shortGroupRole:
        return shortGroupOf(section);
    case Qt::TextAlignmentRole: {
        const bool isLeft = section == ScheduleColumn::action || section == ScheduleColumn::lastDate;
        return QVariant::fromValue(Qt::AlignVCenter | (isLeft ? Qt::AlignLeft : Qt::AlignRight));
    }
    default:
        return {};
    }
}

Qt::ItemFlags ScheduleModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isTyped = index.isValid() && index.column() < int(texts.size());
    return isTyped && m_car.whyLocked(CarPart::Sheet).isEmpty() ? flags | Qt::ItemIsEditable : flags;
}

CarEntry ScheduleModel::check(int column, const QString &typed, const QString &before) const
{
    switch (column) {
    case ScheduleColumn::action:
        return {typed, {}};
    case ScheduleColumn::lastReading:
        return CarEntry::odometer(typed, before, m_car.record().sheet);
    case ScheduleColumn::lastDate:
        return CarEntry::date(typed, before, m_program.state.dateStyle, m_program.clock.today());
    case ScheduleColumn::lastCost:
        return CarEntry::money(typed, before);
    default:
        return CarEntry::number(typed, before);
    }
}

qsizetype ScheduleModel::clear(const QItemSelection &chosen)
{
    CarRecord wanted = m_car.record();
    qsizetype cleared = 0;
    for (const QModelIndex &index : chosen.indexes()) {
        if (!flags(index).testFlag(Qt::ItemIsEditable))
            continue;
        QString &text = wanted.sheet.actions[std::size_t(index.row())].*texts[std::size_t(index.column())];
        cleared += text.isEmpty() ? 0 : 1;
        text.clear();
    }
    m_car.change(HistoryLines::cleared(cleared), wanted);
    return cleared;
}

bool ScheduleModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const QString before = text(index);
    if (value.toString() == before)
        return true; // left as it is in the file
    const CarEntry entry = check(index.column(), value.toString(), before);
    if (entry.refusal)
        emit noticed(*entry.refusal, index);
    else if (entry.isRefused())
        emit refused(entry.reason, index);
    if (entry.isRefused())
        return false;
    CarRecord wanted = m_car.record();
    ScheduledAction &action = wanted.sheet.actions[std::size_t(index.row())];
    action.*texts[std::size_t(index.column())] = entry.text;
    const QString heading = headingOf(index.column(), m_car.unit());
    m_car.change(action.name.trimmed().isEmpty() ? heading
                                                 : QString(action.name.trimmed() + u", "_s + heading),
                 wanted);
    return true;
}
