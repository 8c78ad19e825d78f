// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"
#include "cars/model/drivinglog.h"
#include "shell/core/programstate.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

/// Something that a car needs, and by when: an action of its schedule, its registration or its insurance.
struct CarNeed {
    enum class Kind { Action, Registration, Insurance };
    enum class State {
        NoInterval, ///< nobody said how often
        NoLastTime, ///< nobody said when it was done last
        Ahead,
        Due, ///< within the warning time
        Overdue
    };
    enum class Limit { None, Distance, Time };

    /// How far ahead something is due. Where the rate of driving is not known, the distance counts.
    static constexpr int warningDays = 30;
    static constexpr double warningMiles = 500;
    static constexpr double warningKilometers = 800;

    Kind kind = Kind::Action;
    int row = -1; ///< of the schedule
    QString name; ///< as the schedule has it; of the others its kind
    State state = State::NoInterval;
    Limit limit = Limit::None; ///< the one that comes first

    std::optional<double> remaining{}; ///< distance; below 0 it is over
    double reading = 0;                ///< of the odometer when it is due; counts with `remaining`
    QDate byDistance{};                ///< when that will be or was, at the recent rate; invalid: not known
    QDate byTime{};                    ///< invalid: there is no such limit
    /// At the recent rate the distance has been driven already: the odometer should be looked at.
    bool isReadingOld = false;

    /// The day that counts: the earlier one. Invalid where no rate tells when the distance is driven.
    QDate date() const { return limit == Limit::Distance ? byDistance : byTime; }
    bool isUrgent() const { return state >= State::Due; }

    bool operator==(const CarNeed &) const = default;
};

/// What a car needs and when: intervals, last times and the rate of driving put together.
namespace CarNeeds {

/// All readings in the record: histories, fill-ups, last actions and the present one.
DrivingLog drivingLog(const CarRecord &car, DateStyle style, QDate today);

/// The actions that have a name or an interval, in the order of the schedule; then registration and
/// insurance, as far as something stands there.
QList<CarNeed> of(const CarRecord &car, const DrivingLog &log, DateStyle style, QDate today);

/// The same with the most urgent first.
QList<CarNeed> byUrgency(QList<CarNeed> needs);

/// The last day of a registration. A month without a year comes each year: the next one counts. Invalid
/// where `text` is neither a month nor a date.
QDate registrationEnd(const QString &text, DateStyle style, QDate today);

} // namespace CarNeeds
