// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carentry.h"
#include "cars/window/cardesk.h"
#include "shell/controls/taskpanel.h"

class DateBox;
class DatePicker;
class FieldBox;
class QLabel;

/// "Done": when an action of the schedule was done, at which reading and for how much. It goes into the
/// maintenance history and the schedule in one step; a reading beyond the present one is the present one from
/// then on.
class DonePanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit DonePanel(const CarDesk &desk);

    /// Of the action in `row` of the schedule.
    void start(int row);

signals:
    /// It was entered, as `line` says, and can be taken back.
    void done(const QString &line);
    void said(const QString &line);

private:
    void enter();
    bool isRefused(const Message &refusal, FieldBox *box);
    bool isSaid(const CarEntry &entry, FieldBox *box);

    CarDesk m_desk;
    int m_row = 0;
    DatePicker *m_picker;
    DateBox *m_date;
    FieldBox *m_odometer;
    FieldBox *m_cost;
    QLabel *m_odometerLabel;
    QLabel *m_last;
    QLabel *m_hint;
};
