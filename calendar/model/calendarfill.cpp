// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarfill.h"

#include "calendar/model/calendaredits.h"
#include "calendar/model/daterule.h"
#include "calendar/model/filling.h"
#include "calendar/model/holidaysets.h"
#include "shell/core/timeofday.h"

#include <QLocale>
#include <QSet>

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QSet<QDate> datesOf(const QList<HolidayDay> &days)
{
    QSet<QDate> dates;
    for (const HolidayDay &day : days)
        dates.insert(day.date);
    return dates;
}

} // namespace

QString FillSummary::changeWords() const
{
    QStringList parts;
    if (fresh > 0)
        parts.append(u"%1 new"_s.arg(fresh));
    if (changed > 0)
        parts.append(u"%1 changed"_s.arg(changed));
    if (gone > 0)
        parts.append(u"%1 gone"_s.arg(gone));
    return parts.join(u", "_s);
}

QString FillSummary::words() const
{
    QString changes = isNothing() ? u"Nothing has changed"_s : changeWords();
    if (own == 0)
        return changes;
    return changes + (own == 1 ? u"; your 1 line stays"_s : u"; your %1 lines stay"_s.arg(own));
}

std::optional<LineSource> CalendarFill::sourceOf(NoteKind kind)
{
    switch (kind) {
    case NoteKind::Appointment:
        return LineSource::Planner;
    case NoteKind::ToDo:
        return LineSource::ToDo;
    case NoteKind::Birthday:
        return LineSource::Birthday;
    case NoteKind::Anniversary:
        return LineSource::Anniversary;
    case NoteKind::Due:
        return LineSource::Due;
    case NoteKind::Overdue:
    case NoteKind::Done:
    case NoteKind::Other:
        break;
    }
    return {};
}

QList<FillSource> CalendarFill::sourcesOf(const QList<DayNote> &notes)
{
    std::map<LineSource, QList<DayNote>> sources;
    for (const DayNote &note : notes) {
        if (const std::optional<LineSource> source = sourceOf(note.kind))
            sources[*source].append(note);
    }
    QList<FillSource> all;
    for (const auto &[source, notesOfIt] : sources)
        all.append({.source = source, .notes = notesOfIt});
    return all;
}

FillSource CalendarFill::holidaysOf(const WallCalendar &calendar, const HolidaySets &sets)
{
    FillSource source{.source = LineSource::Holiday};
    for (const HolidayDay &day : sets.days(calendar.holidaySets, calendar.from, calendar.lastDay()))
        source.notes.append({.date = day.date, .text = day.text, .source = {}});
    return source;
}

FillSource CalendarFill::rulesOf(const WallCalendar &calendar, const HolidaySets &sets)
{
    FillSource source{.source = LineSource::Rule};
    const QDate last = calendar.lastDay();
    // A day off may stand on a weekday behind the months.
    const QSet<QDate> holidays =
        datesOf(sets.days(calendar.holidaySets, calendar.from, last.addDays(DateRule::mostShift)));
    for (const CalendarRule &line : calendar.rules) {
        const std::optional<DateRule> rule = DateRule::parse(line.rule);
        if (!rule)
            continue;
        const QString text = line.sign.isEmpty() ? line.text : QString(line.sign + u' ' + line.text);
        const auto isHoliday = [&holidays](QDate date) { return holidays.contains(date); };
        for (const QDate date : rule->dates(calendar.from, last, isHoliday))
            source.notes.append({.date = date, .text = text, .source = {}});
    }
    return source;
}

bool CalendarFill::hasAnyOf(const WallCalendar &calendar, const FillSource &source)
{
    QSet<std::pair<QDate, QString>> noted;
    for (const DayNote &note : source.notes)
        noted.insert({note.date, CalendarEdits::lineText(textOf(note))});
    return std::ranges::any_of(calendar.days, [&](const QList<DayLine> &lines) {
        return std::ranges::any_of(lines, [&](const DayLine &line) {
            return line.source == source.source && noted.contains({line.origin, line.original});
        });
    });
}

QString CalendarFill::textOf(const DayNote &note)
{
    if (!note.time.isValid())
        return note.text;
    // An hour alone would count anything on paper.
    const bool isAsTyped = TimeOfDay::leading(note.timeText).isValid();
    const QString time = note.timeText.isEmpty() ? QLocale::c().toString(note.time, u"h:mm AP"_s)
                         : isAsTyped             ? note.timeText
                                                 : note.time.toString(u"h:mm"_s);
    return time + u' ' + note.text;
}

FillPlan CalendarFill::plan(const WallCalendar &calendar, const QList<FillSource> &sources, QDate today)
{
    return Filling(calendar, sources).plan(today);
}
