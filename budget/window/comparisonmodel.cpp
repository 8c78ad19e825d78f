// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/comparisonmodel.h"

#include "budget/model/yearslines.h"

namespace {

enum Column { What, Now, Before, Difference, ColumnCount };

QVariant alignmentOf(int column)
{
    return QVariant::fromValue(Qt::AlignVCenter | (column == What ? Qt::AlignLeft : Qt::AlignRight));
}

} // namespace

void ComparisonModel::show(int year, Compared what, const YearComparison::Table &table)
{
    beginResetModel();
    m_year = year;
    m_what = what;
    m_table = table;
    endResetModel();
}

void ComparisonModel::setRed(const QColor &red)
{
    m_red = red;
    if (const int rows = rowCount(); rows > 0)
        emit dataChanged(index(0, Difference), index(rows - 1, Difference), {Qt::ForegroundRole});
}

QStringList ComparisonModel::sum() const
{
    return YearsLines::cells(m_table.sum);
}

int ComparisonModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_table.lines.size());
}

int ComparisonModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ComparisonModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const YearComparison::Line &line = m_table.lines[index.row()];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return YearsLines::cells(line)[index.column()];
    case Qt::TextAlignmentRole:
        return alignmentOf(index.column());
    case Qt::ForegroundRole:
        return index.column() == Difference && YearComparison::isWorse(m_what, line) ? m_red : QVariant();
    default:
        return {};
    }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignmentOf(section);
    return role == Qt::DisplayRole ? YearsLines::headings(m_what, m_year)[section] : QVariant();
}
