// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carrecord.h"

/// The present reading of a car's sheet, which follows the fill-ups.
namespace PresentReading {

/// A fill-up of `car` reads `reading`: where that is above the sheet's, it becomes the sheet's. False where
/// it stays.
bool follow(CarRecord &car, const QString &reading);

/// Where the sheet's reading came from a fill-up that `before` has and `car` has no more, it goes back to
/// `saved`, what the file has, or to the highest that is known. False where it stays.
bool goBack(CarRecord &car, const CarRecord &before, const QString &saved);

/// The reading to go back to once `car` is saved: `before`, where a fill-up has raised it since.
QString withoutFillUps(const CarRecord &car, const QString &before);

} // namespace PresentReading
