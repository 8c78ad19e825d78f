// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QList>
#include <QStringList>

#include <optional>

/// Amounts and dates as banks of many countries write them.
namespace BankCells {

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

} // namespace BankCells

/// Which columns of a bank's file hold what; -1: none does.
struct BankColumns {
    int date = -1;
    int amount = -1;
    int debit = -1;  ///< outgoing amounts, where they have a column of their own
    int credit = -1; ///< incoming ones
    int sign = -1;   ///< says of each amount whether it is outgoing
    QList<int> texts;
    bool hasHeading = false;
    int headingLine = 0; ///< number of the line that names the columns

    /// Found by the names in a heading or, without one, by what the cells of `lines` are.
    static BankColumns find(const QList<QStringList> &lines);

    bool isComplete() const { return date >= 0 && (amount >= 0 || debit >= 0); }
};

/// Whether a cell of the column `sign` says that the amount is outgoing; nothing where it says neither.
std::optional<bool> isOutgoing(const QString &cell);
