// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/recurrencerun.h"

#include "planner/model/dayrecord.h"
#include "storage/openrecordfile.h"

#include <utility>

/// The year file that a walk is in.
class RecurrenceRun::YearFile
{
public:
    YearFile(const DataFolder &folder, int year)
        : m_year(year)
        , m_records(folder, DayRecord::yearFileName(year), DayRecord::length)
        , m_file(m_records)
    {}

    int year() const { return m_year; }

    PlannerDay read(QDate date)
    {
        const QByteArrayView record = m_file.read(DayRecord::number(date));
        return DayRecord::isSaved(record) ? plannerDayLayout.decode(record) : PlannerDay{};
    }

    bool hasFailed() const { return m_file.hasFailed(); }

    [[nodiscard]] bool write(QDate date, PlannerDay day, RecordChange &change)
    {
        day.mark = PlannerDay::savedMark;
        const int number = DayRecord::number(date);
        const QByteArray before = m_file.read(number).toByteArray();
        const QByteArray after = plannerDayLayout.encode(day);
        if (m_file.hasFailed() || !m_file.write(number, after))
            return false;
        change.write(m_records, number, after, before);
        return true;
    }

    [[nodiscard]] bool flush() { return m_file.flush(); }

private:
    int m_year;
    RecordFile m_records;
    OpenRecordFile m_file;
};

DateResult insertAppointment(PlannerDay &day, const Appointment &appointment)
{
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (day.isRowEmpty(row)) {
            day.times[row] = appointment.time;
            day.texts[row] = appointment.text;
            return DateResult::Made;
        }
        if (AnsiText::trimmedBlanks(day.times[row]) == appointment.time &&
            AnsiText::trimmedBlanks(day.texts[row]) == appointment.text)
            return DateResult::Exists;
    }
    return DateResult::Full;
}

DateResult removeAppointment(PlannerDay &day, const Appointment &appointment)
{
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        if (AnsiText::trimmedBlanks(day.times[row]) == appointment.time &&
            AnsiText::trimmedBlanks(day.texts[row]) == appointment.text) {
            day.times[row].clear();
            day.texts[row].clear();
            return DateResult::Removed;
        }
    }
    return DateResult::Absent;
}

RecurrenceRun::RecurrenceRun(const DataFolder &folder, UntimedPlacement placement, RecurrenceAction action,
                             Appointment appointment, const Recurrence &recurrence)
    : m_folder(folder)
    , m_placement(placement)
    , m_action(action)
    , m_appointment(std::move(appointment))
    , m_dates(recurrence)
{}

RecurrenceRun::~RecurrenceRun() = default;

DateResult RecurrenceRun::work(QDate date)
{
    if (!m_file || m_file->year() != date.year()) {
        if (!finish())
            return DateResult::Failed;
        m_file = std::make_unique<YearFile>(m_folder, date.year());
    }
    PlannerDay day = m_file->read(date);
    if (m_file->hasFailed())
        return DateResult::Failed; // what cannot be read is not empty
    const DateResult result = m_action == RecurrenceAction::Insert ? insertAppointment(day, m_appointment)
                                                                   : removeAppointment(day, m_appointment);
    const bool changed = result == DateResult::Made || result == DateResult::Removed;
    return changed && !m_file->write(date, inTimeOrder(day, m_placement), m_change) ? DateResult::Failed
                                                                                    : result;
}

bool RecurrenceRun::step()
{
    // An empty appointment would match every empty row.
    const std::optional<QDate> date = m_appointment.isEmpty() ? std::nullopt : m_dates.next();
    if (!date) {
        m_failed += !finish();
        return false;
    }
    const DateResult result = work(*date);
    m_lastDate = *date;
    ++m_done;
    m_made += result == DateResult::Made;
    m_full += result == DateResult::Full;
    m_failed += result == DateResult::Failed;
    m_removed += result == DateResult::Removed;
    if (result == DateResult::Removed)
        m_removedFrom.push_back(*date);
    return true;
}

bool RecurrenceRun::finish()
{
    return !m_file || m_file->flush();
}
