// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weighinmodel.h"

#include "shell/controls/gridcell.h"
#include "weight/model/weightcolumns.h"
#include "weight/model/weightdates.h"
#include "weight/model/weightentry.h"
#include "weight/model/weightnumbers.h"
#include "weight/window/datecheck.h"
#include "weight/window/openperson.h"
#include "weight/window/windowlines.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString heading(int column)
{
    switch (column) {
    case WeighInModel::Date:
        return u"Date of Weigh In"_s;
    case WeighInModel::Weight:
        return u"Current Weight"_s;
    case WeighInModel::Change:
        return u"Change from last Entry"_s;
    default:
        return u"Beginning Weight Difference"_s;
    }
}

} // namespace

WeighInModel::WeighInModel(OpenPerson &person, const DateCheck &dateCheck, QObject *parent)
    : QAbstractTableModel(parent)
    , m_person(person)
    , m_dateCheck(dateCheck)
{}

void WeighInModel::refresh()
{
    if (m_name != m_person.name()) {
        beginResetModel();
        m_rows = m_person.sheet().weighIns;
        m_name = m_person.name();
        m_byWeight.reset();
        m_order.clear();
        endResetModel();
        return;
    }
    const bool isSorted = m_byWeight && !m_isTyping;
    if (isSorted)
        reorder({});
    readRows();
    if (isSorted)
        reorder(m_rows.order(WeightTable::Column::Weight, *m_byWeight));
}

void WeighInModel::readRows()
{
    // Wherever rows came or went: the others tell what they hold now, and the view stays where it is.
    const int before = rowCount();
    const int after = int(m_person.sheet().weighIns.rowCount());
    if (after > before)
        beginInsertRows({}, before, after - 1);
    else if (after < before)
        beginRemoveRows({}, after, before - 1);
    m_rows = m_person.sheet().weighIns;
    if (after > before)
        endInsertRows();
    else if (after < before)
        endRemoveRows();
    if (after > 0)
        emit dataChanged(index(0, 0), index(after - 1, columns - 1));
}

void WeighInModel::showByWeight(std::optional<Qt::SortOrder> order)
{
    m_byWeight = order;
    reorder(order ? m_rows.order(WeightTable::Column::Weight, *order) : std::vector<qsizetype>());
}

int WeighInModel::shownRow(qsizetype tableRow) const
{
    return m_order.empty() ? int(tableRow) : int(std::ranges::find(m_order, tableRow) - m_order.begin());
}

/// The cell that is chosen stays so.
void WeighInModel::reorder(std::vector<qsizetype> order)
{
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<qsizetype> rows;
    for (const QModelIndex &index : before)
        rows.push_back(tableRow(index.row()));
    m_order = std::move(order);
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(index(shownRow(rows[std::size_t(i)]), before[i].column()));
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

QString WeighInModel::titleOf(qsizetype row) const
{
    return TrackerLines::weighIn(text(row, Weight), text(row, Date));
}

QString WeighInModel::text(qsizetype row, int column) const
{
    const std::optional<float> weight = m_rows.number(row);
    switch (column) {
    case Date: {
        const QDate day = m_rows.day(row);
        return day.isValid() ? WeightDates::tableText(day) : m_rows.date(row);
    }
    case Weight:
        return weight ? WeightNumbers::text(double(*weight)) : m_rows.weight(row);
    case Change:
        return WeightColumns::change(m_rows, row);
    default:
        return WeightColumns::difference(m_rows, row, m_person.sheet().beginningWeight());
    }
}

int WeighInModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.rowCount());
}

int WeighInModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant WeighInModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(tableRow(index.row()), index.column());
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (index.column() == Date ? Qt::AlignLeft : Qt::AlignRight));
    case GridCell::kindRole:
        return int(index.column() == Date ? GridCell::Kind::Date : GridCell::Kind::Number);
    case GridCell::quietRole:
        return index.column() > Weight;
    default:
        return {};
    }
}

QVariant WeighInModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return heading(section);
    if (role != Qt::TextAlignmentRole)
        return {};
    const Qt::Alignment side = section == Date ? Qt::AlignLeft : Qt::AlignRight;
    return QVariant::fromValue(Qt::Alignment::fromInt(int(side | Qt::AlignVCenter) | Qt::TextWordWrap));
}

Qt::ItemFlags WeighInModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isStored = index.column() == Date || index.column() == Weight;
    return isStored && m_person.whyLocked().isEmpty() ? flags | Qt::ItemIsEditable : flags;
}

bool WeighInModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const qsizetype row = tableRow(index.row());
    const bool isDate = index.column() == Date;
    const QString before = isDate ? m_rows.date(row) : m_rows.weight(row);
    const WeightEntry entry = isDate ? m_dateCheck.tableDate(value.toString(), before)
                                     : WeightEntry::weight(value.toString(), before);
    if (entry.refusal) {
        emit noticed(*entry.refusal, index);
        return false;
    }
    WeightSheet wanted = m_person.sheet();
    if (isDate)
        wanted.weighIns.setDate(row, entry.text);
    else
        wanted.weighIns.setWeight(row, entry.text);
    const QScopedValueRollback typing(m_isTyping, true);
    m_person.change(TrackerLines::rowChanged(heading(index.column()), titleOf(row)), wanted);
    return true;
}
