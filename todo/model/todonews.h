// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/daynote.h"
#include "shell/core/liveline.h"
#include "shell/core/programstate.h"
#include "storage/datafolder.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <optional>

/// What the To Do list has to say on the main menu and to other functions. Templates have nothing to say;
/// steps only where they have a date of their own.
namespace ToDoNews {

/// "2 overdue, 3 today"; where nothing is overdue the next thing that has a date: "Call the chimney sweep,
/// today"; without dates "7 things to do". Nothing where nothing is to be done.
std::optional<LiveLine> liveLine(const DataFolder &folder, DateStyle style, QDate today);

/// What is to be done from `from` to `to`, and what was done then ("Renew passports, done"), in date order.
/// What is overdue stands once more at `today`: "Renew passports, due 15 March".
QList<DayNote> dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to, QDate today);

/// Those of the list's files that are there.
QStringList files(const DataFolder &folder);

} // namespace ToDoNews
