// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

/// What can be done to a calendar by hand, each giving another. A line is named by its place in `days` of its
/// date, the removed ones counted; one that is not there changes nothing.
namespace CalendarEdits {

/// `text` as a cell can hold it: in one line, without control characters and blanks around it, cut behind the
/// last character that has room.
QString lineText(const QString &text);

/// The places of the lines that stand on paper.
QList<int> visibleLines(const WallCalendar &calendar, QDate date);

/// Makes the cell say `texts`, one a line; empty ones do not count. Lines that say the same as before stay
/// what they are in any order, one in the place of another is its edit, and a new one is typed. What came
/// from a source and is not there any more is removed.
WallCalendar setCell(WallCalendar calendar, QDate date, const QStringList &texts);

/// A typed line goes; one from a source stays, not to be shown.
WallCalendar removeLine(WallCalendar calendar, QDate date, int line);
/// Shows a line as its source had it.
WallCalendar restoreLine(WallCalendar calendar, QDate date, int line);
/// Puts a line among those of another day, before the place `before`, or where the order of a cell has it.
WallCalendar moveLine(WallCalendar calendar, QDate from, int line, QDate to, int before = -1);
/// The same with a copy, which is a typed line.
WallCalendar copyLine(WallCalendar calendar, QDate from, int line, QDate to, int before = -1);
/// Exchanges a line with the one that stands above it (-1) or below it (1).
WallCalendar orderLine(WallCalendar calendar, QDate date, int line, int by);
/// Whether a typed line comes along to the next year.
WallCalendar setYearly(WallCalendar calendar, QDate date, int line, bool isYearly);

WallCalendar addSpan(WallCalendar calendar, const CalendarSpan &span);
WallCalendar setSpan(WallCalendar calendar, int index, const CalendarSpan &span);
WallCalendar removeSpan(WallCalendar calendar, int index);

WallCalendar setPhoto(WallCalendar calendar, QDate month, const MonthPhoto &photo);
WallCalendar removePhoto(WallCalendar calendar, QDate month);

/// Takes all lines out of the month that begins with `first`, and the bars that lie in it alone. A new fill
/// brings what the sources have.
WallCalendar emptyMonth(WallCalendar calendar, QDate first);

} // namespace CalendarEdits
