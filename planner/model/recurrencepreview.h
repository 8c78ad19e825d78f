// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerfiles.h"
#include "planner/model/recurrencerun.h"

#include <QList>

/// What a recurrence would do, looked at a date a step: nothing is written, and no year file is made.
class RecurrencePreview
{
public:
    /// A date of the recurrence, and what entering the appointment there would come to.
    struct Visit {
        QDate date;
        DateResult result;

        bool operator==(const Visit &) const = default;
    };

    RecurrencePreview(const DataFolder &folder, Appointment appointment, const Recurrence &recurrence);

    /// Looks at the next date; false when there is none left.
    bool step();

    /// The dates looked at so far, the first ones by name, and behind them the first full ones.
    int count() const { return m_count; }
    const QList<Visit> &first() const { return m_firstVisits; }
    QDate firstDate() const { return m_firstVisits.isEmpty() ? QDate() : m_firstVisits.first().date; }
    QDate lastDate() const { return m_lastDate; }
    /// Dates with no row free.
    int full() const { return m_full; }

    /// The dates that have the appointment, which removing would take it from.
    int there() const { return m_there; }
    QDate firstThere() const { return m_firstThere; }
    QDate lastThere() const { return m_lastThere; }

    /// How many dates `first` names at most.
    static constexpr int firstCount = 6;
    /// How many full ones it names behind them.
    static constexpr int fullCount = 4;

private:
    PlannerDay dayOf(QDate date);

    PlannerFiles m_files;
    Appointment m_appointment;
    RecurrenceDates m_dates;
    int m_year = 0;
    QByteArray m_yearBytes; ///< the file of `m_year`, read once
    QList<Visit> m_firstVisits;
    QDate m_lastDate;
    QDate m_firstThere;
    QDate m_lastThere;
    int m_count = 0;
    int m_full = 0;
    int m_there = 0;
};

/// How `appointment` of `date` is likely to come back: as its text says, else by the distance at which the
/// days around already have it. Nothing where neither tells.
std::optional<Recurrence> likelyRecurrence(const DataFolder &folder, const Appointment &appointment,
                                           QDate date);
