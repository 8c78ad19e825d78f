// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

/// A place inside a function, to which a note, a hit of a search or a deletion leads. Each function reads of
/// it what it has: the address book a record, the planner a date and its row.
struct Place {
    int record = 0; ///< of the function's files; 0: none
    QDate date{};   ///< invalid: none
    int row = -1;   ///< of the date, from 0; -1: none

    bool isNone() const { return record == 0 && !date.isValid(); }
    bool operator==(const Place &) const = default;
};
