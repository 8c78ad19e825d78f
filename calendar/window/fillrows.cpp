// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/fillrows.h"

#include "calendar/model/holidaysets.h"
#include "calendar/window/filllines.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <algorithm>
#include <array>

namespace {

/// What a function may have, to be left alone while nobody may ask it.
QList<LineSource> kindsOf(Function function)
{
    switch (function) {
    case Function::Planner:
        return {LineSource::Planner};
    case Function::ToDoList:
        return {LineSource::ToDo};
    case Function::AddressBook:
        return {LineSource::Birthday, LineSource::Anniversary};
    case Function::Budget:
    case Function::CarLog:
        return {LineSource::Due};
    default:
        return {LineSource::Planner, LineSource::ToDo, LineSource::Birthday, LineSource::Anniversary,
                LineSource::Due};
    }
}

} // namespace

FillRows FillRows::of(const Program &program, const WallCalendar &calendar)
{
    FillRows rows;
    rows.m_calendar = calendar;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (face.function == Function::CalendarMaker || !entry || !entry->dayNotes)
            continue;
        if (face.isGuarded(program.state.protectedAreas))
            rows.m_rows.push_back({.function = face.function,
                                   .source = kindsOf(face.function).first(),
                                   .caption = face.titleText(),
                                   .from = FillLines::behindPassword(),
                                   .isGuarded = true,
                                   .isRead = false});
        else
            rows.addFunction(program, face.function);
    }
    rows.addOwn(program);
    rows.addGone();
    return rows;
}

void FillRows::addFunction(const Program &program, Function function)
{
    const QList<DayNote> notes =
        program.functions.entry(function)->dayNotes(program, m_calendar.from, m_calendar.lastDay());
    for (const FillSource &source : CalendarFill::sourcesOf(notes)) {
        m_rows.push_back({.function = function,
                          .source = source.source,
                          .caption = FillLines::fillCaption(source.source),
                          .from = FunctionFaces::of(function).titleText(),
                          .notes = source.notes});
    }
}

void FillRows::addOwn(const Program &program)
{
    const HolidaySets sets = HolidaySets::of(program.folder);
    const FillSource holidays = CalendarFill::holidaysOf(m_calendar, sets);
    if (!holidays.notes.isEmpty())
        m_rows.push_back({.source = LineSource::Holiday,
                          .caption = FillLines::fillCaption(LineSource::Holiday),
                          .from = m_calendar.holidaySets.join(QStringLiteral(", ")),
                          .notes = holidays.notes});
    const FillSource rules = CalendarFill::rulesOf(m_calendar, sets);
    if (!rules.notes.isEmpty())
        m_rows.push_back({.source = LineSource::Rule,
                          .caption = FillLines::fillCaption(LineSource::Rule),
                          .from = FillLines::rulesOfCalendar(),
                          .notes = rules.notes});
}

/// Sources that the calendar was filled from and that have nothing any more, so that what came from them can
/// go.
void FillRows::addGone()
{
    for (auto filled = m_calendar.filled.cbegin(); filled != m_calendar.filled.cend(); ++filled) {
        const auto hasSource = [&filled](const FillRow &row) {
            return row.isRead ? row.source == filled.key() : kindsOf(*row.function).contains(filled.key());
        };
        if (std::ranges::none_of(m_rows, hasSource))
            m_rows.push_back({.source = filled.key(),
                              .caption = FillLines::fillCaption(filled.key()),
                              .from = FillLines::nothingAnyMore()});
    }
}

void FillRows::open(const Program &program, std::size_t row)
{
    const FillRow closed = m_rows[row];
    std::vector<FillRow> before(m_rows.begin(), m_rows.begin() + std::ptrdiff_t(row));
    std::vector<FillRow> behind(m_rows.begin() + std::ptrdiff_t(row) + 1, m_rows.end());
    m_rows = before;
    addFunction(program, *closed.function);
    if (m_rows.size() == before.size())
        m_rows.push_back({.function = closed.function,
                          .source = closed.source,
                          .caption = closed.caption,
                          .from = FillLines::nothingThere()});
    for (std::size_t i = before.size(); i < m_rows.size(); ++i) {
        m_rows[i].isGuarded = true;
        m_rows[i].isTicked = !m_rows[i].notes.isEmpty() || m_calendar.filled.contains(m_rows[i].source);
    }
    m_rows.insert(m_rows.end(), behind.begin(), behind.end());
}

void FillRows::tick(const QList<LineSource> &sources)
{
    const auto isOwn = [](LineSource source) {
        return source == LineSource::Holiday || source == LineSource::Rule;
    };
    // Holidays come with a new calendar; they alone are no fill yet. What the calendar itself asks for is
    // taken without having been there before: a rule is made to be kept.
    const bool isFirst = std::ranges::all_of(sources, isOwn);
    for (FillRow &row : m_rows)
        row.isTicked = row.isRead && (isFirst || isOwn(row.source) || sources.contains(row.source));
}

bool FillRows::isAnyTicked() const
{
    return std::ranges::any_of(m_rows, &FillRow::isTicked);
}

bool FillRows::isGuardedTicked() const
{
    return std::ranges::any_of(
        m_rows, [](const FillRow &row) { return row.isTicked && row.isGuarded && !row.notes.isEmpty(); });
}

QList<FillSource> FillRows::sources(bool isAsBefore) const
{
    QList<FillSource> sources;
    for (const FillRow &row : m_rows) {
        if (!row.isRead) {
            for (const LineSource kind : kindsOf(*row.function))
                sources.append({kind, FillSource::Unread, {}});
            continue;
        }
        const bool isTaken = isAsBefore ? wasTaken(row) : row.isTicked;
        sources.append({row.source, isTaken ? FillSource::Taken : FillSource::LeftOut, row.notes});
    }
    return sources;
}

/// The calendar remembers sources alone: of two functions that have the same kind, the one of which nothing
/// stands in it was left out.
bool FillRows::wasTaken(const FillRow &row) const
{
    const auto isOfItsSource = [&row](const FillRow &other) { return other.source == row.source; };
    return m_calendar.filled.contains(row.source) &&
           (std::ranges::count_if(m_rows, isOfItsSource) == 1 ||
            CalendarFill::hasAnyOf(m_calendar, {row.source, FillSource::Taken, row.notes}));
}

FillPlan FillRows::plan(QDate today) const
{
    return CalendarFill::plan(m_calendar, sources(false), today);
}

FillPlan FillRows::planAsBefore(QDate today) const
{
    return CalendarFill::plan(m_calendar, sources(true), today);
}
