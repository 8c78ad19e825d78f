// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/appointment.h"
#include "planner/model/plannerfiles.h"
#include "shell/core/recurrence.h"

#include <memory>

/// What one date's operation came to.
enum class DateResult {
    Made,    ///< the appointment was put into the day
    Exists,  ///< it stood there already: nothing written
    Full,    ///< no row was free: nothing written
    Removed, ///< one copy was taken out
    Absent,  ///< nothing to take out: nothing written
    Failed   ///< the disk refused
};

/// Puts the appointment into the day's first empty row unless a row before it holds the same one already.
DateResult insertAppointment(PlannerDay &day, const Appointment &appointment);

/// Empties the first row that holds the appointment.
DateResult removeAppointment(PlannerDay &day, const Appointment &appointment);

/// The walk over a recurrence's dates, a date a step, so that whoever drives it can show progress, keep
/// the window responsive and stop it. Each date is written before the next one is looked at. The year file of
/// the current date is kept open between steps of one walk, and put on the disk when the walk goes on to
/// another or `finish` ends it.
class RecurrenceRun
{
public:
    RecurrenceRun(const DataFolder &folder, UntimedPlacement placement, RecurrenceAction action,
                  Appointment appointment, const Recurrence &recurrence);
    ~RecurrenceRun();

    /// Works on the next date; false when there is none left.
    bool step();

    /// Puts what was written on the disk itself, for a walk that is stopped early; one that runs to its end
    /// has done it. False when the disk refuses.
    [[nodiscard]] bool finish();

    /// The days that were written so far, as they were and as they are.
    const RecordChange &change() const { return m_change; }

    /// The dates from which the appointment was removed.
    const std::vector<QDate> &removedFrom() const { return m_removedFrom; }

    int made() const { return m_made; }
    int full() const { return m_full; }
    int failed() const { return m_failed; }
    int removed() const { return m_removed; }
    /// Dates worked on so far, and about how many there are in all.
    int done() const { return m_done; }
    int estimate() const { return m_dates.estimate(); }
    bool isCutShort() const { return m_dates.isCutShort(); }
    /// The last date worked on; invalid before the first step.
    QDate lastDate() const { return m_lastDate; }

private:
    DateResult work(QDate date);

    class YearFile;
    const DataFolder &m_folder;
    UntimedPlacement m_placement;
    RecurrenceAction m_action;
    Appointment m_appointment;
    RecurrenceDates m_dates;
    RecordChange m_change;
    std::vector<QDate> m_removedFrom;
    std::unique_ptr<YearFile> m_file;
    QDate m_lastDate;
    int m_made = 0;
    int m_full = 0;
    int m_failed = 0;
    int m_removed = 0;
    int m_done = 0;
};
