// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/daysview.h"
#include "shell/core/programstate.h"

class DaysModel;
class QTableView;
class StepTitle;

/// A month at a glance: each day with its first entries. A click or Enter opens the day.
class MonthGrid final : public DaysView
{
    Q_OBJECT
public:
    MonthGrid(const PlannerFiles &files, const HouseholdNotes &notes, DateStyle style,
              QWidget *parent = nullptr);

    /// Reads the month of `date` and puts the focus on that day.
    void show(QDate date, const CalendarOptions &options, QDate today) override;
    QDate date() const override;
    QDate after(QDate date, int steps) const override;
    Page page(QDate date, const CalendarOptions &options, const PageContext &context) const override;
    QString printName(QDate date) const override;

private:
    void setUpView();

    const PlannerFiles &m_files;
    DaysModel *m_model;
    StepTitle *m_title;
    QTableView *m_view;
};
