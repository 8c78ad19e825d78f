// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"
#include "shell/core/programstate.h"

/// The dates in the files of a car: all of them have day and month in one order, whatever that of the person
/// is who opens it.
namespace CarDates {

/// The order of the dates of `car`: that of those which can be read in one way only. Where none tells, or as
/// many tell the one as the other, `style`.
DateStyle orderOf(const CarRecord &car, DateStyle style);

/// Gives every date of numbers in `car` its day in the place of the month and the month in that of the day.
/// A second time brings each text back as it was.
void turn(CarRecord &car);

/// The date that `text` begins and ends with as it is shown, "03/02/2026"; anything else as it stands there.
QString shown(const QString &text, DateStyle style);

} // namespace CarDates
