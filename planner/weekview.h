#pragma once

#include "planner/calendaroptions.h"
#include "planner/plannerfiles.h"
#include "shell/programstate.h"

#include <QWidget>

class DaysModel;
class QListView;
class StepTitle;

/// A week as seven bands with all their entries. A click or Enter opens the day.
class WeekView final : public QWidget
{
    Q_OBJECT
public:
    WeekView(const PlannerFiles &files, DateStyle style, QWidget *parent = nullptr);

    /// Reads the week of `date` and puts the focus on that day.
    void show(QDate date, const CalendarOptions &options, QDate today);
    /// The day that has the focus.
    QDate date() const;

signals:
    void dayOpened(QDate date);
    /// Steps of a week; 0 is the week of today.
    void stepped(int weeks);
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const PlannerFiles &m_files;
    DateStyle m_style;
    DaysModel *m_model;
    StepTitle *m_title;
    QListView *m_view;
};
