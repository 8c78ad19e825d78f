#pragma once

#include "planner/calendaroptions.h"
#include "planner/plannerfiles.h"
#include "shell/programstate.h"

#include <QWidget>

class DaysModel;
class QTableView;
class StepTitle;

/// A month at a glance: each day with its first entries. A click or Enter opens the day.
class MonthGrid final : public QWidget
{
    Q_OBJECT
public:
    MonthGrid(const PlannerFiles &files, DateStyle style, QWidget *parent = nullptr);

    /// Reads the month of `date` and puts the focus on that day.
    void show(QDate date, const CalendarOptions &options, QDate today);
    /// The day that has the focus.
    QDate date() const;

signals:
    void dayOpened(QDate date);
    /// Steps of a month; 0 is the month of today.
    void stepped(int months);
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpView();

    const PlannerFiles &m_files;
    DaysModel *m_model;
    StepTitle *m_title;
    QTableView *m_view;
};
