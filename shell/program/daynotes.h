// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/functions.h"

#include <QDate>
#include <QList>
#include <QStringList>

struct Program;

/// A note of a function, and which that is.
struct HouseholdNote {
    DayNote note;
    Function function;

    bool operator==(const HouseholdNote &) const = default;
};

/// What the functions have for dates, for a window of one of them, which is not asked itself.
namespace DayNotes {

/// For the days `from` to `to`, by date. A function that the password guards is not asked.
QList<HouseholdNote> all(const Program &program, Function asker, QDate from, QDate to);

/// The name of the sign before a note: of what it is or, where that has none, of the function that has it.
QLatin1StringView signOf(const DayNote &note, Function function);

/// The functions that the password keeps from being asked, by their titles.
QStringList passedOver(const Program &program, Function asker);

/// Shows where the note comes from, behind that function's guard.
void open(const Program &program, const HouseholdNote &note);

} // namespace DayNotes
