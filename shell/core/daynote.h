// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/place.h"

#include <QDate>
#include <QString>
#include <QTime>

/// What kind of thing a function has to say about a date.
enum class NoteKind {
    Appointment,
    Birthday,
    Anniversary,
    ToDo,
    Overdue, ///< should have been done by the date
    Done,
    Due, ///< falls due on the date
    Other
};

/// What a function has to say about one date, for the windows of other functions: "Anne Lind turns 48".
struct DayNote {
    QDate date;
    QString text;
    QString source; ///< the function it comes from: "Address Book"
    NoteKind kind = NoteKind::Other;
    QTime time{};  ///< of an appointment; invalid where it has none
    Place place{}; ///< where a click on it leads in its function
    /// Of the name that `text` begins with, which is cut first where not all has room; 0 without one.
    qsizetype nameLength = 0;
    /// What was typed for `time` where that may mean morning or evening: "8:00".
    QString timeText{};

    bool operator==(const DayNote &) const = default;
};
