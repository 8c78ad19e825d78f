// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/drivinglog.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {

/// Fewer days tell nothing of a rate, and within so many one journey decides it.
constexpr qint64 leastDays = 7;
constexpr qint64 enoughDays = 28;
constexpr double mostPerDay = 2000; ///< nobody drives farther
constexpr double mostDaysAhead = 36525;

bool isOfNewOdometer(double reading, double before)
{
    return reading < before / 2;
}

/// The readings behind the last one that is below the one before it.
QList<OdometerReading> lastRise(const QList<OdometerReading> &readings)
{
    qsizetype start = readings.size();
    while (start > 0 && (start == readings.size() || readings[start - 1].reading <= readings[start].reading))
        --start;
    return readings.sliced(start);
}

} // namespace

DrivingLog::DrivingLog(QList<OdometerReading> readings, std::optional<double> current, QDate today)
    : m_all(std::move(readings))
{
    m_all.removeIf(
        [today](const OdometerReading &reading) { return !reading.date.isValid() || reading.date > today; });
    std::ranges::sort(
        m_all, {}, [](const OdometerReading &reading) { return std::tuple(reading.date, reading.reading); });
    // What a history and the schedule both tell is one reading.
    m_all.erase(std::unique(m_all.begin(), m_all.end()), m_all.end());
    leaveOutSingles(current);
    splitByOdometer(current);
    m_odometer = current;
    for (const OdometerReading &reading : m_odometers.last())
        m_odometer = std::max(m_odometer.value_or(reading.reading), reading.reading);
    findRate(current, today);
    findReadOn(current, today);
    addUp();
}

/// What was mistyped stands alone between two readings that follow one another.
void DrivingLog::leaveOutSingles(std::optional<double> current)
{
    QList<OdometerReading> kept;
    for (qsizetype i = 0; i < m_all.size(); ++i) {
        const double reading = m_all[i].reading;
        bool isSingle = false;
        if (!kept.isEmpty() && i + 1 < m_all.size()) {
            const double before = kept.last().reading;
            const double after = m_all[i + 1].reading;
            isSingle = before <= after && (reading < before || reading > after);
        } else if (!kept.isEmpty() && current && kept.last().reading <= *current) {
            // The present reading may be older than the newest entry, but not by half.
            isSingle = reading < kept.last().reading || isOfNewOdometer(*current, reading);
        }
        if (!isSingle)
            kept.append(m_all[i]);
    }
    m_all = kept;
}

void DrivingLog::splitByOdometer(std::optional<double> current)
{
    m_odometers = {{}};
    for (const OdometerReading &reading : std::as_const(m_all)) {
        if (!m_odometers.last().isEmpty() &&
            isOfNewOdometer(reading.reading, m_odometers.last().last().reading))
            m_odometers.append(QList<OdometerReading>());
        m_odometers.last().append(reading);
    }
    if (current && !m_all.isEmpty() && isOfNewOdometer(*current, m_all.last().reading))
        m_odometers.append(QList<OdometerReading>());
}

void DrivingLog::findRate(std::optional<double> current, QDate today)
{
    const QList<OdometerReading> rise = lastRise(m_odometers.last());
    if (rise.isEmpty())
        return;
    const OdometerReading newest = rise.last();
    qsizetype first = rise.size() - 1;
    while (first > 0 && (rise[first - 1].date.daysTo(newest.date) <= recentDays ||
                         rise[first].date.daysTo(newest.date) < enoughDays))
        --first;
    m_recent = rise.sliced(first);
    qint64 days = m_recent.first().date.daysTo(newest.date);
    // With a single reading the present one tells, though nobody knows how old it is.
    if (days < leastDays && current && *current >= newest.reading &&
        newest.date.daysTo(today) >= enoughDays) {
        m_recent.append({today, *current});
        days = m_recent.first().date.daysTo(today);
    }
    const double perDay = days < leastDays
                              ? mostPerDay + 1
                              : (m_recent.last().reading - m_recent.first().reading) / double(days);
    if (perDay <= mostPerDay)
        m_perDay = perDay;
    else
        m_recent.clear();
}

void DrivingLog::findReadOn(std::optional<double> current, QDate today)
{
    m_readOn = today;
    if (m_odometers.last().isEmpty())
        return;
    const auto highest = std::ranges::max_element(m_odometers.last(), {},
                                                  &OdometerReading::reading); // the first of equal ones
    if (!current || *current <= highest->reading) {
        m_readOn = std::min(m_odometers.last().last().date, today);
    } else if (m_perDay && *m_perDay > 0) {
        const double days = (*current - highest->reading) / *m_perDay;
        if (days < double(highest->date.daysTo(today)))
            m_readOn = highest->date.addDays(qint64(days));
    }
}

void DrivingLog::addUp()
{
    double before = 0;
    double highest = 0;
    for (const QList<OdometerReading> &odometer : std::as_const(m_odometers)) {
        before = highest;
        for (const OdometerReading &reading : odometer) {
            highest = std::max(highest, before + reading.reading);
            m_totals.append({reading.date, highest});
        }
    }
    if (m_odometer && (m_totals.isEmpty() || m_totals.last().date <= m_readOn))
        m_totals.append({m_readOn, std::max(highest, before + *m_odometer)});
}

/// Where the date is before the first or behind the last total, that one.
double DrivingLog::totalOn(QDate date) const
{
    const auto after = std::ranges::upper_bound(m_totals, date, {}, &OdometerReading::date);
    if (after == m_totals.begin())
        return m_totals.first().reading;
    const OdometerReading &before = *std::prev(after);
    if (after == m_totals.end())
        return before.reading;
    return before.reading + (after->reading - before.reading) * double(before.date.daysTo(date)) /
                                double(before.date.daysTo(after->date));
}

std::optional<double> DrivingLog::drivenBetween(QDate from, QDate to) const
{
    if (m_totals.size() < 2 || to < m_totals.first().date || from > m_totals.last().date)
        return {};
    return totalOn(to.addDays(1)) - totalOn(from);
}

/// The one that was in the car on `date`; without a date the newest one that can have read that much.
qsizetype DrivingLog::odometerOf(double reading, QDate date) const
{
    qsizetype found = m_odometers.size() - 1;
    if (date.isValid()) {
        const auto beginsLater = [&](qsizetype i) {
            if (!m_odometers[i].isEmpty())
                return m_odometers[i].first().date > date;
            return m_odometers[i - 1].last().date >= date || m_odometer.value_or(0) < reading;
        };
        while (found > 0 && beginsLater(found))
            --found;
    } else if (m_odometer.value_or(0) < reading) {
        for (--found; found > 0 && m_odometers[found].last().reading < reading;)
            --found;
    }
    return std::max(found, qsizetype(0));
}

double DrivingLog::drivenSince(double reading, QDate date) const
{
    const double odometer = m_odometer.value_or(reading);
    const qsizetype of = odometerOf(reading, date);
    const qsizetype inUse = m_odometers.size() - 1;
    if (of == inUse)
        return odometer - reading;
    double driven = std::max(0.0, m_odometers[of].last().reading - reading) + odometer;
    for (qsizetype i = of + 1; i < inUse; ++i)
        driven += m_odometers[i].last().reading;
    return driven;
}

QDate DrivingLog::dateAfter(double distance) const
{
    if (!m_perDay || *m_perDay <= 0)
        return {};
    const double days = std::ceil(distance / *m_perDay);
    return std::abs(days) < mostDaysAhead ? m_readOn.addDays(qint64(days)) : QDate();
}

QList<OdometerReading> DrivingLog::readings() const
{
    QList<OdometerReading> readings;
    for (const QList<OdometerReading> &odometer : m_odometers)
        readings += odometer;
    return readings;
}
