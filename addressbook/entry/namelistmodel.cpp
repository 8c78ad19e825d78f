// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/namelistmodel.h"

#include <utility>

void NameListModel::setNames(NameList names)
{
    beginResetModel();
    m_names = std::move(names);
    endResetModel();
}

void NameListModel::append(const QString &line)
{
    beginInsertRows({}, m_names.count(), m_names.count());
    m_names.append(line);
    endInsertRows();
}

void NameListModel::removeAt(int position)
{
    if (position < 0 || position >= m_names.count())
        return;
    beginRemoveRows({}, position, position);
    m_names.removeAt(position);
    endRemoveRows();
}

int NameListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_names.count();
}

QVariant NameListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return m_names.name(index.row());
    case LineRole:
        return m_names.line(index.row());
    default:
        return {};
    }
}
