// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "storage/datafolder.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

/// What the head lines of a calendar's file say.
struct CalendarHead {
    enum State {
        Whole,
        Later,     ///< of a later version: for reading only
        Foreign,   ///< no file of a calendar
        OutOfReach ///< it cannot be read
    };

    int number = 0; ///< of the file
    QString title;  ///< the file's name where it has none
    QDate from{};   ///< the first of its first month; invalid where none is told
    int months = 0;
    CalendarLayout layout = CalendarLayout::Month;
    State state = Whole;
    bool isEmpty = false; ///< there is nothing in the file

    bool isCalendar() const { return state == Whole || state == Later; }
    QDate lastDay() const { return from.addMonths(months).addDays(-1); }
    bool operator==(const CalendarHead &) const = default;
};

/// The files of the calendars in a folder: "CalMk1.Fil" to "CalMk99.Fil".
namespace CalendarFiles {

inline constexpr int most = 99;

QString name(int number);

/// The numbers that are taken, in ascending order; nothing is read.
QList<int> numbers(const DataFolder &folder);
/// The files that are there, in that order.
QStringList names(const DataFolder &folder);
/// The lowest number that is not taken; 0 where all are.
int freeNumber(const DataFolder &folder);

/// The calendars by number; of each file only the beginning is read.
QList<CalendarHead> heads(const DataFolder &folder);

/// What the file holds, nothing where it is missing; no value, and a line in the log, where it cannot be
/// read.
std::optional<QByteArray> read(const DataFolder &folder, int number);

/// Makes the file of a new calendar. Its number; 0 where all are taken or the disk refuses.
[[nodiscard]] int create(const DataFolder &folder, const WallCalendar &calendar);
/// The same with these bytes.
[[nodiscard]] int create(const DataFolder &folder, const QByteArray &bytes);

} // namespace CalendarFiles
