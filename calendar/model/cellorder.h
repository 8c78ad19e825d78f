// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

#include <QTime>

/// The order of the lines in a cell: holidays, birthdays, what has a time by its time, the rest as it came.
namespace CellOrder {

struct Rank {
    enum Group { Holiday, Birthday, Timed, Rest };

    Group group = Rest;
    QTime time{};

    bool operator<(const Rank &other) const
    {
        return group != other.group ? group < other.group : time < other.time;
    }
    bool operator==(const Rank &) const = default;
};

Rank rankOf(const DayLine &line);
/// The same where the time is known.
Rank rankOf(LineSource source, QTime time);

/// Where among `lines` one of that rank is put: before the first that comes after it. What stands in an order
/// of a person's own keeps it.
int placeFor(const QList<DayLine> &lines, const Rank &rank);

} // namespace CellOrder
