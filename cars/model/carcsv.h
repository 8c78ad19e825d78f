// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "cars/model/vehiclefiles.h"
#include "cars/model/vehiclesheet.h"
#include "shell/core/csvcolumns.h"

#include <QByteArray>

/// Histories and fill-ups as files for spreadsheets: comma-separated values in UTF-8, with a heading, the
/// texts as they were typed.
namespace CarCsv {

QByteArray text(const History &history, DistanceUnit unit);
QByteArray text(const FuelLog &fuel, DistanceUnit unit);

/// "Family van maintenance.csv": a name for such a file, without characters that no file name has.
QString fileName(const QString &vehicle, CarPart part);

/// Whether `heading` says that its column is not in `unit`, or not in the measure of fuel that goes with it.
bool isInOtherUnit(const QString &heading, DistanceUnit unit);

/// The columns that such a file may have. A heading in the other unit names none.
CsvColumns::Wanted columns(CarPart part, DistanceUnit unit);

} // namespace CarCsv
