// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/namelistmodel.h"

#include <utility>

void NameListModel::setNames(NameList names)
{
    beginResetModel();
    const NameOrder order = m_names.order();
    m_names = std::move(names);
    if (order != NameOrder::Record)
        m_names.arrange(order);
    endResetModel();
}

void NameListModel::arrange(NameOrder order)
{
    if (order == m_names.order())
        return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> isAt = m_names.arrange(order);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex &kept : before)
        after.append(index(isAt[std::size_t(kept.row())]));
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

int NameListModel::add(const QString &line)
{
    const int row = m_names.placeFor(line);
    beginInsertRows({}, row, row);
    m_names.insert(row, line);
    endInsertRows();
    return row;
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
