// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/recurrence.h"
#include <QWidget>

#include <optional>

class DateBox;
class FieldBox;
class QButtonGroup;
class QGridLayout;
class QLabel;
class QVBoxLayout;
struct DateReading;

/// The kinds of recurrence with their numbers and dates: six option buttons, none of them chosen at first.
class RecurrenceForm final : public QWidget
{
    Q_OBJECT
public:
    explicit RecurrenceForm(const DateReading &reading, QWidget *parent = nullptr);

    /// No kind chosen; the boxes propose what suits an appointment of `date`.
    void reset(QDate date);
    /// Chooses kind, interval and weekday of `recurrence`, as a proposal.
    void propose(const Recurrence &recurrence);
    /// Puts the focus on the chosen kind, or on the first.
    void focusKind();

    std::optional<Recurrence::Kind> kind() const;
    /// Fills in kind, interval and days of the chosen kind; the reason when a box of that kind cannot be
    /// read. Without a kind it is each day.
    std::optional<QString> read(Recurrence &recurrence) const;

signals:
    void kindChosen();
    /// Any of the choices and boxes has changed.
    void changed();
    void said(const QString &line);

private:
    /// The box with the number of a kind; none for weekdays.
    FieldBox *intervalBox(Recurrence::Kind kind) const;
    FieldBox *makeNumberBox(const QString &name, const QString &accessibleName);
    QWidget *makeKind(Recurrence::Kind kind, const QString &caption);
    void addLine(QVBoxLayout *column, const QList<QWidget *> &parts);
    void addDaily(QVBoxLayout *column);
    void addWeekly(QVBoxLayout *column);
    void addMonthly(QVBoxLayout *column);
    void addYearly(QVBoxLayout *column);
    QLabel *makeWords(const QString &words);

    QButtonGroup *m_kinds;
    QButtonGroup *m_weekdays;
    FieldBox *m_dailyInterval;
    FieldBox *m_weeklyInterval;
    FieldBox *m_dayOfMonth;
    FieldBox *m_monthlyInterval;
    FieldBox *m_yearlyInterval;
    DateBox *m_yearDay;
    FieldBox *m_yearDayInterval;
};
