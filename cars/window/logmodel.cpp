// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/logmodel.h"

#include "cars/model/cardates.h"
#include "cars/model/carnumbers.h"
#include "cars/model/carrows.h"
#include "cars/model/costwords.h"
#include "cars/model/fuellines.h"
#include "cars/model/historylines.h"
#include "cars/window/opencar.h"
#include "shell/core/dates.h"
#include "shell/core/tabtext.h"
#include "shell/program/program.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int previousColumn = 1;
constexpr int drivenColumn = 3;
constexpr int economyColumn = 5;
} // namespace

LogModel::LogModel(const Program &program, OpenCar &car, CarPart part, QObject *parent)
    : QAbstractTableModel(parent)
    , m_program(program)
    , m_open(car)
    , m_part(part)
{}

void LogModel::refresh()
{
    const CarRecord &car = m_open.record();
    const bool isOtherUnit = m_car.sheet.unit != car.sheet.unit;
    if (m_part == CarPart::Fuel)
        m_figures = FuelFigures(car.fuel, m_program.state.dateStyle);
    const QList<qsizetype> order = CarRows::newestFirst(car, m_part, m_program.state.dateStyle);
    if (order.size() != m_order.size() || m_car.vehicle != car.vehicle) {
        beginResetModel();
        m_car = car;
        m_order = order;
        endResetModel();
        return;
    }
    m_car = car;
    if (order != m_order)
        reorder(order);
    if (!order.isEmpty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    if (isOtherUnit)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

/// A box that is open over a row goes with it.
void LogModel::reorder(const QList<qsizetype> &order)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &at : before)
        after << index(int(order.indexOf(m_order[at.row()])), at.column());
    m_order = order;
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

QString LogModel::text(const QModelIndex &index) const
{
    const QString text = CarRows::text(m_car, m_part, m_order[index.row()], index.column());
    return kind(index.column()) == GridCell::Kind::Date ? CarDates::shown(text, m_program.state.dateStyle)
                                                        : text;
}

QString LogModel::titleOf(const CarRecord &car, qsizetype rowInFile) const
{
    const QStringList cells = CarRows::cells(car, m_part, rowInFile);
    QString what = m_part == CarPart::Fuel ? HistoryLines::fillUp() : cells[2].simplified();
    if (what.isEmpty())
        what = HistoryLines::entry();
    const auto date = CarNumbers::date(cells[CarRows::dateColumn(m_part)], m_program.state.dateStyle);
    return date ? what + u", "_s + Dates::shortWithYear(*date, m_program.state.dateStyle) : what;
}

CarEntry LogModel::check(int column, const QString &typed, const QString &before) const
{
    if (kind(column) == GridCell::Kind::Date)
        return CarEntry::date(typed, before, m_program.state.dateStyle, m_program.clock.today());
    if (kind(column) == GridCell::Kind::Words)
        return {typed, {}};
    if (column == CarRows::costColumn(m_part))
        return CarEntry::money(typed, before);
    const VehicleSheet &sheet = m_open.record().sheet;
    // The reading at a fill-up is where the current one comes from.
    if (m_part != CarPart::Fuel)
        return CarEntry::odometer(typed, before, sheet);
    if (column == previousColumn || column == CarRows::readingColumn(m_part))
        return CarEntry::reading(typed, before, sheet);
    return CarEntry::number(typed, before);
}

bool LogModel::isWorkedOut(int column) const
{
    return m_part == CarPart::Fuel && (column == drivenColumn || column == economyColumn);
}

QString LogModel::oddity(int column, const QString &typed, const QStringList &cells) const
{
    if (m_part != CarPart::Fuel || typed.isEmpty())
        return {};
    if (isWorkedOut(column) && cells[column] != typed)
        return HistoryLines::workedOut(CarRows::headings(m_part, m_open.unit()).value(column));
    const int current = CarRows::readingColumn(m_part);
    const auto before = CarNumbers::number(cells[previousColumn]);
    const auto now = CarNumbers::number(cells[current]);
    const bool isReading = column == previousColumn || column == current;
    return isReading && before && now && *now < *before
               ? HistoryLines::below(cells[current], cells[previousColumn])
               : QString();
}

GridCell::Kind LogModel::kind(int column) const
{
    if (column == CarRows::dateColumn(m_part))
        return GridCell::Kind::Date;
    const bool isDescription = m_part != CarPart::Fuel && column == 2;
    return isDescription ? GridCell::Kind::Words : GridCell::Kind::Number;
}

QString LogModel::paste(const QModelIndex &first, const GridText::Rows &rows)
{
    CarRecord wanted = m_open.record();
    qsizetype taken = 0;
    qsizetype leftOut = 0;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        for (qsizetype column = 0; column < rows[row].size(); ++column) {
            const int at = first.column() + int(column);
            const qsizetype to = rowInFile(first.row() + int(row));
            if (to < 0 || at >= columnCount()) {
                ++leftOut;
                continue;
            }
            const QString before = CarRows::text(wanted, m_part, to, at);
            const CarEntry entry = check(at, TabText::cell(rows[row][column]), before);
            ++(entry.isRefused() ? leftOut : taken);
            setCell(wanted, to, at, entry.text);
        }
    }
    if (taken + leftOut == 0)
        return HistoryLines::nothingToPaste();
    m_open.change(HistoryLines::pasted(taken), wanted);
    return leftOut == 0 ? HistoryLines::pasted(taken) : HistoryLines::pastedInPart(taken, leftOut);
}

/// What a fill-up comes to follows what was typed into it.
void LogModel::setCell(CarRecord &car, qsizetype row, int column, const QString &text) const
{
    CarRows::setText(car, m_part, row, column, text);
    if (m_part == CarPart::Fuel && column >= previousColumn && column <= economyColumn)
        car.fuel[row] = FuelFigures::completed(car.fuel[row], car.fuel.first(row));
}

LogModel::Removal LogModel::removal(int row) const
{
    Removal removal{HistoryLines::deleted(titleOf(row)), m_open.record()};
    CarRows::remove(removal.wanted, m_part, m_order[row]);
    return removal;
}

int LogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_order.size());
}

int LogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : CarRows::columnCount(m_part);
}

/// The fill-up of a cell that tells of its consumption; null for any other cell.
const FillUp *LogModel::fillUp(const QModelIndex &index) const
{
    const qsizetype row = m_order[index.row()];
    const bool isEconomy = m_part == CarPart::Fuel && index.column() == economyColumn;
    return isEconomy && row < m_figures.fillUps().size() ? &m_figures.fillUps()[row] : nullptr;
}

QVariant LogModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const FillUp *fillUp = this->fillUp(index);
    switch (role) {
    case Qt::DisplayRole:
        if (fillUp && fillUp->kind != FillUp::Kind::Counted)
            return HistoryLines::mark(fillUp->kind, TabText::cell(text(index)));
        if (index.column() == CarRows::costColumn(m_part))
            return CarNumbers::shownCost(TabText::cell(text(index)));
        [[fallthrough]];
    case Qt::EditRole:
        return TabText::cell(text(index));
    case GridCell::passedRole:
        return isWorkedOut(index.column());
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return fillUp ? CostWords::whyNotCounted(fillUp->kind) : QString();
    case GridCell::quietRole:
        return fillUp && fillUp->kind != FillUp::Kind::Counted;
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    case GridCell::kindRole:
        return int(kind(index.column()));
    default:
        return {};
    }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return CarRows::headings(m_part, m_open.unit()).value(section);
    const bool isRight = kind(section) == GridCell::Kind::Number;
    return role == Qt::TextAlignmentRole
               ? QVariant::fromValue(Qt::AlignVCenter | (isRight ? Qt::AlignRight : Qt::AlignLeft))
               : QVariant();
}

Qt::ItemFlags LogModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && m_open.whyLocked(m_part).isEmpty() ? flags | Qt::ItemIsEditable : flags;
}

bool LogModel::setData(const QModelIndex &index, const QVariant &value, int role)
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
    CarRecord wanted = m_open.record();
    const qsizetype row = m_order[index.row()];
    setCell(wanted, row, index.column(), entry.text);
    const QString odd = oddity(index.column(), entry.text, CarRows::cells(wanted, m_part, row));
    const QString heading = CarRows::headings(m_part, m_open.unit()).value(index.column());
    m_open.change(HistoryLines::changed(heading, titleOf(index.row())), wanted);
    if (!odd.isEmpty())
        emit said(odd);
    return true;
}
