// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/daysofsheet.h"

#include <QLocale>

#include <utility>

bool DaysOfSheet::setPlan(const SheetPlan &plan, Words words)
{
    const bool isOther = !plan.hasSameDays(m_plan);
    if (isOther)
        beginResetModel();
    m_plan = plan;
    m_words = std::move(words);
    if (isOther) {
        m_places.assign(std::size_t(plan.rows) * std::size_t(plan.columns), -1);
        for (std::size_t i = 0; i < plan.cells.size(); ++i) {
            const SheetPlan::Cell &cell = plan.cells[i];
            if (cell.date.isValid())
                m_places[std::size_t(cell.row) * std::size_t(plan.columns) + std::size_t(cell.column)] =
                    int(i);
        }
        endResetModel();
    } else if (!plan.cells.empty()) {
        emit dataChanged(index(0, 0), index(plan.rows - 1, plan.columns - 1));
    }
    return isOther;
}

int DaysOfSheet::cellOf(const QModelIndex &index) const
{
    return index.isValid() ? m_places[std::size_t(index.row()) * std::size_t(m_plan.columns) +
                                      std::size_t(index.column())]
                           : -1;
}

QModelIndex DaysOfSheet::indexOf(int cell) const
{
    if (cell < 0)
        return {};
    const SheetPlan::Cell &place = m_plan.cells[std::size_t(cell)];
    return index(place.row, place.column);
}

int DaysOfSheet::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_plan.rows;
}

int DaysOfSheet::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_plan.columns;
}

QVariant DaysOfSheet::data(const QModelIndex &index, int role) const
{
    const int place = cellOf(index);
    if (place < 0)
        return {};
    const SheetPlan::Cell &cell = m_plan.cells[std::size_t(place)];
    switch (role) {
    case Qt::DisplayRole:
        return cell.date.day();
    case Qt::AccessibleTextRole:
        return m_words(cell.date, cell.person);
    default:
        return {};
    }
}

QVariant DaysOfSheet::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || m_plan.isByPerson || orientation == Qt::Vertical)
        return {};
    for (const SheetPlan::Cell &cell : m_plan.cells) {
        if (cell.column == section && cell.date.isValid())
            return QLocale::c().dayName(cell.date.dayOfWeek());
    }
    return {};
}

Qt::ItemFlags DaysOfSheet::flags(const QModelIndex &index) const
{
    return cellOf(index) < 0 ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable;
}
