// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarsearch.h"

#include <QStringList>

#include <algorithm>

QList<CalendarSearch::Hit> CalendarSearch::find(const WallCalendar &calendar, const QString &words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    const auto hasAll = [&wanted](const QString &text) {
        return std::ranges::all_of(
            wanted, [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
    };
    QList<Hit> hits;
    if (wanted.isEmpty())
        return hits;
    for (auto day = calendar.days.cbegin(); day != calendar.days.cend(); ++day) {
        for (int line = 0; line < day->size(); ++line) {
            if (const DayLine &each = day->at(line); !each.isRemoved() && hasAll(each.shown))
                hits.append({day.key(), line, each.shown});
        }
    }
    for (const CalendarSpan &span : calendar.spans) {
        if (hasAll(span.text))
            hits.append({span.from, -1, span.text});
    }
    std::ranges::stable_sort(hits, {}, &Hit::date);
    return hits;
}
