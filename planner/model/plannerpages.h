// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"
#include "shell/core/pagecontext.h"

#include <QDate>
#include <QStringList>

#include <map>

/// The planner on paper: a day, a week for the kitchen door, a month as a calendar, a range of dates as a
/// list. Notes of other functions about a day, its birthdays say, stand before its entries.
namespace PlannerPages {

using Days = std::map<QDate, PlannerDay>;
using Notes = std::map<QDate, QStringList>;

/// The fourteen rows of `date`; empty ones are lines to write on.
Page day(QDate date, const PlannerDay &entries, const PageContext &context, const Notes &notes = {});

/// The seven days from `start`. Landscape, they stand in two rows of blocks with a place for notes; upright,
/// or when a day has more than its block holds, as rows across the sheet, with lines to write on, which go on
/// on a second one when they must.
Page week(QDate start, const Days &days, const PageContext &context, const Notes &notes = {});

/// The month of `date` as a calendar. A day with more than its place holds tells how much is missing, and a
/// list behind the calendar has that.
Page month(QDate date, const Days &days, Qt::DayOfWeek firstDay, const PageContext &context,
           const Notes &notes = {});

/// The dates from `from` to `to` that have entries or notes, as a list.
Page range(QDate from, QDate to, const Days &days, const PageContext &context, const Notes &notes = {});

// The same of what the files hold: the week and the month that `date` is in.

Page weekOf(const PlannerFiles &files, QDate date, const CalendarOptions &options, const PageContext &context,
            const Notes &notes = {});
Page monthOf(const PlannerFiles &files, QDate date, const CalendarOptions &options,
             const PageContext &context, const Notes &notes = {});
Page rangeOf(const PlannerFiles &files, QDate from, QDate to, const PageContext &context,
             const Notes &notes = {});

} // namespace PlannerPages
