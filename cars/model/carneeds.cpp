// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carneeds.h"

#include "cars/model/carnumbers.h"
#include "shell/core/datetoken.h"

#include <algorithm>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int monthCount = 12;

CarNeed::State stateOn(QDate date, QDate today)
{
    if (date < today)
        return CarNeed::State::Overdue;
    return date <= today.addDays(CarNeed::warningDays) ? CarNeed::State::Due : CarNeed::State::Ahead;
}

/// Works out what is due of one action after the other.
class Schedule
{
public:
    Schedule(const DrivingLog &log, DistanceUnit unit, DateStyle style, QDate today)
        : m_log(log)
        , m_near(unit == DistanceUnit::Miles ? CarNeed::warningMiles : CarNeed::warningKilometers)
        , m_style(style)
        , m_today(today)
    {}

    CarNeed need(const ScheduledAction &action, int row) const
    {
        CarNeed need{.row = row, .name = action.name.trimmed()};
        const std::optional<double> distance = CarNumbers::number(action.distance);
        const std::optional<int> months = CarNumbers::months(action.months);
        const bool hasDistance = distance && *distance > 0;
        if (!hasDistance && !months)
            return need;
        need.state = CarNeed::State::NoLastTime;
        const QDate lastDate = CarNumbers::date(action.date, m_style).value_or(QDate());
        const std::optional<double> lastReading = CarNumbers::number(action.odometer);
        if (hasDistance && lastReading)
            limitDistance(need, *distance, *lastReading, lastDate);
        if (months && lastDate.isValid())
            limitTime(need, lastDate.addMonths(*months));
        return need;
    }

private:
    void limitDistance(CarNeed &need, double distance, double lastReading, QDate lastDate) const
    {
        need.limit = CarNeed::Limit::Distance;
        need.remaining = distance - m_log.drivenSince(lastReading, lastDate);
        need.reading = m_log.odometer().value_or(lastReading) + *need.remaining;
        need.byDistance = m_log.dateAfter(*need.remaining);
        if (*need.remaining < 0) {
            need.state = CarNeed::State::Overdue;
        } else if (need.byDistance.isValid()) {
            need.isReadingOld = need.byDistance < m_today;
            need.byDistance = std::max(need.byDistance, m_today);
            need.state = stateOn(need.byDistance, m_today);
        } else {
            need.state = *need.remaining <= m_near ? CarNeed::State::Due : CarNeed::State::Ahead;
        }
    }

    /// The earlier of two dates decides; where only the time has one, the more urgent of the two.
    void limitTime(CarNeed &need, QDate date) const
    {
        const CarNeed::State state = stateOn(date, m_today);
        need.byTime = date;
        const bool decides = need.limit == CarNeed::Limit::None ||
                             (need.byDistance.isValid() ? date < need.byDistance : state >= need.state);
        if (decides)
            need.limit = CarNeed::Limit::Time;
        need.state = std::max(need.state, state);
    }

    const DrivingLog &m_log;
    double m_near;
    DateStyle m_style;
    QDate m_today;
};

CarNeed needOn(CarNeed::Kind kind, const QString &name, QDate date, QDate today)
{
    return {.kind = kind,
            .name = name,
            .state = stateOn(date, today),
            .limit = CarNeed::Limit::Time,
            .byTime = date};
}

QDate endOfMonth(int year, int month)
{
    return QDate(year, month, 1).addMonths(1).addDays(-1);
}

/// The month and the year of a text that has no day; 0 where there is none of them.
std::pair<int, int> monthAndYear(const QString &text)
{
    const DateToken::Bytes bytes = DateToken::bytes(text);
    int month = 0;
    int year = 0;
    for (QByteArrayView rest(bytes); !rest.isEmpty();) {
        const DateToken token = DateToken::take(rest);
        if (token.kind == DateToken::Other)
            continue;
        const bool mayBeMonth = token.value >= 1 && token.value <= monthCount && !token.isYear();
        if (month == 0 && mayBeMonth)
            month = token.value;
        else if (year == 0 && token.isYear() && token.length == 4)
            year = token.value;
        else
            return {0, 0};
    }
    return {month, year};
}

} // namespace

DrivingLog CarNeeds::drivingLog(const CarRecord &car, DateStyle style, QDate today)
{
    QList<OdometerReading> readings;
    const auto add = [&](const QString &odometer, const QString &date) {
        const std::optional<double> reading = CarNumbers::number(odometer);
        const std::optional<QDate> day = CarNumbers::date(date, style);
        if (reading && day)
            readings.append({*day, *reading});
    };
    for (const History *history : {&car.maintenance, &car.repairs}) {
        for (const HistoryRow &row : *history)
            add(row.odometer, row.date);
    }
    for (const FuelRow &row : car.fuel)
        add(row.current, row.date);
    for (const ScheduledAction &action : car.sheet.actions)
        add(action.odometer, action.date);
    return {readings, CarNumbers::number(car.sheet.field(VehicleSheet::Odometer)), today};
}

QList<CarNeed> CarNeeds::of(const CarRecord &car, const DrivingLog &log, DateStyle style, QDate today)
{
    QList<CarNeed> needs;
    const Schedule schedule(log, car.sheet.unit, style, today);
    for (std::size_t row = 0; row < VehicleSheet::actionCount; ++row) {
        const ScheduledAction &action = car.sheet.actions[row];
        CarNeed need = schedule.need(action, int(row));
        if (!need.name.isEmpty() || need.state != CarNeed::State::NoInterval)
            needs.append(need);
    }
    const QDate registration =
        registrationEnd(car.sheet.field(VehicleSheet::RegistrationMonth), style, today);
    if (registration.isValid())
        needs.append(needOn(CarNeed::Kind::Registration, u"Registration"_s, registration, today));
    if (const auto date = CarNumbers::date(car.sheet.field(VehicleSheet::InsuranceExpiration), style))
        needs.append(needOn(CarNeed::Kind::Insurance, u"Insurance"_s, *date, today));
    return needs;
}

QList<CarNeed> CarNeeds::byUrgency(QList<CarNeed> needs)
{
    std::ranges::stable_sort(needs, [](const CarNeed &one, const CarNeed &other) {
        const auto key = [](const CarNeed &need) {
            return std::tuple(-int(need.state), !need.date().isValid(), need.date());
        };
        return key(one) < key(other);
    });
    return needs;
}

QDate CarNeeds::registrationEnd(const QString &text, DateStyle style, QDate today)
{
    if (const auto date = CarNumbers::date(text, style))
        return *date;
    const auto [month, year] = monthAndYear(text.trimmed());
    if (month == 0)
        return {};
    if (year != 0)
        return endOfMonth(year, month);
    const QDate end = endOfMonth(today.year(), month);
    return end < today ? endOfMonth(today.year() + 1, month) : end;
}
