// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carlistmodel.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

void CarListModel::setVehicles(const QList<Vehicle> &vehicles)
{
    beginResetModel();
    m_vehicles = vehicles;
    m_signs.clear();
    m_pictures.clear();
    endResetModel();
}

int CarListModel::rowOf(int slot) const
{
    const auto found = std::ranges::find(m_vehicles, slot, &Vehicle::slot);
    return found == m_vehicles.end() ? -1 : int(found - m_vehicles.begin());
}

void CarListModel::setSign(int slot, const Sign &sign)
{
    m_signs.insert(slot, sign);
    tellChange(slot);
}

void CarListModel::setPicture(int slot, const QImage &picture)
{
    m_pictures.insert(slot, picture);
    tellChange(slot);
}

void CarListModel::tellChange(int slot)
{
    if (const int row = rowOf(slot); row >= 0)
        emit dataChanged(index(row), index(row));
}

int CarListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_vehicles.size());
}

QVariant CarListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Vehicle &vehicle = m_vehicles[index.row()];
    const Sign sign = m_signs.value(vehicle.slot);
    switch (role) {
    case Qt::DisplayRole:
        return vehicle.name;
    case Qt::AccessibleTextRole:
        return sign.words.isEmpty() ? vehicle.name : QString(vehicle.name + u", "_s + sign.words);
    case Qt::DecorationRole:
        return m_pictures.value(vehicle.slot);
    case slotRole:
        return vehicle.slot;
    case TwoLineDelegate::wordsRole:
        return sign.words;
    case TwoLineDelegate::shorterRole:
        return sign.shorter;
    case TwoLineDelegate::signRole:
        return sign.urgency;
    default:
        return {};
    }
}
