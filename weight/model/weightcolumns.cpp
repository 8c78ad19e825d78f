// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightcolumns.h"

#include "weight/model/goalforecast.h"
#include "weight/model/weightnumbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using WeightColumns::Way;

/// The last row before `end` that has a weight; -1: none has.
qsizetype lastWeighed(const WeightTable &weighIns, qsizetype end)
{
    while (--end >= 0 && !weighIns.number(end)) {}
    return end;
}

/// Both are in single precision, and so is what is between them.
QString between(float before, float now)
{
    return WeightNumbers::difference(double(now - before));
}

Way wayOf(const QString &difference)
{
    if (difference.startsWith(u'+'))
        return Way::Up;
    return difference.startsWith(u'-') ? Way::Down : Way::Level;
}

/// What the goal is seen from.
std::optional<float> start(const WeightSheet &sheet)
{
    if (const auto beginning = sheet.beginningWeight())
        return beginning;
    for (qsizetype row = 0; row < sheet.weighIns.rowCount(); ++row) {
        if (const auto weight = sheet.weighIns.number(row))
            return weight;
    }
    return {};
}

} // namespace

QString WeightColumns::change(const WeightTable &weighIns, qsizetype row)
{
    const auto weight = weighIns.number(row);
    if (!weight)
        return row == 0 ? u"N/A"_s : QString();
    const qsizetype before = lastWeighed(weighIns, row);
    return before < 0 ? u"N/A"_s : between(*weighIns.number(before), *weight);
}

QString WeightColumns::difference(const WeightTable &weighIns, qsizetype row, std::optional<float> beginning)
{
    const auto weight = weighIns.number(row);
    return weight && beginning ? between(*beginning, *weight) : QString();
}

Way WeightColumns::sinceBeginning(const WeightSheet &sheet)
{
    const auto weight = current(sheet.weighIns);
    const auto beginning = sheet.beginningWeight();
    return weight && beginning ? wayOf(between(*beginning, *weight)) : Way::Unknown;
}

Way WeightColumns::sinceLastEntry(const WeightSheet &sheet)
{
    const qsizetype last = currentRow(sheet.weighIns);
    const qsizetype before = lastWeighed(sheet.weighIns, last);
    return before < 0 ? Way::Unknown
                      : wayOf(between(*sheet.weighIns.number(before), *sheet.weighIns.number(last)));
}

qsizetype WeightColumns::currentRow(const WeightTable &weighIns)
{
    return lastWeighed(weighIns, weighIns.rowCount());
}

std::optional<float> WeightColumns::current(const WeightTable &weighIns)
{
    const qsizetype last = currentRow(weighIns);
    return last < 0 ? std::nullopt : weighIns.number(last);
}

bool WeightColumns::isGoalReached(const WeightSheet &sheet)
{
    const auto goal = sheet.goalWeight();
    const auto from = start(sheet);
    const auto now = current(sheet.weighIns);
    return goal && from && now && GoalForecast::isReached(double(*now), double(*goal), double(*from));
}
