// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/yearcomparison.h"

#include "budget/model/amount.h"
#include "budget/model/budgetfigures.h"
#include "budget/model/yearslines.h"

#include <QHash>
#include <QLocale>

#include <utility>

namespace {

using Line = YearComparison::Line;
using Table = YearComparison::Table;

void compare(Line &line, bool hasBefore)
{
    if (hasBefore)
        line.difference = Amount::rounded(line.now.value_or(0) - line.before.value_or(0));
}

/// Gathers the lines of the items of one year after the other.
class ItemLines
{
public:
    void add(const BudgetSheet &sheet, std::optional<double> Line::*year)
    {
        for (const BudgetSheet::Row &row : sheet.rows) {
            if (row.isEmpty())
                continue;
            double total = 0;
            for (const QString &amount : row.amounts)
                total += Amount::stored(amount);
            const QString item = row.item.trimmed();
            if (item.isEmpty()) {
                m_noItem.*year = (m_noItem.*year).value_or(0) + total;
                continue;
            }
            if (!m_places.contains(item)) {
                m_places.insert(item, m_lines.size());
                m_lines.append({item, {}, {}, {}});
            }
            Line &line = m_lines[m_places.value(item)];
            line.*year = (line.*year).value_or(0) + total;
        }
    }

    QList<Line> take(bool hasBefore)
    {
        if (m_noItem.now || m_noItem.before) {
            m_noItem.what = YearsLines::withoutItem();
            m_lines.append(m_noItem);
        }
        for (Line &line : m_lines)
            compare(line, hasBefore);
        return std::move(m_lines);
    }

private:
    QList<Line> m_lines;
    Line m_noItem;
    QHash<QString, qsizetype> m_places;
};

Table monthTable(const QString &caption, const BudgetFigures &now, const std::optional<BudgetFigures> &before,
                 float BudgetFigures::Month::*month, double BudgetFigures::*year)
{
    const auto line = [&](const QString &what, auto figure) {
        Line line{what, Amount::rounded(figure(now)), {}, {}};
        if (before)
            line.before = Amount::rounded(figure(*before));
        compare(line, before.has_value());
        return line;
    };
    Table table;
    for (std::size_t i = 0; i < BudgetSheet::monthCount; ++i)
        table.lines.append(line(QLocale::c().monthName(int(i) + 1), [&](const BudgetFigures &figures) {
            return double(figures.months[i].*month);
        }));
    table.sum = line(caption, [&](const BudgetFigures &figures) { return figures.*year; });
    return table;
}

} // namespace

YearComparison::YearComparison(const BudgetSheet &now, const std::optional<BudgetSheet> &before)
    : m_hasBefore(before.has_value())
{
    const BudgetFigures nowFigures = BudgetFigures::of(now);
    const auto beforeFigures = before ? std::optional(BudgetFigures::of(*before)) : std::nullopt;
    using Month = BudgetFigures::Month;
    const auto months = [&](const QString &caption, float Month::*month, double BudgetFigures::*year) {
        return monthTable(caption, nowFigures, beforeFigures, month, year);
    };
    const Table expenses = months(YearsLines::expenses(), &Month::expenses, &BudgetFigures::expenses);
    ItemLines items;
    items.add(now, &Line::now);
    if (before)
        items.add(*before, &Line::before);
    m_tables = {Table{items.take(m_hasBefore), expenses.sum}, expenses,
                months(YearsLines::income(), &Month::income, &BudgetFigures::income),
                months(YearsLines::balance(), &Month::balance, &BudgetFigures::balance)};
}

bool YearComparison::isWorse(Compared what, const Line &line)
{
    const double difference = line.difference.value_or(0);
    return what == Compared::Items || what == Compared::Expenses ? difference > 0 : difference < 0;
}
