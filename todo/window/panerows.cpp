// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/panerows.h"

#include "todo/window/windowlines.h"

#include <QMimeData>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString rowFormat = u"application/x-quillery-list-of-things"_s;

bool haveSameKeys(const std::vector<PaneRows::Row> &one, const std::vector<PaneRows::Row> &other)
{
    return std::ranges::equal(one, other, {}, &PaneRows::Row::key, &PaneRows::Row::key);
}

} // namespace

void PaneRows::setRows(std::vector<Row> rows)
{
    if (rows == m_rows)
        return;
    const bool isSame = haveSameKeys(rows, m_rows);
    if (!isSame)
        beginResetModel();
    m_rows = std::move(rows);
    if (!isSame)
        endResetModel();
    else
        emit dataChanged(index(0), index(rowCount() - 1));
}

QModelIndex PaneRows::indexOf(int key) const
{
    const auto found = std::ranges::find(m_rows, key, &Row::key);
    return found == m_rows.end() ? QModelIndex() : index(int(found - m_rows.begin()));
}

int PaneRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant PaneRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = m_rows[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return row.isTemplate ? ToDoWindowLines::templateOf(row.name) : row.name;
    case Qt::EditRole:
        return row.name;
    case Qt::AccessibleTextRole:
        return ToDoWindowLines::listSpoken(row.name, row.count);
    case keyRole:
        return row.key;
    case countRole:
        return row.count;
    case overdueRole:
        return row.isOverdue;
    default:
        return {};
    }
}

bool PaneRows::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !m_isRenamable)
        return false;
    const Row &row = m_rows[std::size_t(index.row())];
    const QString name = value.toString().trimmed();
    if (!name.isEmpty() && name != row.name)
        emit renamed(row.key, name);
    return true;
}

Qt::ItemFlags PaneRows::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index) | Qt::ItemIsDropEnabled;
    if (!m_isRenamable || !index.isValid())
        return flags;
    const bool isDraggable = !m_rows[std::size_t(index.row())].isTemplate;
    return flags | Qt::ItemIsEditable | (isDraggable ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

QStringList PaneRows::mimeTypes() const
{
    return {rowFormat};
}

QMimeData *PaneRows::mimeData(const QModelIndexList &indexes) const
{
    auto *data = new QMimeData;
    if (!indexes.isEmpty())
        data->setData(rowFormat, QByteArray::number(m_rows[std::size_t(indexes.first().row())].key));
    return data;
}

bool PaneRows::isRow(const QMimeData *data)
{
    return data && data->hasFormat(rowFormat);
}

int PaneRows::keyOf(const QMimeData &data)
{
    return data.data(rowFormat).toInt();
}
