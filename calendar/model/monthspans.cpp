// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/monthspans.h"

#include "shell/core/dates.h"

#include <algorithm>

namespace {

constexpr int daysPerWeek = 7;
constexpr QChar upTo(u'\u2013');

} // namespace

MonthSpans::MonthSpans(const WallCalendar &calendar, QDate from, QDate to)
    : m_from(from)
{
    for (int i = 0; i < int(calendar.spans.size()); ++i) {
        const CalendarSpan &span = calendar.spans[i];
        if (!span.from.isValid() || span.from > to || span.lastDay() < from)
            continue;
        m_parts.append({i, std::max(span.from, from), std::min(span.lastDay(), to), span.from, span.lastDay(),
                        span.from >= from, span.lastDay() <= to, span.tone, span.text});
    }
    std::ranges::stable_sort(m_parts, [](const Part &one, const Part &other) {
        return one.from != other.from ? one.from < other.from : one.to > other.to;
    });
}

QList<GridSpan> MonthSpans::alongWeeks(QDate start) const
{
    QList<GridSpan> spans;
    for (const Part &part : m_parts) {
        for (QDate from = part.from; from <= part.to;) {
            const int at = int(start.daysTo(from));
            const int row = at / daysPerWeek;
            const QDate to = std::min(part.to, start.addDays(qint64(row + 1) * daysPerWeek - 1));
            spans.append({.row = row,
                          .column = at % daysPerWeek,
                          .length = int(from.daysTo(to)) + 1,
                          .tone = part.tone,
                          .text = part.text,
                          .index = part.index,
                          .beginsHere = from == part.from && part.beginsHere,
                          .endsHere = to == part.to && part.endsHere,
                          .isContinued = from != part.from});
            from = to.addDays(1);
        }
    }
    return spans;
}

QList<GridSpan> MonthSpans::downDays(const std::function<int(const QString &)> &columnOf) const
{
    QList<GridSpan> spans;
    spans.reserve(m_parts.size());
    for (const Part &part : m_parts) {
        spans.append({.row = int(m_from.daysTo(part.from)),
                      .column = columnOf(part.text),
                      .length = int(part.from.daysTo(part.to)) + 1,
                      .tone = part.tone,
                      .text = part.text,
                      .index = part.index,
                      .beginsHere = part.beginsHere,
                      .endsHere = part.endsHere});
    }
    return spans;
}

QList<GridLine> MonthSpans::notesFrom(QDate date, DateStyle style) const
{
    QList<GridLine> notes;
    for (const Part &part : m_parts) {
        if (part.from != date)
            continue;
        QString days = QString::number(part.from.day());
        if (part.to != part.from)
            days += upTo + QString::number(part.to.day());
        QString name = Dates::shortText(part.begin, style);
        if (part.begin != part.end)
            name += upTo + Dates::shortText(part.end, style);
        notes.append({.text = part.text,
                      .lead = days,
                      .tone = part.tone,
                      .name = name,
                      .isContinued = !part.beginsHere});
    }
    return notes;
}
