// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/fuelfigures.h"

#include "cars/model/carnumbers.h"

#include <algorithm>
#include <cmath>

namespace {

using Kind = FillUp::Kind;

constexpr double tolerance = 1; ///< between readings that are the same: somebody rounded
constexpr int mostPartial = 20; ///< nobody fills up in part more often in a row
/// With fewer fill-ups nobody knows what is usual.
constexpr qsizetype leastToJudge = 5;
constexpr double unusual = 2;

bool isSame(double one, double other)
{
    return std::abs(one - other) <= tolerance;
}

bool isPositive(const std::optional<double> &number)
{
    return number && *number > 0;
}

} // namespace

FuelFigures::FuelFigures(const FuelLog &log, DateStyle style)
    : m_fillUps(log.size())
    , m_stretches(log.size())
    , m_own(log.size())
{
    for (qsizetype i = 0; i < log.size(); ++i)
        m_fillUps[i].date = CarNumbers::date(log[i].date, style).value_or(QDate());
    findOrder();
    for (const int index : std::as_const(m_order))
        read(log[index], index);
    workOut();
    judge();
}

void FuelFigures::findOrder()
{
    QList<QDate> dates;
    QDate last;
    for (const FillUp &fillUp : std::as_const(m_fillUps)) {
        last = fillUp.date.isValid() ? fillUp.date : last;
        m_order.append(int(dates.size()));
        dates.append(last);
    }
    std::ranges::stable_sort(m_order, {}, [&dates](int index) { return dates[index]; });
}

void FuelFigures::read(const FuelRow &row, int index)
{
    FillUp &fillUp = m_fillUps[index];
    std::optional<double> previous = CarNumbers::number(row.previous);
    const std::optional<double> driven = sumOf(row.driven);
    fillUp.reading = CarNumbers::number(row.current);
    fillUp.used = sumOf(row.used);
    if (const auto cost = sumOf(row.cost))
        fillUp.cents = qint64(std::llround(*cost * 100));
    if (!previous && (fillUp.reading || driven))
        previous = m_last;
    if (!fillUp.reading && previous && driven)
        fillUp.reading = *previous + *driven;
    const bool isRising = previous && fillUp.reading && *fillUp.reading >= *previous;
    fillUp.driven = isRising ? std::optional(*fillUp.reading - *previous) : driven;
    if (const auto economy = CarNumbers::number(row.economy);
        !fillUp.used && isPositive(fillUp.driven) && isPositive(economy))
        fillUp.used = *fillUp.driven / *economy;
    m_own[index] = fillUp.driven.value_or(0);
    if (isPositive(fillUp.used))
        fillUp.kind = isPositive(fillUp.driven) ? Kind::Counted : Kind::Partial;
    if (previous && m_last && !isSame(*previous, *m_last)) {
        if (isRising && *fillUp.reading > *m_last && isOverlapping(*previous, index))
            m_own[index] = *fillUp.reading - *m_last;
        else
            fillUp.kind = Kind::Missing;
    } else if (previous && fillUp.reading && !isRising) {
        fillUp.kind = Kind::Missing;
    }
    m_last = fillUp.reading ? fillUp.reading : m_last;
}

/// Whether `previous` is the reading of an earlier fill-up: those in between did not fill the tank.
bool FuelFigures::isOverlapping(double previous, int index)
{
    const auto end = std::ranges::find(m_order, index);
    auto at = end;
    for (int i = 0; i < mostPartial && at != m_order.begin(); ++i) {
        const FillUp &fillUp = m_fillUps[*--at];
        if (!fillUp.reading || !isSame(*fillUp.reading, previous))
            continue;
        for (++at; at != end; ++at)
            m_fillUps[*at].kind = Kind::Partial;
        return true;
    }
    return false;
}

void FuelFigures::add(int index, Stretch &stretch) const
{
    const FillUp &fillUp = m_fillUps[index];
    stretch.driven += m_own[index];
    stretch.used += fillUp.used.value_or(0);
    stretch.cents += fillUp.cents.value_or(0);
    stretch.hasCosts = stretch.hasCosts && fillUp.cents;
}

void FuelFigures::workOut()
{
    Stretch since;
    for (const int index : std::as_const(m_order)) {
        FillUp &fillUp = m_fillUps[index];
        fillUp.economy.reset();
        if (fillUp.kind == Kind::Partial) {
            add(index, since);
            continue;
        }
        if (fillUp.kind != Kind::Counted)
            since = {};
        if (isPositive(fillUp.driven) && isPositive(fillUp.used)) {
            add(index, since);
            fillUp.economy = since.driven / since.used;
        }
        m_stretches[index] = since;
        since = {};
    }
}

/// More than twice of what is usual was not a full tank; less than half of it has a reason that nobody wrote
/// down.
void FuelFigures::judge()
{
    QList<double> usual;
    for (const FillUp &fillUp : std::as_const(m_fillUps)) {
        if (fillUp.kind == Kind::Counted)
            usual.append(*fillUp.economy);
    }
    if (usual.size() < leastToJudge)
        return;
    const auto middle = usual.begin() + usual.size() / 2;
    std::ranges::nth_element(usual, middle);
    const double median = *middle;
    QSet<int> notFull;
    for (int index = 0; index < int(m_fillUps.size()); ++index) {
        FillUp &fillUp = m_fillUps[index];
        if (fillUp.kind != Kind::Counted || *fillUp.economy <= median * unusual)
            continue;
        fillUp.kind = Kind::Partial;
        notFull.insert(index);
    }
    workOut();
    findMissing(notFull, median * unusual);
    for (FillUp &fillUp : m_fillUps) {
        if (fillUp.kind == Kind::Counted && *fillUp.economy < median / unusual)
            fillUp.kind = Kind::Unlikely;
    }
}

/// Where even the fuel of the next one is too little for the distance, it was not a full tank that is to
/// blame but a fill-up that nobody entered.
void FuelFigures::findMissing(const QSet<int> &notFull, double most)
{
    QList<int> before;
    for (const int index : std::as_const(m_order)) {
        const FillUp &fillUp = m_fillUps[index];
        if (notFull.contains(index))
            before.append(index);
        if (fillUp.kind == Kind::Partial)
            continue;
        for (const int missing : std::as_const(before)) {
            if (fillUp.kind == Kind::Counted && *fillUp.economy > most)
                m_fillUps[missing].kind = Kind::Missing;
        }
        before.clear();
    }
    workOut();
}

FuelSums FuelFigures::sums(QDate from, QDate to) const
{
    FuelSums sums;
    Stretch counted;
    Stretch paid;
    int withCost = 0;
    double usedWithCost = 0;
    for (qsizetype i = 0; i < m_fillUps.size(); ++i) {
        const FillUp &fillUp = m_fillUps[i];
        const bool isOut = (from.isValid() && (!fillUp.date.isValid() || fillUp.date < from)) ||
                           (to.isValid() && (!fillUp.date.isValid() || fillUp.date > to));
        if (isOut)
            continue;
        sums.fillUps += isPositive(fillUp.used) || fillUp.cents ? 1 : 0;
        sums.driven += m_own[i];
        sums.used += fillUp.used.value_or(0);
        sums.cents += fillUp.cents.value_or(0);
        withCost += fillUp.cents ? 1 : 0;
        usedWithCost += fillUp.cents ? fillUp.used.value_or(0) : 0;
        if (fillUp.kind != Kind::Counted)
            continue;
        const Stretch &stretch = m_stretches[i];
        counted.driven += stretch.driven;
        counted.used += stretch.used;
        paid.driven += stretch.hasCosts ? stretch.driven : 0;
        paid.cents += stretch.hasCosts ? stretch.cents : 0;
        sums.best = std::max(sums.best.value_or(*fillUp.economy), *fillUp.economy);
        sums.worst = std::min(sums.worst.value_or(*fillUp.economy), *fillUp.economy);
    }
    if (counted.used > 0)
        sums.economy = counted.driven / counted.used;
    if (paid.driven > 0)
        sums.centsPerDistance = double(paid.cents) / paid.driven;
    if (usedWithCost > 0)
        sums.centsPerAmount = double(sums.cents) / usedWithCost;
    if (withCost > 0)
        sums.centsPerFillUp = double(sums.cents) / withCost;
    return sums;
}

int FuelFigures::newest() const
{
    const auto found = std::find_if(m_order.crbegin(), m_order.crend(),
                                    [this](int index) { return m_fillUps[index].kind == Kind::Counted; });
    return found == m_order.crend() ? -1 : *found;
}

FuelRow FuelFigures::completed(FuelRow row, const FuelLog &before)
{
    if (row.previous.trimmed().isEmpty() && !before.isEmpty())
        row.previous = before.last().current;
    const std::optional<double> previous = CarNumbers::number(row.previous);
    if (const auto driven = sumOf(row.driven); driven && previous && row.current.trimmed().isEmpty())
        row.current = CarNumbers::text(*previous + *driven);
    const std::optional<double> current = CarNumbers::number(row.current);
    if (previous && current && *current >= *previous)
        row.driven = CarNumbers::text(*current - *previous);
    const std::optional<double> driven = sumOf(row.driven);
    const std::optional<double> used = sumOf(row.used);
    if (isPositive(driven) && isPositive(used))
        row.economy = CarNumbers::text(*driven / *used, 1);
    return row;
}

std::optional<double> FuelFigures::sumOf(const QString &text)
{
    double sum = 0;
    for (const QStringView part : QStringView(text).split(u'+')) {
        const std::optional<double> number = CarNumbers::number(part);
        if (!number)
            return {};
        sum += *number;
    }
    return sum;
}
