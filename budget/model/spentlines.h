// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/spending.h"
#include "shell/core/message.h"

#include <QLocale>

/// What the budget says about amounts that were spent; reasons of disabled commands among them.
namespace SpentLines {

using namespace Qt::Literals::StringLiterals;

inline QString noRow()
{
    return u"No row"_s;
}

/// `month` from 0; "Groceries, March 2026", or "Groceries, 2026" without a month.
inline QString cell(const QString &item, int month, int year)
{
    const QString when = month < 0 ? QString() : QLocale::c().monthName(month + 1) + u' ';
    return (item.isEmpty() ? noRow() : item) + u", "_s + when + QString::number(year);
}

inline QString added(qint64 cents, const QString &item, QDate date)
{
    return u"Spent: "_s + centsText(cents) + u" on "_s + (item.isEmpty() ? noRow() : item) + u", "_s +
           QLocale::c().monthName(date.month());
}

inline QString changed(const QString &item)
{
    return u"Changed an amount spent on "_s + (item.isEmpty() ? noRow() : item);
}

inline QString deleted(qint64 cents, const QString &item)
{
    return u"Deleted: "_s + centsText(cents) + u" spent on "_s + (item.isEmpty() ? noRow() : item);
}

inline QString paid(const QString &item, int month)
{
    return u"Paid: "_s + item + u", "_s + QLocale::c().monthName(month);
}

inline QString notPaid(const QString &item, int month)
{
    return u"Not paid: "_s + item + u", "_s + QLocale::c().monthName(month);
}

/// Beside the tick of what counts as paid without it.
inline QString allSpent()
{
    return u"All of it was spent"_s;
}

inline QString overdue()
{
    return u"Overdue"_s;
}

inline QString dueDay(const QString &item, int day)
{
    if (day == 0)
        return item + u" has no due day"_s;
    return item + u": due on day "_s + QString::number(day);
}

/// "155.00 of 456.07 planned", "12.00 over the 30.00 planned"
inline QString ofPlan(qint64 spent, qint64 planned)
{
    if (planned <= 0)
        return u"Spent: "_s + centsText(spent);
    if (spent > planned)
        return centsText(spent - planned) + u" over the "_s + centsText(planned) + u" planned"_s;
    return centsText(spent) + u" of "_s + centsText(planned) + u" planned"_s;
}

/// What is shown of amounts that belong to no row: "240.00 was spent on items that have no row".
inline QString withoutRow(qint64 cents)
{
    return u"No row: "_s + centsText(cents);
}

inline QString noneYet()
{
    return u"Nothing was spent here yet"_s;
}

inline QString nothingIn(int year)
{
    return u"Nothing was spent in "_s + QString::number(year) + u" yet"_s;
}

inline QString howToAdd()
{
    return u"An amount that is typed is added; Ctrl+Enter shows the single ones"_s;
}

inline QString notSaved()
{
    return u"What was spent could not be saved: the disk refuses it. What is typed stays here."_s;
}

// Bank files

inline QString bringIn()
{
    return u"Bring In a Bank File"_s;
}

inline QString bankFilter()
{
    return u"Bank files (*.csv *.txt *.tsv);;All files (*)"_s;
}

inline QString tooLong(const QString &file)
{
    return file + u" is too long for a bank's file"_s;
}

inline QString noColumns()
{
    return u"No columns with dates and amounts were found in this file"_s;
}

inline QString whatIsSpending(bool areAllSpent)
{
    return areAllSpent ? u"No amount has a minus: all of them count as spent"_s
                       : u"Only what went out counts as spent; what came in is left out"_s;
}

inline QString toBeTaken(int lines, qint64 cents, int total)
{
    return u"%1 of %2 lines to be taken, "_s.arg(lines).arg(total) + centsText(cents);
}

inline QString broughtIn(int lines, qint64 cents)
{
    return (lines == 1 ? u"Brought in: 1 amount, "_s : u"Brought in: %1 amounts, "_s.arg(lines)) +
           centsText(cents);
}

inline QString nothingToTake()
{
    return u"No line can be taken yet: say by a rule what the texts belong to"_s;
}

inline QString noRules()
{
    return u"There are no rules yet"_s;
}

inline QString ruleNeedsText()
{
    return u"Type what the text of the lines contains, and choose an item"_s;
}

inline QString ruleAdded(const QString &text, const QString &item)
{
    return u"\u201c"_s + text + u"\u201d belongs to "_s + item;
}

inline QString isNoSpending()
{
    return u"This line does not count as spent in this year, so that it needs no item"_s;
}

/// Asked before items that were chosen line by line are left behind.
inline Message takeFirst(int lines, qint64 cents)
{
    return {bringIn(),
            (lines == 1 ? u"Take the amount that is ticked, "_s
                        : u"Take the %1 amounts that are ticked, "_s.arg(lines)) +
                centsText(cents) + u"?\nThe items that you chose for single lines are not kept otherwise."_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

inline QString rulesKept()
{
    return u"Kept: the rules for bank files"_s;
}

// Refusals and reasons

inline QString needsAnItem()
{
    return u"What was spent belongs to an item: give the row one first"_s;
}

inline QString typeAnAmount()
{
    return u"Type the amount that was spent; a minus is money that came back"_s;
}

inline QString dateOfYear(int year)
{
    return u"Type a date of "_s + QString::number(year);
}

inline QString noneChosen()
{
    return u"Choose an amount in the list first"_s;
}

inline QString newerFile(const QString &file)
{
    return file + u" was written by a later version of the program: it is only shown"_s;
}

inline QString unreadableFile(const QString &file)
{
    return file + u" cannot be read, so nothing can be entered that belongs there"_s;
}

inline QString notADay()
{
    return u"A due day is a number from 1 to 31"_s;
}

} // namespace SpentLines
