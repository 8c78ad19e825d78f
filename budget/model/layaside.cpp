// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/layaside.h"

#include "budget/model/spending.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int monthCount = int(BudgetSheet::monthCount);
constexpr int monthsAhead = 2 * monthCount; ///< an item may fall due later next year than this year

/// The items of a year that come in a few months only, with their months' cents.
class RareItems
{
public:
    using Months = std::array<qint64, BudgetSheet::monthCount>;

    explicit RareItems(const BudgetSheet &sheet)
    {
        for (const BudgetSheet::Row &row : sheet.rows) {
            const QString item = row.item.trimmed();
            if (item.isEmpty())
                continue;
            if (!m_months.contains(item))
                m_names.append(item);
            Months &months = m_months[item];
            for (std::size_t month = 0; month < months.size(); ++month)
                months[month] += centsOf(row.amounts[month]);
        }
        m_months.removeIf([](QHash<QString, Months>::iterator entry) {
            return std::ranges::count_if(entry.value(), [](qint64 cents) { return cents > 0; }) >
                   LayAside::mostMonths;
        });
    }

    const QStringList &names() const { return m_names; }
    qint64 cents(const QString &item, int month) const
    {
        const auto found = m_months.constFind(item);
        return found == m_months.cend() ? 0 : (*found)[std::size_t(month)];
    }

private:
    QStringList m_names;
    QHash<QString, Months> m_months;
};

} // namespace

LayAside LayAside::of(int year, const BudgetSheet &sheet, const std::optional<BudgetSheet> &next, QDate today)
{
    const RareItems ofYear(sheet);
    const RareItems ofNext(next.value_or(sheet));
    QStringList names = ofYear.names() + ofNext.names();
    names.removeDuplicates();
    // Months are counted from the year 0.
    const int thisMonth = today.year() * monthCount + today.month() - 1;
    const int first = std::max(thisMonth + 1, year * monthCount);
    LayAside aside;
    for (const QString &name : std::as_const(names)) {
        for (int month = first; month < first + monthsAhead; ++month) {
            const int inYear = month / monthCount;
            const qint64 cents = (inYear == year ? ofYear : ofNext).cents(name, month % monthCount);
            if (cents <= 0)
                continue;
            const int months = month - thisMonth;
            const qint64 monthly = (cents + months - 1) / months;
            aside.items.append({name, QDate(inYear, month % monthCount + 1, 1), cents, monthly});
            aside.monthly += monthly;
            break;
        }
    }
    std::ranges::stable_sort(aside.items, {}, &Item::due);
    return aside;
}
