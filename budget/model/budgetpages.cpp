// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetpages.h"

#include "budget/model/amount.h"
#include "budget/model/papermessages.h"
#include "budget/model/sheetlines.h"
#include "shell/core/dates.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The title of the totals page must stand above its chart.
constexpr double totalsStart = 0.3;
constexpr int emptyRows = 3; ///< for what nobody has thought of yet
constexpr std::size_t rowsBesideSums = 2;
constexpr qsizetype mostInOneColumn = 8; ///< of an upright sheet with a chart

Page started(const QString &title, const PageContext &context)
{
    Page page(title, BudgetPaper::printed(Dates::longText(context.today, context.style)));
    page.continueTitle(BudgetPaper::continued());
    return page;
}

/// The year's three sums beside one another; a sheet on its side is low and has room for them in one line.
void addSums(Page &page, const BudgetFigures &figures, SheetLayer layer, BudgetBasis basis,
             PageSetup::Orientation orientation)
{
    const auto sum = [&](double amount) {
        const QString share = figures.share(amount, basis);
        return share.isEmpty() ? Amount::text(amount) : QString(Amount::text(amount) + u"  "_s + share);
    };
    const QStringList captions{BudgetPaper::totalIncome().trimmed(), BudgetPaper::expensesOf(layer),
                               BudgetPaper::balanceOf(layer).trimmed()};
    QStringList sums{sum(figures.income), sum(figures.expenses), sum(figures.balance)};
    PageItem::Columns columns;
    columns.weights = {1, 1, 1};
    columns.alignments = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    columns.lines = TableLines::None;
    page.table(columns);
    if (orientation == PageSetup::Portrait)
        page.rowWithNext(captions);
    for (qsizetype i = 0; orientation == PageSetup::Landscape && i < sums.size(); ++i)
        sums[i].prepend(captions[i] + u"  "_s);
    page.row(sums, TextRole::Strong);
    page.line(BudgetPaper::totalsHint(layer) + u' ' + BudgetPages::basisCaption(basis), TextRole::Small);
    if (orientation == PageSetup::Portrait)
        page.blankLine();
    else
        page.rule();
}

/// Below the chart there is little room, and an item's total should stand near its name.
void setSideBySide(PageItem::Columns &columns, qsizetype items, PageSetup::Orientation orientation)
{
    const bool isUpright = orientation == PageSetup::Portrait;
    if (isUpright && items <= mostInOneColumn)
        return;
    columns.across = isUpright ? 2 : 3;
    columns.points = isUpright ? PageMetrics::smallPoints : PageMetrics::smallestPoints;
    columns.weights = {1.9, 1, 1.2}; // the widest of each, in the widest of the common fonts
    columns.endsEven = true;
}

/// An item's year as a month on average.
QString monthly(double year)
{
    return Amount::text(year / double(BudgetSheet::monthCount));
}

} // namespace

Page BudgetPages::sheet(ShownYear shown, const BudgetSheet &sheet, const PageContext &context)
{
    Page page = started(BudgetPaper::sheetTitle(shown), context);
    PageItem::Columns columns;
    columns.headings = BudgetPaper::headings();
    columns.widths = TableWidths::ForNumbers;
    page.table(columns);
    const std::size_t used = SheetLines::usedRows(sheet);
    for (std::size_t row = 0; row < used; ++row) {
        // The sums never stand alone on a sheet of their own.
        const QStringList cells = SheetLines::cells(sheet.rows[row]);
        row + rowsBesideSums < used ? page.row(cells) : page.rowWithNext(cells);
    }
    const SheetLines::Sums sums = SheetLines::sums(BudgetFigures::of(sheet));
    page.rule();
    page.rowWithNext(QStringList(BudgetPaper::expensesOf(shown.layer)) + sums.expenses, TextRole::Strong);
    page.rowWithNext(QStringList(BudgetPaper::totalIncome().trimmed()) + sums.incomes, TextRole::Strong);
    page.row(QStringList(BudgetPaper::balanceOf(shown.layer).trimmed()) + sums.balances, TextRole::Strong);
    return page.close(context.today, context.style);
}

QRectF BudgetPages::chartFrame(PageSetup::Orientation orientation)
{
    return orientation == PageSetup::Landscape ? QRectF(0.31, 0.7, 9.9, 4.4) : QRectF(0.36, 0.84, 7.3, 4.15);
}

Page BudgetPages::totals(ShownYear shown, const BudgetSheet &sheet, BudgetBasis basis,
                         const QString &chartPicture, const PageContext &context)
{
    Page page = started(BudgetPaper::totalsTitle(shown), context);
    if (!chartPicture.isEmpty())
        page.startAt(totalsStart)
            .placePicture(chartFrame(context.setup.orientation), chartPicture)
            .belowPlaced();
    const BudgetFigures figures = BudgetFigures::of(sheet);
    addSums(page, figures, shown.layer, basis, context.setup.orientation);
    PageItem::Columns columns;
    columns.weights = {3, 1.2, 1.2};
    columns.headings = BudgetPaper::totalsHeadings();
    columns.alignments = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignRight};
    const QList<BudgetFigures::Item> items = BudgetFigures::items(sheet);
    setSideBySide(columns, items.size(), context.setup.orientation);
    page.table(columns);
    for (const BudgetFigures::Item &item : items)
        page.row({item.item, Amount::text(item.total), figures.share(item.total, basis)});
    return page.close(context.today, context.style);
}

Page BudgetPages::discussion(int year, const BudgetSheet &sheet, const Spent &spent,
                             const PageContext &context)
{
    Page page = started(BudgetPaper::discussionTitle(year), context);
    page.line(BudgetPaper::discussionHint(), TextRole::Small).blankLine();
    const bool isSpent = spent.has_value();
    PageItem::Columns columns;
    columns.weights =
        isSpent ? std::vector{2.2, 1.1, 1.2, 1.2, 1.2, 2.0} : std::vector{2.4, 1.1, 1.2, 1.3, 2.6};
    columns.headings = BudgetPaper::discussionHeadings(isSpent);
    columns.alignments = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignRight};
    if (isSpent)
        columns.alignments.push_back(Qt::AlignRight);
    columns.lines = TableLines::Grid;
    columns.isToWriteIn = true;
    page.table(columns);
    const auto row = [&](const QString &caption, double amount, const QString &spentText) {
        QStringList cells{caption.trimmed(), monthly(amount), Amount::text(amount)};
        if (isSpent)
            cells << spentText;
        return cells << QString() << QString();
    };
    for (const BudgetFigures::Item &item : BudgetFigures::items(sheet))
        page.row(row(item.item, item.total, isSpent ? Amount::text((*spent)[item.row]) : QString()));
    for (int i = 0; i < emptyRows; ++i)
        page.row(QStringList(columns.headings.size(), QString()));
    const BudgetFigures figures = BudgetFigures::of(sheet);
    const QString allSpent =
        isSpent ? Amount::text(std::accumulate(spent->begin(), spent->end(), 0.0)) : QString();
    page.rowWithNext(row(BudgetPaper::totalExpenses(), figures.expenses, allSpent), TextRole::Strong);
    page.rowWithNext(row(BudgetPaper::totalIncome(), figures.income, {}), TextRole::Strong);
    page.row(row(BudgetPaper::balance(), figures.balance, {}), TextRole::Strong);
    return page.close(context.today, context.style);
}

QString BudgetPages::basisCaption(BudgetBasis basis)
{
    return basis == BudgetBasis::Income ? u"% = Item Totals divided by Total Income"_s
                                        : u"% = Item Totals divided by Total Expenses"_s;
}
