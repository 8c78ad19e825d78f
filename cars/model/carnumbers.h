// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDate>
#include <QString>

#include <optional>

/// How the numbers and dates in the texts of a car are read and written: readings, distances, gallons, costs.
namespace CarNumbers {

/// The number that `text` begins with after blanks and a currency sign, whatever stands behind it: "84,210",
/// "84 210 km" and "84210" are 84210, "$18,450.00" is 18450, "7,5" and "7.5" are 7.5. Nothing where it begins
/// with none, and for what is below 0 or beyond 10 digits.
std::optional<double> number(QStringView text);

/// The same of a text that holds nothing else but a unit behind the number: no date, no second number.
std::optional<double> alone(QStringView text);

/// The same as a whole number of months: "6" and "6 months" are 6; nothing for 0 and beyond 1200.
std::optional<int> months(QStringView text);

/// The same as a sum of money in cents.
std::optional<qint64> cents(QStringView text);

/// A date in any form that `Dates::parse` reads.
std::optional<QDate> date(QStringView text, DateStyle style);

/// "84210": a reading or a distance as it is stored; decimals only where it has any, two at most.
QString text(double number);

/// What is typed, as a plain number: "84,210 km" is "84210", "5+4.5" is "9.5"; digits that are plain already
/// stay as they are. Empty where a part of the sum is none.
QString plain(QStringView typed);

/// "36.2", with that many decimals.
QString text(double number, int decimals);

/// "49.90".
QString costText(qint64 cents);

/// A stored cost as it is shown: "52,4" is "52.40"; what is no plain amount stays as it is.
QString shownCost(const QString &stored);

} // namespace CarNumbers
