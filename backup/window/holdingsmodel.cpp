// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/holdingsmodel.h"

#include "backup/model/backuplines.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

Qt::Alignment alignmentOf(int column)
{
    const bool isNumber =
        column == HoldingsModel::Files || column == HoldingsModel::Pictures || column == HoldingsModel::Size;
    return Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft);
}

QString countText(qint64 count)
{
    return count > 0 ? BackupLines::number(count) : u"-"_s;
}

} // namespace

void HoldingsModel::setRows(std::vector<Row> rows)
{
    const auto isKnown = [this](const QString &key) {
        return std::ranges::any_of(m_rows, [&key](const Row &row) { return row.key == key; });
    };
    QStringList left = m_left;
    for (const Row &row : rows) {
        if (!isKnown(row.key) && !m_only.isEmpty() && !m_only.contains(row.key) && !left.contains(row.key))
            left.append(row.key);
    }
    beginResetModel();
    m_rows = std::move(rows);
    m_left = std::move(left);
    endResetModel();
}

void HoldingsModel::setCopyOfAll(const QString &copy)
{
    m_copyOfAll = copy;
    if (!m_rows.empty())
        emit dataChanged(index(0, Copy), index(rowCount() - 1, Copy));
}

void HoldingsModel::choose(const QStringList &keys)
{
    m_only = keys;
    m_left.clear();
    for (const Row &row : m_rows) {
        if (!keys.isEmpty() && !keys.contains(row.key))
            m_left.append(row.key);
    }
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, 0));
    emit chosenChanged();
}

QStringList HoldingsModel::chosen() const
{
    QStringList keys;
    for (const Row &row : m_rows) {
        if (isChosen(row.key))
            keys.append(row.key);
    }
    return keys;
}

int HoldingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int HoldingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString HoldingsModel::text(const Row &row, int column) const
{
    switch (column) {
    case Name:
        return row.title;
    case Files:
        return countText(row.files);
    case Pictures:
        return countText(row.pictures);
    case Size:
        return BackupLines::size(row.bytes);
    default:
        return m_copyOfAll.isEmpty() ? row.copy : m_copyOfAll;
    }
}

QVariant HoldingsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(row, index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignmentOf(index.column()));
    case Qt::CheckStateRole:
        return index.column() == Name ? QVariant(isChosen(row.key) ? Qt::Checked : Qt::Unchecked)
                                      : QVariant();
    default:
        return {};
    }
}

QVariant HoldingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const std::array<QString, ColumnCount> headings{u"What"_s, u"Files"_s, u"Pictures"_s, u"Size"_s,
                                                           u"The copy"_s};
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(section));
    return role == Qt::DisplayRole ? QVariant(headings[std::size_t(section)]) : QVariant();
}

Qt::ItemFlags HoldingsModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && index.column() == Name ? flags | Qt::ItemIsUserCheckable : flags;
}

bool HoldingsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    const QString key = m_rows[std::size_t(index.row())].key;
    if (value.value<Qt::CheckState>() == Qt::Checked)
        m_left.removeAll(key);
    else if (!m_left.contains(key))
        m_left.append(key);
    emit dataChanged(index, index);
    emit chosenChanged();
    return true;
}
