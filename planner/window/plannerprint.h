// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"

#include <QObject>

#include <functional>

class Commands;
class DayEditor;
class DaysView;
class FunctionWindow;
class PlannerViews;
class QMenu;
struct Program;

/// The planner's printing: the day, the week and the month of the view in front, and a range of dates.
class PlannerPrint final : public QObject
{
    Q_OBJECT
public:
    /// What the pages are made of; all of it outlives the printing.
    struct Sources {
        const PlannerFiles &files;
        const CalendarOptions &options;
        const DayEditor *day;
        const PlannerViews *views;
    };

    /// `mayReplaceDay` is asked before a page shows what the files hold.
    PlannerPrint(Program &program, FunctionWindow *window, Sources sources,
                 std::function<bool()> mayReplaceDay);

    void addCommands(Commands &commands, QMenu *menu);

private:
    QString whyNotShown() const;
    void printShown();
    void printDay();
    void printDays(const DaysView *view);
    void printRange();

    Program &m_program;
    FunctionWindow *m_window;
    Sources m_from;
    std::function<bool()> m_mayReplaceDay;
};
