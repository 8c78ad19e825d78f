// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/recurrencerun.h"
#include "shell/core/calendardates.h"
#include "shell/core/dates.h"

#include <QList>
#include <QString>
#include <QStringList>

/// Lines that the planner writes into the status bar or beside a control; reasons of disabled commands among
/// them.
namespace PlannerLines {

using namespace Qt::Literals::StringLiterals;

inline QString row(int row)
{
    return u"Row %1 of 14"_s.arg(row + 1);
}

inline QString notSaved()
{
    return u"The day could not be saved: the disk refuses it. What is typed stays here."_s;
}

inline QString cleared()
{
    return u"All rows are empty now; the file changes when the day is saved"_s;
}

inline QString copied(int entries)
{
    return entries == 1 ? u"1 entry copied"_s : u"%1 entries copied"_s.arg(entries);
}

inline QString pasted(int entries)
{
    if (entries == 0)
        return u"No row was free where the copied day has an entry"_s;
    return entries == 1 ? u"1 entry pasted; not saved yet"_s
                        : u"%1 entries pasted; not saved yet"_s.arg(entries);
}

inline QString saved(QDate date, DateStyle style)
{
    return u"Saved: "_s + Dates::statusText(date, style);
}

/// What a walk over many days is called where it can be undone.
inline QString repeated(const QString &words)
{
    return u"Repeated: "_s + words;
}

inline QString recurrenceRemoved(const QString &words)
{
    return u"Removed on many days: "_s + words;
}

inline QString broughtBack(const QString &words)
{
    return u"Brought back: "_s + words;
}

/// What stays in the trash for want of room; empty for none.
inline QString withoutRoom(int days)
{
    if (days == 0)
        return {};
    return days == 1 ? u". One day has no room for it"_s : u". %1 days have no room for it"_s.arg(days);
}

inline QString toDosImported()
{
    return u"To Do items imported"_s;
}

inline QString noSuchDate(const QString &text)
{
    return u"This is not a date: "_s + text;
}

inline QString beyondDates(DateStyle style)
{
    return u"The planner has the days from "_s + Dates::monthDayYear(CalendarDates::first(), style) +
           u" to "_s + Dates::monthDayYear(CalendarDates::last(), style);
}

/// `rows` count from 0; not empty.
inline QString sortedLast(const QList<int> &rows)
{
    QStringList numbers;
    for (const int row : rows)
        numbers << QString::number(row + 1);
    const QString last = numbers.takeLast();
    return numbers.isEmpty() ? u"Row %1 stands last: no AM or PM"_s.arg(last)
                             : u"Rows %1 and %2 stand last: no AM or PM"_s.arg(numbers.join(u", "_s), last);
}

// Views and search

inline QString dotsExplained()
{
    return u"A dot marks a day with entries"_s;
}

/// `passedOver`: the functions that the password keeps from telling.
inline QString nothingComing(const QStringList &passedOver)
{
    return passedOver.isEmpty() ? u"Nothing from your other records in these two weeks."_s
                                : u"Protected and not asked: "_s + passedOver.join(u", "_s);
}

inline QString clearedDay(const QString &date)
{
    return u"Cleared: "_s + date;
}

inline QString pastedInto(const QString &date)
{
    return u"Pasted into "_s + date;
}

inline QString nothingFound(const QString &text)
{
    return u"No appointment of any year holds \u201c"_s + text + u'\u201d';
}

inline QString found(std::size_t hits, bool isCut)
{
    if (isCut)
        return u"The first %1 appointments found"_s.arg(hits);
    return hits == 1 ? u"1 appointment found"_s : u"%1 appointments found"_s.arg(hits);
}

// Recurrence and import

inline QString rowIsEmpty()
{
    return u"Choose a row with an appointment to repeat first"_s;
}

inline QString noBeginning()
{
    return u"The beginning date cannot be read"_s;
}

inline QString noEnd()
{
    return u"The end date cannot be read"_s;
}

inline QString endBeforeBeginning()
{
    return u"The end date lies before the beginning date: there is no date to look at"_s;
}

inline QString noOccurrences()
{
    return u"The number of occurrences must be 1 or more"_s;
}

inline QString noInterval()
{
    return u"The number behind \u201cevery\u201d must be 1 or more"_s;
}

inline QString noDayOfMonth()
{
    return u"The day of the month must be a number from 1 to 31"_s;
}

inline QString noYearDay()
{
    return u"The date of the year cannot be read"_s;
}

inline QString noKindYet()
{
    return u"Choose how often it comes back"_s;
}

/// "53 dates, Sat Nov 21, 2026 to Sat Nov 20, 2027".
inline QString dates(int count, const QString &first, const QString &last)
{
    return count == 1 ? u"1 date, "_s + first
                      : u"%1 dates, %2 to %3"_s.arg(QString::number(count), first, last);
}

inline QString fullDates(int count)
{
    return count == 1 ? u"1 of these days is full: it is left out"_s
                      : u"%1 of these days are full: they are left out"_s.arg(count);
}

/// What stands behind a date of the first ones.
inline QString dateMark(DateResult result)
{
    return result == DateResult::Full     ? u" - full, left out"_s
           : result == DateResult::Exists ? u" - there already"_s
                                          : QString();
}

inline QString andMore(int dates)
{
    return dates == 1 ? u"and 1 more"_s : u"and %1 more"_s.arg(dates);
}

inline QString wouldRemove(int count, const QString &first, const QString &last)
{
    if (count == 0)
        return u"Nothing to remove: no date of these has the appointment"_s;
    return u"Remove This Recurrence takes it out of "_s + dates(count, first, last);
}

inline QString updating()
{
    return u"The planner's files are being updated"_s;
}

inline QString nothingMade()
{
    return u"Every date has this appointment already: nothing was entered"_s;
}

inline QString noDateInRange()
{
    return u"No date of this kind lies in the range: nothing was changed"_s;
}

inline QString stoppedBeforeEnd()
{
    return u", stopped before the end"_s;
}

inline QString made(int entries)
{
    return entries == 1 ? u"1 entry made"_s : u"%1 entries made"_s.arg(entries);
}

inline QString removed(int entries)
{
    if (entries == 0)
        return u"No date in this range has the appointment"_s;
    return entries == 1 ? u"1 entry removed"_s : u"%1 entries removed"_s.arg(entries);
}

/// `done`: what was written before, "12 entries made".
inline QString diskRefused(const QString &date, const QString &done)
{
    return u"The disk refused "_s + date + u": the update ended there. Before it, "_s + done + u'.';
}

inline QString imported(int made, int there, int full, int passedOver)
{
    QString line = made == 1 ? u"1 To Do item entered"_s : u"%1 To Do items entered"_s.arg(made);
    if (there > 0)
        line += u", %1 there already"_s.arg(there);
    if (full > 0)
        line += u", %1 on full days left out"_s.arg(full);
    if (passedOver > 0)
        line += u", %1 dated before this day"_s.arg(passedOver);
    return line;
}

// Reasons

inline QString copyFirst()
{
    return u"Copy a day first"_s;
}

inline QString inDayViewOnly()
{
    return u"This is done in the day view"_s;
}

inline QString inCalendarViewsOnly()
{
    return u"This is done in the views of a day, a week or a month"_s;
}

} // namespace PlannerLines
