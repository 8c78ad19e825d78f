// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"

/// The present reading of a car's sheet, which follows the fill-ups.
namespace PresentReading {

/// A fill-up of `car` reads `reading`: where that is above the sheet's, it becomes the sheet's. False where
/// it stays.
bool follow(CarRecord &car, const QString &reading);

/// Where the sheet's reading came from a fill-up that `before` has and `car` has no more, it goes back to
/// `own`, the last one that no fill-up had raised, or to the highest of the rows that are left where they
/// read more than that. False where it stays.
bool goBack(CarRecord &car, const CarRecord &before, const QString &own);

/// The last reading of `car` that no fill-up had raised, where `before` was it so far.
QString withoutFillUps(const CarRecord &car, const QString &before);

} // namespace PresentReading
