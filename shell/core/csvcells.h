// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QStringList>

#include <optional>

/// Amounts and dates as the files of many countries have them.
namespace CsvCells {

/// Which of two numbers of a date comes first; dates with the year in front need none.
enum class DateOrder { DayFirst, MonthFirst };

/// "-1.234,56", "(12.50)", "12.50-", "EUR 1 234,56", "$5": in cents, with `decimal` before the cents;
/// nothing for what is no amount.
std::optional<qint64> amount(QStringView text, QChar decimal);

/// "2026-03-14", "14.03.26", "3/14/2026", "20260314", "14 Mar 2026", a time behind it; invalid for what is no
/// date.
QDate date(QStringView text, DateOrder order);

/// What `texts` have before their cents: '.' or ','.
QChar decimalSign(const QStringList &texts);

/// The order that `texts` have; where they do not tell, points mean the day first, and else `style` says it.
DateOrder dateOrder(const QStringList &texts, DateStyle style);

} // namespace CsvCells
