// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/core/page.h"
#include "shell/core/pagecontext.h"
#include "shell/core/pagegrid.h"

#include <functional>
#include <memory>

/// The sheets of a calendar, as they are described to paper and window alike.
namespace CalendarPages {

/// What the sheets are made for.
struct Source {
    PageContext context; ///< its sheet is the one that is built for
    /// Where the picture of a month is found; without it, where the calendar says.
    std::function<QString(const QString &path)> picturePath{};
};

/// The sheet that a calendar asks for.
PageSetup setup(const CalendarLook &look);

int sheetCount(const WallCalendar &calendar);
/// The sheet with month `month`, both from 0.
int sheetOf(const WallCalendar &calendar, int month);
/// The months of a sheet, from 0.
QList<int> monthsOf(const WallCalendar &calendar, int sheet);

/// A sheet of the calendar, without closing line unless it is the last one of what is printed.
std::shared_ptr<const PageGrid> grid(const WallCalendar &calendar, int sheet, const Source &source,
                                     bool isLast = false);
/// The month's own sheet, whatever the layout: for typing where the sheet has no room for lines.
std::shared_ptr<const PageGrid> monthGrid(const WallCalendar &calendar, int month, const Source &source);

/// All sheets, or those of `chosen`, counted from 0, in that order.
Page page(const WallCalendar &calendar, const Source &source, const QList<int> &chosen = {});

} // namespace CalendarPages
