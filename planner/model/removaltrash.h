// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/appointment.h"
#include "planner/model/plannerfiles.h"
#include "shell/core/recurrence.h"
#include "storage/trash.h"

#include <QDateTime>

#include <vector>

/// What the trash keeps of a removal from many dates. It is put there before the first of them is written, so
/// that nothing is lost where the walk over them is cut off, and brought to what was removed when it is over.
class RemovalTrash
{
public:
    RemovalTrash(const DataFolder &folder, Appointment appointment, const Recurrence &recurrence,
                 const QDateTime &now);

    /// Looks at the next date or, behind the last one, puts into the trash what they have; false when that is
    /// done already.
    bool step();

    /// Behind a walk that removed the appointment from `dates`: adds what the trash has of it to `change`,
    /// to come out of it when the change is taken back.
    void settle(const std::vector<QDate> &dates, RecordChange &change);

    /// Whether the trash has what it should; no removal waits for it.
    bool isKept() const { return m_isKept; }

private:
    void keep(const std::vector<QDate> &dates);

    const DataFolder &m_folder;
    PlannerFiles m_files;
    Appointment m_appointment;
    RecurrenceDates m_dates;
    QDateTime m_now;
    std::vector<QDate> m_found;
    std::vector<QDate> m_inTrash;
    bool m_isLaid = false;
    bool m_isKept = true;
};
