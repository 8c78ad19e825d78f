// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

/// What each system says of its look.
namespace SystemLook {

/// Whether the user has asked for high contrast; a system that cannot be asked tells it by its palette.
bool isHighContrast(const QPalette &palette);

/// Whether controls have the fonts that the system gives to their kind in place of the base font: menus and
/// lists are then smaller than what stands beside them.
bool hasSmallFonts();

/// Whether the user has asked for less motion on the screen. It may take a moment: ask when something is
/// about to move.
bool wantsLessMotion();

} // namespace SystemLook
