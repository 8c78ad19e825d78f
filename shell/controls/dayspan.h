// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/datebox.h"

class Settings;

/// The first and the last of some days: two boxes with a calendar.
class DaySpan final : public QWidget
{
    Q_OBJECT
public:
    /// Its boxes and their calendar, which opens over `window`, are named after it: "print" has printFrom,
    /// printTo and printCalendar.
    DaySpan(const QString &name, const DateReading &reading, const Settings &settings, QWidget *window,
            QWidget *parent = nullptr);

    void setDays(QDate from, QDate to);
    /// As it was set where the box holds no date.
    QDate from() const;
    /// The same; never before the first: days the wrong way round are turned.
    QDate to() const;
    /// Why these are no days, with the focus in the box that holds none; empty where both hold a date.
    QString refuse();

private:
    QDate first() const;
    QDate second() const;

    DateBox *m_from;
    DateBox *m_to;
    QDate m_fromSet;
    QDate m_toSet;
};
