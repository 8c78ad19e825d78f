// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup.h"

#include <clocale>
#include <cstdlib>

void Startup::prepare() {}

void Startup::readAllLetters()
{
    if (MB_CUR_MAX == 1)
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

void Startup::letOtherComeToFront() {}
