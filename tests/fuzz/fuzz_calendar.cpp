// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendaredits.h"
#include "calendar/model/calendarfile.h"
#include "calendar/model/calendarfill.h"
#include "calendar/model/nextyear.h"
#include "fuzztarget.h"

#include <map>

namespace {

const QDate today(2026, 11, 23);

qsizetype linesOf(const WallCalendar &calendar)
{
    qsizetype count = 0;
    for (const QList<DayLine> &lines : calendar.days)
        count += lines.size();
    return count;
}

/// Texts of the calendar as notes of their days, so that some are there already and others are not.
QList<FillSource> sourcesOf(const WallCalendar &calendar)
{
    std::map<LineSource, FillSource> sources;
    int count = 0;
    for (const auto &[date, lines] : calendar.days.asKeyValueRange()) {
        for (const DayLine &line : lines) {
            const LineSource source = line.isTyped() ? LineSource::Planner : line.source;
            sources[source].source = source;
            sources[source].use = FillSource::Use(count / 7 % 3);
            if (++count % 3 != 0)
                sources[source].notes.append({.date = line.origin.isValid() ? line.origin : date,
                                              .text = line.isEdited() ? line.shown : line.original,
                                              .source = {}});
        }
    }
    QList<FillSource> all;
    for (const auto &[source, notes] : sources)
        all.append(notes);
    return all;
}

void tryFilling(const WallCalendar &calendar)
{
    const QList<FillSource> sources = sourcesOf(calendar);
    const FillPlan plan = CalendarFill::plan(calendar, sources, today);
    require(linesOf(plan.calendar) == linesOf(calendar) + plan.summary.fresh - plan.summary.gone,
            "filling takes out what is gone and brings what is new");
    const FillPlan again = CalendarFill::plan(plan.calendar, sources, today);
    require(again.summary.isNothing() && again.calendar == plan.calendar,
            "filling at once again changes nothing");
    require(again.summary.own == plan.summary.own, "what is a person's own stays");
}

void tryEdits(const WallCalendar &calendar)
{
    for (const auto &[date, lines] : calendar.days.asKeyValueRange()) {
        QStringList texts;
        for (const int line : CalendarEdits::visibleLines(calendar, date))
            texts.prepend(CalendarEdits::lineText(lines.at(line).shown));
        texts.removeAll({});
        const WallCalendar turned = CalendarEdits::setCell(calendar, date, texts);
        QStringList shown;
        for (const int line : CalendarEdits::visibleLines(turned, date))
            shown.append(turned.days[date].at(line).shown);
        require(shown == texts, "a cell says what was typed");
        require(CalendarEdits::setCell(turned, date, texts) == turned, "typing the same changes nothing");
        WallCalendar moved = CalendarEdits::moveLine(turned, date, 0, today);
        require(linesOf(moved) == linesOf(turned), "a line that is moved is there once");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = asBytes(data, size).toByteArray();
    const WallCalendar calendar = CalendarFile::read(bytes);
    const QByteArray plain = CalendarFile::write(calendar);
    require(CalendarFile::write(CalendarFile::read(plain)) == plain, "what is written is read as it is");
    if (CalendarFile::formOf(bytes) == TabLine::Known) { // no other file is written over
        const QByteArray file = CalendarFile::write(calendar, bytes);
        require(CalendarFile::read(file) == calendar, "a calendar comes back");
        require(CalendarFile::write(calendar, file) == file, "a file comes back");
        require(file.count('\n') >= plain.count('\n'), "no line is lost");
    }
    if (calendar.from.isValid() && linesOf(calendar) < 200) {
        tryFilling(calendar);
        tryEdits(calendar);
        if (const auto next = NextYear::of(calendar))
            require(next->months == calendar.months && next->from > calendar.from,
                    "the next year comes next");
    }
    return 0;
}
