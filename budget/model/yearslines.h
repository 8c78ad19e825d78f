// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/amount.h"
#include "budget/model/layaside.h"
#include "budget/model/yearcomparison.h"

#include <QLocale>
#include <QStringList>

#include <cmath>

/// What is said where years are compared, and about what to lay aside.
namespace YearsLines {

using namespace Qt::Literals::StringLiterals;

inline QString withoutItem()
{
    return u"Without an item"_s;
}

inline QString expenses()
{
    return u"Total Expenses"_s;
}

inline QString income()
{
    return u"Total Income"_s;
}

inline QString balance()
{
    return u"Balance"_s;
}

/// In the order of `Compared`.
inline QStringList compared()
{
    return {u"Per item"_s, u"Expenses per month"_s, u"Income per month"_s, u"Balance per month"_s};
}

inline QStringList headings(Compared what, int year)
{
    return {what == Compared::Items ? u"Item"_s : u"Month"_s, QString::number(year),
            QString::number(year - 1), u"Difference"_s};
}

inline QString noBudget(int year)
{
    return u"There is no budget of %1 to compare with."_s.arg(year);
}

/// "2026: 120.00 more than in 2025"; "2026: 1250.00 planned" where there is no 2025.
inline QString headline(int year, const YearComparison &comparison)
{
    const YearComparison::Line &sum = comparison.table(Compared::Expenses).sum;
    const double shown = sum.difference.value_or(sum.now.value_or(0));
    const QString text = Amount::text(std::abs(shown));
    const QString amount = (text.startsWith(u'.') ? u"0"_s : QString()) + text;
    if (!comparison.hasBefore())
        return u"%1: %2 planned"_s.arg(year).arg(amount);
    if (shown == 0)
        return u"%1: as much as in %2"_s.arg(year).arg(year - 1);
    return u"%1: %2 %3 than in %4"_s.arg(year).arg(amount, shown > 0 ? u"more"_s : u"less"_s).arg(year - 1);
}

inline QString pageTitle(int year)
{
    return u"Budgets of %1 and %2"_s.arg(year).arg(year - 1);
}

/// "1250.00"; empty for nothing.
inline QString amount(std::optional<double> amount)
{
    return amount ? Amount::text(*amount) : QString();
}

/// "+120.00", "-35.00", ".00"; empty for nothing.
inline QString difference(std::optional<double> difference)
{
    const QString text = amount(difference);
    return difference.value_or(0) > 0 ? u'+' + text : text;
}

inline QStringList cells(const YearComparison::Line &line)
{
    return {line.what, amount(line.now), amount(line.before), difference(line.difference)};
}

// What to lay aside

inline QString layAside()
{
    return u"To lay aside each month"_s;
}

inline QString layAsideHow()
{
    return u"For items that are paid in one to three months of the year"_s;
}

inline QString nothingToLayAside()
{
    return u"Items that are paid in one to three months of the year would stand here; there are none."_s;
}

inline QStringList asideHeadings()
{
    return {u"Item"_s, u"Due"_s, u"Amount"_s, u"A Month"_s};
}

inline QString cents(qint64 cents)
{
    return Amount::text(double(cents) / 100);
}

inline QString due(const LayAside::Item &item)
{
    return QLocale::c().toString(item.due, u"MMM yyyy"_s);
}

inline QStringList asideCells(const LayAside::Item &item)
{
    return {item.item, due(item), cents(item.amount), cents(item.monthly)};
}

inline QStringList asideSum(const LayAside &aside)
{
    return {u"Together"_s, {}, {}, cents(aside.monthly)};
}

} // namespace YearsLines
