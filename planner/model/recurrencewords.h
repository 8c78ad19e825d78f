// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/recurrence.h"

#include <QString>

#include <optional>

/// What the text of an appointment says about when it comes back.
namespace RecurrenceWords {

/// Kind, interval and weekday that `text` names, for an appointment of `date`: "every other Tuesday",
/// "quarterly", "birthday", "rent". Nothing where it names none, or what no kind can do: "first Monday",
/// "every Tuesday and Thursday".
std::optional<Recurrence> recurrence(const QString &text, QDate date);

} // namespace RecurrenceWords
