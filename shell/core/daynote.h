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

    /// How many characters the text of an appointment has room for.
    static constexpr qsizetype appointmentRoom = 50;

    /// Whether the text of an appointment says the same, as far as it has room for it.
    bool isSaidBy(const QString &appointment) const
    {
        const QString said = appointment.trimmed();
        const QString whole = text.trimmed();
        return !said.isEmpty() &&
               (said.compare(whole, Qt::CaseInsensitive) == 0 ||
                said.compare(whole.left(appointmentRoom).trimmed(), Qt::CaseInsensitive) == 0);
    }
    /// "Overdue", where it is and the text does not say so itself.
    QString unsaidState() const
    {
        const bool isSaid = kind != NoteKind::Overdue || text.contains(u"overdue", Qt::CaseInsensitive);
        return isSaid ? QString() : QStringLiteral("Overdue");
    }

    bool operator==(const DayNote &) const = default;
};
