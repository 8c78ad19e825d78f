// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/window/plannerviews.h"

#include "planner/model/lines.h"
#include "planner/window/dayeditor.h"
#include "planner/window/monthgrid.h"
#include "planner/window/weekview.h"
#include "shell/core/clock.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QVBoxLayout>

PlannerViews::PlannerViews(const Program &program, const PlannerFiles &files, const CalendarOptions &options,
                           DayEditor *day)
    : m_clock(program.clock)
    , m_style(program.state.dateStyle)
    , m_options(options)
    , m_notes(program)
    , m_day(day)
    , m_week(new WeekView(files, m_notes, program.state.dateStyle))
    , m_month(new MonthGrid(files, m_notes, program.state.dateStyle))
    , m_stack(new WorkViews(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    m_stack->addHome(m_day);
    for (DaysView *view : {m_week, m_month}) {
        m_stack->addView(view);
        connect(view, &DaysView::dayOpened, this, &PlannerViews::dayOpened);
        connect(view, &DaysView::stepped, this, &PlannerViews::step);
        connect(view, &DaysView::todayRequested, this, [this, view] { openDays(view, m_clock.today()); });
        connect(view, &DaysView::left, m_stack, &WorkViews::goHome);
    }
}

DaysView *PlannerViews::shownDays() const
{
    return qobject_cast<DaysView *>(m_stack->currentWidget());
}

bool PlannerViews::areDatesShown() const
{
    return m_stack->isHome() || shownDays();
}

QDate PlannerViews::date() const
{
    const DaysView *view = shownDays();
    return view && view->date().isValid() ? view->date() : m_day->date();
}

void PlannerViews::openDays(DaysView *view, QDate date)
{
    view->show(date, m_options, m_clock.today());
    m_stack->open(view);
    view->setFocus();
    emit said({});
}

void PlannerViews::step(int steps)
{
    DaysView *view = shownDays();
    if (!view) {
        emit dayOpened(m_day->date().addDays(steps));
        return;
    }
    const QDate wanted = view->after(date(), steps);
    openDays(view, CalendarDates::within(wanted));
    if (!CalendarDates::has(wanted))
        emit said(PlannerLines::beyondDates(m_style));
}

void PlannerViews::showToday()
{
    if (DaysView *view = shownDays())
        view->show(view->date(), m_options, m_clock.today());
}
