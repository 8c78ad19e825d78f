// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/core/daynote.h"

#include <optional>

class HolidaySets;

/// What a calendar can be filled with: the notes that one function has of one kind, the holidays or the
/// calendar's own rules.
struct FillSource {
    enum Use {
        Taken,
        LeftOut, ///< it comes from another function than what is taken, and is not wanted
        Unread   ///< the same, and nobody may ask: nothing of its kind counts as gone
    };

    LineSource source = LineSource::Planner;
    Use use = Taken;
    QList<DayNote> notes{};
};

/// What filling would change in a calendar.
struct FillSummary {
    int fresh = 0;
    int changed = 0;
    int gone = 0;
    int own = 0; ///< lines that were typed, edited or removed, which stay

    bool isNothing() const { return fresh == 0 && changed == 0 && gone == 0; }
    /// "4 new, 2 changed, 1 gone; your 12 lines stay"
    QString words() const;
    /// The same without the person's own lines; empty where nothing has changed.
    QString changeWords() const;

    bool operator==(const FillSummary &) const = default;
};

struct FillPlan {
    WallCalendar calendar; ///< as it is then
    FillSummary summary;
};

/// Fills a calendar with what the household has planned, the first time and again.
namespace CalendarFill {

/// Where a note of that kind comes from; nothing for one that no calendar holds.
std::optional<LineSource> sourceOf(NoteKind kind);

/// What one function has, parted by sources, in their order; all of it taken.
QList<FillSource> sourcesOf(const QList<DayNote> &notes);
/// The holidays of the calendar's sets.
FillSource holidaysOf(const WallCalendar &calendar, const HolidaySets &sets);
/// What comes back by its rules; one that cannot be read gives nothing.
FillSource rulesOf(const WallCalendar &calendar, const HolidaySets &sets);

/// Whether the calendar has a line of `source`, wherever it was moved.
bool hasAnyOf(const WallCalendar &calendar, const FillSource &source);

/// What a note is as a line of a calendar: its time, if any, and its text.
QString textOf(const DayNote &note);

/// Compares what the calendar has with `sources` by source, date and text, the same text twice on a day by
/// its count. What is new is put into the order of its cell, what is gone is taken out, a text that has
/// changed is exchanged where it stands; what a person has typed, edited or removed stays. Sources of which
/// none is taken stay as they are.
FillPlan plan(const WallCalendar &calendar, const QList<FillSource> &sources, QDate today);

} // namespace CalendarFill
