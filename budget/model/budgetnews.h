// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/spending.h"
#include "shell/core/daynote.h"
#include "shell/core/liveline.h"
#include "shell/core/programstate.h"
#include "storage/datafolder.h"

#include <QList>

#include <optional>

/// What the budget has to say on the main menu and to other functions.
namespace BudgetNews {

/// What is left of the income of `month` (from 0), in cents: its balance as the worksheet shows it, less what
/// was spent over the plan. Nothing for a month with neither amounts nor an income.
std::optional<qint64> left(const BudgetSheet &sheet, const SpentSums &spent, std::size_t month);

/// "212.40 left" or "35.00 over".
QString leftText(qint64 cents);

/// "March: 212.40 left" or, overdue, "March: 35.00 over"; without such a month "No budget for 2027 yet" from
/// December on.
std::optional<LiveLine> liveLine(const DataFolder &folder, QDate today);

/// What falls due from `from` to `to` or was paid there, in date order. What should have been paid in the
/// last days stands at its day; where that lies before `from`, at `today`.
QList<DayNote> dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to, QDate today);

/// The files that news and notes come from.
QStringList liveFiles(QDate today);

/// The budget's files that are there.
QStringList files(const DataFolder &folder);

/// The day of `month` (1 to 12) on which an item is due.
QDate dueDate(int year, int month, int dueDay);

} // namespace BudgetNews
