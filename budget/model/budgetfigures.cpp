// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetfigures.h"

#include "budget/model/amount.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a figure counts as once it is shown.
double asShown(double amount)
{
    return Amount::rounded(amount);
}

} // namespace

BudgetFigures BudgetFigures::of(const BudgetSheet &sheet)
{
    BudgetFigures figures;
    for (const BudgetSheet::Row &row : sheet.rows) {
        for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month) {
            if (const QString &amount = row.amounts[month]; !amount.isEmpty())
                figures.months[month].expenses += float(Amount::stored(amount));
        }
    }
    for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month) {
        Month &of = figures.months[month];
        of.income = std::max(0.0F, float(Amount::stored(sheet.incomes[month])));
        of.balance = of.income - of.expenses;
        figures.income = asShown(figures.income + asShown(double(of.income)));
        figures.expenses = asShown(figures.expenses + asShown(double(of.expenses)));
    }
    figures.balance = figures.income - figures.expenses;
    return figures;
}

QList<BudgetFigures::Item> BudgetFigures::items(const BudgetSheet &sheet)
{
    QList<Item> items;
    for (std::size_t row = 0; row < sheet.rows.size(); ++row) {
        if (sheet.rows[row].item.trimmed().isEmpty())
            continue;
        double total = 0;
        for (const QString &amount : sheet.rows[row].amounts)
            total += Amount::stored(amount);
        items.append({row, sheet.rows[row].item, total});
    }
    return items;
}

QString BudgetFigures::share(double amount, BudgetBasis basis) const
{
    const double whole = basis == BudgetBasis::Income ? income : expenses;
    if (whole == 0)
        return {};
    QString text = Amount::text(amount / whole * 100);
    if (const qsizetype point = text.startsWith(u'-') ? 1 : 0; text.mid(point).startsWith(u'.'))
        text.insert(point, u'0');
    return text + u'%';
}

QString shownIncome(const QString &income)
{
    return Amount::stored(income) > 0 ? income : u"0.00"_s;
}
