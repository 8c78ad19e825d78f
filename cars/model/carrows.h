// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"
#include "cars/model/vehiclefiles.h"
#include "shell/core/programstate.h"

#include <QList>
#include <QStringList>

/// The rows of a car's histories and of its fuel tracker as cells of text, whichever of them it is: `part` is
/// never the sheet.
namespace CarRows {

int columnCount(CarPart part);
QStringList headings(CarPart part, DistanceUnit unit);
/// The column of the date, of the cost, and of the reading at that time.
int dateColumn(CarPart part);
int costColumn(CarPart part);
int readingColumn(CarPart part);

qsizetype count(const CarRecord &car, CarPart part);
QString text(const CarRecord &car, CarPart part, qsizetype row, int column);
void setText(CarRecord &car, CarPart part, qsizetype row, int column, const QString &text);
QStringList cells(const CarRecord &car, CarPart part, qsizetype row);
/// Adds a row behind the others; cells that are missing are blank.
void append(CarRecord &car, CarPart part, const QStringList &cells);
void remove(CarRecord &car, CarPart part, qsizetype row);

/// The rows from the newest on, as they stand in the file. Of one day, and among rows without one, the later
/// row in the file is the newer one; a row without a date goes with the row before it.
QList<qsizetype> newestFirst(const CarRecord &car, CarPart part, DateStyle style);

} // namespace CarRows
