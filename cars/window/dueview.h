// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carneeds.h"
#include "cars/window/carview.h"

class CarGrid;
class DueCards;
class LinkButton;
class QLabel;
class ScheduleModel;

/// What the open car needs: what is due and overdue, and the schedule that says so.
class DueView final : public CarView
{
    Q_OBJECT
public:
    explicit DueView(const CarDesk &desk);

    CarGrid &schedule() const { return *m_schedule; }
    void finishEdit() override;
    /// Chooses a row of the schedule.
    void showRow(int row);
    /// Goes to the interval of the first action that has none: that is what a new car needs.
    void typeInterval();

signals:
    /// The button of a card was clicked: something was done, or renewed.
    void doneRequested(const CarNeed &need);
    /// The reading of the odometer is to be typed anew.
    void odometerRequested();

protected:
    void refresh() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    CarGrid *makeSchedule();
    void addClearing();
    QWidget *makeScheduleHeading();
    void fit();
    void showCurrentRow();
    void showNeeds();

    ScheduleModel *m_model;
    QWidget *m_heading = nullptr; ///< of the schedule, with the rate of driving
    LinkButton *m_odometer;
    DueCards *m_cards;
    QLabel *m_advice;
    QLabel *m_rate;
    CarGrid *m_schedule;
};
