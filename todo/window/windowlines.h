// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "todo/model/shown.h"
#include "todo/model/todocounts.h"
#include "todo/model/todoitem.h"

#include <QString>

class ToDoSheet;

/// What the window says quietly: titles, counts, hints, and the lines of the status bar.
namespace ToDoWindowLines {

using namespace Qt::Literals::StringLiterals;

/// So many characters of a dated text fit into the planner.
inline constexpr int plannerRoom = 50;

/// "Today", "Coming", "By Person", "Done".
QString nameOf(Shown::Kind view);
/// The title of the work panel; `list` is the one that is shown, null without one.
QString title(const Shown &shown, const ToDoList *list);
/// The quiet words beside it: "2 overdue, 3 today".
QString titleWords(const Shown &shown, const ToDoCounts &counts, int shownItems);
/// What stands in the place of the rows where there are none.
QString emptiness(const Shown &shown);
/// The quiet line under it.
QString emptyLine(const Shown &shown);

/// The heading of a column of the grid, and what it is called aloud.
QString heading(int column);
QString headingTip(int column);

/// "Fri, Nov 27"; empty for no date.
QString shortDay(QDate day, QDate today, const DateStyle &style);
/// The same of the day on which an item should be done: "Nov 15, overdue".
QString due(const ToDoItem &item, QDate today, const DateStyle &style);
/// A date as it is typed over.
QString typedForm(QDate day, const DateStyle &style);
/// The days of an item in a template: "3 days before", and as they are typed "-3".
QString offset(int days, bool isShown);
/// How often something comes back, and, where it `isShown`, when: "every 3 days, then Nov 24".
QString repeat(const ToDoItem &item, QDate today, const DateStyle &style, bool isShown);
/// Behind what was ticked, when it comes back: ", next on Mon, Nov 30 (Nils)".
QString next(const ToDoItem &item, QDate today, const DateStyle &style);
/// "Renew passports, due 15 March, overdue, Anne, not done".
QString spoken(const ToDoItem &item, QDate today, const DateStyle &style);

/// A name for a template that no list has.
QString templateName(const ToDoSheet &sheet, const QString &list);

inline QString listSpoken(const QString &name, int count)
{
    return count > 0 ? u"%1, %2 to do"_s.arg(name, QString::number(count)) : name;
}

inline QString templateOf(const QString &name)
{
    return u"%1 (template)"_s.arg(name);
}

inline QString templateNotTicked()
{
    return u"A template is never done: New List from Template makes a list of it"_s;
}

inline QString nothingShown()
{
    return u"Nothing is shown that could be copied"_s;
}

inline QString notExported(const QString &name)
{
    return u"%1 could not be saved"_s.arg(name);
}

inline QString tickSpoken(bool isDone)
{
    return isDone ? u"done"_s : u"not done"_s;
}

inline QString countOfLists(std::size_t count)
{
    return count == 1 ? u"1 list"_s : u"%1 lists"_s.arg(count);
}

inline QString notSaved()
{
    return u"The lists could not be saved"_s;
}

inline QString saved()
{
    return u"Saved"_s;
}

inline QString tooLong()
{
    return u"The planner takes the first %1 characters"_s.arg(plannerRoom);
}

inline QString noteIsFull()
{
    return u"A note takes %1 characters"_s.arg(ToDoItem::longestNote);
}

inline QString noneChosen()
{
    return u"Choose something to do first"_s;
}

inline QString noListChosen()
{
    return u"Choose a list first"_s;
}

inline QString ownOrderOnly()
{
    return u"The order can be changed in a list, while it is not sorted by date"_s;
}

inline QString sortedInLists()
{
    return u"Only a list is sorted by a click: here things stand in an order of their own"_s;
}

inline QString showsList(const QString &name)
{
    return u"Show the list \u201c%1\u201d"_s.arg(name);
}

inline QString noNewHere()
{
    return u"Something new is typed into a list, or into Today"_s;
}

inline QString notADate()
{
    return u"Not a date: try \u201cfri\u201d, \u201c+3\u201d or \u201cnext week\u201d"_s;
}

inline QString notARepeat()
{
    return u"Not a repeat: try \u201cevery 3 days\u201d, \u201cmon, thu\u201d or \u201cmonthly\u201d"_s;
}

inline QString notDays()
{
    return u"In a template, type days before or after its date: -7 or +3"_s;
}

inline QString nothingOverdue()
{
    return u"Nothing is overdue"_s;
}

inline QString noItemAbove()
{
    return u"There is no item above of which it could be a step"_s;
}

inline QString takenIn(int count)
{
    return count == 1 ? u"1 thing to do that another program had left was taken in"_s
                      : u"%1 things to do that another program had left were taken in"_s.arg(count);
}

inline QString changedElsewhere()
{
    return u"The lists were changed elsewhere and have been read again"_s;
}

inline QString changedElsewhereToo()
{
    return u"The lists were changed elsewhere, too; the next save replaces that"_s;
}

inline QString newHeading()
{
    return u"New heading"_s;
}

} // namespace ToDoWindowLines
