// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/gridcell.h"

/// What a model tells a `CarGrid` of a cell beside its text.
namespace CarCell {

using namespace GridCell;

enum HeadingRole {
    groupRole = furtherRole, ///< of a heading: what stands above it and its neighbours of the same group
    shortGroupRole           ///< the same in a word, where it has less room
};

} // namespace CarCell
