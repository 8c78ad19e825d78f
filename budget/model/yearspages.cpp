// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/yearspages.h"

#include "budget/model/papermessages.h"
#include "budget/model/yearslines.h"
#include "shell/core/dates.h"

namespace {

PageItem::Columns columns(const QStringList &headings)
{
    PageItem::Columns columns;
    columns.weights = {2.4, 1.1, 1.1, 1.1};
    columns.headings = headings;
    columns.alignments = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignRight, Qt::AlignRight};
    return columns;
}

} // namespace

Page YearsPages::comparison(int year, const YearComparison &comparison, Compared what, const LayAside &aside,
                            const PageContext &context)
{
    Page page(YearsLines::pageTitle(year),
              BudgetPaper::printed(Dates::longText(context.today, context.style)));
    page.continueTitle(BudgetPaper::continued());
    page.line(YearsLines::compared()[int(what)], TextRole::Heading);
    if (!comparison.hasBefore())
        page.line(YearsLines::noBudget(year - 1), TextRole::Small);
    page.blankLine();
    const YearComparison::Table &table = comparison.table(what);
    page.table(columns(YearsLines::headings(what, year)));
    for (const YearComparison::Line &line : table.lines)
        page.row(YearsLines::cells(line));
    page.row(YearsLines::cells(table.sum), TextRole::Strong);
    if (!aside.items.isEmpty()) {
        page.blankLine().line(YearsLines::layAside(), TextRole::Heading);
        page.line(YearsLines::layAsideHow(), TextRole::Small).blankLine();
        page.table(columns(YearsLines::asideHeadings()));
        for (const LayAside::Item &item : aside.items)
            page.row(YearsLines::asideCells(item));
        page.row(YearsLines::asideSum(aside), TextRole::Strong);
    }
    return page.close(context.today, context.style);
}
