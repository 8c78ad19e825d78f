// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetcolumns.h"

#include "budget/window/sheetlook.h"
#include "budget/window/sheetmodel.h"

#include <QFontMetrics>

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int monthCount = int(BudgetSheet::monthCount);
constexpr int itemShare = 7; ///< the items have a seventh of the sheet where there is room

int sumOf(const SheetColumns::Widths &widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

/// The widths that are `least` at least.
SheetColumns::Widths atLeast(SheetColumns::Widths widths, int least)
{
    for (int &width : widths)
        width = std::max(width, least);
    return widths;
}

/// Measures the texts of a month, of which the longest is the widest: digits are all of one width.
class Measure
{
public:
    explicit Measure(const QFont &font)
        : m_metrics(font)
    {}
    void add(const QString &text)
    {
        if (text.size() > m_longest.size())
            m_longest = text;
    }
    int width() const { return m_metrics.horizontalAdvance(m_longest); }

private:
    QFontMetrics m_metrics;
    QString m_longest;
};

int needOf(const SheetModel &model, int month)
{
    Measure amounts(TypeScale::body());
    Measure marked(TypeScale::body());
    Measure balance(TypeScale::strong());
    amounts.add(u"9999.99"_s);
    for (int row = 0; row < int(BudgetSheet::rowCount); ++row) {
        const QModelIndex cell = model.index(row, SheetColumn::firstMonth + month);
        const bool isMarked = model.data(cell, SheetModel::overPlanRole).toBool();
        (isMarked ? marked : amounts).add(model.data(cell, Qt::DisplayRole).toString());
    }
    const SheetModel::MonthFigures sums = model.shownFigures(std::size_t(month));
    amounts.add(sums.expenses);
    amounts.add(sums.income);
    balance.add(sums.balance);
    return std::max({amounts.width() + SheetLook::amountInset, marked.width() + SheetLook::signRoom,
                     balance.width() + SheetLook::amountInset}) +
           SheetLook::amountInset + 1;
}

} // namespace

SheetColumns::Widths SheetColumns::needed(const SheetModel &model)
{
    // What a file may hold instead of an amount is squeezed, and does not drive the other months out.
    const int most =
        QFontMetrics(TypeScale::strong()).horizontalAdvance(u"-999999.99"_s) + 2 * SheetLook::amountInset + 1;
    Widths widths;
    for (int month = 0; month < monthCount; ++month)
        widths[std::size_t(month)] = std::min(needOf(model, month), most);
    return widths;
}

int SheetColumns::neededByItems()
{
    return QFontMetrics(TypeScale::strong()).horizontalAdvance(u"Total Expenses"_s) + 2 * SheetLook::inset;
}

SheetColumns SheetColumns::in(int room, int leastItem, const Widths &needed)
{
    SheetColumns columns;
    const int least = *std::ranges::max_element(needed);
    columns.inView = std::clamp((room - leastItem) / least, 1, monthCount);
    const int forMonths = room - leastItem;
    if (columns.inView < monthCount && sumOf(needed) <= forMonths) {
        int even = forMonths / monthCount;
        while (sumOf(atLeast(needed, even)) > forMonths)
            --even;
        columns.inView = monthCount;
        columns.months = atLeast(needed, even);
        columns.item = room - sumOf(columns.months);
        return columns;
    }
    const int wished = std::max(leastItem, room / itemShare);
    const int month = std::max(least, (room - wished) / columns.inView);
    columns.months.fill(month);
    columns.item = std::max(leastItem, room - month * columns.inView);
    return columns;
}
