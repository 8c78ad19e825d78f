// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/standing.h"

#include "weight/model/weightcolumns.h"
#include "weight/model/weightfigures.h"
#include "weight/model/weightnumbers.h"
#include "weight/model/weightwords.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QLatin1StringView signOf(WeightColumns::Way way)
{
    switch (way) {
    case WeightColumns::Way::Up:
        return "trend-up"_L1;
    case WeightColumns::Way::Level:
        return "trend-level"_L1;
    case WeightColumns::Way::Down:
        return "trend-down"_L1;
    case WeightColumns::Way::Unknown:
        break;
    }
    return {};
}

QString orDash(const QString &text)
{
    return text.isEmpty() ? u"-"_s : text;
}

} // namespace

QList<FigureStrip::Figure> Standing::figures(const WeightSheet &sheet, QDate today)
{
    const WeightTable &rows = sheet.weighIns;
    const qsizetype row = WeightColumns::currentRow(rows);
    QString now;
    QString sinceBeginning;
    QString sinceLast;
    if (row >= 0) {
        now = WeightNumbers::text(double(*rows.number(row)));
        sinceBeginning = WeightColumns::difference(rows, row, sheet.beginningWeight());
        sinceLast = WeightColumns::change(rows, row);
    }
    return {
        {u"Current Weight"_s, orDash(now)},
        {u"Beginning Weight  Trend"_s, orDash(sinceBeginning), signOf(WeightColumns::sinceBeginning(sheet))},
        {u"Last  Entry Trend"_s, orDash(sinceLast), signOf(WeightColumns::sinceLastEntry(sheet))},
        {u"To the Goal Weight"_s, orDash(WeightWords::toGoal(WeightFigures::of(sheet, today)))}};
}
