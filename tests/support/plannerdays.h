// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerday.h"

#include <QList>

/// A day with these times and texts, from its first row on.
inline PlannerDay dayOf(const QList<std::pair<QString, QString>> &rows)
{
    PlannerDay day;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        day.times[std::size_t(i)] = rows[i].first;
        day.texts[std::size_t(i)] = rows[i].second;
    }
    return day;
}

/// Takes every step of a walk over dates or files.
template <typename Run>
void runThrough(Run &run)
{
    while (run.step()) {}
}
