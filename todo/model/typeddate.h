// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QString>

#include <optional>

/// Dates as a person types them: "fri", "+3", "next week", "12 July".
namespace TypedDate {

/// The date that `text` means: everything that records have, and yesterday, today, tomorrow, the names of
/// weekdays (the next such day), "+3" days, "next week", "next month", and a day and month without a year
/// (the next such day). Nothing for anything else, a bare number too.
std::optional<QDate> read(QStringView text, DateStyle style, QDate today);

/// The days of "+3", "-7" or "0": in a template, before or after a date that is asked for.
std::optional<int> readOffset(QStringView text);

/// What the quiet line under the cell asks of `date`: "Is the year right?", more than two years ahead or one
/// back; empty where there is nothing to ask.
QString question(QDate date, QDate today);

/// The quiet refusal of what is no date.
QString refusal();

} // namespace TypedDate
