// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/viewer/addressgrid.h"

class ActivityBar;
class GridPane;
class UndoStack;

/// Takes the row of `entry` off the grid, says so, and offers to bring it back. Nothing when it is not there
/// any more.
void removeFromGrid(GridPane &grid, const AddressGrid::Identity &entry, UndoStack &undo,
                    ActivityBar &activity);
