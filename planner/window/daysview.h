#pragma once

#include "planner/model/calendaroptions.h"

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

signals:
    void dayOpened(QDate date);
    /// Steps of a week or a month; 0 is that of today.
    void stepped(int steps);
    void left();

protected:
    /// `view` shows the days: the page keys step, Enter opens the day that has the focus.
    void takeKeysOf(QAbstractItemView *view);
    bool eventFilter(QObject *watched, QEvent *event) override;
};
