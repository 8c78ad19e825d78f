// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "canvas.h"

/// The sixteen background pictures. Each keeps its upper 40 % nearly even: the date is written there.
namespace Pictures {

void morningHills(Canvas &canvas);
void dunes(Canvas &canvas);
void quietSea(Canvas &canvas);
void meadow(Canvas &canvas);
void birchWood(Canvas &canvas);
void autumnLeaves(Canvas &canvas);
void snowfield(Canvas &canvas);
void nightSky(Canvas &canvas);
void lake(Canvas &canvas);
void clouds(Canvas &canvas);
void lavender(Canvas &canvas);
void reeds(Canvas &canvas);
void linen(Canvas &canvas);
void patchwork(Canvas &canvas);
void willow(Canvas &canvas);
void slate(Canvas &canvas);

} // namespace Pictures
