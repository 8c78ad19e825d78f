// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/recurrencepreview.h"

#include "planner/model/dayrecord.h"
#include "planner/model/recurrencewords.h"

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

Recurrence everySo(Recurrence::Kind kind, int interval, QDate date)
{
    Recurrence recurrence;
    recurrence.kind = kind;
    recurrence.interval = interval;
    recurrence.weekday = Qt::DayOfWeek(date.dayOfWeek());
    recurrence.dayOfMonth = date.day();
    return recurrence;
}

/// The distances that tell a kind, the likeliest first: in days and months before or after a date.
struct Distance {
    int days;
    int months;
    Recurrence::Kind kind;
    int interval = 1;
};

// 29 to 31 days: a month later where the day fell on a weekend. 364 days: the same weekday a year later.
constexpr std::array distances{
    Distance{7, 0, Recurrence::Weekly},     Distance{14, 0, Recurrence::Weekly, 2},
    Distance{0, 1, Recurrence::Monthly},    Distance{28, 0, Recurrence::Weekly, 4},
    Distance{29, 0, Recurrence::Monthly},   Distance{30, 0, Recurrence::Monthly},
    Distance{31, 0, Recurrence::Monthly},   Distance{0, 2, Recurrence::Monthly, 2},
    Distance{0, 3, Recurrence::Monthly, 3}, Distance{0, 6, Recurrence::Monthly, 6},
    Distance{0, 12, Recurrence::Yearly},    Distance{364, 0, Recurrence::Yearly},
    Distance{365, 0, Recurrence::Yearly},
};

} // namespace

RecurrencePreview::RecurrencePreview(const DataFolder &folder, Appointment appointment,
                                     const Recurrence &recurrence)
    : m_files(folder)
    , m_appointment(std::move(appointment))
    , m_dates(recurrence)
{}

PlannerDay RecurrencePreview::dayOf(QDate date)
{
    if (m_year != date.year()) {
        m_year = date.year();
        m_yearBytes = m_files.yearBytes(m_year);
    }
    const QByteArrayView record = DayRecord::ofNumber(m_yearBytes, DayRecord::number(date));
    return DayRecord::isSaved(record) ? plannerDayLayout.decode(record) : PlannerDay{};
}

bool RecurrencePreview::step()
{
    const std::optional<QDate> date = m_appointment.isEmpty() ? std::nullopt : m_dates.next();
    if (!date)
        return false;
    PlannerDay day = dayOf(*date);
    PlannerDay after = day;
    const DateResult result = insertAppointment(after, m_appointment);
    if (m_count < firstCount || (result == DateResult::Full && m_firstVisits.size() < firstCount + fullCount))
        m_firstVisits.append({*date, result});
    ++m_count;
    m_lastDate = *date;
    m_full += result == DateResult::Full;
    if (removeAppointment(day, m_appointment) == DateResult::Removed) {
        ++m_there;
        m_firstThere = m_firstThere.isValid() ? m_firstThere : *date;
        m_lastThere = *date;
    }
    return true;
}

std::optional<Recurrence> likelyRecurrence(const DataFolder &folder, const Appointment &appointment,
                                           QDate date)
{
    if (const auto words = RecurrenceWords::recurrence(appointment.text, date))
        return words;
    const PlannerFiles files(folder);
    const auto has = [&](QDate other) {
        PlannerDay day = files.peek(other);
        return removeAppointment(day, appointment) == DateResult::Removed;
    };
    if (has(date.addDays(1)) || has(date.addDays(-1))) {
        const QDate saturday = date.addDays(Qt::Saturday - date.dayOfWeek());
        const bool restsAtWeekend = !has(saturday) && !has(saturday.addDays(1)) &&
                                    has(saturday.addDays(-1)) && has(saturday.addDays(2));
        return everySo(restsAtWeekend ? Recurrence::Weekdays : Recurrence::Daily, 1, date);
    }
    for (const Distance &distance : distances) {
        if (has(date.addMonths(distance.months).addDays(distance.days)) ||
            has(date.addMonths(-distance.months).addDays(-distance.days)))
            return everySo(distance.kind, distance.interval, date);
    }
    return {};
}
