// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/core/pagegrid.h"
#include "shell/core/programstate.h"

#include <functional>

/// The spans of a calendar as far as they lie within some days, cut up for grids.
class MonthSpans
{
public:
    MonthSpans(const WallCalendar &calendar, QDate from, QDate to);

    /// A bar in each row of weeks, of which the first begins with `start`.
    QList<GridSpan> alongWeeks(QDate start) const;
    /// A bar down the rows of the days, in the column that `columnOf` gives for its text.
    QList<GridSpan> downDays(const std::function<int(const QString &)> &columnOf) const;
    /// Those that begin with `date` here, as notes.
    QList<GridLine> notesFrom(QDate date, DateStyle style) const;

private:
    struct Part {
        int index;
        QDate from;
        QDate to;
        QDate begin; ///< of all of it
        QDate end;
        bool beginsHere;
        bool endsHere;
        int tone;
        QString text;
    };

    QDate m_from;
    QList<Part> m_parts; ///< by date, the longer first
};
