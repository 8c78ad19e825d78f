// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/removaltrash.h"

#include "planner/model/plannertrash.h"
#include "planner/model/recurrencerun.h"

#include <utility>

RemovalTrash::RemovalTrash(const DataFolder &folder, Appointment appointment, const Recurrence &recurrence,
                           const QDateTime &now)
    : m_folder(folder)
    , m_files(folder)
    , m_appointment(std::move(appointment))
    , m_dates(recurrence)
    , m_now(now)
{}

bool RemovalTrash::step()
{
    if (m_isLaid)
        return false;
    const std::optional<QDate> date = m_appointment.isEmpty() ? std::nullopt : m_dates.next();
    if (!date) {
        keep(m_found);
        m_isLaid = true;
        return true;
    }
    PlannerDay day = m_files.peek(*date);
    if (removeAppointment(day, m_appointment) == DateResult::Removed)
        m_found.push_back(*date);
    return true;
}

/// The one item of this removal: the one that the trash has gives way to it.
void RemovalTrash::keep(const std::vector<QDate> &dates)
{
    if (dates == m_inTrash)
        return;
    RecordChange change;
    if (!m_inTrash.empty())
        change.bringBack(PlannerTrash::ofRemoval(m_appointment, m_inTrash, m_now));
    if (!dates.empty())
        change.throwAway(PlannerTrash::ofRemoval(m_appointment, dates, m_now));
    m_isKept = change.commit(m_folder) && change.trashState() != Trash::State::OutOfReach;
    if (m_isKept)
        m_inTrash = dates;
}

void RemovalTrash::settle(const std::vector<QDate> &dates, RecordChange &change)
{
    keep(dates);
    if (!m_inTrash.empty())
        change.throwAway(PlannerTrash::ofRemoval(m_appointment, m_inTrash, m_now));
}
