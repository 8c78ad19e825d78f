// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/differencesmodel.h"

#include "backup/window/householdsources.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

QString stateOf(RecordDifferences::Kind kind)
{
    switch (kind) {
    case RecordDifferences::OnlyThere:
        return u"Not there any more"_s;
    case RecordDifferences::Changed:
        return u"Changed since"_s;
    case RecordDifferences::OnlyHere:
        return u"New since"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

void DifferencesModel::setRows(const std::vector<Comparison::Row> &rows)
{
    beginResetModel();
    m_rows = rows;
    m_ticks.assign(rows.size(), false);
    endResetModel();
    emit tickedChanged();
}

std::vector<Comparison::Row> DifferencesModel::ticked() const
{
    std::vector<Comparison::Row> rows;
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        if (m_ticks[row])
            rows.push_back(m_rows[row]);
    }
    return rows;
}

int DifferencesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int DifferencesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

bool DifferencesModel::canComeBack(int row) const
{
    return m_rows[std::size_t(row)].record.kind != RecordDifferences::OnlyHere;
}

QString DifferencesModel::text(const Comparison::Row &row, int column) const
{
    switch (column) {
    case What:
        return row.record.title;
    case Where:
        return HouseholdSources::title(row.function);
    default:
        return stateOf(row.record.kind);
    }
}

QVariant DifferencesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return text(m_rows[std::size_t(index.row())], index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    case Qt::CheckStateRole:
        if (index.column() == What && canComeBack(index.row()))
            return m_ticks[std::size_t(index.row())] ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

QVariant DifferencesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const std::array<QString, ColumnCount> headings{u"What"_s, u"In"_s, u"Now"_s};
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    return role == Qt::DisplayRole ? QVariant(headings[std::size_t(section)]) : QVariant();
}

Qt::ItemFlags DifferencesModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isTickable = index.isValid() && index.column() == What && canComeBack(index.row());
    return isTickable ? flags | Qt::ItemIsUserCheckable : flags;
}

bool DifferencesModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    m_ticks[std::size_t(index.row())] = value.value<Qt::CheckState>() == Qt::Checked;
    emit dataChanged(index, index);
    emit tickedChanged();
    return true;
}
