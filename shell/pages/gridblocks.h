// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/gridframe.h"
#include "shell/pages/laidgrid.h"

/// Where the lines below grids of numbers stand.
enum class NotesPlace {
    Below,
    Running, ///< below, side by side where they have no room otherwise
    InList
};

/// Lays out what stands in the frame of a grid, by its form.
namespace GridBlocks {

LaidBlock weeks(const GridFrame &frame);
LaidBlock days(const GridFrame &frame);
LaidBlock numbers(const GridFrame &frame, NotesPlace notes);

LaidBlock laidOut(const GridFrame &frame, NotesPlace notes = NotesPlace::Below);

} // namespace GridBlocks
