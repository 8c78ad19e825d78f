// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/entrymodel.h"

#include "cars/model/carrows.h"
#include "cars/model/historylines.h"
#include "cars/window/logmodel.h"
#include "cars/window/opencar.h"
#include "shell/core/dates.h"
#include "shell/core/tabtext.h"
#include "shell/program/program.h"

#include <algorithm>

namespace {
constexpr int descriptionColumn = 2;
} // namespace

EntryModel::EntryModel(const Program &program, OpenCar &car, const LogModel &log, QObject *parent)
    : QAbstractTableModel(parent)
    , m_program(program)
    , m_car(car)
    , m_log(log)
    , m_typed(log.columnCount())
    , m_cells(log.columnCount())
{}

bool EntryModel::isTyped() const
{
    return std::ranges::any_of(m_typed, [](const QString &text) { return !text.trimmed().isEmpty(); });
}

QStringList EntryModel::cells() const
{
    return m_cells;
}

void EntryModel::clear()
{
    m_typed = QStringList(columnCount());
    refresh();
}

void EntryModel::refresh()
{
    m_cells = proposed();
    emit dataChanged(index(0, 0), index(0, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

/// Today, and of a history the present reading as long as it is about today.
QStringList EntryModel::historyProposals() const
{
    QStringList cells = m_typed;
    const QString today = m_log
                              .check(CarRows::dateColumn(m_log.part()),
                                     Dates::numbers(m_program.clock.today(), m_program.state.dateStyle), {})
                              .text;
    QString &date = cells[CarRows::dateColumn(m_log.part())];
    if (date.isEmpty())
        date = today;
    if (cells.front().isEmpty() && date == today)
        cells.front() = m_car.record().sheet.field(VehicleSheet::Odometer);
    return cells;
}

QStringList EntryModel::proposed() const
{
    if (!m_car.isOpen())
        return m_typed;
    if (m_log.part() != CarPart::Fuel)
        return historyProposals();
    CarRecord row;
    CarRows::append(row, CarPart::Fuel, m_typed);
    FuelRow &fillUp = row.fuel.front();
    if (fillUp.date.isEmpty())
        fillUp.date = m_log
                          .check(CarRows::dateColumn(CarPart::Fuel),
                                 Dates::numbers(m_program.clock.today(), m_program.state.dateStyle), {})
                          .text;
    fillUp = FuelFigures::completed(fillUp, m_car.record().fuel);
    return CarRows::cells(row, CarPart::Fuel, 0);
}

void EntryModel::paste(int column, const QStringList &texts)
{
    for (qsizetype at = 0; at < texts.size() && column + at < columnCount(); ++at)
        setData(index(0, column + int(at)), TabText::cell(texts[at]));
}

int EntryModel::firstColumn() const
{
    return m_log.part() == CarPart::Fuel ? CarRows::readingColumn(CarPart::Fuel) : descriptionColumn;
}

int EntryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

int EntryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_log.columnCount();
}

QVariant EntryModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString &cell = m_cells[index.column()];
    const bool isDescription = m_log.kind(index.column()) == GridCell::Kind::Words;
    switch (role) {
    case Qt::DisplayRole:
        return isDescription && cell.isEmpty() ? HistoryLines::whatWasDone(m_log.part()) : cell;
    case Qt::EditRole:
        return cell;
    case GridCell::quietRole:
        return m_typed[index.column()].isEmpty();
    case GridCell::passedRole:
        return m_log.isWorkedOut(index.column());
    case GridCell::kindRole:
        return int(m_log.kind(index.column()));
    case GridCell::choicesRole: {
        QStringList names;
        if (isDescription && m_log.part() == CarPart::Maintenance) {
            for (const ScheduledAction &action : m_car.record().sheet.actions)
                names << action.name.trimmed();
            names.removeAll(QString());
        }
        return names;
    }
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    default:
        return {};
    }
}

QVariant EntryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return m_log.headerData(section, orientation, role);
}

Qt::ItemFlags EntryModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && m_car.whyLocked(m_log.part()).isEmpty() ? flags | Qt::ItemIsEditable : flags;
}

bool EntryModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    QString &text = m_typed[index.column()];
    const CarEntry entry = m_log.check(index.column(), value.toString(), text);
    text = entry.text;
    refresh();
    const QString odd = m_log.oddity(index.column(), text, m_cells);
    if (m_log.isWorkedOut(index.column()) && !odd.isEmpty()) {
        text.clear(); // the readings tell
        refresh();
    }
    if (entry.refusal)
        emit noticed(*entry.refusal, index);
    else if (entry.isRefused())
        emit refused(entry.reason, index);
    else if (!odd.isEmpty())
        emit said(odd);
    return !entry.isRefused();
}
