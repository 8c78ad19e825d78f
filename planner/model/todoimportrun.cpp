// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/todoimportrun.h"

#include "planner/model/lines.h"
#include "shell/core/dates.h"

ToDoImportRun::ToDoImportRun(PlannerFiles &files, UntimedPlacement placement, std::vector<DatedToDo> items,
                             QDate earliest)
    : m_files(files)
    , m_placement(placement)
    , m_items(std::move(items))
    , m_earliest(earliest)
{}

bool ToDoImportRun::step()
{
    if (m_next >= m_items.size())
        return false;
    const DatedToDo &item = m_items[m_next++];
    if (item.date < m_earliest) {
        ++m_passedOver;
        return true;
    }
    const DateResult result = insert(item);
    m_made += result == DateResult::Made;
    m_there += result == DateResult::Exists;
    m_full += result == DateResult::Full;
    if (result == DateResult::Failed)
        m_refused = item.date;
    return result != DateResult::Failed;
}

/// Puts `item`, with an empty time, into its day.
DateResult ToDoImportRun::insert(const DatedToDo &item)
{
    if (!m_files.isReadable(item.date.year()))
        return DateResult::Failed; // what cannot be read is not empty
    PlannerDay day = m_files.read(item.date);
    const DateResult result = insertAppointment(day, Appointment::ofRow({}, item.text));
    const bool mustWrite = result == DateResult::Made;
    return mustWrite && !m_files.write(item.date, inTimeOrder(day, m_placement), m_change)
               ? DateResult::Failed
               : result;
}

QString ToDoImportRun::report(bool wasStopped, DateStyle style) const
{
    QString done = PlannerLines::imported(m_made, m_there, m_full, m_passedOver);
    if (wasStopped)
        done += PlannerLines::stoppedBeforeEnd();
    return m_refused.isValid() ? PlannerLines::diskRefused(Dates::numbers(m_refused, style), done) : done;
}
