// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/daterule.h"
#include "shell/core/programstate.h"

/// Rules as a person says them: "every second Tuesday from January 5, 2027 on".
namespace DateRuleWords {

/// "first" to "fifth".
QString ordinal(int number);

/// "December 25", or "25 December" under `Other`.
QString dayOfYear(int month, int day, DateStyle style);

/// The whole of a rule as a sentence without its full stop: its days, its years, and what becomes of them.
QString of(const DateRule &rule, DateStyle style);

} // namespace DateRuleWords
