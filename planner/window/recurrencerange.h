// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "shell/core/programstate.h"
#include "shell/core/recurrence.h"

#include <QWidget>

class Clock;
class DateBox;
class FieldBox;
class MonthView;
class QButtonGroup;
class QVBoxLayout;
struct Program;

/// From when to when an appointment comes back: the beginning, the end date or the number of occurrences, and
/// a calendar that sets either date.
class RecurrenceRange final : public QWidget
{
    Q_OBJECT
public:
    explicit RecurrenceRange(const Program &program, QWidget *parent = nullptr);

    /// Gets ready for an appointment of `date`.
    void reset(QDate date, const CalendarOptions &options);
    /// Puts the range into `recurrence`, or gives the reason why it cannot be walked.
    std::optional<QString> read(Recurrence &recurrence) const;
    /// The width below which it would be cut.
    int leastWidth() const;
    /// Takes the width that suits it, or as much of it as there is.
    void fitWidth(int room);
    /// Shows the end of `recurrence`: its date, or its number of occurrences.
    void showEnd(const Recurrence &recurrence);

signals:
    /// A date or the number has changed.
    void changed();
    void said(const QString &line);

private:
    enum EndBy { EndDate, Occurrences };
    enum CalendarSets { Beginning, End };

    void addEndLines(QVBoxLayout *column);
    void addCalendar(QVBoxLayout *column);
    /// Gives a box its names, and tells what it refuses.
    template <typename Box>
    Box *setUp(Box *box, const QString &name, const QString &accessibleName, int width);
    void connectBoxes();

    /// The box whose date the calendar sets.
    DateBox *calendarBox() const;
    void calendarMoved();
    void showCalendarDate();

    const Clock &m_clock;
    const DateStyle &m_style;
    DateBox *m_beginning;
    DateBox *m_end;
    FieldBox *m_occurrences;
    QButtonGroup *m_endBy;
    QButtonGroup *m_calendarSets;
    MonthView *m_month = nullptr;
    bool m_isShowing = false; ///< the calendar follows a box, and not the other way round
};
