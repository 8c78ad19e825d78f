// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

/// The search in one calendar.
namespace CalendarSearch {

struct Hit {
    QDate date;
    int line = -1; ///< of the day, the removed ones counted; -1: a bar that begins there
    QString text{};

    bool operator==(const Hit &) const = default;
};

/// The lines that are shown, and the bars, that have all of `words`, upper and lower case alike, by date.
QList<Hit> find(const WallCalendar &calendar, const QString &words);

} // namespace CalendarSearch
