// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/wallcalendar.h"

bool WallCalendar::has(QDate date) const
{
    return from.isValid() && date >= from && date <= lastDay();
}
