// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/daynote.h"
#include "shell/core/liveline.h"
#include "shell/core/programstate.h"
#include "storage/datafolder.h"

#include <QDate>
#include <QList>

#include <optional>

/// What the cars have to say on the main menu and to other functions.
namespace CarNews {

/// "Family car: oil change overdue" or "Family car: brakes on Dec 4", of all cars the most urgent; where
/// nothing is due the consumption of the last fill-up: "Family car: 28.8 miles per gallon".
std::optional<LiveLine> liveLine(const DataFolder &folder, DateStyle style, QDate today);

/// What comes from `from` to `to` by date or at the present rate of driving, in date order. What is overdue
/// stands at its day or, where that lies before `from` or is not known, at `today`: all of a car in one note.
QList<DayNote> dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to, QDate today);

/// The files that news and notes come from: those of the cars that are there and of some to come.
QStringList liveFiles();

} // namespace CarNews
