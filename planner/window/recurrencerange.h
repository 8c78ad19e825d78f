#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/recurrence.h"

#include <QWidget>

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
    /// Shows the end of `recurrence`: its date, or its number of occurrences.
    void showEnd(const Recurrence &recurrence);

signals:
    void said(const QString &line);

private:
    enum EndBy { EndDate, Occurrences };
    enum CalendarSets { Beginning, End };

    void addEndLines(QVBoxLayout *column);
    void addCalendar(QVBoxLayout *column);
    FieldBox *makeDateBox(const QString &name, const QString &accessibleName);
    void connectBoxes();

    std::optional<QDate> dateOf(const FieldBox *box) const;
    /// The box whose date the calendar sets.
    FieldBox *calendarBox() const;
    void calendarMoved();
    void showCalendarDate();

    const Program &m_program;
    FieldBox *m_beginning;
    FieldBox *m_end;
    FieldBox *m_occurrences;
    QButtonGroup *m_endBy;
    QButtonGroup *m_calendarSets;
    MonthView *m_month = nullptr;
};
