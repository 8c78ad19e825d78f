// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/panerows.h"

#include <QMimeData>

#include <algorithm>
#include <utility>

namespace {

bool haveSameKeys(const std::vector<PaneRows::Row> &one, const std::vector<PaneRows::Row> &other)
{
    return std::ranges::equal(one, other, {}, &PaneRows::Row::key, &PaneRows::Row::key);
}

} // namespace

PaneRows::PaneRows(QString format, QObject *parent)
    : QAbstractListModel(parent)
    , m_format(std::move(format))
{}

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

void PaneRows::setPicture(int key, const QImage &picture)
{
    const QModelIndex row = indexOf(key);
    if (!row.isValid())
        return;
    m_rows[std::size_t(row.row())].picture = picture;
    emit dataChanged(row, row, {Qt::DecorationRole});
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
        return row.shown.isEmpty() ? row.name : row.shown;
    case Qt::EditRole:
        return row.name;
    case Qt::AccessibleTextRole:
        return row.spoken.isEmpty() ? row.name : row.spoken;
    case Qt::DecorationRole:
        return row.picture ? QVariant(*row.picture) : QVariant();
    case keyRole:
        return row.key;
    case countRole:
        return row.count;
    case kindRole:
        return row.kind;
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
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    if (!index.isValid())
        return flags | Qt::ItemIsDropEnabled; // between the rows
    const Row &row = m_rows[std::size_t(index.row())];
    flags.setFlag(Qt::ItemIsDropEnabled, row.takesThings);
    flags.setFlag(Qt::ItemIsEditable, m_isRenamable && row.isRenamable);
    flags.setFlag(Qt::ItemIsDragEnabled, m_isRenamable && !row.isFixed);
    return flags;
}

QStringList PaneRows::mimeTypes() const
{
    return {m_format};
}

QMimeData *PaneRows::mimeData(const QModelIndexList &indexes) const
{
    auto *data = new QMimeData;
    if (!indexes.isEmpty())
        data->setData(m_format, QByteArray::number(m_rows[std::size_t(indexes.first().row())].key));
    return data;
}

bool PaneRows::isRow(const QMimeData *data) const
{
    return data && data->hasFormat(m_format);
}

int PaneRows::keyOf(const QMimeData &data) const
{
    return data.data(m_format).toInt();
}
