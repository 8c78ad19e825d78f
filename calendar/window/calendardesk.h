// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class FunctionWindow;
class MonthPage;
class OpenCalendars;
class WorkViews;
class Writing;
struct Program;

/// What the parts of the calendar maker work with.
struct CalendarDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    OpenCalendars &calendars;
    Commands &commands;
    WorkViews &views;
    Writing &writing; ///< checks the spelling
    MonthPage &page;
};
