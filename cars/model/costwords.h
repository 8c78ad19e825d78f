// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carcosts.h"
#include "cars/model/fuelfigures.h"
#include "cars/model/vehiclesheet.h"

#include <QStringList>

/// What is said of costs and fill-ups, on the screen and on paper.
namespace CostWords {

/// "Fuel", "Maintenance", "Repairs".
QString kind(CostKind kind);
/// "49.90".
QString money(double cents);
/// "0.11 a mile"; empty where no distance is known.
QString perDistance(const CostSums &sums, DistanceUnit unit);

/// "52.40 a month up to October 2026": of whole months, so that of `today` is left out.
QString perMonth(double cents, QDate today);

/// The columns of costs: what of, the kinds, together, distance, cost of a mile.
QStringList headings(const QString &what, DistanceUnit unit);
QStringList row(const QString &what, const CostSums &sums);
/// "2026, until Nov 22".
QString year(const CarCosts::YearAgainstLast &both, DateStyle style, bool isBefore);
/// "2025, the whole year", where a part of it stands above.
QString wholeYear(int year);
/// How much more or less a year costs than the one before: "+120.00", empty where there was none.
QString difference(const CarCosts::YearAgainstLast &both);

/// "28.0 miles per gallon on average, 17.9 at worst, 39.9 at best"; each line that there are figures for.
QStringList summary(const FuelSums &sums, DistanceUnit unit);
/// Why a fill-up stays out of the averages; empty for one that does not.
QString whyNotCounted(FillUp::Kind kind);
/// The row's texts, with what they do not tell where it could be worked out.
QStringList cells(const FuelRow &row, const FillUp &fillUp);

} // namespace CostWords
