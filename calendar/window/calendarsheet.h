// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/sheetplan.h"

#include <QString>

#include <functional>

class QPainter;

/// A sheet of a calendar as it will be printed, laid out.
struct CalendarSheet {
    SheetPlan plan;
    std::function<void(QPainter &)> paint; ///< in points
    int leftOver = 0;    ///< lines that stand at its foot, since their days have no room for them
    QString description; ///< what it is, for those who do not see it
};
