// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup.h"

void Startup::prepare() {}

void Startup::letOtherComeToFront() {}
