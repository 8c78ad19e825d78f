// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What a person means by a time, in the form of the list of times.
namespace UsualTime {

/// "9:30 AM" for "930", "9.30 am" and the like, "8:00 AM" for "8a", "2:30 PM" for "14:30". Without a letter,
/// 6 to 11 are AM and 12 to 5 PM, as in the list of times. Empty where no time is meant, and for a time that
/// is in its usual form.
QString of(const QString &typed);

/// Whether `time` says neither AM nor PM, so that a day's order has no place for it among the hours; an empty
/// one does not count.
bool hasNoHalf(const QString &time);

} // namespace UsualTime
