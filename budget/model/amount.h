// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Amounts of money as the budget's files hold them: texts with two decimals, no thousands separator and no
/// zero before the point (".50"). No currency; a cell holds less than 10,000, an income less than 100,000.
namespace Amount {

inline constexpr double mostInCell = 9999.99;
inline constexpr double mostIncome = 99999.99;

/// The number that `text` begins with, after blanks and a sign: "12.5 kg" is 12.5; 0 where it begins with
/// none. An exponent is read ("1e3"), an infinite number is none.
double leading(QStringView text);

/// The same of a stored amount, whose first comma does not count: "1,250.00" is 1250.
double stored(QStringView text);

/// The same of a typed amount: well-formed thousands groups are read through ("1,250" is 1250), else as
/// `leading`.
double typed(QStringView text);

/// Whether `text` is a number and nothing else, as `typed` reads it: not so "85,50", which counts as 85.
bool isWholly(QStringView text);

/// `amount` to the nearest cent, halves away from zero.
double rounded(double amount);

/// "1250.00", ".50", "-.50", ".00": two decimals, no zero before the point; no sign where all that is shown
/// is zeros.
QString text(double amount);

} // namespace Amount
