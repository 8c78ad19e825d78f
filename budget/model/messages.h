// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// The budget's questions and notices.
namespace BudgetMessages {

using namespace Qt::Literals::StringLiterals;

inline Message onlyNumbers()
{
    return {u"Invalid Cell Entry"_s, u"Cell entries must be numbers only!"_s};
}

inline Message cellLimit()
{
    return {u"Invalid Cell Entry"_s, u"Cell entries are limited to 9,999.99!"_s};
}

inline QString incomeTitle()
{
    return u"Total Income"_s;
}

inline QString whichIncome()
{
    return u"Enter Total Amount of Income That you will be receiving this month."_s;
}

inline Message incomeLimit()
{
    return {u"Maximum Allowed Entry Exceeded"_s,
            u"Due to printer size requirements needed to print this budget, the Total Income Amount Cannot "
            u"exceed 99999.99"_s};
}

inline Message billsLimit()
{
    return {u"Maximum Allowed Entry Exceeded"_s,
            u"Due to printer size requirements needed to print this budget, the Total of Bills Amount Cannot "
            u"exceed 99999"_s};
}

inline QString spreadTitle()
{
    return u"Spread a Yearly Sum"_s;
}

/// `item`: of a single row, where it has one.
inline QString whichSum(const QString &item, int rows, int months)
{
    const QString of = rows > 1         ? u" for each of the %1 rows"_s.arg(rows)
                       : item.isEmpty() ? QString()
                                        : u" for "_s + item;
    const QString over = months == 12 ? u"twelve months"_s : u"%1 chosen months"_s.arg(months);
    return u"Enter the sum"_s + of + u" that is to be spread evenly over the "_s + over + u'.';
}

inline Message copyIncomeToTheRight()
{
    return {u"Total Income Row"_s,
            u"Do you want to copy this month's entry of Total Income to the Right?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

/// `items`: how many the year after has already.
inline Message copyYear(int year, int items = 0)
{
    const QString count = items == 1 ? u"1 item"_s : u"%1 items"_s.arg(items);
    const QString there =
        items == 0
            ? QString()
            : u"\n%1 has %2 already: what it holds is replaced, and Undo brings it back."_s.arg(year + 1).arg(
                  count);
    return {u"Copy Year"_s,
            u"Copy "_s + QString::number(year) + u" file to "_s + QString::number(year + 1) + u'?' + there,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message deleteRow()
{
    return {u"Delete Row"_s,
            u"Do you really want to delete this row?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message saveChanges(int year, const QString &before)
{
    return {u"Personal Budget"_s,
            u"Save changes made to "_s + QString::number(year) + u" budget before "_s + before + u'?',
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline Message saveBeforeExiting(int year)
{
    return saveChanges(year, u"Exiting"_s);
}

inline Message saveBeforeBackup(int year)
{
    return saveChanges(year, u"Backup"_s);
}

inline Message saveBeforeCopying(int year)
{
    return saveChanges(year, u"Copying"_s);
}

inline Message saveBeforeUndo(int year)
{
    return saveChanges(year, u"Undoing"_s);
}

/// In front of the first save of a file with values that no sheet has room for.
inline Message dropSurplus(const QString &file, int surplus)
{
    const QString values = surplus == 1 ? u"1 value"_s : u"%1 values"_s.arg(surplus);
    return {u"Personal Budget"_s,
            file + u" holds "_s + values + u" more than a budget has. Save without them?"_s,
            Message::Question,
            {Answer::Yes, Answer::No},
            Answer::No};
}

inline Message noCellChosen()
{
    return {u"Data Entry"_s, u"First, select Grid location for data entry."_s};
}

inline Message noFirstRow()
{
    return {u"View Totals"_s, u"Please enter at least the first row of data and the Total Income!"_s};
}

inline Message noAmountOrIncome()
{
    return {u"View Totals"_s,
            u"There must be at least one entry and at least one income entry to view Totals!"_s};
}

} // namespace BudgetMessages
