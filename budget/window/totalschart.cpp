// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalschart.h"

#include "budget/model/budgetpages.h"
#include "budget/model/totals.h"
#include "shell/charts/paperchart.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double pageMargin = 0.5;

BarChart::Bar bar(const QString &name, double total, const BudgetFigures &figures, BudgetBasis basis)
{
    return {name.simplified(), total, TotalsLines::dollars(total), figures.share(total, basis)};
}

/// What is written begins in line with what stands on the page below the frame.
double insetIn(QSizeF frame)
{
    for (const auto orientation : {PageSetup::Portrait, PageSetup::Landscape}) {
        const QRectF place = BudgetPages::chartFrame(orientation);
        if (place.size() == frame)
            return pageMargin - place.left();
    }
    return 0;
}

} // namespace

BarChart TotalsChart::of(ShownYear year, const BudgetSheet &sheet, BudgetBasis basis, int most)
{
    const BudgetFigures figures = BudgetFigures::of(sheet);
    QList<BudgetFigures::Item> items = BudgetFigures::items(sheet);
    std::ranges::stable_sort(items, std::ranges::greater(), &BudgetFigures::Item::total);
    const qsizetype shown = items.size() > most ? most - 1 : items.size();
    BarChart chart;
    chart.title = TotalsLines::chartTitle(year);
    chart.caption = TotalsLines::percentageOf(basis);
    chart.names = u"Item"_s;
    chart.values = u"Total of the year"_s;
    chart.unit = u"$"_s;
    for (const BudgetFigures::Item &item : items.first(shown))
        chart.bars.append(bar(item.item, item.total, figures, basis));
    if (shown == items.size())
        return chart;
    double rest = 0;
    for (const BudgetFigures::Item &item : items.sliced(shown))
        rest += item.total;
    chart.bars.append(bar(TotalsLines::others(int(items.size() - shown)), rest, figures, basis));
    return chart;
}

QImage TotalsChart::onPaper(ShownYear year, const BudgetSheet &sheet, BudgetBasis basis, QSizeF inches)
{
    return PaperChart::draw(of(year, sheet, basis, PaperChart::mostBars(inches)), inches, insetIn(inches));
}
