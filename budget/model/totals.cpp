// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/totals.h"

#include "budget/model/amount.h"

#include <QLocale>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

BudgetTotals BudgetTotals::of(const BudgetSheet &sheet, BudgetBasis basis)
{
    const BudgetFigures figures = BudgetFigures::of(sheet);
    const auto sum = [&](double amount) {
        // The blank behind the amount is a part of its format.
        const QString text = Amount::text(amount);
        return Sum{text + u' ', figures.share(amount, basis), text.startsWith(u'-')};
    };
    BudgetTotals totals{{}, sum(figures.income), sum(figures.expenses), sum(figures.balance)};
    for (const BudgetFigures::Item &item : BudgetFigures::items(sheet))
        totals.rows.append({item.item, item.total, figures.share(item.total, basis)});
    return totals;
}

QString TotalsLines::heading(ShownYear shown)
{
    return u"Totals For Year "_s + QString::number(shown.year) + (shown.isSpent() ? u", Spent"_s : QString());
}

QStringList TotalsLines::columns()
{
    return {u"Item"_s, u"Total"_s, u"%"_s};
}

QString TotalsLines::dollars(double amount)
{
    const double whole = std::round(Amount::rounded(amount));
    const QString text =
        u'$' + QLocale(QLocale::English, QLocale::UnitedStates).toString(std::abs(whole), 'f', 0);
    return whole < 0 ? u'-' + text : text;
}

QString TotalsLines::percentageOf(BudgetBasis basis)
{
    return basis == BudgetBasis::Income ? u"Percentage of Total Income"_s : u"Percentage of Total Expenses"_s;
}

QString TotalsLines::switchBasis(BudgetBasis basis)
{
    return basis == BudgetBasis::Income ? u"Click to divide by Total Expenses"_s
                                        : u"Click to divide by Total Income"_s;
}

QString TotalsLines::chartTitle(ShownYear shown)
{
    return (shown.isSpent() ? u"Where the money went in %1"_s : u"Where the money goes in %1"_s)
        .arg(shown.year);
}

QString TotalsLines::others(int count)
{
    return u"Others (%1)"_s.arg(count);
}
