// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/histories.h"
#include "cars/model/vehiclefiles.h"
#include "cars/model/vehiclesheet.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

/// Histories and fill-ups as files for spreadsheets: comma-separated values in UTF-8, with a heading, the
/// texts as they were typed.
namespace CarCsv {

QByteArray text(const History &history, DistanceUnit unit);
QByteArray text(const FuelLog &fuel, DistanceUnit unit);

/// "Family van maintenance.csv": a name for such a file, without characters that no file name has.
QString fileName(const QString &vehicle, CarPart part);

/// Whether `heading` says that its column is not in `unit`, or not in the measure of fuel that goes with it.
bool isInOtherUnit(const QString &heading, DistanceUnit unit);

/// What the columns of such a file hold, and where in it: for each column of the grid its place, or -1.
struct Columns {
    QList<int> places;
    int headingLine = -1; ///< index of the line that names them; -1: none does

    /// Found by a heading among `lines`, or a first one without a digit; without one by as many columns as
    /// the grid of `part` has.
    /// A heading in the other unit names none.
    static Columns find(const QList<QStringList> &lines, CarPart part, DistanceUnit unit);

    /// Whether what a row cannot do without was found: its date.
    bool isComplete() const;
};

} // namespace CarCsv
