// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/householdnotes.h"
#include "shell/core/programstate.h"

#include <QWidget>

class Clock;
class DayEditor;
class DaysView;
class WorkViews;
struct Program;

/// The views of the planner's work panel: the day, the week and the month, one of which is in front, and
/// panels over them.
class PlannerViews final : public QWidget
{
    Q_OBJECT
public:
    /// `options` are read whenever a view is opened.
    PlannerViews(const Program &program, const PlannerFiles &files, const CalendarOptions &options,
                 DayEditor *day);

    WorkViews &stack() const { return *m_stack; }
    DaysView *week() const { return m_week; }
    DaysView *month() const { return m_month; }

    /// The week or the month when it is in front, else nothing.
    DaysView *shownDays() const;
    /// What the other functions have for the days.
    const HouseholdNotes &notes() const { return m_notes; }
    /// Whether a view of dates is in front, and no panel.
    bool areDatesShown() const;
    /// The day that the view in front is about.
    QDate date() const;

    /// Opens the week or the month that `date` is in.
    void openDays(DaysView *view, QDate date);
    /// By as many days, weeks or months as the view in front shows; stops at the planner's first and last
    /// day.
    void step(int steps);
    /// A new day has begun.
    void showToday();

signals:
    /// The day of `date` is to be shown.
    void dayOpened(QDate date);
    void said(const QString &line);

private:
    const Clock &m_clock;
    const DateStyle &m_style;
    const CalendarOptions &m_options;
    HouseholdNotes m_notes;
    DayEditor *m_day;
    DaysView *m_week;
    DaysView *m_month;
    WorkViews *m_stack;
};
