// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/systemlook.h"

#include <qt_windows.h>

bool SystemLook::isHighContrast(const QPalette &)
{
    HIGHCONTRASTW answer{};
    answer.cbSize = sizeof answer;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof answer, &answer, 0) &&
           (answer.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

bool SystemLook::hasSmallFonts()
{
    return true;
}

bool SystemLook::wantsLessMotion()
{
    BOOL isAnimated = TRUE;
    return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &isAnimated, 0) && !isAnimated;
}
