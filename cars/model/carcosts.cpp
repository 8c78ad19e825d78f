// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carcosts.h"

#include "cars/model/carneeds.h"
#include "cars/model/carnumbers.h"
#include "cars/model/fuelfigures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr int mostYears = 50; ///< of which months are told: a mistyped year begins no earlier

QDate monthOf(QDate date)
{
    return {date.year(), date.month(), 1};
}

int monthsBetween(QDate first, QDate last)
{
    return (last.year() - first.year()) * 12 + last.month() - first.month();
}

} // namespace

qint64 CostSums::total() const
{
    return std::accumulate(cents.begin(), cents.end(), qint64(0));
}

std::optional<double> CostSums::perDistance() const
{
    return driven && *driven > 0 ? std::optional(double(total()) / *driven) : std::nullopt;
}

CarCosts::CarCosts(const CarRecord &car, DateStyle style, QDate today)
    : m_log(CarNeeds::drivingLog(car, style, today))
    , m_today(today)
{
    const auto add = [this](std::optional<QDate> date, CostKind kind, std::optional<double> cost) {
        if (!cost)
            return;
        const qint64 cents = std::llround(*cost * 100);
        if (date && *date <= m_today)
            m_costs.append({*date, kind, cents});
        else
            m_undated.cents[std::size_t(kind)] += cents;
    };
    for (const FuelRow &row : car.fuel)
        add(CarNumbers::date(row.date, style), CostKind::Fuel, FuelFigures::sumOf(row.cost));
    for (const auto &[history, kind] :
         {std::pair(&car.maintenance, CostKind::Maintenance), std::pair(&car.repairs, CostKind::Repairs)}) {
        for (const HistoryRow &row : *history)
            add(CarNumbers::date(row.date, style), kind, FuelFigures::sumOf(row.cost));
    }
    std::ranges::stable_sort(m_costs, {}, &Cost::date);
}

CostSums CarCosts::sums(QDate from, QDate to) const
{
    CostSums sums;
    for (auto cost = std::ranges::lower_bound(m_costs, from, {}, &Cost::date);
         cost != m_costs.end() && cost->date <= to; ++cost)
        sums.cents[std::size_t(cost->kind)] += cost->cents;
    sums.driven = m_log.drivenBetween(from, to);
    return sums;
}

CostSums CarCosts::all() const
{
    CostSums all = m_undated;
    for (const Cost &cost : m_costs)
        all.cents[std::size_t(cost.kind)] += cost.cents;
    if (!m_costs.isEmpty())
        all.driven = m_log.drivenBetween(m_costs.first().date, m_today);
    return all;
}

std::optional<double> CarCosts::perMonth() const
{
    if (m_costs.isEmpty())
        return {};
    const int months = monthsBetween(m_costs.first().date, m_today);
    if (months <= 0)
        return {};
    return double(sums(m_costs.first().date, monthOf(m_today).addDays(-1)).total()) / months;
}

QList<int> CarCosts::years() const
{
    QList<int> years;
    for (auto cost = m_costs.crbegin(); cost != m_costs.crend(); ++cost) {
        if (years.isEmpty() || years.last() != cost->date.year())
            years.append(cost->date.year());
    }
    return years;
}

CarCosts::YearAgainstLast CarCosts::yearAgainstLast(int year) const
{
    YearAgainstLast both{year, std::min(m_today, QDate(year, 12, 31)), {}, {}};
    // Of 29 February there is the 28th in the year before.
    both.sums = sums(QDate(year, 1, 1), both.until);
    both.before = sums(QDate(year - 1, 1, 1), both.until.addYears(-1));
    return both;
}

QList<CarCosts::Month> CarCosts::months(QDate from, QDate to) const
{
    QList<Month> months;
    if (!from.isValid() || !to.isValid())
        return months;
    for (QDate first = monthOf(std::max(from, to.addYears(-mostYears))); first <= to;
         first = first.addMonths(1))
        months.append({first, sums(first, first.addMonths(1).addDays(-1))});
    return months;
}
