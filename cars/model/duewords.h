// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carneeds.h"
#include "cars/model/vehiclesheet.h"

/// What is said of the things that a car needs, on the screen and on paper.
namespace DueWords {

/// "Two things are due"; "Three things are due, one of them overdue"; "Nothing is due".
QString title(const QList<CarNeed> &needs);
/// The same where there is less room: "Three things due, two overdue".
QString shortTitle(const QList<CarNeed> &needs);

/// "Change Oil and Filter"; of what has no name "Action 8".
QString name(const CarNeed &need);
/// The same in a line: "oil change", "brakes", "registration"; other names as they stand, but for a capital
/// letter that only begins them.
QString shortName(const CarNeed &need);

/// "Overdue", "Due", or nothing.
QString state(const CarNeed &need);
/// "Overdue since Sep 2", "Due Nov 30", "Due about Mar 7", "Due at 86,210 miles", "Due about now".
QString when(const CarNeed &need, DistanceUnit unit, DateStyle style, QDate today);
/// "2,000 miles left", "350 miles over"; empty without a distance.
QString howFar(const CarNeed &need, DistanceUnit unit);
/// What could be done about a need of which nothing is known; else empty.
QString advice(const CarNeed &need, DistanceUnit unit);

// The schedule's computed columns.

/// "2000", "-350".
QString remainingDistance(const CarNeed &need);
/// "3 months", "12 days", "-81 days".
QString remainingTime(const CarNeed &need, QDate today);

/// "86,210 miles".
QString distance(double distance, DistanceUnit unit);
/// "28.8 miles per gallon", "12.2 km per liter".
QString economy(double economy, DistanceUnit unit);
/// "19 miles a day since Mar 2"; empty where no rate is known.
QString rate(const DrivingLog &log, DistanceUnit unit, DateStyle style, QDate today);
/// "Sep 2", with the year where that is not near.
QString day(QDate date, DateStyle style, QDate today);

} // namespace DueWords
