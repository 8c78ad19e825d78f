// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"

#include <QDate>
#include <QSet>
#include <QWidget>

#include <functional>
#include <map>

class Clock;
class MonthView;
class QBoxLayout;
class QLabel;

/// Shows a month as the options say: its first day, its week numbers, today.
void applyOptions(MonthView &month, const CalendarOptions &options, QDate today);

/// The calendar beside a day: one month, or two of which the second follows the first; side by side where the
/// pane is wide enough for both, else below each other. Days with entries have a dot.
class PlannerCalendar final : public QWidget
{
    Q_OBJECT
public:
    /// The days of a year that have entries.
    using MarkedDays = std::function<QSet<QDate>(int year)>;

    PlannerCalendar(const Clock &clock, MarkedDays markedDays, QWidget *parent = nullptr);

    void setOptions(const CalendarOptions &options);
    QDate date() const;
    /// Chooses `date` without telling anybody.
    void setDate(QDate date);
    /// Looks again at which days have entries: something was written.
    void refreshMarks();

    /// A new day may have begun.
    void showToday();

signals:
    /// The user chose this day, by a click or with the keys; comes when the calendar has done with the event.
    void dateChosen(QDate date);
    /// Enter or a double click: the user wants to go on in the chosen day.
    void dayEntered();
    /// The user stepped beyond the first or the last month.
    void edgeReached();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void announce(MonthView *from);
    void showPages();
    void showMarks();
    void arrange();
    QDate firstShown() const;

    const Clock &m_clock;
    MarkedDays m_markedDays;
    MonthView *m_first;
    MonthView *m_second;
    QBoxLayout *m_months;
    std::map<int, QSet<QDate>> m_marks; ///< by year, as read last
    QDate m_announced;                  ///< on its way; invalid when nothing is
    bool m_isSetting = false;
};
