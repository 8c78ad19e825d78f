// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "shell/core/pagecontext.h"

#include <QDate>
#include <QWidget>

class QAbstractItemView;

/// What the views of several days share: a day can be opened, the view steps on by its own measure and is
/// left for the view of a day.
class DaysView : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Reads the days around `date` and puts the focus on that day.
    virtual void show(QDate date, const CalendarOptions &options, QDate today) = 0;
    /// The day that has the focus.
    virtual QDate date() const = 0;
    /// The day that is as many weeks or months on from `date`.
    virtual QDate after(QDate date, int steps) const = 0;

    /// The days around `date` on paper, as the files have them.
    virtual Page page(QDate date, const CalendarOptions &options, const PageContext &context) const = 0;
    virtual QString printName(QDate date) const = 0;

signals:
    void dayOpened(QDate date);
    /// Steps of a week or a month.
    void stepped(int steps);
    void todayRequested();
    void left();

protected:
    /// `view` shows the days: the page keys step, Enter opens the day that has the focus.
    void takeKeysOf(QAbstractItemView *view);
    bool eventFilter(QObject *watched, QEvent *event) override;
};
