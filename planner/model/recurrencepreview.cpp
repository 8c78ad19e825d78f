// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/recurrencepreview.h"

#include "planner/model/dayrecord.h"

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isOfTheYear(const QString &text)
{
    constexpr std::array words{"birthday"_L1, "b'day"_L1, "anniversary"_L1};
    for (const QLatin1StringView word : words) {
        if (text.contains(word, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

Recurrence everySo(Recurrence::Kind kind, int interval = 1)
{
    Recurrence recurrence;
    recurrence.kind = kind;
    recurrence.interval = interval;
    return recurrence;
}

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
    if (m_count < firstCount)
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
    if (isOfTheYear(appointment.text))
        return everySo(Recurrence::Yearly);
    const PlannerFiles files(folder);
    const auto has = [&](QDate other) {
        PlannerDay day = files.peek(other);
        return removeAppointment(day, appointment) == DateResult::Removed;
    };
    const auto isNear = [&](int days) { return has(date.addDays(days)) || has(date.addDays(-days)); };
    if (isNear(1)) {
        const QDate saturday = date.addDays(Qt::Saturday - date.dayOfWeek());
        const bool restsAtWeekend = !has(saturday) && !has(saturday.addDays(1)) &&
                                    has(saturday.addDays(-1)) && has(saturday.addDays(2));
        return everySo(restsAtWeekend ? Recurrence::Weekdays : Recurrence::Daily);
    }
    if (isNear(7))
        return everySo(Recurrence::Weekly);
    if (isNear(14))
        return everySo(Recurrence::Weekly, 2);
    if (has(date.addMonths(1)) || has(date.addMonths(-1)))
        return everySo(Recurrence::Monthly);
    if (has(date.addYears(1)) || has(date.addYears(-1)))
        return everySo(Recurrence::Yearly);
    return {};
}
