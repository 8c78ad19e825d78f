// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/rulestable.h"

#include "calendar/model/daterulewords.h"
#include "calendar/window/rulelines.h"
#include "shell/core/dates.h"
#include "shell/look/theme.h"

#include <QBrush>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int yearsAhead = 30; ///< beyond which a day does not count as coming

QDate nextOf(const DateRule &rule, QDate today)
{
    for (int year = 0; year < yearsAhead; ++year) {
        const QList<QDate> dates = rule.dates(today.addYears(year), today.addYears(year + 1).addDays(-1));
        if (!dates.isEmpty())
            return dates.first();
    }
    return {};
}

} // namespace

RulesTable::RulesTable(DateStyle style, QDate today, QObject *parent)
    : QAbstractTableModel(parent)
    , m_style(style)
    , m_today(today)
{}

void RulesTable::setRows(const QList<RuleRow> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

void RulesTable::setRow(int row, const RuleRow &value)
{
    m_rows[row] = value;
    emit dataChanged(index(row, Text), index(row, Next));
}

void RulesTable::append(const RuleRow &value)
{
    beginInsertRows({}, int(m_rows.size()), int(m_rows.size()));
    m_rows.append(value);
    endInsertRows();
}

void RulesTable::remove(int row)
{
    beginRemoveRows({}, row, row);
    m_rows.removeAt(row);
    endRemoveRows();
}

int RulesTable::firstComing() const
{
    const auto comes = [this](const RuleRow &row) { return !text(row, Next).isEmpty(); };
    const auto found = std::ranges::find_if(m_rows, comes);
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

int RulesTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int RulesTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Next + 1;
}

QString RulesTable::text(const RuleRow &row, int column) const
{
    if (column == Text)
        return row.sign.isEmpty() ? row.text : row.sign + u' ' + row.text;
    const auto rule = DateRule::parse(row.rule);
    if (column == When)
        return rule ? DateRuleWords::of(*rule, m_style) : RuleLines::cannotBeRead(row.line, row.rule);
    const QDate next = rule ? nextOf(*rule, m_today) : QDate();
    return next.isValid() ? Dates::statusText(next, m_style) : QString();
}

QVariant RulesTable::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const RuleRow &row = m_rows[index.row()];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return text(row, index.column());
    if (role == Qt::ForegroundRole && index.column() == When && !DateRule::parse(row.rule))
        return QBrush(Theme::of(nullptr).negative);
    return {};
}

QVariant RulesTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < Text || section > Next)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    const QString headings[] = {u"Day"_s, u"When"_s, u"Next"_s};
    return role == Qt::DisplayRole ? headings[section] : QVariant();
}
