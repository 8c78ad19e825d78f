// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/amount.h"
#include "budget/model/shownyear.h"

#include <QString>

#include <cmath>

/// Lines that the budget writes into the status bar or beside a control; reasons of disabled commands among
/// them.
namespace BudgetLines {

using namespace Qt::Literals::StringLiterals;

inline QString saved(int year)
{
    return u"Saved: the budget of %1"_s.arg(year);
}

inline QString notSaved()
{
    return u"The budget could not be saved: the disk refuses it. What is typed stays here."_s;
}

inline QString fileEndsEarly(const QString &file)
{
    return file + u" ends early: what it lacks is empty here"_s;
}

inline QString fileHasMore(const QString &file, int surplus)
{
    return surplus == 1 ? file + u" holds one value more than a budget has"_s
                        : u"%1 holds %2 values more than a budget has"_s.arg(file).arg(surplus);
}

inline QString changedElsewhere(const QString &file)
{
    return file + u" was changed by another window or program; this is what it holds now"_s;
}

inline QString changedElsewhereToo(const QString &file)
{
    return file + u" was changed by another window or program; a save here would replace that"_s;
}

inline QString copied(int year)
{
    return u"Copied: the budget of %1 to %2"_s.arg(year).arg(year + 1);
}

inline QString openYear(int year)
{
    return u"Open %1"_s.arg(year);
}

inline QString notCopied(int year)
{
    return u"The disk refused the budget of %1; it is as it was"_s.arg(year + 1);
}

inline QString nothingToCopy(int year)
{
    return u"There is no saved budget of %1 to copy"_s.arg(year);
}

inline QString nothingToBackUp(int year)
{
    return u"There is no saved budget of %1 yet"_s.arg(year);
}

/// "March 2026: 212.40 left", "March 2026: 35.00 over"; what is shown as nothing is left.
inline QString balance(const QString &when, double amount)
{
    const QString text = Amount::text(std::abs(amount));
    const QString whole = text.startsWith(u'.') ? u'0' + text : text;
    return when + u": "_s + whole + (Amount::rounded(amount) < 0 ? u" over"_s : u" left"_s);
}

/// The same among what was spent: "March 2026: 812.40 not spent yet", "March 2026: 35.00 spent over the
/// income".
inline QString notSpent(const QString &when, double amount)
{
    const QString text = Amount::text(std::abs(amount));
    const QString whole = text.startsWith(u'.') ? u'0' + text : text;
    return when + u": "_s + whole +
           (Amount::rounded(amount) < 0 ? u" spent over the income"_s : u" not spent yet"_s);
}

/// What the sums of the expenses are headed by.
inline QString expensesHead(SheetLayer layer)
{
    return layer == SheetLayer::Spent ? u"Total Spent"_s : u"Total Expenses"_s;
}

/// What the sums under the income are headed by.
inline QString balanceHead(SheetLayer layer)
{
    return layer == SheetLayer::Spent ? u"Not Spent Yet"_s : u"Balance"_s;
}

inline QString noBudgetYet(int year)
{
    return u"No budget for %1 yet"_s.arg(year);
}

inline QString howToBegin()
{
    return u"Type an item, Tab, then its amounts"_s;
}

/// What the chosen cells come to: "6 cells: 1027.09".
inline QString chosen(int cells, double sum)
{
    const QString line = u"%1 cells"_s.arg(cells);
    return sum == 0 ? line : line + u": "_s + Amount::text(sum);
}

/// "12.40 over the plan of 500.00".
inline QString overPlan(double spent, double plan)
{
    return Amount::text(spent - plan) + u" over the plan of "_s + Amount::text(plan);
}

// Edits, as undo and the status bar call them

inline QString partlyRead(const QString &typed, const QString &amount)
{
    return u"\"%1\" was read as %2: decimals stand behind a point"_s.arg(typed.trimmed(), amount);
}

inline QString cut()
{
    return u"Cut cells"_s;
}

inline QString cleared()
{
    return u"Cleared cells"_s;
}

inline QString cellsCopied(int cells)
{
    return cells == 1 ? u"1 cell copied"_s : u"%1 cells copied"_s.arg(cells);
}

/// `leftOut`: cells that lay beyond the sheet; `foreign`: characters that the files cannot hold; `partly`:
/// cells of which only the number at the start was read.
inline QString pasted(int cells, int leftOut = 0, const QString &foreign = {}, int partly = 0)
{
    QString line = cells == 1 ? u"1 cell pasted"_s : u"%1 cells pasted"_s.arg(cells);
    if (leftOut > 0)
        line += u", %1 beyond the sheet left out"_s.arg(leftOut);
    if (partly > 0)
        line += u", %1 read only in part: decimals stand behind a point"_s.arg(partly);
    if (!foreign.isEmpty())
        line += u". The files cannot hold: "_s + foreign;
    return line;
}

inline QString nothingToPaste()
{
    return u"There is no text to paste"_s;
}

inline QString filledRight()
{
    return u"Filled to the right"_s;
}

inline QString everySecondMonth()
{
    return u"The same every second month"_s;
}

inline QString everyThirdMonth()
{
    return u"The same every third month"_s;
}

inline QString isSoAlready()
{
    return u"Nothing to change: it is so already"_s;
}

inline QString noAmountToRepeat()
{
    return u"Choose a cell with an amount first"_s;
}

inline QString spread(const QString &item)
{
    return item.isEmpty() ? u"Spread a sum"_s : u"Spread a sum: "_s + item;
}

inline QString insertedRow(int row)
{
    return u"Inserted row %1"_s.arg(row + 1);
}

inline QString noRoomForRow()
{
    return u"Row 50 is in use: there is no room for another row"_s;
}

inline QString movedRow(const QString &item, int row)
{
    return u"Moved row: "_s + (item.isEmpty() ? QString::number(row + 1) : item);
}

// Reasons

inline QString inPlanOnly()
{
    return u"This is done where the plan is shown"_s;
}

inline QString inSheetOnly()
{
    return u"This is done in the sheet"_s;
}

inline QString howToEnterIncome()
{
    return u"Click a Total Income figure to change it"_s;
}

/// What undo calls an edit of one cell: "Groceries, Mar".
inline QString cell(const QString &item, const QString &month)
{
    if (month.isEmpty())
        return item.isEmpty() ? u"Item"_s : item;
    return item.isEmpty() ? month : item + u", "_s + month;
}

inline QString income(const QString &month)
{
    return u"Total Income, "_s + month;
}

inline QString deletedRow(const QString &item, int row)
{
    return u"Deleted row: "_s + (item.isEmpty() ? QString::number(row + 1) : item);
}

} // namespace BudgetLines
