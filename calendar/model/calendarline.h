// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"

#include <QByteArray>

/// A calendar as the lines of its file, which begin with a word and have their columns parted by tabs.
namespace CalendarLine {

/// Takes lines into a calendar, one behind the other.
class Taker
{
public:
    /// False for a line that is unknown or cannot be read, and for the second of what there is once: nothing
    /// comes of it.
    bool take(QByteArrayView line);

    const WallCalendar &calendar() const { return m_calendar; }

private:
    bool takeDay(QByteArrayView columns);

    WallCalendar m_calendar;
    QList<QByteArrayView> m_taken; ///< the words of what there is once
    QDate m_date;                  ///< of the last day's line
    QList<DayLine> *m_day = nullptr;
};

/// All lines of a calendar, in the order of the file.
QList<QByteArray> of(const WallCalendar &calendar);

/// The line that has the same to say as `line`, as it is written now; empty where it cannot be read.
QByteArray rewritten(QByteArrayView line);

} // namespace CalendarLine
