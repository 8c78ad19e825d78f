// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/shownyear.h"
#include "shell/core/message.h"

#include <QStringList>

/// What the budget says on paper, on the clipboard and about the spreadsheet file.
namespace BudgetPaper {

using namespace Qt::Literals::StringLiterals;

inline QString sheetTitle(ShownYear shown)
{
    return (shown.isSpent() ? u" Spent In "_s : u" Personal Budget For "_s) + QString::number(shown.year);
}

inline QString totalsTitle(ShownYear shown)
{
    // No longer than that of the plan: the chart stands right below it.
    return (shown.isSpent() ? u"TOTALS SPENT IN "_s : u"BUDGET TOTALS FOR "_s) + QString::number(shown.year);
}

/// Beside what the totals' shares are of.
inline QString totalsHint(SheetLayer layer)
{
    return layer == SheetLayer::Spent ? u"What was spent, in the whole year."_s
                                      : u"What is planned, in the whole year."_s;
}

inline QString discussionTitle(int year)
{
    return u"Budget to Discuss For "_s + QString::number(year);
}

/// Behind the title of a page that continues.
inline QString continued()
{
    return u" (Continued)"_s;
}

inline QString printed(const QString &longDate)
{
    return u"Printed: "_s + longDate;
}

inline QString itemHeading()
{
    return u"Item"_s;
}

/// "Item" and the months.
inline QStringList headings()
{
    return {itemHeading(), u"Jan"_s, u"Feb"_s, u"Mar"_s, u"Apr"_s, u"May"_s, u"Jun"_s,
            u"Jul"_s,      u"Aug"_s, u"Sep"_s, u"Oct"_s, u"Nov"_s, u"Dec"_s};
}

inline QStringList totalsHeadings()
{
    return {itemHeading(), u"Total"_s, u"Percentage"_s};
}

inline QStringList discussionHeadings(bool isSpent)
{
    QStringList headings{itemHeading(), u"A Month"_s, u"A Year"_s};
    if (isSpent)
        headings << u"Spent"_s;
    return headings << u"New Plan"_s << u"Notes"_s;
}

inline QString discussionHint()
{
    return u"What is planned, on average a month and in the whole year. The empty columns are to write on."_s;
}

// The lines under the items; on the clipboard with their blanks.

inline QString totalExpenses()
{
    return u"Total Expenses:"_s;
}

inline QString totalIncome()
{
    return u"Total Income:      "_s;
}

inline QString balance()
{
    return u"Balance:          "_s;
}

/// The first of these lines in the layer.
inline QString expensesOf(SheetLayer layer)
{
    return layer == SheetLayer::Spent ? u"Total Spent:"_s : totalExpenses();
}

/// The last of them.
inline QString balanceOf(SheetLayer layer)
{
    return layer == SheetLayer::Spent ? u"Not Spent Yet:"_s : balance();
}

// The clipboard.

inline QString clipboardTitle()
{
    return u" Budget"_s;
}

inline Message copied()
{
    return {u"Copy Option"_s, u"Current Budget has been copied to the Windows Clipboard."_s};
}

// The spreadsheet file.

inline QString exportTitle()
{
    return u"Export File in Excel/Spreadsheet Format"_s;
}

// Its lines; the folder stands below the first, the name below the second.

inline QString exportFolder()
{
    return u"A non-formatted Spreadsheet File (tab-delimited text file) will be saved in the program folder:  "_s;
}

/// In place of the first where another folder was chosen.
inline QString exportElsewhere()
{
    return u"A non-formatted Spreadsheet File (tab-delimited text file) will be saved in this folder:  "_s;
}

inline QString exportName()
{
    return u"With the following name:"_s;
}

inline QString exportWithoutTotals()
{
    return u"File will NOT include Total Expenses, Balance etc. in that formulas cannot be exported "
           u"correctly!  "
           u"You will have to add them in Excel, if desired."_s;
}

inline QString exportReplaces()
{
    return u"Note: If File already exists it will be replaced with this file!"_s;
}

inline Message exportNameWrong()
{
    return {u"Export Error"_s, u"File Name is Missing or Incorrect"_s, Message::Critical};
}

inline Message exported()
{
    return {u"Export Function"_s, u"Export Completed to selected location!"_s};
}

// The chart.

inline QString chartNotSaved()
{
    return u"The disk refuses the picture of the chart; it is printed all the same"_s;
}

// Reasons why a command cannot be used.

inline QString nothingToExport()
{
    return u"Type an item into one of the rows 1 to 20 first"_s;
}

} // namespace BudgetPaper
