// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/foundtable.h"

#include <QDir>

#include <utility>

using namespace Qt::Literals::StringLiterals;

void FoundTable::setFound(std::vector<FoundPicture> found)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(found.size());
    for (FoundPicture &picture : found) {
        const bool isTicked = picture.isSure;
        m_rows.push_back({std::move(picture), isTicked});
    }
    endResetModel();
    emit tickedChanged();
}

std::vector<FoundPicture> FoundTable::ticked() const
{
    std::vector<FoundPicture> some;
    for (const Row &row : m_rows) {
        if (row.isTicked)
            some.push_back(row.picture);
    }
    return some;
}

void FoundTable::toggle(int row)
{
    m_rows[std::size_t(row)].isTicked = !m_rows[std::size_t(row)].isTicked;
    const QModelIndex cell = index(row, Was);
    emit dataChanged(cell, cell, {Qt::CheckStateRole});
    emit tickedChanged();
}

int FoundTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int FoundTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FoundTable::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    if (role == Qt::CheckStateRole && index.column() == Was)
        return row.isTicked ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (index.column()) {
    case Was:
        return QDir::toNativeSeparators(row.picture.stored);
    case Is:
        return QDir::toNativeSeparators(row.picture.path);
    default:
        return row.picture.isSure ? u"the same picture"_s : u"the name alone"_s;
    }
}

QVariant FoundTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Was:
        return u"Was"_s;
    case Is:
        return u"Is Now"_s;
    default:
        return u"Known By"_s;
    }
}

Qt::ItemFlags FoundTable::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.column() == Was ? usual | Qt::ItemIsUserCheckable : usual;
}

bool FoundTable::setData(const QModelIndex &index, const QVariant & /*value*/, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Was)
        return false;
    toggle(index.row());
    return true;
}
