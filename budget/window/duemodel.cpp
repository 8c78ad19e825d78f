// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/duemodel.h"

#include "budget/model/budgetnews.h"
#include "budget/model/spentlines.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"

using namespace Qt::Literals::StringLiterals;

DueModel::DueModel(SpentYear &year, QDate today, QObject *parent)
    : QAbstractTableModel(parent)
    , m_year(year)
    , m_today(today)
{
    connect(&year, &SpentYear::changed, this, &DueModel::refresh);
    refresh();
}

void DueModel::setMonth(int month)
{
    m_month = month;
    refresh();
}

void DueModel::refresh()
{
    const BudgetSheet &sheet = m_year.sheet().sheet();
    const BudgetItems items(sheet);
    QList<int> rows;
    for (std::size_t row = 0; row < BudgetSheet::rowCount; ++row) {
        if (!items.owned(sheet, row).isEmpty())
            rows.append(int(row));
    }
    if (rows == m_rows) {
        if (!rows.isEmpty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, Paid));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

QString DueModel::item(int row) const
{
    return m_year.sheet().sheet().rows[std::size_t(m_rows[row])].item.trimmed();
}

qint64 DueModel::planned(int row) const
{
    return centsOf(m_year.sheet().sheet().rows[std::size_t(m_rows[row])].amounts[std::size_t(m_month)]);
}

qint64 DueModel::spent(int row) const
{
    return m_year.sums().rows[std::size_t(m_rows[row])][std::size_t(m_month)];
}

int DueModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int DueModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Paid + 1;
}

QString DueModel::text(int row, int column) const
{
    const auto amount = [](qint64 cents) { return cents == 0 ? QString() : centsText(cents); };
    switch (column) {
    case Item:
        return item(row);
    case DueDay: {
        const int day = m_year.spending().dueDay(item(row));
        return day == 0 ? QString() : QString::number(day);
    }
    case Planned:
        return amount(planned(row));
    case Spent:
        return amount(spent(row));
    case Paid:
        return state(row);
    default:
        return {};
    }
}

/// What is to be known beside the tick.
QString DueModel::state(int row) const
{
    const qint64 plan = planned(row);
    if (plan <= 0 || m_year.spending().isPaid(item(row), m_month + 1))
        return {};
    if (spent(row) >= plan)
        return SpentLines::allSpent();
    const int day = m_year.spending().dueDay(item(row));
    const bool isOverdue = day > 0 && BudgetNews::dueDate(m_year.year(), m_month + 1, day) < m_today;
    return isOverdue ? SpentLines::overdue() : QString();
}

QVariant DueModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int row = index.row();
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(
            Qt::AlignVCenter |
            (index.column() == Item || index.column() == Paid ? Qt::AlignLeft : Qt::AlignRight));
    if (index.column() == Paid && role == Qt::CheckStateRole)
        return m_year.spending().isPaid(item(row), m_month + 1) ? Qt::Checked : Qt::Unchecked;
    if (index.column() == Paid && role == Qt::AccessibleTextRole)
        return QString(item(row) + u", paid"_s);
    return role == Qt::DisplayRole || role == Qt::EditRole ? text(row, index.column()) : QVariant();
}

QVariant DueModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (section == Item || section == Paid ? Qt::AlignLeft : Qt::AlignRight));
    static const QStringList headings{u"Item"_s, u"Due day"_s, u"Planned"_s, u"Spent"_s, u"Paid"_s};
    return role == Qt::DisplayRole ? headings.value(section) : QVariant();
}

Qt::ItemFlags DueModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!m_year.whyReadOnly().isEmpty())
        return flags;
    if (index.column() == DueDay)
        return flags | Qt::ItemIsEditable;
    return index.column() == Paid ? flags | Qt::ItemIsUserCheckable : flags;
}

bool DueModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role == Qt::CheckStateRole && index.column() == Paid) {
        toggle(index.row());
        return true;
    }
    return role == Qt::EditRole && index.column() == DueDay && setDueDay(index.row(), value.toString());
}

bool DueModel::setDueDay(int row, const QString &typed)
{
    const QString text = typed.trimmed();
    const int day = text.toInt();
    if (!text.isEmpty() && (day < 1 || day > 31)) {
        emit said(SpentLines::notADay());
        return false;
    }
    Spending wanted = m_year.spending();
    const QString of = item(row);
    if (wanted.dueDay(of) == day)
        return false;
    wanted.setDueDay(of, day);
    m_year.change(SpentLines::dueDay(of, day), wanted);
    return true;
}

void DueModel::toggle(int row)
{
    if (!m_year.whyReadOnly().isEmpty())
        return;
    Spending wanted = m_year.spending();
    const QString of = item(row);
    const int month = m_month + 1;
    const bool wasPaid = wanted.isPaid(of, month);
    if (wasPaid) {
        wanted.untick(of, month);
    } else {
        const bool isNow = m_today.year() == m_year.year() && m_today.month() == month;
        const int day = wanted.dueDay(of);
        wanted.tick(of, isNow ? m_today : BudgetNews::dueDate(m_year.year(), month, day == 0 ? 1 : day),
                    planned(row));
    }
    m_year.change(wasPaid ? SpentLines::notPaid(of, month) : SpentLines::paid(of, month), wanted);
}
