// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/viewer/addressgrid.h"

#include "addressbook/model/viewermessages.h"
#include "addressbook/model/viewerpages.h"

#include <algorithm>

AddressGrid::AddressGrid(const DataFolder &folder, DateStyle style, QObject *parent)
    : QAbstractTableModel(parent)
    , m_viewer(folder, style)
    , m_style(style)
{}

void AddressGrid::load(Information information, const DisplayRange &range, int mostRows)
{
    beginResetModel();
    m_viewer.load(information, range, mostRows);
    endResetModel();
}

void AddressGrid::reload()
{
    beginResetModel();
    m_viewer.reload();
    endResetModel();
}

void AddressGrid::search(const QString &text)
{
    beginResetModel();
    m_viewer.search(text);
    endResetModel();
}

void AddressGrid::removeEntry(int row)
{
    if (row < 0 || row >= m_viewer.count())
        return;
    if (m_viewer.count() == 1) { // its place goes to the sentence
        beginResetModel();
        m_viewer.removeRow(row);
        endResetModel();
        return;
    }
    beginRemoveRows({}, row, row);
    m_viewer.removeRow(row);
    endRemoveRows();
}

void AddressGrid::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    if (column < 0) {
        m_viewer.sort(std::nullopt);
    } else {
        const auto sorted =
            column == NameColumn ? AddressViewer::Column::Name : AddressViewer::Column::Information;
        m_viewer.sort(AddressViewer::Order{sorted, order == Qt::DescendingOrder});
    }
    endResetModel();
}

AddressGrid::Identity AddressGrid::identity(int row) const
{
    if (row < 0 || row >= m_viewer.count())
        return {};
    return {m_viewer.record(row), m_viewer.name(row)};
}

/// Two lines may lead to one record, and two entries bear one name.
int AddressGrid::rowOf(const Identity &identity) const
{
    int renamed = -1;
    for (int row = 0; row < m_viewer.count(); ++row) {
        if (m_viewer.record(row) != identity.record)
            continue;
        if (m_viewer.name(row) == identity.name)
            return row;
        if (renamed < 0 && identity.record > 0)
            renamed = row;
    }
    return renamed;
}

bool AddressGrid::bringBack(const Identity &identity)
{
    beginResetModel();
    const bool isBack = m_viewer.bringBack(identity.name, identity.record);
    endResetModel();
    return isBack;
}

int AddressGrid::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : std::max(1, m_viewer.count());
}

int AddressGrid::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_viewer.information() == Information::Pictures ? 1 : 2;
}

QVariant AddressGrid::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return cell(index);
    case LinkRole:
        return index.column() == InformationColumn && m_viewer.information() == Information::EmailAddress &&
               isMailAddress(cell(index));
    default:
        return {};
    }
}

QString AddressGrid::cell(const QModelIndex &index) const
{
    if (isEmpty())
        return index.column() == NameColumn ? ViewerMessages::nothingToShow(isSearching()) : QString();
    return index.column() == NameColumn ? m_viewer.name(index.row()) : m_viewer.information(index.row());
}

QVariant AddressGrid::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    return section == NameColumn ? ViewerMessages::nameHeading()
                                 : ViewerPages::heading(m_viewer.information(), m_style);
}

bool AddressGrid::isMailAddress(const QString &cell)
{
    const QString text = cell.trimmed();
    const qsizetype at = text.indexOf(u'@');
    const bool isPlain = std::ranges::none_of(
        text, [](QChar character) { return character <= u' ' || character == u'<' || character == u'>'; });
    return at > 0 && at + 1 < text.size() && text.indexOf(u'@', at + 1) < 0 && isPlain;
}
