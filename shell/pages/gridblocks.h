// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/gridframe.h"
#include "shell/pages/laidgrid.h"

/// Lays out what stands in the frame of a grid, by its form.
namespace GridBlocks {

LaidBlock weeks(const GridFrame &frame);
LaidBlock days(const GridFrame &frame);
LaidBlock numbers(const GridFrame &frame);

LaidBlock laidOut(const GridFrame &frame);

} // namespace GridBlocks
