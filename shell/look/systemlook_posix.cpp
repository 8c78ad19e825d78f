// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/systemlook.h"

#include "shell/look/theme.h"

bool SystemLook::isHighContrast(const QPalette &palette)
{
    // Ordinary desktops stay below: black on the usual light grey is 18.4.
    constexpr double least = 19;
    return contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) >= least;
}

bool SystemLook::hasSmallFonts()
{
    return false;
}
