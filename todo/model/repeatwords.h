// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "todo/model/repeat.h"

/// Repeats as a person types and reads them.
namespace RepeatWords {

/// What was typed: "every 3 days", "mon, thu", "monthly", "every year on 15 March after it is done". What is
/// left open is that of `start`. Nothing where it is no rule.
std::optional<Repeat> read(QStringView text, QDate start);

/// "every 3 days", which `read` takes again.
QString of(const Repeat &repeat, DateStyle style);

/// The same beside the next date, which tells the day of a month or year: "every year".
QString beforeDate(const Repeat &repeat, DateStyle style);

} // namespace RepeatWords
