// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The time and text that a recurrence repeats, cut to the widths of a day's row and freed of blanks on both
/// sides, so that what is compared is what was stored.
struct Appointment {
    QString time;
    QString text;

    static Appointment ofRow(const QString &time, const QString &text);
    bool isEmpty() const { return time.isEmpty() && text.isEmpty(); }
    bool operator==(const Appointment &) const = default;
};

/// What is done with the appointment on the dates of its recurrence.
enum class RecurrenceAction { Insert, Remove };
