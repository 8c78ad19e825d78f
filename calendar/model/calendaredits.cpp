// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendaredits.h"

#include "calendar/model/cellorder.h"
#include "calendar/model/celltexts.h"

#include <algorithm>
#include <utility>

namespace {

const DayLine *lineAt(const WallCalendar &calendar, QDate date, int line)
{
    const auto day = calendar.days.constFind(date);
    return day != calendar.days.constEnd() && line >= 0 && line < day->size() ? &day->at(line) : nullptr;
}

/// A day without lines is not there.
void put(WallCalendar &calendar, QDate date, const QList<DayLine> &lines)
{
    if (lines.isEmpty())
        calendar.days.remove(date);
    else
        calendar.days[date] = lines;
}

void takeOut(WallCalendar &calendar, QDate date, int line)
{
    QList<DayLine> lines = calendar.days.value(date);
    lines.removeAt(line);
    put(calendar, date, lines);
}

void insert(WallCalendar &calendar, QDate date, int before, const DayLine &line)
{
    QList<DayLine> &lines = calendar.days[date];
    const bool isAnywhere = before < 0 || before > lines.size();
    lines.insert(isAnywhere ? CellOrder::placeFor(lines, CellOrder::rankOf(line)) : before, line);
}

/// Control characters, and what ends a line.
bool isNoneOfALine(QChar c)
{
    return c < u' ' || (c >= u'\u007f' && c <= u'\u009f') || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

} // namespace

QString CalendarEdits::lineText(const QString &text)
{
    QString line = text;
    if (std::ranges::any_of(text, isNoneOfALine))
        std::ranges::replace_if(line, isNoneOfALine, QChar(u' '));
    line = std::move(line).trimmed();
    if (line.size() > DayLine::most) {
        const bool isCutInTwo = line.at(DayLine::most).isLowSurrogate();
        line = line.first(DayLine::most - (isCutInTwo ? 1 : 0)).trimmed();
    }
    return line;
}

QList<int> CalendarEdits::visibleLines(const WallCalendar &calendar, QDate date)
{
    QList<int> visible;
    const QList<DayLine> lines = calendar.days.value(date);
    for (int line = 0; line < lines.size(); ++line) {
        if (!lines.at(line).isRemoved())
            visible.append(line);
    }
    return visible;
}

WallCalendar CalendarEdits::setCell(WallCalendar calendar, QDate date, const QStringList &texts)
{
    QStringList wanted;
    for (const QString &text : texts) {
        if (const QString line = lineText(text); !line.isEmpty())
            wanted.append(line);
    }
    const QList<DayLine> former = calendar.days.value(date);
    put(calendar, date, CellTexts(former, wanted).lines());
    return calendar;
}

WallCalendar CalendarEdits::removeLine(WallCalendar calendar, QDate date, int line)
{
    const DayLine *removed = lineAt(calendar, date, line);
    if (removed && removed->isTyped())
        takeOut(calendar, date, line);
    else if (removed)
        calendar.days[date][line].shown.clear();
    return calendar;
}

WallCalendar CalendarEdits::restoreLine(WallCalendar calendar, QDate date, int line)
{
    const DayLine *restored = lineAt(calendar, date, line);
    if (restored && restored->isEdited())
        calendar.days[date][line].shown = calendar.days[date][line].original;
    return calendar;
}

WallCalendar CalendarEdits::moveLine(WallCalendar calendar, QDate from, int line, QDate to, int before)
{
    const DayLine *there = lineAt(calendar, from, line);
    if (!there || !to.isValid())
        return calendar;
    const DayLine moved = *there;
    takeOut(calendar, from, line);
    insert(calendar, to, from == to && before > line ? before - 1 : before, moved);
    return calendar;
}

WallCalendar CalendarEdits::copyLine(WallCalendar calendar, QDate from, int line, QDate to, int before)
{
    const DayLine *there = lineAt(calendar, from, line);
    if (there && to.isValid() && !there->isRemoved())
        insert(calendar, to, before, DayLine{.shown = QString(there->shown)});
    return calendar;
}

WallCalendar CalendarEdits::orderLine(WallCalendar calendar, QDate date, int line, int by)
{
    const QList<int> visible = visibleLines(calendar, date);
    const qsizetype place = visible.indexOf(line);
    const qsizetype other = place + by;
    if (place >= 0 && other >= 0 && other < visible.size())
        calendar.days[date].swapItemsAt(line, visible.at(other));
    return calendar;
}

WallCalendar CalendarEdits::setYearly(WallCalendar calendar, QDate date, int line, bool isYearly)
{
    const DayLine *there = lineAt(calendar, date, line);
    if (there && there->isTyped() && there->isYearly != isYearly)
        calendar.days[date][line].isYearly = isYearly;
    return calendar;
}

WallCalendar CalendarEdits::addSpan(WallCalendar calendar, const CalendarSpan &span)
{
    calendar.spans.append(span);
    return calendar;
}

WallCalendar CalendarEdits::setSpan(WallCalendar calendar, int index, const CalendarSpan &span)
{
    if (index >= 0 && index < calendar.spans.size())
        calendar.spans[index] = span;
    return calendar;
}

WallCalendar CalendarEdits::removeSpan(WallCalendar calendar, int index)
{
    if (index >= 0 && index < calendar.spans.size())
        calendar.spans.removeAt(index);
    return calendar;
}

WallCalendar CalendarEdits::setPhoto(WallCalendar calendar, QDate month, const MonthPhoto &photo)
{
    calendar.photos[month] = photo;
    return calendar;
}

WallCalendar CalendarEdits::removePhoto(WallCalendar calendar, QDate month)
{
    calendar.photos.remove(month);
    return calendar;
}

WallCalendar CalendarEdits::emptyMonth(WallCalendar calendar, QDate first)
{
    const QDate last = first.addMonths(1).addDays(-1);
    const auto isIn = [first, last](QDate date) { return date >= first && date <= last; };
    calendar.days.removeIf([&isIn](const auto &day) { return isIn(day.key()); });
    calendar.spans.removeIf(
        [&isIn](const CalendarSpan &span) { return isIn(span.from) && isIn(span.lastDay()); });
    return calendar;
}
