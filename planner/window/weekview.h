// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/daysview.h"
#include "shell/core/programstate.h"

class DaysModel;
class QListView;
class StepTitle;

/// A week as seven bands with all their entries. A click or Enter opens the day.
class WeekView final : public DaysView
{
    Q_OBJECT
public:
    WeekView(const PlannerFiles &files, const HouseholdNotes &notes, DateStyle style,
             QWidget *parent = nullptr);

    /// Reads the week of `date` and puts the focus on that day.
    void show(QDate date, const CalendarOptions &options, QDate today) override;
    QDate date() const override;
    QDate after(QDate date, int steps) const override;
    Page page(QDate date, const CalendarOptions &options, const PageContext &context) const override;
    QString printName(QDate date) const override;

protected:
    void notesShown() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    const PlannerFiles &m_files;
    DateStyle m_style;
    DaysModel *m_model;
    StepTitle *m_title;
    QListView *m_view;
};
